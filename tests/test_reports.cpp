// The reports printed through the dialog to PDF files read back as text, their refusals and settings; the pages of
// each report drawn directly (frames, bodies, continuation); the calendar export.
#include "fixture.h"

#include <QPrinter>

#include "reports/calendarexport.h"
#include "reports/reports.h"
#include "reports/reportsettings.h"
#include "ui_calendarexport.h"
#include "ui_reports.h"
#include "ui_reportsettings.h"

// Runs one report over group G through the print run; gives each page's lines, blanks collapsed. Options:
// "lock", "24h", "week=1,2", "title=T" ("%20" a blank), "detail=1", "from=2026-03-02", "to=2026-03-08" (defaults).
static QList<QStringList> runReport(int kind, const QString &options)
{
    QMap<QString, QString> option;
    for (const QString &word : options.split(' ', Qt::SkipEmptyParts))
        option[word.section('=', 0, 0)] = word.section('=', 1).replace("%20", " ");
    QScopedPointer<RosteraMain> window(option.contains("lock") ? openWindow() : nullptr);
    if (window)
        window->employeeLockSchedule = true;
    Reports r;
    r.ui->listWidget->setCurrentRow(kind);
    r.ui->cmb_group->setCurrentText("G");
    r.ui->cmb_person->setCurrentText("A");
    r.ui->date_from->setDate(QDate::fromString(option.value("from", "2026-03-02"), Qt::ISODate));
    r.ui->date_to->setDate(QDate::fromString(option.value("to", "2026-03-08"), Qt::ISODate));
    r.use24h = option.contains("24h");
    r.workWeek = option.value("week", "1,2,3,4,5,6,7").split(',');
    r.reportSettings[kind] = record({{"title", option.value("title")}, {"printDetail", option.value("detail", "0")}});
    QTemporaryDir dir;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(dir.filePath("report.pdf"));
    r.printPreview(&printer);
    QList<QStringList> pages;
    for (const QString &page : pdfText(printer.outputFileName()).split('\f', Qt::SkipEmptyParts))
        pages << page.trimmed().split(QRegularExpression(" *\n[ \n]*"));
    return pages;
}

static const QString kPlan = "shift S/SA/08:00/09:30 M/M/08:00/13:50 N/N/22:00/06:00 | staff A/G B/G C/G D/G E/G F/G"
                             " Z/H | row G/S/1;2;0;0;0;0;0 G/N/1;1;1;1;1;1;1 | schedule 2026-03-02/G/S/A;B"
                             " 2026-03-03/G/M/A;C 2026-03-03/G/N/D;Z 2026-03-02/G/X/B 2026-03-08/G/N/F";

static const QString kNight = QString("Nachtschicht-über-Mitternacht-für-die-Küche-und-den-Empfang-bis-zum-Morgen");

// Runs the command, sets the dialog (group box index, person, one file, from, to) and presses OK, then Cancel if
// it stays open.
static void exportCalendar(RosteraMain *window, int group, const QString &person, bool oneFile, const QDate &from,
                           const QDate &to)
{
    whenDialogOpens<CalendarExport>([=](CalendarExport *dialog) {
        dialog->ui->cmb_group->setCurrentIndex(group);
        dialog->ui->cmb_person->setCurrentText(person);
        dialog->ui->rb_file->setChecked(oneFile);
        dialog->ui->date_from->setDate(from);
        dialog->ui->date_to->setDate(to);
        dialog->ui->buttonBox->button(QDialogButtonBox::Ok)->click();
        if (dialog->isVisible())
            dialog->reject();
    });
    window->ui->actionExport_Calendar->trigger();
}

// Each event of the files as "file|uid|start|end|summary", as the parser reads them.
static QStringList parsed(const QStringList &files)
{
    QProcess python;
    python.start(QStandardPaths::findExecutable("python3", {"/usr/bin"}),
                 QStringList{"-c", "import sys, icalendar\nfor p in sys.argv[1:]:\n"
                                   "  for e in icalendar.Calendar.from_ical(open(p, 'rb').read()).walk('VEVENT'):\n"
                                   "    print(p.split('/')[-1], e['UID'], e.decoded('DTSTART').isoformat(),"
                                   " e.decoded('DTEND').isoformat(), e['SUMMARY'], sep='|')"}
                     + files);
    python.waitForFinished();
    const QString errors = QString::fromUtf8(python.readAllStandardError());
    return QString::fromUtf8(python.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts)
           + (errors.isEmpty() ? QStringList() : QStringList{errors});
}

class TestReports : public QObject
{
    Q_OBJECT
private slots:
    // Group G: Ann and Bob, mostly on the day shift; H: Cy early; E: nobody; Nob has no group.
    void initTestCase()
    {
        QVERIFY(getDB()->openDB(QString()));
        QVERIFY(writePlan("group G H E | shift Day/DY/08:00/16:00 Early/EA/06:00/14:00 | staff Ann/G Bob/G Cy/H Nob/"
                          " | row G/Day/1;1;1;1;1;1;1 H/Early/1;2;0;0;0;0;0 | schedule 2026-03-02/G/Day/Ann;Bob"
                          " 2026-03-03/G/Day/Bob 2026-03-05/G/Day/Bob 2026-03-05/G/Early/Ann 2026-03-02/H/Early/Cy"
                          " 2026-03-20/G/Day/Ann 2026-04-01/G/Day/Cy 2026-04-20/G/Day/Ann"));
    }
    // Each report of 03-02 to 04-10 printed by the buttons to a PDF: its pages, its texts in order ("!": not there;
    // "=": the whole text, "|" and the words of the message boxes). "<All>" prints those without a group first.
    void reports_data()
    {
        addColumns<int>({"row", "pages"});
        addColumns({"group", "person", "texts"});
        const QString week = " 03/02/2026-03/08/2026|", month = " 03/01/2026-03/31/2026|";
        const QString span = " 03/02/2026-04/10/2026|";
        QTest::newRow("0") << 0 << 3 << "<All>" << ""
            << "Employee Weekly Report" + week + "Nob|Report-G|Ann|DY|Report-H|Cy|EA";
        QTest::newRow("1") << 1 << 1 << "<All>" << "Bob"
            << "Single Employee Weekly Report-G" + week + "Bob|DY|!Ann|!Report-H";
        QTest::newRow("4") << 4 << 1 << "<All>" << "Cy" << "Single Employee Monthly Report-H" + month + "Cy|EA|!Ann";
        QTest::newRow("5") << 5 << 4 << "<All>" << ""
            << "Employee Calendar Report March 2026|Report-G|DY Ann|EA Ann|DY Bob|Report-H|EA Cy|Report-E|!DY Cy";
        QTest::newRow("6") << 6 << 1 << "G" << "Bob" << "Single Employee Calendar Report-G March 2026|DY Bob|!Ann";
        QTest::newRow("9") << 9 << 2 << "<All>" << ""
            << "Schedule Assignment Report-G" + span
                   + "03-02 Day Ann / Bob|03-05 Early Ann|03-05 Day Bob|04-01 Day Cy|Report-H|Cy";
        QTest::newRow("10") << 10 << 3 << "<All>" << ""
            << "Employee Work Hours Report" + span + "Nob 0|Report-G|Ann 24|Bob 24|Report-H|Cy 8";
        QTest::newRow("11") << 11 << 1 << "<All>" << "Bob"
            << "Single Employee Work Hours Report-G" + span + "Bob 24|!Ann";
        QTest::newRow("no person") << 1 << 0 << "<All>" << "" << "=no file|Please select a person";
        QTest::newRow("no person, monthly") << 4 << 0 << "<All>" << "" << "=no file|";
        QTest::newRow("nobody in the group: a blank page") << 10 << 1 << "E" << "" << "=\f|";
    }
    void reports()
    {
        QFETCH(QString, texts);
        const QString file = QDir::temp().filePath("report");
        QFile::remove(file);
        Reports dialog;
        dialog.ui->date_from->setDate({2026, 3, 2});
        dialog.ui->date_to->setDate({2026, 4, 10});
        dialog.ui->listWidget->setCurrentRow(field<int>("row"));
        dialog.ui->cmb_group->setCurrentText(field("group"));
        dialog.ui->ck_printPdf->setChecked(true);
        dialog.ui->cmb_person->setCurrentIndex(dialog.ui->cmb_person->findText(field("person")));
        QStringList seen;
        Boxes boxes;
        answerFileDialog(file, &seen);
        QTest::mouseClick(dialog.ui->btn_print, Qt::LeftButton);
        if (seen.isEmpty()) { // nobody asked: the answer goes to a spare dialog
            QFileDialog spare;
            spare.show();
            QVERIFY2(QTest::qWaitFor([&spare] { return !spare.isVisible(); }), "the file dialog's answer went nowhere");
        }
        const QString text = (QFile::exists(file) ? pdfText(file) : "no file") + "|" + boxes.texts.join("|");
        qsizetype at = 0;
        QTEST(int(text.count('\f')), "pages");
        for (const QString &item : texts.split('|', Qt::SkipEmptyParts))
            if (texts.startsWith('='))
                QCOMPARE(text, texts.mid(1));
            else if (item.startsWith('!'))
                QVERIFY2(!text.contains(item.mid(1)), qPrintable(item + " in " + text));
            else
                QVERIFY2((at = text.indexOf(item, at)) >= 0, qPrintable(item + " not in order in " + text));
    }
    // Titles and detail switches reach the stored text and the open dialog on acceptance only. The monthly reports
    // have no page in the settings dialog, yet their stored titles survive.
    void settings()
    {
        const char *key = "print settings/print configure";
        config().setValue(key, "not xml");
        QCOMPARE(Reports().reportSettings, QVector<ASAttribute>(12));
        config().setValue(key, "<report><type3 title='T'/><type10 printDetail='1'/></report>");
        Reports dialog;
        for (bool accept : {false, true}) {
            whenDialogOpens<ReportSettings>([accept](ReportSettings *settings) {
                QComboBox *reports = settings->ui->comboBox;
                reports->setCurrentIndex(3);
                QCOMPARE(reports->currentText() + QString::number(reports->count()), "Employee Calendar10");
                QTest::keyClicks(settings->ui->stackedWidget->currentWidget()->findChild<QLineEdit *>(), "A<&>");
                accept ? settings->accept() : settings->reject();
            });
            dialog.ui->btn_settings->click();
            QCOMPARE(show(Reports().reportSettings), show(dialog.reportSettings));
            QCOMPARE(show(dialog.reportSettings),
                     accept ? "title= | title= | title= | title=T | title= | title=A<&> | title= | title= | title= | "
                              "title= | printDetail=1 title= | printDetail=0 title="
                            : "title=T | printDetail=1");
        }
        QCOMPARE(config().value(key).toString().count("\n <type"), 12);
    }
    // Lines to show, "!" before one not to show, "=" before a word to print exactly once; pages 0: more than one.
    void pages_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("plan");
        QTest::addColumn<int>("pages");
        const QString days = "Monday Tuesday Wednesday Thursday Friday", week = days + " Saturday Sunday";
        const auto row = [](const char *tag, int kind, const QString &options, const QStringList &lines,
                            const QString &plan = kPlan, int pages = 1) {
            QTest::newRow(tag) << kind << options << lines << plan << pages;
        };
        row("hours", 10, "", {"Employee Work Hours Report-G 03/02/2026-03/08/2026", "Employee Hours", "A 7.33333",
            "B 1.5", "C 5.83333", "D 8", "E 0", "F 8"});
        row("hours detail", 10, "detail=1 title=Hours", {"Hours-G 03/02/2026-03/08/2026", "Employee Shift Hours Date",
            "A S 1.5 2026-03-02", "M 5.83333 2026-03-03", "D N 8 2026-03-03", "E"});
        row("timesheet", 8, "", {"03-02 B X 00:00 00:00", "03-03 Z N 10:00 PM 06:00 AM"});
        row("timesheet 24h", 8, "24h", {"03-02 A SA 08:00 09:30", "03-03 D N 22:00 06:00"});
        row("customers, blank title", 8, "lock title=%20 to=2026-03-02", {"-G 03/02/2026-03/02/2026",
            "Date Employee Customer Start Time End Time"});
        row("assignment", 9, "", {"Date Shift Employees", "03-02 S A/B", "03-03 N D/Z"});
        row("weekly", 0, "", {"Employee Weekly Report-G 03/02/2026-03/08/2026", "Employee " + week, "A SA M", "B SA",
            "X", "C M", "D N", "E", "F N", "!Z N"});
        row("weekly from Wednesday, work week 1-5", 0, "week=1,2,3,4,5 from=2026-03-04", {
            "Employee Wednesday Thursday Friday", "Employee Weekly Report-G 03/04/2026-03/10/2026"});
        row("weekly assignment", 2, "", {"SA--Person 1 A", "Person 2 B", "N D F", "!Person 2"});
        row("monthly, no day kept", 3, "week=1,2,3,4,5 from=2026-03-10", {"Employee", "D",
            "Employee Monthly Report-G 03/01/2026-03/31/2026"});
        row("by date 40 days", 7, "to=2026-04-10", {"Employee By Date Report-G 03/02/2026-04/01/2026"});
        row("calendar, six weeks", 5, "", {"Employee Calendar Report-G March 2026", "Week " + week,
            "9 23 24 25 26 27 28 1", "14 30 31 1 2 3 4 5"});
        row("calendar, four weeks", 5, "week=1,2,3,4,5 from=2021-02-09", {"Week " + days, "5 1 2 3 4 5",
            "8 22 23 24 25 26", "!9 1 2 3 4 5"});
        const QString noRows = "staff A/G | schedule 2026-03-02/G/S/A";
        row("calendar without standing rows", 5, "", {"!9 23 24 25 26 27 28 1", "!1"}, noRows); // the header alone
        row("calendar of customers", 5, "lock", {"9 23 24 25 26 27 28 1", "S A", "1"}, noRows);
        QStringList staff, shifts;
        for (int i = 0; i < 150; ++i) {
            staff << QString("E%1").arg(i);
            shifts << QString("S%1").arg(i);
        }
        const QString many = "staff " + staff.join("/G ") + "/G | schedule 2026-03-02/G/S/" + staff.join(';');
        QString tall = "shift " + shifts.join(' ') + " | staff A/G B/G C/G | schedule";
        for (const QString &shift : shifts)
            tall += " 2026-03-02/G/" + shift + "/A;B;C";
        staff.replaceInStrings("E", "=E");
        shifts.replaceInStrings("S", "=S");
        row("weekly, continued", 0, "", staff, many, 0);
        row("rows taller than a page", 0, "", {"=A", "=B", "=C"}, tall, 3);
        row("timesheet, one record split", 8, "", staff, many, 0);
        row("hours detail, continued", 10, "detail=1", shifts, QString(tall).replace("/A;B;C", "/A"), 0);
        row("assignment, unstaffed at the end", 9, "", shifts, tall + " 2026-03-05/G/S0/", 0);
        row("weekly assignment, continued", 2, "", staff, many + " | row G/S/150", 0);
    }
    void pages()
    {
        QFETCH(QStringList, lines);
        QFETCH(int, pages);
        QVERIFY(writePlan(field("plan")));
        const QList<QStringList> text = runReport(field<int>("kind"), field("options"));
        QVERIFY(pages ? text.size() == pages : text.size() > 1);
        QStringList all;
        // Each page of a continued report has a body and its number (maybe beside a row run over the footer).
        for (int p = 0; p < text.size(); ++p) {
            QVERIFY(text.size() == 1
                    || (text[p].size() > 3 && text[p].join(' ').split(' ').contains(QString::number(p + 1))));
            all += text[p];
        }
        const QStringList words = all.mid(2).join(' ').split(' ');
        for (const QString &line : lines)
            QVERIFY2(line.startsWith('=') ? words.count(line.mid(1)) == 1
                                          : all.contains(line.mid(line.startsWith('!'))) != line.startsWith('!'),
                     qPrintable(line));
    }
    // The calendar export: files read back by an independent iCalendar parser (python3-icalendar), line lengths and
    // endings, identities kept over exports.
    void calendarExport()
    {
        if (QProcess::execute(QStandardPaths::findExecutable("python3", {"/usr/bin"}), {"-c", "import icalendar"}) != 0)
            QSKIP("python3-icalendar is missing");
        // An hour east of UTC in March, without tzdata: the times written are the local ones less an hour.
        qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
        QVERIFY(writePlan("group G | shift Day/D/09:00/17:00 " + kNight + "/N/22:00/06:00 Odd,one;two/O/14:00/14:00"
                          " Vague/V/x/y | staff A/G N/ | schedule 2026-03-02/G/Day/A 2026-03-02/G/" + kNight
                          + "/A 2026-03-03/G/Odd,one;two/N;A 2026-03-04//Vague/N 2026-03-20/G/Day/A"));
        QScopedPointer<RosteraMain> window(openWindow());
        QVERIFY(window);
        const QString folder = TestHome::file("calendars");
        QVERIFY(QDir().mkpath(folder));
        Boxes boxes;
        answerFileDialog(folder);
        exportCalendar(window.get(), 0, "<All>", false, {2026, 3, 1}, {2026, 3, 10});
        const QStringList events = parsed({folder + "/A.ics", folder + "/N.ics"});
        QStringList shown;
        for (const QString &event : events)
            shown << event.section('|', 0, 0) + "|" + event.section('|', 2);
        const QString odd = "2026-03-03T13:00:00+00:00|2026-03-04T13:00:00+00:00|Shift: Odd,one;two (G)";
        const QString night = "2026-03-02T21:00:00+00:00|2026-03-03T05:00:00+00:00|Shift: " + kNight + " (G)";
        QCOMPARE(shown, QStringList({"A.ics|2026-03-02T08:00:00+00:00|2026-03-02T16:00:00+00:00|Shift: Day (G)",
                                     "A.ics|" + night, "A.ics|" + odd, "N.ics|" + odd,
                                     "N.ics|2026-03-04|2026-03-05|Shift: Vague"}));
        QCOMPARE(boxes.texts, QStringList{"2 calendar file(s) written."});
        // Every line ends in CR LF and holds at most 75 octets; the same assignments keep their identities, the time
        // stamp aside.
        QFile file(folder + "/A.ics");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray first = file.readAll();
        for (const QByteArray &line : first.split('\n'))
            QVERIFY2(line.isEmpty() || (line.endsWith('\r') && line.size() <= 76), line);
        window->employeeLockSchedule = true;
        answerFileDialog(folder + "/one.ics");
        exportCalendar(window.get(), 2, "A", true, {2026, 3, 2}, {2026, 3, 3});
        window->employeeLockSchedule = false;
        const QStringList again = parsed({folder + "/one.ics"});
        QCOMPARE(again.size(), 3);
        QCOMPARE(again[2].section('|', 1, 1) + again[2].section('|', 4),
                 events[2].section('|', 1, 1) + "Customer: Odd,one;two (G)");
        QVERIFY(!first.contains("Customer"));
    }
};

ROSTERA_TEST_MAIN(TestReports)
#include "test_reports.moc"

// The calendar export: files read back by an independent iCalendar parser (python3-icalendar),
// identities kept over exports, and the messages when nothing or nowhere can be written.
#include <QDialogButtonBox>
#include <QPushButton>
#include <QStandardPaths>

#include "fixture.h"
#include "ui_rosteramain.h"
#include "reports/calendarexport.h"
#include "ui_calendarexport.h"

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

// An event's span as the parser gives it: "start|end" in UTC.
static QString span(const QString &date, const QString &start, const QString &endDate, const QString &end)
{
    const auto utc = [](const QString &day, const QString &time) {
        return QDateTime(QDate::fromString(day, Qt::ISODate), QTime::fromString(time))
            .toUTC()
            .toString("yyyy-MM-ddTHH:mm:ss+00:00");
    };
    return utc(date, start) + "|" + utc(endDate, end);
}

class TestCalendar : public QObject
{
    Q_OBJECT
    RosteraMain *window = nullptr;
private slots:
    void initTestCase()
    {
        if (QProcess::execute(QStandardPaths::findExecutable("python3", {"/usr/bin"}), {"-c", "import icalendar"}) != 0)
            QSKIP("python3-icalendar is missing");
        QVERIFY((window = openWindow()));
        QVERIFY(writePlan("group G | shift Day/D/09:00/17:00 " + kNight + "/N/22:00/06:00 Odd,one;two/O/14:00/14:00"
                          " Vague/V/x/y | staff A/G N/ | schedule 2026-03-02/G/Day/A 2026-03-02/G/" + kNight
                          + "/A 2026-03-03/G/Odd,one;two/N;A 2026-03-04//Vague/N 2026-03-20/G/Day/A"));
    }
    void cleanupTestCase() { delete window; }
    void exportAndReadBack()
    {
        const QString folder = TestHome::path() + "/calendars";
        QVERIFY(QDir().mkpath(folder));
        Boxes boxes;
        answerFileDialog(folder);
        exportCalendar(window, 0, "<All>", false, {2026, 3, 1}, {2026, 3, 10});
        const QStringList events = parsed({folder + "/A.ics", folder + "/N.ics"});
        QStringList shown;
        for (const QString &event : events)
            shown << event.section('|', 0, 0) + "|" + event.section('|', 2);
        const QString odd = span("2026-03-03", "14:00", "2026-03-04", "14:00") + "|Shift: Odd,one;two (G)";
        const QString night = span("2026-03-02", "22:00", "2026-03-03", "06:00") + "|Shift: " + kNight + " (G)";
        QCOMPARE(shown, QStringList({"A.ics|" + span("2026-03-02", "09:00", "2026-03-02", "17:00") + "|Shift: Day (G)",
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
        exportCalendar(window, 2, "A", true, {2026, 3, 2}, {2026, 3, 3});
        window->employeeLockSchedule = false;
        const QStringList again = parsed({folder + "/one.ics"});
        QCOMPARE(again.size(), 3);
        QCOMPARE(again[2].section('|', 1, 1) + again[2].section('|', 4),
                 events[2].section('|', 1, 1) + "Customer: Odd,one;two (G)");
        QVERIFY(!first.contains("Customer"));
    }
};

ROSTERA_TEST_MAIN(TestCalendar)
#include "test_calendar.moc"

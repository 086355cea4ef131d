// The reports dialog: each report printed through it to a PDF file and read back as text, its
// refusals, and what it keeps in the configuration file.
#include "fixture.h"

#include <QFileDialog>

#include "core/apppaths.h"
#include "persistence/databasefunc.h"
#include "reports/reports.h"
#include "reports/reportsettings.h"
#include "ui_reports.h"
#include "ui_reportsettings.h"


class TestReports : public QObject
{
    Q_OBJECT
    const QString file = QDir::temp().filePath("report");
    // Prints through the buttons: the PDF's text (pages end in form feeds, blanks squeezed) or "no file",
    // then "|" and the words of the message boxes. A lost file's folder is gone once the name is given.
    QString print(Reports &dialog, int row, const QString &group, const QString &person, bool lost = false)
    {
        const QString gone = QDir::temp().filePath("gone");
        QDir().mkpath(gone);
        QFile::remove(file);
        dialog.ui->listWidget->setCurrentRow(row);
        dialog.ui->cmb_group->setCurrentText(group);
        dialog.ui->ck_printPdf->setChecked(true);
        dialog.ui->cmb_person->setCurrentIndex(dialog.ui->cmb_person->findText(person));
        QStringList seen;
        Boxes boxes;
        answerFileDialog(lost ? gone + "/report" : file, &seen, [gone] { QDir(gone).removeRecursively(); });
        QTest::mouseClick(dialog.ui->btn_print, Qt::LeftButton);
        if (seen.isEmpty()) { // nobody asked: the answer goes to a spare dialog
            QFileDialog spare(nullptr, {}, gone);
            spare.show();
            QTest::qWaitFor([&spare] { return !spare.isVisible(); });
        }
        return (QFile::exists(file) ? pdfText(file) : "no file") + "|" + boxes.texts.join("|");
    }

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
    // Each report of 03-02 to 04-10: its pages, its texts in order ("!": not there; "=": the whole result).
    // "<All>" prints the employees without a group first, then each group.
    void reports_data()
    {
        QTest::addColumn<int>("row"), QTest::addColumn<int>("pages"), QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("person"), QTest::addColumn<QString>("texts");
        const QString week = " 03/02/2026-03/08/2026|", month = " 03/01/2026-03/31/2026|";
        const QString span = " 03/02/2026-04/10/2026|";
        QTest::newRow("0") << 0 << 3 << "<All>" << ""
            << "Employee Weekly Report" + week + "Nob|Report-G|Ann|DY|Report-H|Cy|EA";
        QTest::newRow("1") << 1 << 1 << "<All>" << "Bob"
            << "Single Employee Weekly Report-G" + week + "Bob|DY|!Ann|!Report-H";
        QTest::newRow("2") << 2 << 1 << "H" << ""
            << "Schedule Assignment Weekly Report-H" + week + "EA--Person 1|Cy|Person 2";
        QTest::newRow("3") << 3 << 1 << "G" << "" << "Employee Monthly Report-G" + month + "Ann|DY|EA";
        QTest::newRow("4") << 4 << 1 << "<All>" << "Cy" << "Single Employee Monthly Report-H" + month + "Cy|EA|!Ann";
        QTest::newRow("5") << 5 << 4 << "<All>" << ""
            << "Employee Calendar Report March 2026|Report-G|DY Ann|EA Ann|DY Bob|Report-H|EA Cy|Report-E|!DY Cy";
        QTest::newRow("6") << 6 << 1 << "G" << "Bob" << "Single Employee Calendar Report-G March 2026|DY Bob|!Ann";
        QTest::newRow("7") << 7 << 1 << "G" << "" << "Employee By Date Report-G 03/02/2026-04/01/2026|Ann|DY|EA";
        QTest::newRow("8") << 8 << 1 << "G" << ""
            << "Employee Timesheet Report-G" + span
                   + "03-02|Ann|DY|08:00 AM|03-03 Bob|03-05 Ann EA 06:00 AM|03-05 Bob|03-20 Ann|04-01 Cy|!04-20";
        QTest::newRow("9") << 9 << 2 << "<All>" << ""
            << "Schedule Assignment Report-G" + span
                   + "03-02 Day Ann / Bob|03-05 Early Ann|03-05 Day Bob|04-01 Day Cy|Report-H|Cy";
        QTest::newRow("10") << 10 << 3 << "<All>" << ""
            << "Employee Work Hours Report" + span + "Nob 0|Report-G|Ann 24|Bob 24|Report-H|Cy 8";
        QTest::newRow("11") << 11 << 1 << "<All>" << "Bob"
            << "Single Employee Work Hours Report-G" + span + "Bob 24|!Ann";
        QTest::newRow("no person") << 1 << 0 << "<All>" << "" << "=no file|Please select a person";
        QTest::newRow("no person, monthly") << 4 << 0 << "<All>" << "" << "=no file|";
        QTest::newRow("no report") << -1 << 0 << "<All>" << "Ann" << "=no file|";
        QTest::newRow("nobody in the group: a blank page") << 10 << 1 << "E" << "" << "=\f|";
    }
    void reports()
    {
        QFETCH(int, row);
        QFETCH(QString, group);
        QFETCH(QString, person);
        QFETCH(QString, texts);
        Reports dialog;
        dialog.ui->date_from->setDate({2026, 3, 2});
        dialog.ui->date_to->setDate({2026, 4, 10});
        const QString text = print(dialog, row, group, person);
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
    // "print pdf" is kept at each click. The margins (zero for a value that is no rectangle) are kept
    // after a print, even a failed one, but not after a refusal or a cancelled file dialog.
    void kept()
    {
        for (bool on : {true, false}) {
            Reports().ui->ck_printPdf->click();
            QCOMPARE(Reports().ui->ck_printPdf->isChecked(), on);
        }
        const char *margins = "print settings/page margins";
        Reports dialog;
        config().setValue(margins, "junk");
        dialog.ui->date_to->setDate(dialog.ui->date_from->date().addDays(-1));
        QCOMPARE(print(dialog, 0, "G", ""), "no file|The start date can not be earlier than the end date");
        dialog.ui->date_to->setDate(dialog.ui->date_from->date());
        whenDialogOpens<QFileDialog>([](QFileDialog *d) { d->reject(); });
        QCOMPARE(print(dialog, 8, "G", "") + config().value(margins).toString(), "no file|junk");
        QCOMPARE(print(dialog, 8, "G", "", true), "no file|Print failed");
        QCOMPARE(config().value(margins).toRectF(), QRectF(0, 0, 0, 0));
        config().remove(margins);
        print(dialog, 8, "G", "");
        QCOMPARE(config().value(margins).toRectF(), QRectF(0.2, 0.2, 0.2, 0.2));
    }
    // Titles and detail switches reach the stored text and the open dialog on acceptance only. The
    // monthly reports have no page in the settings dialog, yet their stored titles survive.
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
};

ROSTERA_TEST_MAIN(TestReports)
#include "test_reports.moc"

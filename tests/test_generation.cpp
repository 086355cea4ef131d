// The demand of a row, availability, the rotation, and generation with scripted chance.
#include "fixture.h"
#include "engine/enginecommon.h"
#include "engine/rosterasettings.h"
#include "engine/workdateassign.h"

static const QDate kMonday(2026, 3, 2);
static bool plan(QString text) { return writePlan(text.replace("daily", "1;1;1;1;1;1;1")); }
// The schedule table on one line, dates of March 2026 as the day alone.
static QString table() { return scheduleTable().join(',').remove("2026-03-"); }

class TestGeneration : public QObject
{
    Q_OBJECT
    RosteraMain *window = nullptr;
private slots:
    void initTestCase() { QVERIFY(window = openWindow()); }
    void cleanupTestCase() { delete window; }
    // A demand value's need on a date; a holiday or employee 1's vacation; the share test (share, own count, group's
    // count, whole shares, demand, extras, lap).
    void rules_data()
    {
        addColumns({"subject", "date", "answer"});
        const QString march = "demand <dt t='1' sdt='2026-03-01' edt='2026-03-31' week='5' dayweek='1;2'/>";
        const QString yearEnd = "holiday 2001-12-30/5/1", away = "vacation 9/2026-03-02/10 11;1/2026-03-02/3";
        QTest::newRow("list") << "demand 2;2;2;2;2;10;0" << "2026-03-07" << "10";
        QTest::newRow("empty items dropped") << "demand ;;3" << "2026-03-02" << "3";
        QTest::newRow("negative") << "demand -1;x;4" << "2026-03-02" << "0";
        QTest::newRow("empty asks the day index") << "demand " << "2026-03-08" << "6";
        QTest::newRow("weekly rule") << "demand <dt t='0' stn='1;5;1'/>" << "2026-03-03" << "5";
        QTest::newRow("week 5, Monday") << march << "2026-03-30" << "1";
        QTest::newRow("not a chosen day") << march << "2026-03-29" << "0";
        QTest::newRow("after the range") << march << "2026-06-29" << "0";
        QTest::newRow("day 7 is week 1") << "demand <dt t='1' edt='2030-01-01' week='1' dayweek='6'/>" << "2026-03-07"
            << "1";
        QTest::newRow("day 8 is week 2") << "demand <dt t='1' edt='2030-01-01' week='1' dayweek='7'/>" << "2026-03-08"
            << "0";
        QTest::newRow("repeating, last year's span") << yearEnd << "2026-01-03" << "true";
        QTest::newRow("repeating, past its end") << yearEnd << "2026-01-04" << "false";
        QTest::newRow("29 Feb, into a common year") << "holiday 2024-02-29/400/1" << "2025-03-01" << "true";
        QTest::newRow("away, last day") << away << "2026-03-04" << "true";
        QTest::newRow("away, day after") << away << "2026-03-05" << "false";
        QTest::newRow("only inside other ids") << "vacation 11;21/2026-03-02/3" << "2026-03-02" << "false";
        QTest::newRow("last whole place") << "share 2 1 0 8 8 0 first" << "" << "true";
        QTest::newRow("extra, first lap") << "share 2.5 2 7 8 10 2 first" << "" << "false";
        QTest::newRow("extra, later lap") << "share 2.5 2 7 8 10 2 later" << "" << "true, over";
        QTest::newRow("whole shares used up") << "share 2.5 2 8 8 10 3 first" << "" << "true, over";
    }
    void rules()
    {
        const QString kind = field("subject").section(' ', 0, 0), value = field("subject").section(' ', 1);
        const QDate date = QDate::fromString(field("date"), Qt::ISODate);
        const QStringList n = value.split(' ');
        QString answer;
        if (kind == "demand")
            answer = QString::number(window->getStaffNum(value, date, date.dayOfWeek() - 1));
        if (kind == "share") {
            window->assignStats =
                record({{"S_ave", n[0]}, {"S_ass", n[2]}, {"S_int", n[3]}, {"S_num", n[4]}, {"S_ovr", n[5]}});
            ASAttribute employee = record({{"S_ass", n[1]}});
            bool over = false;
            answer = QVariant(window->checkAssNumValid(employee, "S", over, n[6] == "later")).toString();
            answer += over ? ", over" : "";
        } else if (kind != "demand") {
            (kind == "holiday" ? window->holidays : window->vacations) = planRecords(kind, value);
            answer = QVariant(window->checkHoliday(date) || window->checkVacation(date, "1")).toString();
            window->holidays.clear();
            window->vacations.clear();
        }
        QCOMPARE(answer, field("answer"));
    }
    // Plan, days from Monday, flags ("keep", "lock", view and group), every draw; the table, the last group run's
    // counters and order.
    void run_data()
    {
        addColumns({"plan", "days", "flags", "draws", "table", "stats"});
        const QString abc = "staff A/G B/G C/G | row G/S/daily";
        const QString apart = "staff A/G B/G C/H | row G/S/daily H/S/daily G/T/daily";
        const QString untouched = "staff A/G | row G/S/1;0;0;0;0;0;0 | schedule 2026-03-02/G/S/A 2026-03-02/G/T/A "
                                  "2026-03-03/G/S/A 2026-03-02/H/S/Z";
        const QString views = "staff A/G B/H N/ | row G/S/daily H/S/daily /S/daily | schedule 2026-03-02/G/S/x "
                              "2026-03-02/H/S/x 2026-03-02//S/x";
        // r = 3 % 3 = 0; j = 4 % 2 = 0, then 7 % 1 = 0.
        QTest::newRow("three") << "staff A/G B/G C/G | row G/S/2;2;2;2;2;2;2" << "5" << "" << "3 4 7"
            << "02 G S B;C,03 G S A;B,04 G S C;A,05 G S B;C,06 G S A;B"
            << "order=120 S=10 S_num=10 S_ave=3.33333 S_int=9 S_ass=10 S_ovr=1 T_ave=1 T_int=3";
        QTest::newRow("both worked the day before: the second lap starts again")
            << "staff A/G B/G | row G/S/2;2;2;2;2;2;2" << "2" << "" << "0 0" << "02 G S B;A,03 G S B;A" << "";
        QTest::newRow("C away: no place lost, nobody twice running, still in the head count")
            << abc + " | vacation C/2026-03-01/10" << "6" << "" << "0 1 0"
            << "02 G S A,03 G S B,04 G S A,05 G S B,06 G S ,07 G S " << "order=201 S_ave=2";
        QTest::newRow("kept A counts: no extra in the first lap while another is inside the share")
            << abc + " | schedule 2026-03-05/G/S/A" << "4" << "keep" << "2 0 0" << "02 G S B,03 G S C,04 G S A,05 G S A"
            << "S_ave=1.33333 S_int=3 S_ass=4 S_ovr=1";
        QTest::newRow("holiday") << "staff A/G B/G | row G/S/daily | holiday 2026-03-03/2/0 | schedule 2026-03-03/G/S/A"
            << "4" << "keep" << "0 0" << "02 G S B,03 G S ,04 G S ,05 G S " << "S_num=2 S_ave=1 S_ass=2";
        QTest::newRow("no employees, one shift a date, no such shift")
            << "staff A/G | row H/S/daily G/S/daily G/T/daily G/X/daily" << "1" << "" << "0"
            << "02 G S A,02 G T ,02 G X " << "X_ave=";
        QTest::newRow("kept names hold their date, also beyond the need")
            << abc + " G/T/daily | schedule 2026-03-02/G/S/C;A" << "1" << "keep" << "2 0 0" << "02 G S C;A,02 G T B"
            << "S_ass=2 T_ass=1";
        QTest::newRow("untouched kept, lost") << untouched << "2" << "keep" << "0" << "02 G S A" << "";
        QTest::newRow("untouched kept, lock mode") << untouched << "2" << "keep lock" << "0"
            << "02 G S A,02 G T A,02 H S Z,03 G S A" << "";
        QTest::newRow("one group") << views << "1" << "1H" << "0 0" << "02  S x,02 G S x,02 H S B" << "";
        QTest::newRow("rows apart") << apart << "2" << "" << "0 0 0 0 0"
            << "02 G S B,02 G T B,02 H S C,03 G S A,03 G T A,03 H S C" << "S= T=2";
        QTest::newRow("the first run draws for N, so G starts at 0") << "staff N/ A/G B/G C/G | row G/S/daily" << "1"
            << "" << "2 0 0 0" << "02 G S B" << "order=120";
        QTest::newRow("locked A first; a lock of two, or an invalid one, does nothing")
            << abc + " | lock A;B/2026-03-02 C/2026-03-03/0 A/2026-03-04" << "3" << "" << "0 0 0"
            << "02 G S C,03 G S B,04 G S A" << "";
        QTest::newRow("designated")
            << "staff A/G B/G | shift S T U | row G/S/2;2;2;2;2;2;2/A G/T/daily G/U/daily/Z | vacation A/2026-03-03"
            << "2" << "lock" << "0 0" << "02 G S A;A,02 G T B,02 G U A,03 G S A;A,03 G T ,03 G U B" << "S_ass=";
    }
    void run()
    {
        QVERIFY(plan(field("plan")));
        const QString flags = field("flags"), view = flags.section(' ', -1);
        window->employeeLockSchedule = flags.contains("lock");
        setView(window, view.left(1).toInt(), view.left(1).toInt() ? view.mid(1) : QString());
        scriptedDraws.clear();
        for (const QString &draw : field("draws").split(' '))
            scriptedDraws << draw.toInt();
        drawsTaken = 0;
        window->cycleDates = daysFrom(kMonday, field("days").toInt());
        QVERIFY(window->auto_schedule(window->cycleDates, !flags.contains("keep")));
        QCOMPARE(table(), field("table"));
        QCOMPARE(drawsTaken, int(scriptedDraws.size()));
        QString stats, order;
        for (int i : window->shuffledStaff)
            order += QString::number(i);
        for (const QString &key : field("stats").split(QRegularExpression("=\\S* ?"), Qt::SkipEmptyParts))
            stats += key + '=' + (key == "order" ? order : window->assignStats.attr(key, QString())) + ' ';
        QCOMPARE(stats.trimmed(), field("stats"));
        QVERIFY(window->holidays.isEmpty() && window->vacations.isEmpty());
    }
    // The second command's span (the cycle's first date and length in calendar days, work days only) bounds what is
    // deleted and kept, but the whole cycle is filled: a second run meets the first's Thursday and fails. Cancel ends.
    void commands()
    {
        QVERIFY(plan("staff A/G | row G/S/1;1;1;1;0;0;0 | schedule 2026-03-02/G/S/x 2026-03-04/G/S/y "
                     "2026-03-11/G/S/w"));
        setView(window, 0);
        window->employeeLockSchedule = false;
        window->ui->date_current->setDate(kMonday);
        using Box = QMessageBox;
        Boxes boxes({Box::Cancel, Box::No, Box::Yes, Box::Ok, Box::Cancel, Box::No, Box::Yes});
        QStringList after;
        for (int i = 0; i < 7; ++i) {
            window->toolBar->setViewType(i < 4);
            window->cycleDates = i < 4 ? daysFrom(kMonday.addDays(2), 7) : daysFrom(kMonday, 2);
            setOption("work week", i < 4 ? "3" : "1,2,3,4,5,6,7");
            if (i < 4)
                whenDialogOpens<RosteraSettings>([i, &after](RosteraSettings *dialog) {
                    i ? dialog->accept() : dialog->reject();
                    after << QString("%1 days").arg(dialog->cycleDays);
                });
            i < 4 ? window->on_auto_date_schedule() : window->on_auto_schedule();
            after << table().remove(" G S");
            if (i == 2) // the grid, by schedule here, shows what was written
                after << window->ui->tableWidget->model()->index(0, 1).data().toString() + " on "
                             + window->cycleDates.value(1).toString("MM-dd");
        }
        QCOMPARE(after, QStringList({"0 days", "02 x,04 y,11 w", "7 days", "02 x,04 y,11 w", "7 days",
                                     "02 x,04 y,05 A,09 A,10 A,11 w", "w on 03-11", "7 days",
                                     "02 x,05 A,09 A,10 A,11 w", "02 x,05 A,09 A,10 A,11 w",
                                     "02 x,03 A,05 A,09 A,10 A,11 w", "02 A,03 A,05 A,09 A,10 A,11 w"}));
        QTableWidget *grid = window->ui->tableWidget;
        QCOMPARE(grid->item(0, 0)->text() + grid->item(0, 1)->text(), QString("SS"));
        const QString ask = "Delete existing schedule?";
        QCOMPARE(boxes.texts, QStringList(3, ask) << "Save schedule information failed!" << QStringList(3, ask));
        QCOMPARE(boxes.titles, QStringList(7, QString()));
        QCOMPARE(boxes.buttons.mid(2, 2), QList<Box::StandardButtons>({Box::Yes | Box::No | Box::Cancel, Box::Ok}));
        QCOMPARE(boxes.defaults.first(), Box::Yes);
    }
    void ruleDialog()
    {
        WorkDateAssign dialog, dates;
        dialog.setWeek("2"); // boxes not named stay as they are; numbers that name no box are left out
        dialog.setData("<dt t='1' sdt='2026-03-01' edt='2026-03-31' week='5;0;9;x' dayweek='7;1;8'/>");
        QCOMPARE(dialog.getData(), record({{"t", "1"}, {"sdt", "2026-03-01"}, {"edt", "2026-03-31"}, {"week", "2;5"},
                                           {"dayweek", "1;7"}})
                                       .getXmlAttrs("dt"));
        // Back in the rule form; empty items count here, unlike in the demand; seven are read.
        dialog.setData("2;;3;1;1;1;1;9");
        QCOMPARE(dialog.getData(), record({{"t", "0"}, {"stn", "2;0;3;1;1;1;1"}}).getXmlAttrs("dt"));
        dates.setData("<dt t='1'/>"); // a new rule runs from today for five years
        const QDate today = QDate::currentDate();
        QCOMPARE(dates.getData(), record({{"t", "1"}, {"sdt", today.toString(Qt::ISODate)},
                                          {"edt", today.addYears(5).toString(Qt::ISODate)}, {"week", ""},
                                          {"dayweek", ""}})
                                      .getXmlAttrs("dt"));
        // Only the specified-date tab is checked, in this order, staying open after a refusal.
        Boxes boxes;
        QString results;
        for (const char *value : {"<dt t='1' sdt='2026-03-10' edt='2026-03-09'/>", "<dt t='0'/>",
                                  "<dt t='1' edt='2026-03-10'/>", "<dt t='1' week='3'/>", "<dt t='1' dayweek='3'/>"}) {
            dates.setData(value);
            dates.setResult(QDialog::Rejected);
            dates.accept();
            results += QString::number(dates.result());
        }
        QCOMPARE(results, QString("01001"));
        QCOMPARE(boxes.texts, QStringList({"End date can't set before start date.", "Please select a week.",
                                           "Please select a day of week."}));
        QCOMPARE(boxes.titles, QStringList(3, QString()));
        QCOMPARE(boxes.buttons, QList<QMessageBox::StandardButtons>(3, QMessageBox::Ok));
    }
};

ROSTERA_TEST_MAIN(TestGeneration)
#include "test_generation.moc"

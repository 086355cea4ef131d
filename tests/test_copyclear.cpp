// Copying and clearing spans of the schedule: the four commands, their questions, the two
// dialogs with their refusals, the overlap rule and the group filter of the one-group views.
#include "testhome.h"

#include <QDateEdit>
#include <QSpinBox>
#include <QSqlQuery>

#include "engine/clearschedulesettings.h"
#include "engine/copyschedulesettings.h"
#include "enginefixture.h"
#include "ui_clearschedulesettings.h"
#include "ui_copyschedulesettings.h"
#include "ui_rosteramain.h"

static const QDate kMonday(2026, 3, 9);

// A date edit's display format and whether it has a calendar pop-up.
static QString dateEditForm(const QDateEdit *edit)
{
    return edit->displayFormat() + (edit->calendarPopup() ? " popup " : " ");
}

class TestCopyClear : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void overlapRule_data();
    void overlapRule();
    void copyPreviousCycle();
    void copyRefusedOrOverlapping();
    void copyFromEmptySource();
    void copyOneGroup();
    void copySaveFailure();
    void copySpecifiedCycle();
    void clearCycle();
    void clearOneGroup();
    void clearSpecifiedDates();
    void clearFailure();

private:
    RosteraMain *window = nullptr;
    Plan plan;
};

void TestCopyClear::initTestCase()
{
    QVERIFY(getDB()->openDB(QString()));
    window = new RosteraMain;
}

void TestCopyClear::cleanupTestCase()
{
    delete window;
    getDB()->closeDB();
}

// Records of two groups around the displayed cycle, Monday 9 to Sunday 15 March.
void TestCopyClear::init()
{
    plan = Plan();
    plan.groups = {"G", "H"};
    plan.schedule = {scheduleRecord("2026-03-01", "G", "S", "x"), scheduleRecord("2026-03-02", "G", "S", "a"),
                     scheduleRecord("2026-03-02", "H", "S", "h"), scheduleRecord("2026-03-08", "G", "S", "b"),
                     scheduleRecord("2026-03-09", "G", "S", "old"), scheduleRecord("2026-03-10", "H", "S", "old"),
                     scheduleRecord("2026-03-16", "G", "S", "keep")};
    QVERIFY(writePlan(plan));
    setView(window, 0);
    window->cycleDates = daysFrom(kMonday, 7);
}

void TestCopyClear::overlapRule_data()
{
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QDate>("to");
    QTest::addColumn<bool>("overlap");
    QTest::newRow("same date") << QDate(2026, 3, 1) << QDate(2026, 3, 1) << true;
    QTest::newRow("right after") << QDate(2026, 3, 1) << QDate(2026, 3, 8) << false;
    QTest::newRow("last day shared") << QDate(2026, 3, 1) << QDate(2026, 3, 7) << true;
    QTest::newRow("backwards, right before") << QDate(2026, 3, 8) << QDate(2026, 3, 1) << false;
    QTest::newRow("backwards, last day shared") << QDate(2026, 3, 7) << QDate(2026, 3, 1) << true;
}

void TestCopyClear::overlapRule()
{
    QFETCH(QDate, from);
    QFETCH(QDate, to);
    QFETCH(bool, overlap);
    QCOMPARE(copySpansOverlap(from, to, 7), overlap);
}

// The previous cycle is counted in calendar days: five working dates from a Monday copy from
// the Wednesday before.
void TestCopyClear::copyPreviousCycle()
{
    setOption("cycle days", 5);
    window->cycleDates = daysFrom(kMonday, 5);
    BoxAnswer yes(QMessageBox::Yes);
    window->on_copyPreCycle_schedule();
    setOption("cycle days", 7);
    QCOMPARE(yes.texts(), QStringList({"Are you sure to replace existing schedule?"}));
    QCOMPARE(yes.titles(), QStringList({""}));
    QCOMPARE(yes.buttons(), QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(yes.defaultButton(), QMessageBox::No);
    QCOMPARE(yes.icon(), QMessageBox::Question);
    QCOMPARE(scheduleTable(),
             QStringList({"2026-03-01 G S x", "2026-03-02 G S a", "2026-03-02 H S h", "2026-03-08 G S b",
                          "2026-03-13 G S b", "2026-03-16 G S keep"}));

    // Backwards: the dates move back by as many days.
    window->copySchedule(kMonday, QDate(2026, 3, 2), 7, true);
    QCOMPARE(scheduleTable(),
             QStringList({"2026-03-01 G S x", "2026-03-06 G S b", "2026-03-13 G S b", "2026-03-16 G S keep"}));
}

void TestCopyClear::copyRefusedOrOverlapping()
{
    {
        BoxAnswer no(QMessageBox::No);
        window->copySchedule(QDate(2026, 3, 2), kMonday, 7, true);
        QCOMPARE(no.shown(), 1);
    }
    BoxAnswer yes(QMessageBox::Yes);
    window->copySchedule(QDate(2026, 3, 3), kMonday, 7, true);
    window->copySchedule(kMonday, kMonday, 1, true);
    QCOMPARE(yes.texts(), QStringList(2, "Are you sure to replace existing schedule?"));
    QCOMPARE(scheduleTable().size(), plan.schedule.size());
}

// An empty source asks again; going on clears the target.
void TestCopyClear::copyFromEmptySource()
{
    {
        BoxSequence answers({QMessageBox::Yes, QMessageBox::No});
        window->copySchedule(QDate(2026, 2, 2), kMonday, 7, true);
        QTRY_COMPARE(answers.texts.size(), 2);
        QCOMPARE(answers.texts.last(), QString("Source schedule is empty, continue?"));
        QCOMPARE(answers.defaults.last(), QMessageBox::No);
        QCOMPARE(scheduleTable().size(), plan.schedule.size());
    }
    BoxAnswer yes(QMessageBox::Yes);
    window->copySchedule(QDate(2026, 2, 2), kMonday, 7, true);
    QCOMPARE(yes.texts(), QStringList({"Are you sure to replace existing schedule?", "Source schedule is empty, continue?"}));
    QCOMPARE(yes.buttons(), QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(yes.icon(), QMessageBox::Question);
    QCOMPARE(scheduleTable(), QStringList({"2026-03-01 G S x", "2026-03-02 G S a", "2026-03-02 H S h",
                                           "2026-03-08 G S b", "2026-03-16 G S keep"}));
}

void TestCopyClear::copyOneGroup()
{
    setView(window, 1, "H");
    BoxAnswer yes(QMessageBox::Yes);
    window->copySchedule(QDate(2026, 3, 2), kMonday, 7, true);
    QCOMPARE(scheduleTable(),
             QStringList({"2026-03-01 G S x", "2026-03-02 G S a", "2026-03-02 H S h", "2026-03-08 G S b",
                          "2026-03-09 G S old", "2026-03-09 H S h", "2026-03-16 G S keep"}));
}

// The target is deleted before the save, so a failed save leaves it empty.
void TestCopyClear::copySaveFailure()
{
    QSqlQuery query(getDB()->db);
    QVERIFY(query.exec("CREATE TRIGGER refuse BEFORE INSERT ON t_schedule BEGIN SELECT RAISE(FAIL, 'no'); END"));
    {
        BoxAnswer yes(QMessageBox::Yes);
        window->copySchedule(QDate(2026, 3, 2), kMonday, 7, true);
        window->copySchedule(QDate(2026, 3, 2), kMonday, 7, false);
        QCOMPARE(yes.texts(), QStringList({"Are you sure to replace existing schedule?", "Copy schedule of previous week failed!",
                                           "Are you sure to replace existing schedule?", "Copy schedule from 2026-03-02 failed!"}));
        QCOMPARE(yes.titles().last(), QString());
        QCOMPARE(yes.icon(), QMessageBox::Warning);
    }
    QVERIFY(query.exec("DROP TRIGGER refuse"));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-01 G S x", "2026-03-02 G S a", "2026-03-02 H S h",
                                           "2026-03-08 G S b", "2026-03-16 G S keep"}));
}

// The dialog proposes the cycle before the displayed one and refuses an overlap, staying open.
void TestCopyClear::copySpecifiedCycle()
{
    window->cycleDates = daysFrom(kMonday, 3);
    QStringList seen;
    whenDialogOpens<CopyScheduleSettings>([&seen](CopyScheduleSettings *dialog) {
        const Ui_CopyScheduleSettings *ui = dialog->ui;
        seen << dialog->windowTitle() << ui->dt_copyFrom->date().toString("yyyy-MM-dd")
             << QString::number(ui->ed_copyDays->value()) << ui->dt_copyTo->date().toString("yyyy-MM-dd")
             << ui->label_copyFrom->text() + ui->label_copyDays->text() + ui->label_copyTo->text()
             << QString("%1-%2").arg(ui->ed_copyDays->minimum()).arg(ui->ed_copyDays->maximum())
             << dateEditForm(ui->dt_copyFrom) + dateEditForm(ui->dt_copyTo);
        dialog->ui->dt_copyFrom->setDate(QDate(2026, 3, 2));
        dialog->ui->ed_copyDays->setValue(8);
        dialog->accept();
        seen << QString::number(dialog->isVisible());
        dialog->ui->ed_copyDays->setValue(7);
        dialog->accept();
    });
    BoxAnswer yes(QMessageBox::Yes);
    window->on_copySpecifiedCycle_schedule();
    QCOMPARE(seen, QStringList({"Copy Specified Cycle Schedule", "2026-03-06", "3", "2026-03-09",
                                "Copy from:Copy days:Copy to:", "1-999", "M/d/yyyy popup M/d/yyyy popup ", "1"}));
    QCOMPARE(yes.texts(), QStringList({"There has overlapping day between from and to dates",
                                       "Are you sure to replace existing schedule?"}));
    QCOMPARE(cell("2026-03-15", "G", "S"), QString("b"));

    whenDialogOpens<CopyScheduleSettings>([](CopyScheduleSettings *dialog) { dialog->reject(); });
    window->on_copySpecifiedCycle_schedule();
    QCOMPARE(yes.shown(), 2);
}

void TestCopyClear::clearCycle()
{
    {
        BoxAnswer no(QMessageBox::No);
        window->on_clear_schedule();
        QCOMPARE(no.texts(), QStringList({"Are you sure to clear existing schedule\nfrom 3/9/2026 to 3/15/2026?"}));
        QCOMPARE(no.titles(), QStringList({""}));
        QCOMPARE(no.buttons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(no.defaultButton(), QMessageBox::No);
        QCOMPARE(scheduleTable().size(), plan.schedule.size());
    }
    BoxAnswer yes(QMessageBox::Yes);
    window->cycleDates = daysFrom(kMonday, 7);
    window->on_clear_schedule();
    QCOMPARE(scheduleTable(), QStringList({"2026-03-01 G S x", "2026-03-02 G S a", "2026-03-02 H S h",
                                           "2026-03-08 G S b", "2026-03-16 G S keep"}));
    // A span without rows is cleared without complaint.
    window->cycleDates = daysFrom(kMonday, 7);
    window->on_clear_schedule();
    QCOMPARE(yes.shown(), 2);
}

void TestCopyClear::clearOneGroup()
{
    setView(window, 2, "G");
    BoxAnswer yes(QMessageBox::Yes);
    window->clearSchedule(QDate(2026, 3, 1), QDate(2026, 3, 10));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 H S h", "2026-03-10 H S old", "2026-03-16 G S keep"}));

    // "<None>" stands for the records without a group.
    plan.schedule = {scheduleRecord("2026-03-02", "", "S", "n"), scheduleRecord("2026-03-02", "H", "S", "h")};
    QVERIFY(writePlan(plan));
    setView(window, 1);
    window->clearSchedule(QDate(2026, 3, 1), QDate(2026, 3, 10));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 H S h"}));
}

void TestCopyClear::clearSpecifiedDates()
{
    window->cycleDates = daysFrom(kMonday, 3);
    QStringList seen;
    whenDialogOpens<ClearScheduleSettings>([&seen](ClearScheduleSettings *dialog) {
        const Ui_ClearScheduleSettings *ui = dialog->ui;
        seen << dialog->windowTitle() << ui->dt_from->date().toString("yyyy-MM-dd")
             << ui->dt_to->date().toString("yyyy-MM-dd") << ui->label_from->text() + ui->label_to->text()
             << dateEditForm(ui->dt_from) + dateEditForm(ui->dt_to);
        dialog->ui->dt_from->setDate(QDate(2026, 3, 8));
        dialog->ui->dt_to->setDate(QDate(2026, 3, 1));
        dialog->accept();
        seen << QString::number(dialog->isVisible());
        dialog->ui->dt_to->setDate(QDate(2026, 3, 8));
        dialog->accept();
    });
    BoxAnswer yes(QMessageBox::Yes);
    window->on_clear_date_schedule();
    QCOMPARE(seen, QStringList({"Clear Schedule", "2026-03-09", "2026-03-11", "Date from:Date to:",
                                "M/d/yyyy popup M/d/yyyy popup ", "1"}));
    QCOMPARE(yes.texts(), QStringList({"To date can't before from date",
                                       "Are you sure to clear existing schedule\nfrom 3/8/2026 to 3/8/2026?"}));
    QVERIFY(!scheduleTable().contains("2026-03-08 G S b"));
    QCOMPARE(scheduleTable().size(), plan.schedule.size() - 1);

    whenDialogOpens<ClearScheduleSettings>([](ClearScheduleSettings *dialog) { dialog->reject(); });
    window->on_clear_date_schedule();
    QCOMPARE(yes.shown(), 2);
}

void TestCopyClear::clearFailure()
{
    QSqlQuery query(getDB()->db);
    QVERIFY(query.exec("ALTER TABLE t_schedule RENAME TO t_moved"));
    BoxAnswer yes(QMessageBox::Yes);
    window->clearSchedule(QDate(2026, 3, 1), QDate(2026, 3, 2));
    QVERIFY(query.exec("ALTER TABLE t_moved RENAME TO t_schedule"));
    QCOMPARE(yes.texts().last(), QString("Clear schedule failed!"));
    QCOMPARE(yes.icon(), QMessageBox::Warning);
    QCOMPARE(scheduleTable().size(), plan.schedule.size());
}

ROSTERA_TEST_MAIN(TestCopyClear)
#include "test_copyclear.moc"

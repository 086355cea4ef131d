// The check of the displayed cycle, its repair, the status panel, and the tip at a cell.
#include "testhome.h"

#include <QLabel>
#include <QPushButton>
#include <QSqlQuery>
#include <QTableWidget>
#include <QToolTip>

#include "engine/schedulestatus.h"
#include "enginefixture.h"
#include "ui_rosteramain.h"
#include "ui_schedulestatus.h"

static const QDate kMonday(2026, 3, 2);

class TestCheck : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void correctWhenNothingToCheck();
    void messagesWordForWord();
    void holidayReportsOnlyItself();
    void checkStopsAtTen();
    void duplicateInOneRecord();
    void repairRemovesAndReportsShortage();
    void repairEmptiedRecordVanishes();
    void oneGroupViewChecksThatGroup();
    void panelRepairRefillsOnYes();
    void panelRepairWithoutRefill();
    void panelRepairSaveFailure();
    void tipAtCell();

private:
    RosteraMain *window = nullptr;
    Plan plan;
    ScheduleStatus *panel() { return window->statusPanel; }
};

void TestCheck::initTestCase()
{
    QVERIFY(getDB()->openDB(QString()));
    window = new RosteraMain;
    window->randomNumber = RandomScript::next;
}

void TestCheck::cleanupTestCase()
{
    delete window;
    getDB()->closeDB();
}

// Group "G" with employees 1 to 3, shift "S" needing 2 on weekdays and nobody at weekends,
// shift "T" needing 1 every day.
void TestCheck::init()
{
    plan = Plan();
    plan.groups = {"G", "H"};
    plan.shifts = {"S", "T"};
    plan.staffs = {staff("1", "G"), staff("2", "G"), staff("3", "G"), staff("7", "H")};
    plan.rows = {standingRow("G", "S", "2;2;2;2;2;0;0"), standingRow("G", "T", "1;1;1;1;1;1;1")};
    setView(window, 0);
    window->cycleDates = daysFrom(kMonday, 1);
    // The check appends to these and never empties them; only a generation run does.
    window->holidays.clear();
    window->vacations.clear();
}

void TestCheck::correctWhenNothingToCheck()
{
    QVERIFY(writePlan(plan));
    QCOMPARE(window->checkSchedule(false), QStringList());
    // A group never generated is not reported, however short it is.
    plan.schedule = {scheduleRecord("2026-03-02", "H", "S", "7")};
    QVERIFY(writePlan(plan));
    QCOMPARE(window->checkSchedule(false), QStringList());
    window->cycleDates.clear();
    QCOMPARE(window->checkSchedule(false), QStringList());

    ScheduleStatus fresh;
    QCOMPARE(fresh.ui->schedule_textTip->text(), QString("Current schedule is correct"));
    QVERIFY(!fresh.ui->btn_repairSchedule->isEnabled());
    QCOMPARE(fresh.ui->btn_checkSchedule->text(), QString("Check"));
    QCOMPARE(fresh.ui->btn_repairSchedule->text(), QString("Repair"));
    QCOMPARE(fresh.ui->btn_checkSchedule->toolTip(), QString("Check current schedule"));
    QCOMPARE(fresh.ui->btn_repairSchedule->toolTip(), QString("Check current schedule"));
    QVERIFY(!fresh.ui->btn_checkSchedule->icon().pixmap(16).isNull());
    QVERIFY(!fresh.ui->btn_repairSchedule->icon().pixmap(16).isNull());

    window->cycleDates = daysFrom(kMonday, 1);
    panel()->refreshCheckState(false, {"x"});
    panel()->ui->btn_checkSchedule->click();
    QCOMPARE(panel()->ui->schedule_textTip->text(), QString("Current schedule is correct"));
    QCOMPARE(panel()->ui->schedule_textTip->toolTip(), QString());
    QCOMPARE(panel()->ui->schedule_iconTip->text(), QString("<img src=':/res/success.ico'/>"));
    QVERIFY(!panel()->ui->btn_repairSchedule->isEnabled());
}

void TestCheck::messagesWordForWord()
{
    plan.staffs << staff("5", "") << staff("6", "");
    plan.rows << standingRow("", "S", "1;1;1;1;1;1;1");
    plan.vacations = {vacation("2", "2026-03-03", 1), vacation("11;21", "2026-03-01", 10)};
    plan.schedule = {
        scheduleRecord("2026-03-02", "G", "S", "9;1"), scheduleRecord("2026-03-02", "G", "T", "1"),
        scheduleRecord("2026-03-03", "G", "S", "2;3;1"), scheduleRecord("2026-03-03", "G", "T", "3"),
        scheduleRecord("2026-03-07", "G", "S", "1"), scheduleRecord("2026-03-07", "G", "T", "2"),
        scheduleRecord("2026-03-02", "", "S", "5;6"),
    };
    QVERIFY(writePlan(plan));
    window->cycleDates = {kMonday, kMonday.addDays(1), kMonday.addDays(5)};
    QCOMPARE(window->checkSchedule(false),
             QStringList({
                 "Date:[2026-03-02]Group:[G]Shift:[S],Employee [9] doesn't exist,don't assign the employee",
                 "Date:[2026-03-03]Group:[G]Shift:[S],Employee [2] is during the vacations, can't be assigned",
                 "Date:[2026-03-03]Group:[G]Shift:[S],Need 2 employees work, 3 employees were assigned work for that "
                 "day,more than need",
                 "Date:[2026-03-07]Group:[G]Shift:[S]. Do not require employees,don't assign employees work for that day",
                 "Date:[2026-03-02]Group:[G]Shift:[T],Employee [1] can't be assigned to more than one shift",
                 "Date:[2026-03-03]Group:[G]Shift:[T],Employee [3] can't be assigned to more than one shift",
                 "Date:[2026-03-02]Group:[<None>]Shift:[S],Need 1 employees work, 2 employees were assigned work for "
                 "that day,more than need",
                 "Date:[2026-03-03]Group:[<None>]Shift:[S],Need 1 employees work, 0 employees were assigned work for "
                 "that day,less than need",
                 "Date:[2026-03-07]Group:[<None>]Shift:[S],Need 1 employees work, 0 employees were assigned work for "
                 "that day,less than need",
             }));
    // The check loads holidays and vacations and leaves them loaded.
    QCOMPARE(window->vacations.size(), 2);
}

// On a holiday only the holiday is reported, however wrong the names are.
void TestCheck::holidayReportsOnlyItself()
{
    plan.holidays = {holiday("2026-03-02", 1, 0)};
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "5;5")};
    QVERIFY(writePlan(plan));
    QCOMPARE(window->checkSchedule(false),
             QStringList({"Date:[2026-03-02]Group:[G]Shift:[S], that day is during the holidays. Do not require "
                          "employees,don't assign employees work for that day"}));
}

void TestCheck::checkStopsAtTen()
{
    plan.rows = {standingRow("G", "T", "1;1;1;1;1;1;1")};
    for (int day = 0; day < 11; ++day)
        plan.schedule << scheduleRecord(kMonday.addDays(day).toString("yyyy-MM-dd"), "G", "T", "9");
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 11);
    const QStringList messages = window->checkSchedule(false);
    QCOMPARE(messages.size(), 10);
    QCOMPARE(messages.last(),
             QString("Date:[2026-03-11]Group:[G]Shift:[T],Employee [9] doesn't exist,don't assign the employee"));

    panel()->ui->btn_checkSchedule->click();
    QCOMPARE(panel()->ui->schedule_textTip->text(), messages.first());
    QCOMPARE(panel()->ui->schedule_textTip->toolTip(), messages.join("\r\n"));
    QCOMPARE(panel()->ui->schedule_iconTip->text(), QString("<img src=':/res/error.ico'/>"));
    QVERIFY(panel()->ui->btn_repairSchedule->isEnabled());

    // Repair mode has no limit and reports only what removal cannot mend: all eleven shortages.
    QCOMPARE(window->checkSchedule(true).size(), 11);
    QVERIFY(scheduleTable().isEmpty());

    // The limit is also tested after each name of a record: the names past the tenth and the
    // count of the record go unreported.
    plan.schedule = {scheduleRecord("2026-03-02", "G", "T", "a0;a1;a2;a3;a4;a5;a6;a7;a8;a9;a10")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 1);
    const QStringList names = window->checkSchedule(false);
    QCOMPARE(names.size(), 10);
    QCOMPARE(names.last(),
             QString("Date:[2026-03-02]Group:[G]Shift:[T],Employee [a9] doesn't exist,don't assign the employee"));
}

// The duplicate makes the count right in check mode; repair removes it and then the
// record is short.
void TestCheck::duplicateInOneRecord()
{
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "3;3"), scheduleRecord("2026-03-02", "G", "T", "1")};
    QVERIFY(writePlan(plan));
    QCOMPARE(window->checkSchedule(false),
             QStringList({"Date:[2026-03-02]Group:[G]Shift:[S],Employee [3] can't be assigned to more than one shift"}));
    QCOMPARE(window->checkSchedule(true),
             QStringList({"Date:[2026-03-02]Group:[G]Shift:[S],Need 2 employees work, 1 employees were assigned work "
                          "for that day,less than need"}));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S 3", "2026-03-02 G T 1"}));
}

void TestCheck::repairRemovesAndReportsShortage()
{
    plan.vacations = {vacation("2", "2026-03-02", 1)};
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "9;1;2"), scheduleRecord("2026-03-02", "G", "T", "3;1;2"),
                     scheduleRecord("2026-03-03", "G", "S", "1;3;2;1"), scheduleRecord("2026-03-03", "G", "T", "9")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 2);
    QCOMPARE(window->checkSchedule(true),
             QStringList({"Date:[2026-03-02]Group:[G]Shift:[S],Need 2 employees work, 1 employees were assigned work "
                          "for that day,less than need",
                          "Date:[2026-03-03]Group:[G]Shift:[T],Need 1 employees work, 0 employees were assigned work "
                          "for that day,less than need"}));
    // Too many: cut from the end down to the need.
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S 1", "2026-03-02 G T 3", "2026-03-03 G S 1;3"}));
    QCOMPARE(window->checkSchedule(false).size(), 2);
}

// Staff on a holiday or where nobody is needed is removed; a record left empty is deleted.
void TestCheck::repairEmptiedRecordVanishes()
{
    plan.holidays = {holiday("2026-03-02", 1, 0)};
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "1"), scheduleRecord("2026-03-07", "G", "S", "2;3"),
                     scheduleRecord("2026-03-07", "G", "T", "1")};
    QVERIFY(writePlan(plan));
    window->cycleDates = {kMonday, kMonday.addDays(5)};
    QCOMPARE(window->checkSchedule(true), QStringList());
    QCOMPARE(scheduleTable(), QStringList({"2026-03-07 G T 1"}));
}

void TestCheck::oneGroupViewChecksThatGroup()
{
    plan.rows << standingRow("H", "S", "1;1;1;1;1;1;1");
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "9;1"), scheduleRecord("2026-03-02", "G", "T", "2"),
                     scheduleRecord("2026-03-02", "H", "S", "8")};
    QVERIFY(writePlan(plan));
    setView(window, 1, "H");
    window->cycleDates = daysFrom(kMonday, 1);
    QCOMPARE(window->checkSchedule(false),
             QStringList({"Date:[2026-03-02]Group:[H]Shift:[S],Employee [8] doesn't exist,don't assign the employee"}));
    setView(window, 0);
    window->cycleDates = daysFrom(kMonday, 1);
    QCOMPARE(window->checkSchedule(false).size(), 2);
}

// Repair removes the unknown employee (and with it the record); Yes lets the generator fill
// the open place, after which the schedule is correct.
void TestCheck::panelRepairRefillsOnYes()
{
    plan.rows = {standingRow("G", "T", "1;1;1;1;1;1;1")};
    plan.schedule = {scheduleRecord("2026-03-02", "G", "T", "9")};
    QVERIFY(writePlan(plan));
    {
        BoxAnswer cancel(QMessageBox::Cancel);
        panel()->ui->btn_repairSchedule->setEnabled(true);
        panel()->ui->btn_repairSchedule->click();
        QCOMPARE(cancel.texts(), QStringList({"Need to allocate staff automatically?"}));
        QCOMPARE(cancel.titles(), QStringList({""}));
        QCOMPARE(cancel.buttons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        QCOMPARE(cancel.defaultButton(), QMessageBox::Yes);
        QCOMPARE(cancel.icon(), QMessageBox::Question);
        QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G T 9"}));
    }
    // r = 0 and the shuffle 1, 2, 0: the rotation starts with the second employee.
    RandomScript::set({0, 0, 0});
    BoxAnswer yes(QMessageBox::Yes);
    panel()->ui->btn_repairSchedule->click();
    QCOMPARE(yes.shown(), 1);
    QCOMPARE(RandomScript::drawn(), 3);
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G T 2"}));
    QCOMPARE(panel()->ui->schedule_textTip->text(), QString("Current schedule is correct"));
    QVERIFY(!panel()->ui->btn_repairSchedule->isEnabled());
}

void TestCheck::panelRepairWithoutRefill()
{
    plan.rows = {standingRow("G", "T", "1;1;1;1;1;1;1")};
    plan.schedule = {scheduleRecord("2026-03-02", "G", "T", "9;1"), scheduleRecord("2026-03-03", "G", "T", "1")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 2);
    RandomScript::set({});
    {
        BoxAnswer no(QMessageBox::No);
        panel()->ui->btn_repairSchedule->setEnabled(true);
        panel()->ui->btn_repairSchedule->click();
    }
    QCOMPARE(RandomScript::drawn(), 0);
    // The second date is short of nobody but 1 now works two days running: that is allowed.
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G T 1", "2026-03-03 G T 1"}));
    QCOMPARE(panel()->ui->schedule_textTip->text(), QString("Current schedule is correct"));

    // Yes fills open places only where the repair left some: here removal mends all.
    plan.schedule = {scheduleRecord("2026-03-02", "G", "T", "1;2"), scheduleRecord("2026-03-03", "G", "T", "3")};
    QVERIFY(writePlan(plan));
    BoxAnswer yes(QMessageBox::Yes);
    panel()->refreshCheckState(false, {"before"});
    panel()->ui->btn_repairSchedule->click();
    QCOMPARE(yes.shown(), 1);
    QCOMPARE(RandomScript::drawn(), 0);
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G T 1", "2026-03-03 G T 3"}));
    QCOMPARE(panel()->ui->schedule_textTip->text(), QString("Current schedule is correct"));
}

void TestCheck::panelRepairSaveFailure()
{
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "9;1;2"), scheduleRecord("2026-03-02", "G", "T", "3")};
    QVERIFY(writePlan(plan));
    QSqlQuery query(getDB()->db);
    QVERIFY(query.exec("CREATE TRIGGER refuse BEFORE UPDATE ON t_schedule BEGIN SELECT RAISE(FAIL, 'no'); END"));
    const QStringList repaired = window->checkSchedule(true);
    QCOMPARE(repaired.value(repaired.size() - 1), QString("Save schedule failed when repair it!"));

    panel()->refreshCheckState(false, {"before"});
    BoxAnswer yes(QMessageBox::Yes);
    panel()->ui->btn_repairSchedule->click();
    QVERIFY(query.exec("DROP TRIGGER refuse"));
    QCOMPARE(yes.texts(), QStringList({"Need to allocate staff automatically?", "Save schedule failed when repair it!"}));
    QCOMPARE(yes.icon(), QMessageBox::Warning);
    QCOMPARE(panel()->ui->schedule_textTip->text(), QString("before"));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S 9;1;2", "2026-03-02 G T 3"}));
}

// The tip label of QToolTip, while it is shown.
static QWidget *shownTip()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("QTipLabel") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

// The tip appears after a delay at the lower left corner of the cell.
void TestCheck::tipAtCell()
{
    QTableWidget *table = window->ui->tableWidget;
    table->setRowCount(2);
    table->setColumnCount(2);
    table->setRowHeight(0, 40);
    table->setRowHeight(1, 60);
    table->setColumnWidth(0, 90);
    window->show();
    // Where QToolTip puts its label relative to the point it is given.
    QToolTip::showText(table->mapToGlobal(QPoint(0, 0)), "reference");
    QVERIFY(shownTip());
    const QPoint offset = shownTip()->pos() - table->mapToGlobal(QPoint(0, 0));
    QToolTip::hideText();
    QTRY_VERIFY(!shownTip());

    window->show_tip(1, 1, "Already assigned on that day");
    QCOMPARE(window->tipRow, 1);
    QCOMPARE(window->tipCol, 1);
    QCOMPARE(window->tipText, QString("Already assigned on that day"));
    QVERIFY(QToolTip::text().isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(QToolTip::text(), QString("Already assigned on that day"), 1000);
    const QPoint corner(table->columnViewportPosition(1), table->rowViewportPosition(1) + 60);
    QCOMPARE(shownTip()->pos(), table->mapToGlobal(corner) + offset);
    QToolTip::hideText();
    window->hide();
}

ROSTERA_TEST_MAIN(TestCheck)
#include "test_check.moc"

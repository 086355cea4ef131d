// Manual adjustment of a cell: the try-out with its tips and the commit with its writes, in
// the view by employee and the view by schedule.
#include "testhome.h"

#include <QSqlQuery>
#include <QTableWidget>

#include "enginefixture.h"
#include "ui_rosteramain.h"

static const QDate kMonday(2026, 3, 2);
static const QString kNoNeed = "Don't need any employees for this shift of that day";
static const QString kHoliday = "Don't need any employees, that day is during the holidays";
static const QString kEnough = "Already assigned enough employees for this shift of that day";
static const QString kAlready = "Already assigned on that day";

class TestAdjustment : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void sameValueDoesNothing();
    void tryOutByEmployee_data();
    void tryOutByEmployee();
    void tryOutBySchedule_data();
    void tryOutBySchedule();
    void holidaysPileUp();
    void commitByEmployee();
    void commitByEmployeeEndsEarly();
    void commitBySchedule();
    void commitRefusesDuplicate();
    void failedReadAndWrite();

private:
    RosteraMain *window = nullptr;
    Plan plan;
    // One grid row and cell (0, 0) on Monday 2 March with the given row record and value.
    void setCell(const ASAttribute &gridRow, const QString &value);
    ASAttribute employeeRow() { return record({{"type", "personview"}, {"groupname", "G"}, {"id", "1"}}); }
    ASAttribute scheduleRow() { return record({{"type", "scheduleview"}, {"groupname", "G"}, {"shiftname", "S"}}); }
};

void TestAdjustment::initTestCase()
{
    QVERIFY(getDB()->openDB(QString()));
    window = new RosteraMain;
}

void TestAdjustment::cleanupTestCase()
{
    delete window;
    getDB()->closeDB();
}

// Shift "S" needs 2 on weekdays and nobody at weekends, "T" needs 1; "U" has no row.
void TestAdjustment::init()
{
    plan = Plan();
    plan.groups = {"G"};
    plan.shifts = {"S", "T", "U"};
    plan.staffs = {staff("1", "G"), staff("2", "G"), staff("3", "G"), staff("4", "G")};
    plan.rows = {standingRow("G", "S", "2;2;2;2;2;0;0"), standingRow("G", "T", "1;1;1;1;1;1;1")};
    window->holidays.clear();
    window->tipText.clear();
    window->cycleDates = {kMonday, kMonday.addDays(5)};
}

void TestAdjustment::setCell(const ASAttribute &gridRow, const QString &value)
{
    window->toolBar->setViewType(gridRow.attr("type", QString()) == "personview" ? 0 : 1);
    window->gridRows = {gridRow};
    QTableWidget *table = window->ui->tableWidget;
    table->clear();
    table->setRowCount(1);
    table->setColumnCount(2);
    auto *item = new QTableWidgetItem;
    item->setData(Qt::UserRole, value);
    table->setItem(0, 0, item);
}

void TestAdjustment::sameValueDoesNothing()
{
    plan.schedule = {scheduleRecord("2026-03-02", "G", "U", "1;1;1")};
    QVERIFY(writePlan(plan));
    setCell(employeeRow(), "U");
    QVERIFY(window->adjustScheduleCommit(0, 0, "U", false));
    QVERIFY(window->adjustScheduleCommit(0, 0, "U", true));
    setCell(scheduleRow(), "1\n2");
    QVERIFY(window->adjustScheduleCommit(0, 0, "1\n2", true));
    QCOMPARE(window->tipText, QString());
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G U 1;1;1"}));
}

void TestAdjustment::tryOutByEmployee_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("tip");

    QTest::newRow("room left") << "S:2" << "S" << 0 << "";
    QTest::newRow("already in the record") << "S:1;2;3" << "S" << 0 << "";
    QTest::newRow("nothing chosen") << "S:2;3" << "" << 0 << "";
    QTest::newRow("enough") << "S:2;3" << "S" << 0 << kEnough;
    QTest::newRow("no row for the shift") << "" << "U" << 0 << kNoNeed;
    // Without records the list carries the employee added for T over to U, which ends the try-out.
    QTest::newRow("no row for the second shift") << "" << "T\nU" << 0 << "";
    QTest::newRow("nobody needed") << "" << "S" << 1 << kNoNeed;
    QTest::newRow("nobody needed, already in") << "S:1" << "S" << 1 << "";
    // The first record read serves every shift of the cell: T's own record is not looked at.
    QTest::newRow("first record serves all") << "S:2|T:3;4" << "S\nT" << 0 << "";
    QTest::newRow("several shifts, enough") << "S:2;3" << "T\nS" << 0 << kEnough;
    // The demand is the first row's: S needs 2 of the 2 listed, where T's row would need only 1.
    QTest::newRow("first row serves all") << "T:2" << "S\nT" << 0 << "";
}

void TestAdjustment::tryOutByEmployee()
{
    QFETCH(QString, stored);
    QFETCH(QString, value);
    QFETCH(int, column);
    QFETCH(QString, tip);
    const QString date = window->cycleDates.at(column).toString("yyyy-MM-dd");
    for (const QString &cellText : stored.split('|', Qt::SkipEmptyParts))
        plan.schedule << scheduleRecord(date, "G", cellText.section(':', 0, 0), cellText.section(':', 1));
    QVERIFY(writePlan(plan));
    setCell(employeeRow(), "T");
    window->ui->tableWidget->setItem(0, 1, new QTableWidgetItem);
    QVERIFY(window->adjustScheduleCommit(0, column, value, false));
    QCOMPARE(window->tipText, tip);
    QCOMPARE(scheduleTable().size(), plan.schedule.size());
}

void TestAdjustment::tryOutBySchedule_data()
{
    QTest::addColumn<QString>("shiftname");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("cellValue");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("answer");
    QTest::addColumn<QString>("tip");

    QTest::newRow("room left") << "S" << 0 << "3" << "3" << "3\n4" << true << "";
    QTest::newRow("swap within need") << "S" << 0 << "3;4" << "3\n4" << "1\n2" << true << "";
    QTest::newRow("enough") << "S" << 0 << "3;4" << "3\n4" << "3\n4\n1" << true << kEnough;
    QTest::newRow("nobody needed") << "S" << 1 << "" << "" << "1" << true << kNoNeed;
    QTest::newRow("cell behind the record") << "S" << 0 << "3;4" << "3" << "4" << false << kAlready;
    QTest::newRow("twice in the new value") << "S" << 0 << "" << "" << "1\n1" << false << kAlready;
    QTest::newRow("no row for the shift") << "U" << 0 << "" << "" << "1" << true << kNoNeed;
    QTest::newRow("nothing chosen") << "S" << 0 << "3;4;1" << "3\n4\n1" << "" << true << "";
}

void TestAdjustment::tryOutBySchedule()
{
    QFETCH(QString, shiftname);
    QFETCH(int, column);
    QFETCH(QString, stored);
    QFETCH(QString, cellValue);
    QFETCH(QString, value);
    QFETCH(bool, answer);
    QFETCH(QString, tip);
    if (!stored.isEmpty())
        plan.schedule << scheduleRecord("2026-03-02", "G", shiftname, stored);
    QVERIFY(writePlan(plan));
    ASAttribute row = scheduleRow();
    row.setAttr("shiftname", shiftname);
    setCell(row, cellValue);
    QCOMPARE(window->adjustScheduleCommit(0, column, value, false), answer);
    QCOMPARE(window->tipText, tip);
    QCOMPARE(scheduleTable().size(), plan.schedule.size());
}

// The holiday tip in both views; each try-out loads the holidays again on top of the last.
void TestAdjustment::holidaysPileUp()
{
    plan.holidays = {holiday("2026-03-02", 1, 0)};
    QVERIFY(writePlan(plan));
    setCell(employeeRow(), "");
    // A shift without a row is told before the holiday is looked at.
    QVERIFY(window->adjustScheduleCommit(0, 0, "U", false));
    QCOMPARE(window->tipText, kNoNeed);
    QVERIFY(window->holidays.isEmpty());
    QVERIFY(window->adjustScheduleCommit(0, 0, "S", false));
    QCOMPARE(window->tipText, kHoliday);
    window->tipText.clear();
    setCell(scheduleRow(), "");
    QVERIFY(window->adjustScheduleCommit(0, 0, "1", false));
    QCOMPARE(window->tipText, kHoliday);
    QCOMPARE(window->holidays.size(), 2);

    // The commit writes all the same.
    QVERIFY(window->adjustScheduleCommit(0, 0, "1", true));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S ;1"}));
}

// The employee leaves the old shifts (a record left empty is deleted) and joins the new ones.
void TestAdjustment::commitByEmployee()
{
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "2;1;3;1"), scheduleRecord("2026-03-02", "G", "T", "1"),
                     scheduleRecord("2026-03-02", "G", "U", "4")};
    QVERIFY(writePlan(plan));
    setCell(employeeRow(), "S\nT");
    QVERIFY(window->adjustScheduleCommit(0, 0, "", true));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S 2;3;1", "2026-03-02 G U 4"}));

    setCell(employeeRow(), "S");
    QVERIFY(window->adjustScheduleCommit(0, 0, "T\nU", true));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S 2;3", "2026-03-02 G T 1", "2026-03-02 G U 4;1"}));
    QCOMPARE(window->tipText, QString());
}

// A new shift that already holds the employee ends the commit: later shifts stay unwritten.
void TestAdjustment::commitByEmployeeEndsEarly()
{
    plan.schedule = {scheduleRecord("2026-03-02", "G", "T", "1")};
    QVERIFY(writePlan(plan));
    setCell(employeeRow(), "");
    QVERIFY(window->adjustScheduleCommit(0, 0, "S\nT\nU", true));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S 1", "2026-03-02 G T 1"}));
}

void TestAdjustment::commitBySchedule()
{
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "3;4"), scheduleRecord("2026-03-02", "G", "T", "3;;4")};
    QVERIFY(writePlan(plan));
    // Clearing the cell empties the record, which deletes its row.
    setCell(scheduleRow(), "3\n4");
    QVERIFY(window->adjustScheduleCommit(0, 0, "", true));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G T 3;;4"}));

    // A new record, beyond the need and on a day without demand: nothing is compared. The
    // empty text of a record without staff is one empty item, kept like the others.
    window->cycleDates = {kMonday.addDays(5)};
    setCell(scheduleRow(), "");
    QVERIFY(window->adjustScheduleCommit(0, 0, "1\n2\n3", true));
    QCOMPARE(cell("2026-03-07", "G", "S"), QString(";1;2;3"));

    // Empty items between ids are kept.
    window->cycleDates = {kMonday};
    ASAttribute row = scheduleRow();
    row.setAttr("shiftname", "T");
    setCell(row, "3");
    QVERIFY(window->adjustScheduleCommit(0, 0, "2", true));
    QCOMPARE(cell("2026-03-02", "G", "T"), QString(";4;2"));

    // A row without a group (the lock mode's rows) works on the empty group.
    setCell(record({{"type", "shiftview"}, {"shiftname", "U"}}), "");
    QVERIFY(window->adjustScheduleCommit(0, 0, "4", true));
    QCOMPARE(cell("2026-03-02", "", "U"), QString(";4"));
    QCOMPARE(window->tipText, QString());
}

void TestAdjustment::commitRefusesDuplicate()
{
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "3;4")};
    QVERIFY(writePlan(plan));
    setCell(scheduleRow(), "3");
    QVERIFY(!window->adjustScheduleCommit(0, 0, "4", true));
    QCOMPARE(window->tipText, kAlready);
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S 3;4"}));
}

void TestAdjustment::failedReadAndWrite()
{
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "1")};
    QVERIFY(writePlan(plan));
    QSqlQuery query(getDB()->db);

    // A write that fails after the removal of the old shift leaves the removal done.
    QVERIFY(query.exec("CREATE TRIGGER refuse BEFORE INSERT ON t_schedule BEGIN SELECT RAISE(FAIL, 'no'); END"));
    setCell(employeeRow(), "S");
    const bool written = window->adjustScheduleCommit(0, 0, "T", true);
    QVERIFY(query.exec("DROP TRIGGER refuse"));
    QVERIFY(!written);
    QCOMPARE(window->tipText, QString("Save schedule failed"));
    QVERIFY(scheduleTable().isEmpty());

    QVERIFY(query.exec("ALTER TABLE t_schedule RENAME TO t_moved"));
    window->tipText.clear();
    setCell(scheduleRow(), "");
    const bool tried = window->adjustScheduleCommit(0, 0, "1", false);
    const QString tryTip = window->tipText;
    const bool committed = window->adjustScheduleCommit(0, 0, "1", true);
    const QString commitTip = window->tipText;
    window->tipText.clear();
    setCell(employeeRow(), "");
    const bool committedByEmployee = window->adjustScheduleCommit(0, 0, "S", true);
    const QString employeeTip = window->tipText;
    QVERIFY(query.exec("ALTER TABLE t_moved RENAME TO t_schedule"));
    QVERIFY(tried);
    QCOMPARE(tryTip, QString());
    QVERIFY(!committed);
    QCOMPARE(commitTip, QString("Get schedule failed"));
    QVERIFY(!committedByEmployee);
    QCOMPARE(employeeTip, QString("Get schedule failed"));
}

ROSTERA_TEST_MAIN(TestAdjustment)
#include "test_adjustment.moc"

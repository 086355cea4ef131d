// Automatic generation: the worked runs reproduced with a scripted source of chance, what is
// kept and what is lost, locks and designated employees, the views, and the two commands.
#include "testhome.h"

#include <QSpinBox>
#include <QTableWidget>

#include "engine/rosterasettings.h"
#include "enginefixture.h"
#include "ui_rosterasettings.h"
#include "ui_rosteramain.h"

static const QDate kMonday(2026, 3, 2);

// How often each id occurs in the "staffs" of the table.
static QMap<QString, int> assignmentCounts()
{
    QMap<QString, int> counts;
    for (const QString &line : scheduleTable())
        for (const QString &id : line.section(' ', 3).split(';', Qt::SkipEmptyParts))
            ++counts[id];
    return counts;
}

class TestGeneration : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void workedRunOfThree();
    void workedRunOfFour();
    void holidayErasesDemandAndNames();
    void vacationLeavesPlacesOpen();
    void nothingForGroupWithoutEmployees();
    void shiftMissingFromShiftList();
    void keptRecordsStayAsTheyAre();
    void keptNameHoldsItsDate();
    void untouchedKeptRecordsNeedLockMode();
    void oneGroupViewLeavesOtherGroups();
    void groupsFormedByAdjacency();
    void firstRunDrawsForEmployeesWithoutGroup();
    void lockedEmployeesComeFirst();
    void designatedEmployees();
    void questionBeforeGenerating();
    void specifiedDatesFillDisplayedCycle();
    void specifiedDatesSaveFailure();

private:
    RosteraMain *window = nullptr;
    Plan plan;
};

void TestGeneration::initTestCase()
{
    QVERIFY(getDB()->openDB(QString()));
    window = new RosteraMain;
    window->randomNumber = RandomScript::next;
}

void TestGeneration::cleanupTestCase()
{
    delete window;
    getDB()->closeDB();
}

// One group "G" with one shift "S"; each test adds employees and rows.
void TestGeneration::init()
{
    plan = Plan();
    plan.groups = {"G", "H"};
    plan.shifts = {"S", "T"};
    window->employeeLockSchedule = false;
    setView(window, 0);
    window->cycleDates = daysFrom(kMonday, 5);
}

void TestGeneration::workedRunOfThree()
{
    plan.staffs = {staff("A", "G"), staff("B", "G"), staff("C", "G")};
    plan.rows = {standingRow("G", "S", "2;2;2;2;2;2;2")};
    QVERIFY(writePlan(plan));
    // r = 3 % 3 = 0; i = 2: j = 4 % 2 = 0; i = 1: j = 7 % 1 = 0.
    RandomScript::set({3, 4, 7});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(RandomScript::drawn(), 3);
    QCOMPARE(window->shuffledStaff, QVector<int>({1, 2, 0}));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S B;C", "2026-03-03 G S A;B", "2026-03-04 G S C;A",
                                           "2026-03-05 G S B;C", "2026-03-06 G S A;B"}));
    QCOMPARE(assignmentCounts(), (QMap<QString, int>{{"A", 3}, {"B", 4}, {"C", 3}}));
    QCOMPARE(window->assignStats.attr("S", QString()), QString("10"));
    QCOMPARE(window->assignStats.attr("S_num", QString()), QString("10"));
    QCOMPARE(window->assignStats.attr("S_ave", QString()), QString("3.33333"));
    QCOMPARE(window->assignStats.attr("S_int", QString()), QString("9"));
    QCOMPARE(window->assignStats.attr("S_ass", QString()), QString("10"));
    QCOMPARE(window->assignStats.attr("S_ovr", QString()), QString("1"));
    // A shift without demand still has its share, of at least 1.
    QCOMPARE(window->assignStats.attr("T_ave", QString()), QString("1"));
    QCOMPARE(window->assignStats.attr("T_int", QString()), QString("3"));
    QVERIFY(window->holidays.isEmpty());
    QVERIFY(window->vacations.isEmpty());
}

void TestGeneration::workedRunOfFour()
{
    plan.staffs = {staff("A", "G"), staff("B", "G"), staff("C", "G"), staff("D", "G")};
    plan.rows = {standingRow("G", "S", "1;1;1;1;1;1;1")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 7);
    // r = 5 % 4 = 1; i = 3: j = 5 % 3 = 2; i = 2: j = 7 % 2 = 1; i = 1: j = 0.
    RandomScript::set({5, 5, 7, 9});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(window->shuffledStaff, QVector<int>({3, 0, 1, 2}));
    QStringList picks;
    for (const QString &line : scheduleTable())
        picks << line.section(' ', 3);
    QCOMPARE(picks, QStringList({"A", "B", "C", "D", "A", "B", "C"}));
    QCOMPARE(window->assignStats.attr("S_ave", QString()), QString("1.75"));
    QCOMPARE(window->assignStats.attr("S_int", QString()), QString("4"));
    QCOMPARE(window->assignStats.attr("S_ovr", QString()), QString("3"));
}

// A holiday takes the day out of the shares and writes its row empty, erasing a kept name
// whose assignment still counts against the share.
void TestGeneration::holidayErasesDemandAndNames()
{
    plan.staffs = {staff("A", "G"), staff("B", "G")};
    plan.rows = {standingRow("G", "S", "1;1;1;1;1;1;1")};
    plan.holidays = {holiday("2026-03-03", 1, 0)};
    plan.schedule = {scheduleRecord("2026-03-03", "G", "S", "A")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 3);
    RandomScript::set({0, 0});
    QVERIFY(window->auto_schedule(window->cycleDates, false));
    QCOMPARE(window->assignStats.attr("S_num", QString()), QString("2"));
    QCOMPARE(window->assignStats.attr("S_ave", QString()), QString("1"));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S B", "2026-03-03 G S ", "2026-03-04 G S "}));
}

// The person away still counts in the head count: the others reach their share and the
// places stay open.
void TestGeneration::vacationLeavesPlacesOpen()
{
    plan.staffs = {staff("A", "G"), staff("B", "G")};
    plan.rows = {standingRow("G", "S", "1;1;1;1;1;1;1")};
    plan.vacations = {vacation("A", "2026-03-01", 10)};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 4);
    RandomScript::set({0, 0});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(window->assignStats.attr("S_ave", QString()), QString("2"));
    QCOMPARE(scheduleTable(),
             QStringList({"2026-03-02 G S B", "2026-03-03 G S B", "2026-03-04 G S ", "2026-03-05 G S "}));
}

void TestGeneration::nothingForGroupWithoutEmployees()
{
    plan.staffs = {staff("A", "G")};
    plan.rows = {standingRow("H", "S", "1;1;1;1;1;1;1"), standingRow("G", "S", "1;1;1;1;1;1;1")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 1);
    RandomScript::set({});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S A"}));
    QCOMPARE(RandomScript::drawn(), 1);
}

// With no share the test refuses everybody: the row is written with nobody.
void TestGeneration::shiftMissingFromShiftList()
{
    plan.staffs = {staff("A", "G")};
    plan.rows = {standingRow("G", "X", "1;1;1;1;1;1;1")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 1);
    RandomScript::set({});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G X "}));
}

// Kept places are not picked again, also when a record holds more than is needed.
void TestGeneration::keptRecordsStayAsTheyAre()
{
    plan.staffs = {staff("A", "G"), staff("B", "G"), staff("C", "G")};
    plan.rows = {standingRow("G", "S", "1;1;1;1;1;1;1")};
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "C;A"), scheduleRecord("2026-03-03", "G", "S", "B")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 2);
    RandomScript::set({});
    BoxAnswer no(QMessageBox::No);
    window->on_auto_schedule();
    QCOMPARE(no.texts(), QStringList({"Delete existing schedule?"}));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S C;A", "2026-03-03 G S B"}));
    // The kept names count against the shares.
    QCOMPARE(window->assignStats.attr("S_ass", QString()), QString("3"));
}

// A kept name holds its date: the employee is not picked for another shift of it.
void TestGeneration::keptNameHoldsItsDate()
{
    plan.staffs = {staff("A", "G"), staff("B", "G")};
    plan.rows = {standingRow("G", "S", "1;1;1;1;1;1;1"), standingRow("G", "T", "1;1;1;1;1;1;1")};
    plan.schedule = {scheduleRecord("2026-03-02", "G", "T", "A")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 1);
    // r = 1, shuffle 1, 0: A is the first candidate for S.
    RandomScript::set({1, 0});
    QVERIFY(window->auto_schedule(window->cycleDates, false));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S B", "2026-03-02 G T A"}));
    QCOMPARE(window->assignStats.attr("T_ass", QString()), QString("1"));
}

// Kept records that no row touched survive only in the lock mode. A kept name on a date
// without demand still counts against the share, here so much that Monday stays open.
void TestGeneration::untouchedKeptRecordsNeedLockMode()
{
    plan.staffs = {staff("A", "G")};
    plan.rows = {standingRow("G", "S", "1;0;0;0;0;0;0")};
    plan.schedule = {scheduleRecord("2026-03-02", "G", "T", "A"), scheduleRecord("2026-03-03", "G", "S", "A"),
                     scheduleRecord("2026-03-02", "H", "S", "Z")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 2);
    QVERIFY(window->auto_schedule(window->cycleDates, false));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S "}));

    QVERIFY(writePlan(plan));
    window->employeeLockSchedule = true;
    QVERIFY(window->auto_schedule(window->cycleDates, false));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S ", "2026-03-02 G T A", "2026-03-02 H S Z",
                                           "2026-03-03 G S A"}));
}

void TestGeneration::oneGroupViewLeavesOtherGroups()
{
    plan.staffs = {staff("A", "G"), staff("B", "H"), staff("N", "")};
    plan.rows = {standingRow("G", "S", "1;1;1;1;1;1;1"), standingRow("H", "S", "1;1;1;1;1;1;1"),
                 standingRow("", "S", "1;1;1;1;1;1;1")};
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "old"), scheduleRecord("2026-03-02", "H", "S", "old"),
                     scheduleRecord("2026-03-02", "", "S", "old")};
    QVERIFY(writePlan(plan));
    setView(window, 1, "H");
    window->cycleDates = daysFrom(kMonday, 1);
    RandomScript::set({});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(scheduleTable(),
             QStringList({"2026-03-02  S old", "2026-03-02 G S old", "2026-03-02 H S B"}));
    // One draw for N in the empty first run, one for B.
    QCOMPARE(RandomScript::drawn(), 2);

    // "<None>" in the one-employee view stands for the employees without a group.
    setView(window, 2);
    window->cycleDates = daysFrom(kMonday, 1);
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02  S N", "2026-03-02 G S old", "2026-03-02 H S B"}));
}

// Rows of a group that are not adjacent make two runs, each with its own draws and shares.
void TestGeneration::groupsFormedByAdjacency()
{
    plan.staffs = {staff("A", "G"), staff("B", "G"), staff("C", "H")};
    plan.rows = {standingRow("G", "S", "1;1;1;1;1;1;1"), standingRow("H", "S", "1;1;1;1;1;1;1"),
                 standingRow("G", "T", "1;1;1;1;1;1;1")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 2);
    RandomScript::set({});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(RandomScript::drawn(), 2 + 1 + 2);
    // The second run of G knows nothing of the first: its share of T is counted alone.
    QCOMPARE(window->assignStats.attr("S", QString()), QString());
    QCOMPARE(window->assignStats.attr("T", QString()), QString("2"));
    QCOMPARE(scheduleTable().size(), 6);

    // Rows of other groups left out of a one-group view do not part a group's rows.
    setView(window, 1, "G");
    window->cycleDates = daysFrom(kMonday, 2);
    RandomScript::set({});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(RandomScript::drawn(), 2);
    QCOMPARE(window->assignStats.attr("S", QString()), QString("2"));
    QCOMPARE(window->assignStats.attr("T", QString()), QString("2"));
}

// The first row taken closes an empty run under the empty group name: it writes nothing, but
// its draws for the employees without a group come before those of the first real group.
void TestGeneration::firstRunDrawsForEmployeesWithoutGroup()
{
    plan.staffs = {staff("N", ""), staff("A", "G"), staff("B", "G"), staff("C", "G")};
    plan.rows = {standingRow("G", "S", "1;1;1;1;1;1;1")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 1);
    // N's run takes the 2; G's run starts at r = 0 with the shuffle 1, 2, 0 and so picks B.
    // Had G drawn the 2, r would be 2 and the pick A.
    RandomScript::set({2, 0, 0});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(RandomScript::drawn(), 1 + 3);
    QCOMPARE(window->shuffledStaff, QVector<int>({1, 2, 0}));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S B"}));

    // Without employees outside the groups the empty run draws nothing.
    plan.staffs.removeFirst();
    QVERIFY(writePlan(plan));
    RandomScript::set({2, 0, 0});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(RandomScript::drawn(), 3);
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S A"}));
}

// Pass 0 places the locked employees of all dates before any other pick, and each of them
// moves the rotation; a lock of several employees or an invalid lock has no effect.
void TestGeneration::lockedEmployeesComeFirst()
{
    plan.staffs = {staff("A", "G"), staff("B", "G"), staff("C", "G")};
    plan.rows = {standingRow("G", "S", "1;1;1;1;1;1;1")};
    ASAttribute invalid = lockOf("A", "2026-03-03");
    invalid.setAttr("valid", QString("0"));
    plan.locks = {lockOf("A;B", "2026-03-02"), invalid, lockOf("C", "2026-03-04")};
    QVERIFY(writePlan(plan));
    window->cycleDates = daysFrom(kMonday, 3);
    // r = 0, shuffle 1, 2, 0. C is placed on Wednesday first (r becomes 1); then Monday starts
    // at C, whose share is used up, and takes A; Tuesday starts at A and takes B.
    RandomScript::set({0, 0, 0});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(window->shuffledStaff, QVector<int>({1, 2, 0}));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S A", "2026-03-03 G S B", "2026-03-04 G S C"}));

    plan.locks.clear();
    QVERIFY(writePlan(plan));
    RandomScript::set({0, 0, 0});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S B", "2026-03-03 G S C", "2026-03-04 G S A"}));
}

// In the lock mode the row's employee fills every place of the row, unchecked (here on a
// vacation) and untracked, so the rotation may pick the same employee for another row of the
// date. A row's employee who is not in the group is skipped.
void TestGeneration::designatedEmployees()
{
    plan.staffs = {staff("A", "G"), staff("B", "G")};
    plan.rows = {standingRow("G", "S", "2;2;2;2;2;2;2", "B"), standingRow("G", "T", "1;1;1;1;1;1;1"),
                 standingRow("G", "U", "1;1;1;1;1;1;1", "Z")};
    plan.shifts << "U";
    plan.vacations = {vacation("B", "2026-03-03", 1)};
    QVERIFY(writePlan(plan));
    setOption("employee lock schedule", true);
    window->settingsChange();
    QVERIFY(window->employeeLockSchedule);
    window->cycleDates = daysFrom(kMonday, 2);
    RandomScript::set({0, 0});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S B;B", "2026-03-02 G T B", "2026-03-02 G U A",
                                           "2026-03-03 G S B;B", "2026-03-03 G T A", "2026-03-03 G U "}));
    QCOMPARE(window->assignStats.attr("S_ass", QString()), QString());

    // Without the option the row's employee means nothing and the vacation counts.
    setOption("employee lock schedule", false);
    window->settingsChange();
    window->cycleDates = daysFrom(kMonday.addDays(1), 1);
    RandomScript::set({0, 0});
    QVERIFY(window->auto_schedule(window->cycleDates, true));
    QCOMPARE(scheduleTable().filter("2026-03-03"),
             QStringList({"2026-03-03 G S A", "2026-03-03 G T ", "2026-03-03 G U "}));
}

void TestGeneration::questionBeforeGenerating()
{
    plan.staffs = {staff("A", "G")};
    plan.rows = {standingRow("G", "S", "1;1;1;1;1;1;1")};
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "old")};
    QVERIFY(writePlan(plan));
    window->ui->date_current->setDate(kMonday);
    RandomScript::set({});
    {
        BoxAnswer cancel(QMessageBox::Cancel);
        window->on_auto_schedule();
        QCOMPARE(cancel.texts(), QStringList({"Delete existing schedule?"}));
        QCOMPARE(cancel.titles(), QStringList({""}));
        QCOMPARE(cancel.buttons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        QCOMPARE(cancel.defaultButton(), QMessageBox::Yes);
        QCOMPARE(cancel.icon(), QMessageBox::Question);
    }
    QCOMPARE(RandomScript::drawn(), 0);
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S old"}));
    window->cycleDates = daysFrom(kMonday, 2);
    BoxAnswer yes(QMessageBox::Yes);
    window->on_auto_schedule();
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S A", "2026-03-03 G S A"}));
    // The grid shows the new schedule: A's row has the shift on both dates.
    QTableWidget *grid = window->ui->tableWidget;
    QCOMPARE(grid->columnCount(), 7);
    QVERIFY(grid->item(0, 0) && grid->item(0, 1));
    QCOMPARE(grid->item(0, 0)->text() + grid->item(0, 1)->text(), QString("SS"));
}

// The dialog's dates bound what is deleted and kept, but the displayed cycle is what is filled;
// the work week leaves days out of the span.
void TestGeneration::specifiedDatesFillDisplayedCycle()
{
    plan.staffs = {staff("A", "G"), staff("B", "G")};
    plan.rows = {standingRow("G", "S", "1;1;1;1;1;1;1")};
    plan.schedule = {scheduleRecord("2026-03-05", "G", "S", "old"), scheduleRecord("2026-03-07", "G", "S", "sat")};
    QVERIFY(writePlan(plan));
    setOption("work week", "1,2,3,4,5");
    bool seen = false;
    whenDialogOpens<RosteraSettings>([&seen](RosteraSettings *dialog) {
        seen = dialog->windowTitle() == "Auto Generate Specified Date Schedule"
               && dialog->ui->label_from->text() == "Date from:" && dialog->ui->label_cycleDays->text() == "Cycle days:"
               && dialog->ui->dt_from->date() == kMonday && dialog->ui->ed_cycleDays->value() == 5
               && dialog->ui->dt_from->displayFormat() == "M/d/yyyy" && dialog->ui->dt_from->calendarPopup()
               && dialog->ui->ed_cycleDays->minimum() == 1 && dialog->ui->ed_cycleDays->maximum() == 999;
        dialog->ui->dt_from->setDate(QDate(2026, 3, 5));
        dialog->ui->ed_cycleDays->setValue(4);
        dialog->accept();
    });
    RandomScript::set({0, 0});
    BoxAnswer yes(QMessageBox::Yes);
    window->on_auto_date_schedule();
    setOption("work week", "1,2,3,4,5,6,7");
    QVERIFY(seen);
    QCOMPARE(yes.texts(), QStringList({"Delete existing schedule?"}));
    QCOMPARE(yes.buttons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    QCOMPARE(yes.defaultButton(), QMessageBox::Yes);
    const QStringList table = scheduleTable();
    QCOMPARE(table.size(), 6);
    QVERIFY(!table.contains("2026-03-05 G S old"));
    QCOMPARE(table.last(), QString("2026-03-07 G S sat"));
}

// Records of the cycle outside the given dates make the save fail; the deletion stays.
void TestGeneration::specifiedDatesSaveFailure()
{
    plan.staffs = {staff("A", "G")};
    plan.rows = {standingRow("G", "S", "1;1;1;1;1;1;1")};
    plan.schedule = {scheduleRecord("2026-03-02", "G", "S", "keep"), scheduleRecord("2026-03-09", "G", "S", "old")};
    QVERIFY(writePlan(plan));
    RandomScript::set({});
    BoxAnswer ok(QMessageBox::Ok);
    QVERIFY(!window->auto_schedule({QDate(2026, 3, 9), QDate(2026, 3, 10)}, true));
    QCOMPARE(ok.texts(), QStringList({"Save schedule information failed!"}));
    QCOMPARE(ok.titles(), QStringList({""}));
    QCOMPARE(ok.icon(), QMessageBox::Warning);
    QCOMPARE(ok.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(scheduleTable(), QStringList({"2026-03-02 G S keep"}));

    // Cancel in the dialog ends the command before any question.
    whenDialogOpens<RosteraSettings>([](RosteraSettings *dialog) { dialog->reject(); });
    window->on_auto_date_schedule();
    QCOMPARE(ok.shown(), 1);
}

ROSTERA_TEST_MAIN(TestGeneration)
#include "test_generation.moc"

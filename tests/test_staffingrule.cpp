// The staffing rule: the demand of a standing row on a date, the fair-share test, and the
// dialog that edits the demand value.
#include "testhome.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>
#include <QTabWidget>

#include "enginefixture.h"
#include "engine/workdateassign.h"
#include "ui_rosteramain.h"
#include "ui_workdateassign.h"

class TestStaffingRule : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void staffNum_data();
    void staffNum();
    void shareTest();
    void unevenShareTest();
    void dialogStartsEmpty();
    void dialogLoadsWeeklyNumbers();
    void dialogLoadsSpecifiedDates();
    void dialogRefusals();

private:
    RosteraMain *window = nullptr;
};

void TestStaffingRule::initTestCase()
{
    QVERIFY(getDB()->openDB(QString()));
    window = new RosteraMain;
}

void TestStaffingRule::cleanupTestCase()
{
    delete window;
    getDB()->closeDB();
}

static QString specifiedRule(const QString &from, const QString &to, const QString &weeks, const QString &days)
{
    return record({{"t", "1"}, {"sdt", from}, {"edt", to}, {"week", weeks}, {"dayweek", days}}).getXmlAttrs("dt");
}

void TestStaffingRule::staffNum_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("need");

    // 2026-03-02 is a Monday.
    const QDate monday(2026, 3, 2);
    QTest::newRow("list, Monday") << "2;2;2;2;2;1;0" << monday << 2;
    QTest::newRow("list, Saturday") << "2;2;2;2;2;1;0" << monday.addDays(5) << 1;
    QTest::newRow("short list, Saturday") << "2;2;2;2;2" << monday.addDays(5) << 0;
    QTest::newRow("empty items dropped, Monday") << ";;3" << monday << 3;
    QTest::newRow("empty items dropped, Tuesday") << ";;3" << monday.addDays(1) << 0;
    QTest::newRow("negative, Monday") << "-1;x;4" << monday << 0;
    QTest::newRow("no number, Tuesday") << "-1;x;4" << monday.addDays(1) << 0;
    QTest::newRow("third item, Wednesday") << "-1;x;4" << monday.addDays(2) << 4;
    QTest::newRow("empty value asks the day index, Wednesday") << "" << monday.addDays(2) << 2;
    QTest::newRow("empty value, Sunday") << "" << monday.addDays(6) << 6;
    QTest::newRow("weekly rule without stn, Wednesday") << record({{"t", "0"}}).getXmlAttrs("dt") << monday.addDays(2) << 2;
    QTest::newRow("weekly rule, Tuesday") << record({{"t", "0"}, {"stn", "1;5;1"}}).getXmlAttrs("dt") << monday.addDays(1) << 5;
    QTest::newRow("rule without t is weekly") << record({{"stn", "4"}}).getXmlAttrs("x") << monday << 4;

    const QString march = specifiedRule("2026-03-01", "2026-03-31", "5", "1;2");
    QTest::newRow("week 5, Monday 30") << march << QDate(2026, 3, 30) << 1;
    QTest::newRow("week 5, Tuesday 31") << march << QDate(2026, 3, 31) << 1;
    QTest::newRow("week 4, Monday 23") << march << QDate(2026, 3, 23) << 0;
    QTest::newRow("week 5, Sunday 29 not a chosen day") << march << QDate(2026, 3, 29) << 0;
    QTest::newRow("after the range") << march << QDate(2026, 4, 29) << 0;
    QTest::newRow("first week, first day")
        << specifiedRule("2026-03-02", "2026-03-02", "1", "1") << QDate(2026, 3, 2) << 1;
    QTest::newRow("day 8 is week 2") << specifiedRule("2026-01-01", "2026-12-31", "1", "7") << QDate(2026, 3, 8) << 0;
    QTest::newRow("no start date bounds nothing below")
        << record({{"t", "1"}, {"edt", "2030-01-01"}, {"week", "1"}, {"dayweek", "1"}}).getXmlAttrs("dt")
        << QDate(1999, 3, 1) << 1;
    QTest::newRow("no end date puts every date after the end")
        << record({{"t", "1"}, {"sdt", "2000-01-01"}, {"week", "1"}, {"dayweek", "1"}}).getXmlAttrs("dt")
        << QDate(2026, 3, 2) << 0;
}

void TestStaffingRule::staffNum()
{
    QFETCH(QString, value);
    QFETCH(QDate, date);
    QFETCH(int, need);
    QCOMPARE(window->getStaffNum(value, date, date.dayOfWeek() - 1), need);
}

static ASAttribute employeeWith(float assigned)
{
    ASAttribute employee = staff("1", "G");
    employee.setAttr("S_ass", assigned);
    return employee;
}

// An even share (or the floor of 1.0 under a small demand): the whole share and nothing more.
void TestStaffingRule::shareTest()
{
    window->assignStats.clear();
    window->assignStats.setAttr("S_ave", 1.0f);
    ASAttribute fresh = employeeWith(0);
    bool over = true;
    QVERIFY(window->checkAssNumValid(fresh, "S", over, false));
    QVERIFY(over); // never cleared
    ASAttribute used = employeeWith(1);
    over = false;
    QVERIFY(!window->checkAssNumValid(used, "S", over, true));
    QVERIFY(!over);
    // No share at all (a shift missing from the shift list) refuses everybody.
    ASAttribute other = employeeWith(0);
    QVERIFY(!window->checkAssNumValid(other, "T", over, true));
}

// Share 2.5 over four employees: "_int" 8, demand 10. The third assignment of one employee is
// an extra: in the first lap only once the group has used up the whole shares, in later laps
// while the extras still fit into the demand.
void TestStaffingRule::unevenShareTest()
{
    window->assignStats.clear();
    window->assignStats.setAttr("S_ave", 2.5f);
    window->assignStats.setAttr("S_int", 8.0f);
    window->assignStats.setAttr("S_num", 10.0f);
    window->assignStats.setAttr("S_ass", 7.0f);
    window->assignStats.setAttr("S_ovr", 2.0f);
    ASAttribute employee = employeeWith(2);
    bool over = false;
    QVERIFY(!window->checkAssNumValid(employee, "S", over, false));
    QVERIFY(!over);
    QVERIFY(window->checkAssNumValid(employee, "S", over, true));
    QVERIFY(over);

    window->assignStats.setAttr("S_ovr", 3.0f);
    over = false;
    QVERIFY(!window->checkAssNumValid(employee, "S", over, true));
    window->assignStats.setAttr("S_ass", 8.0f);
    QVERIFY(window->checkAssNumValid(employee, "S", over, false));
    QVERIFY(over);

    ASAttribute inside = employeeWith(1);
    over = false;
    QVERIFY(window->checkAssNumValid(inside, "S", over, false));
    QVERIFY(!over);
}

void TestStaffingRule::dialogStartsEmpty()
{
    WorkDateAssign dialog;
    QCOMPARE(dialog.windowTitle(), QString("Employees and date settings"));
    QCOMPARE(dialog.ui->tabWidget->tabText(0), QString("Day of week"));
    QCOMPARE(dialog.ui->tabWidget->tabText(1), QString("Specified date"));
    QCOMPARE(dialog.ui->dt_start->date(), QDate::currentDate());
    QCOMPARE(dialog.ui->dt_end->date(), QDate::currentDate().addYears(5));
    QCOMPARE(dialog.getStuffNum(), QString("0;0;0;0;0;0;0"));
    QCOMPARE(dialog.getWeek(), QString());
    QCOMPARE(dialog.getDayweek(), QString());
    QCOMPARE(dialog.ui->label_employees->text(), QString("Employees"));
    const QStringList dayNames{"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
    const QList<QLabel *> dayLabels{dialog.ui->label_day1, dialog.ui->label_day2, dialog.ui->label_day3,
                                    dialog.ui->label_day4, dialog.ui->label_day5, dialog.ui->label_day6,
                                    dialog.ui->label_day7};
    QCOMPARE(dialog.staffNumBoxes.size(), 7);
    for (int i = 0; i < 7; ++i) {
        QCOMPARE(dayLabels.at(i)->text(), dayNames.at(i));
        // The label stands beside its own box, so that Monday's number is the first of the value.
        QCOMPARE(dialog.ui->layout_numbers->itemAtPosition(i, 1)->widget(), dialog.staffNumBoxes.at(i));
        QCOMPARE(dialog.ui->layout_numbers->itemAtPosition(i, 0)->widget(), dayLabels.at(i));
        QCOMPARE(dialog.staffNumBoxes.at(i)->minimum(), 0);
        QCOMPARE(dialog.staffNumBoxes.at(i)->maximum(), 99);
    }
    QCOMPARE(dialog.ui->label_start->text(), QString("Start date"));
    QCOMPARE(dialog.ui->label_end->text(), QString("End date"));
    QCOMPARE(dialog.ui->group_week->title(), QString("Week"));
    QCOMPARE(dialog.ui->group_dayweek->title(), QString("Day of week"));
    QStringList weeks;
    for (QCheckBox *box : dialog.weekBoxes)
        weeks << box->text();
    QCOMPARE(weeks, QStringList({"1", "2", "3", "4", "5"}));

    // Sunday is shown first but has the value 7; "M" has the value 1.
    QLayout *days = dialog.ui->group_dayweek->layout();
    QStringList shown;
    for (int i = 0; i < days->count(); ++i)
        shown << qobject_cast<QCheckBox *>(days->itemAt(i)->widget())->text();
    QCOMPARE(shown, QStringList({"S", "M", "T", "W", "T", "F", "S"}));
    QCOMPARE(days->itemAt(0)->widget(), dialog.dayweekBoxes.at(6));
    QCOMPARE(days->itemAt(1)->widget(), dialog.dayweekBoxes.at(0));
    qobject_cast<QCheckBox *>(days->itemAt(0)->widget())->setChecked(true);
    qobject_cast<QCheckBox *>(days->itemAt(1)->widget())->setChecked(true);
    QCOMPARE(dialog.getDayweek(), QString("1;7"));
}

void TestStaffingRule::dialogLoadsWeeklyNumbers()
{
    WorkDateAssign dialog;
    dialog.ui->tabWidget->setCurrentIndex(1);
    // Empty items count in the dialog, unlike in the demand; only seven items are used.
    dialog.setData("2;;3;1;1;1;1;9");
    QCOMPARE(dialog.ui->tabWidget->currentIndex(), 0);
    QCOMPARE(dialog.getStuffNum(), QString("2;0;3;1;1;1;1"));

    // A plain value is written back in the rule form.
    ASAttribute written;
    QVERIFY(written.setXmlAttrs(dialog.getData()));
    QCOMPARE(written.values(), record({{"t", "0"}, {"stn", "2;0;3;1;1;1;1"}}).values());
    QVERIFY(dialog.getData().startsWith("<dt "));

    WorkDateAssign again;
    again.setData(dialog.getData());
    QCOMPARE(again.getStuffNum(), QString("2;0;3;1;1;1;1"));
}

void TestStaffingRule::dialogLoadsSpecifiedDates()
{
    WorkDateAssign dialog;
    dialog.setWeek("2");
    dialog.setData(specifiedRule("2026-03-01", "2026-03-31", "5;0;9;x", "7;1;8"));
    QCOMPARE(dialog.ui->tabWidget->currentIndex(), 1);
    QCOMPARE(dialog.ui->dt_start->date(), QDate(2026, 3, 1));
    QCOMPARE(dialog.ui->dt_end->date(), QDate(2026, 3, 31));
    // Boxes not named stay as they were; numbers that name no box are ignored.
    QCOMPARE(dialog.getWeek(), QString("2;5"));
    QCOMPARE(dialog.getDayweek(), QString("1;7"));

    ASAttribute written;
    QVERIFY(written.setXmlAttrs(dialog.getData()));
    QCOMPARE(written.values(), record({{"t", "1"}, {"sdt", "2026-03-01"}, {"edt", "2026-03-31"}, {"week", "2;5"},
                                       {"dayweek", "1;7"}})
                                   .values());
    QCOMPARE(window->getStaffNum(dialog.getData(), QDate(2026, 3, 9), 0), 1);
}

// The specified-date tab refuses three things, in order, and stays open; the weekly tab has
// nothing to check.
void TestStaffingRule::dialogRefusals()
{
    WorkDateAssign dialog;
    dialog.ui->tabWidget->setCurrentIndex(1);
    dialog.ui->dt_start->setDate(QDate(2026, 3, 10));
    dialog.ui->dt_end->setDate(QDate(2026, 3, 9));
    {
        BoxAnswer ok(QMessageBox::Ok);
        dialog.accept();
        dialog.ui->dt_end->setDate(QDate(2026, 3, 10));
        dialog.accept();
        dialog.setWeek("3");
        dialog.accept();
        QCOMPARE(ok.texts(), QStringList({"End date can't set before start date.", "Please select a week.",
                                          "Please select a day of week."}));
        QCOMPARE(ok.titles(), QStringList({"", "", ""}));
        QCOMPARE(ok.icon(), QMessageBox::Warning);
        QCOMPARE(ok.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    }
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    dialog.setDayweek("3");
    BoxAnswer none;
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));

    WorkDateAssign weekly;
    weekly.ui->dt_end->setDate(QDate(2000, 1, 1));
    weekly.accept();
    QCOMPARE(weekly.result(), int(QDialog::Accepted));
    QCOMPARE(none.shown(), 0);
}

ROSTERA_TEST_MAIN(TestStaffingRule)
#include "test_staffingrule.moc"

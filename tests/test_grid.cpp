// The schedule grid: the span of dates, the rows of each view, the cells, and the controls
// that drive it, all on real widgets over a real database file.
#include "testhome.h"

#include <QFile>
#include <QHeaderView>
#include <QSettings>
#include <QStatusBar>
#include <QTableWidget>

#include "core/apppaths.h"
#include "mainwindow/rosteramain.h"
#include "mainwindow/toolbar.h"
#include "persistence/databasefunc.h"
#include "ui_rosteramain.h"
#include "ui_toolbar.h"

static void setOptions(int showFromWeek, int cycleDays, const QString &workWeek, bool lockSchedule = false)
{
    QSettings settings(getAppDataPath(0), QSettings::IniFormat);
    settings.beginGroup("Options");
    settings.setValue("show from week", showFromWeek);
    settings.setValue("cycle days", cycleDays);
    settings.setValue("work week", workWeek);
    settings.setValue("employee lock schedule", lockSchedule);
}

static const QDate kWednesday(2025, 3, 12);

class TestGrid : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void dateSpan_data();
    void dateSpan();
    void rows_data();
    void rows();
    void cellsByEmployee();
    void cellsBySchedule();
    void cellsWithLockOption();
    void failedReadStopsQuietly();
    void navigationButtons_data();
    void navigationButtons();
    void settingsChangeKeepsChoice();
    void settingsChangeAppliesLockOption();
    void menuMovesCheckWithoutRedraw();
    void resizeSharesWidthUpToSevenColumns();
    void longCycleKeepsWidths();

private:
    void show(int view, int person, const QString &group = QString(), const QString &staff = QString());
    QString cell(int row, int column, int role = Qt::EditRole) const;
    RosteraMain *window = nullptr;
};

void TestGrid::initTestCase()
{
    QVERIFY(getDB()->openDB(QString()));
    QString error;
    QVector<ASAttribute> groups = {
        record({{"name", "Alpha"}, {"abbreviation", "AL"}}),
        record({{"name", "Beta"}, {"abbreviation", "BE"}}),
        record({{"name", "Gamma"}, {"abbreviation", "GA"}}),
    };
    QVERIFY(getDB()->saveGroupInfo(groups, error));
    // Employees without a group come first, as the ordered list has them.
    QVector<ASAttribute> staffs;
    for (const auto &[id, group] : QList<QPair<QString, QString>>{
             {"N1", ""}, {"A1", "Alpha"}, {"A2", "Alpha"}, {"A3", "Alpha"}, {"B1", "Beta"}, {"B2", "Beta"}})
        staffs << record({{"id", id}, {"groupname", group}});
    QVERIFY(getDB()->saveStaffInfo(staffs));
    QVector<ASAttribute> shifts = {
        record({{"name", "Day"}, {"abbreviation", "D"}, {"starttm", "09:00"}, {"endtm", "17:00"}}),
        record({{"name", "Night"}, {"abbreviation", "N"}, {"starttm", "22:00"}, {"endtm", "06:00"}}),
        // No abbreviation: shown by its name where the grid asks getShiftAbbre, empty where it
        // reads the field itself.
        record({{"name", "Late"}, {"starttm", "14:00"}, {"endtm", "22:00"}}),
    };
    QVERIFY(getDB()->saveShiftInfo(shifts));
    QVector<ASAttribute> lines;
    for (const auto &[group, shift] : QList<QPair<QString, QString>>{
             {"Alpha", "Day"}, {"Alpha", "Night"}, {"Beta", "Day"}, {"Beta", "Late"}, {"", "Night"}})
        lines << record({{"groupname", group}, {"shiftname", shift}, {"daystaffnum", "1;1;1;1;1;1;1"}});
    QVERIFY(getDB()->savePermanentSchedule(lines));

    QVERIFY(getDB()->deleteSchedule("1=1"));
    QVector<ASAttribute> schedule;
    for (const QStringList &s : QList<QStringList>{
             {"2025-03-10", "Alpha", "Day", "A1;A2"},
             {"2025-03-10", "Alpha", "Night", "A1"},
             {"2025-03-11", "Alpha", "Day", "A3;X9"},
             {"2025-03-11", "Beta", "Day", "B1"},
             {"2025-03-12", "", "Night", "N1"},
             {"2025-03-13", "Gone", "Day", "A1"},
             {"2025-03-14", "Alpha", "Night", ""},
             // An employee of Beta staffed in an Alpha line.
             {"2025-03-13", "Alpha", "Night", "B2"},
             {"2025-03-15", "Beta", "Late", "B2"},
             {"2025-03-20", "Alpha", "Day", "A2"}})
        schedule << record({{"date", s[0]}, {"groupname", s[1]}, {"shiftname", s[2]}, {"staffs", s[3]}});
    QVERIFY(getDB()->saveSchedule(schedule));
}

void TestGrid::init()
{
    // A fresh configuration per test: no stored header state, default options.
    QFile::remove(getAppDataPath(0));
    setOptions(0, 7, "1,2,3,4,5,6,7");
    window = new RosteraMain;
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    window->ui->date_current->setDate(kWednesday);
}

void TestGrid::cleanup()
{
    delete window;
    window = nullptr;
}

void TestGrid::show(int view, int person, const QString &group, const QString &staff)
{
    if (!group.isEmpty())
        window->ui->cmb_group->setCurrentText(group);
    if (!staff.isEmpty())
        window->ui->cmb_person->setCurrentText(staff);
    window->toolBar->setViewType(view);
    window->toolBar->setPersonType(person);
    window->on_refresh_schedule();
}

QString TestGrid::cell(int row, int column, int role) const
{
    const QTableWidgetItem *item = window->ui->tableWidget->item(row, column);
    return item ? item->data(role).toString() : QString("<no item>");
}

void TestGrid::dateSpan_data()
{
    QTest::addColumn<int>("showFromWeek");
    QTest::addColumn<int>("cycleDays");
    QTest::addColumn<QString>("workWeek");
    QTest::addColumn<QDate>("picked");
    QTest::addColumn<QString>("dates");
    QTest::addColumn<int>("marked");

    const QDate saturday(2025, 3, 15);
    QTest::newRow("monday week") << 0 << 7 << "1,2,3,4,5,6,7" << kWednesday << "10 11 12 13 14 15 16" << 2;
    QTest::newRow("from picked date") << -1 << 7 << "1,2,3,4,5,6,7" << kWednesday << "12 13 14 15 16 17 18" << 0;
    QTest::newRow("tuesday week") << 1 << 7 << "1,2,3,4,5,6,7" << kWednesday << "11 12 13 14 15 16 17" << 1;
    QTest::newRow("friday week goes back five") << 4 << 7 << "1,2,3,4,5,6,7" << kWednesday << "07 08 09 10 11 12 13" << 5;
    QTest::newRow("sunday week, picked before") << 6 << 7 << "1,2,3,4,5,6,7" << kWednesday << "09 10 11 12 13 14 15" << 3;
    QTest::newRow("start day is picked day") << 2 << 7 << "1,2,3,4,5,6,7" << kWednesday << "12 13 14 15 16 17 18" << 0;
    QTest::newRow("thursday week goes back six") << 3 << 7 << "1,2,3,4,5,6,7" << kWednesday << "06 07 08 09 10 11 12" << 6;
    QTest::newRow("fourteen days") << 0 << 14 << "1,2,3,4,5,6,7" << kWednesday
                                   << "10 11 12 13 14 15 16 17 18 19 20 21 22 23" << 2;
    QTest::newRow("weekdays count work dates") << 0 << 7 << "1,2,3,4,5" << kWednesday << "10 11 12 13 14 17 18" << 2;
    QTest::newRow("picked day off has no mark") << 0 << 7 << "1,2,3,4,5" << saturday << "10 11 12 13 14 17 18" << -1;
    QTest::newRow("picked day off, no week start") << -1 << 7 << "1,2,3,4,5" << saturday << "17 18 19 20 21 24 25" << -1;
    QTest::newRow("start moves to first work day") << 0 << 3 << "3,5" << kWednesday << "12 14 19" << 0;
    // The week starts on Saturday, a day off: the cycle begins on the Monday after, and the
    // picked Sunday has no column.
    QTest::newRow("week start is a day off") << 5 << 7 << "1,2,3,4,5" << QDate(2025, 3, 16) << "17 18 19 20 21 24 25"
                                             << -1;
    // Only a list of one to six items moves the first date; a longer one keeps it even on a day off.
    QTest::newRow("long list keeps first date") << 0 << 3 << "3,5,3,5,3,5,3,5" << kWednesday << "10 12 14" << 1;
    QTest::newRow("one day") << 0 << 1 << "1,2,3,4,5,6,7" << kWednesday << "10" << -1;
    // Hand-edited values that name no day must not hang the window.
    QTest::newRow("no day named") << 0 << 7 << "8" << kWednesday << "10 11 12 13 14 15 16" << 2;
    QTest::newRow("empty work week") << 0 << 7 << "" << kWednesday << "10 11 12 13 14 15 16" << 2;
}

void TestGrid::dateSpan()
{
    QFETCH(int, showFromWeek);
    QFETCH(int, cycleDays);
    QFETCH(QString, workWeek);
    QFETCH(QDate, picked);
    QFETCH(QString, dates);
    QFETCH(int, marked);

    setOptions(showFromWeek, cycleDays, workWeek);
    window->ui->date_current->setDate(picked);
    window->on_refresh_schedule();

    QStringList days;
    for (const QDate &date : window->cycleDates) {
        QCOMPARE(date.month(), 3);
        days << date.toString("dd");
    }
    QCOMPARE(days.join(" "), dates);

    QTableWidget *table = window->ui->tableWidget;
    QCOMPARE(table->columnCount(), window->cycleDates.size());
    for (int column = 0; column < table->columnCount(); ++column) {
        const QDate date = window->cycleDates.at(column);
        QCOMPARE(table->horizontalHeaderItem(column)->text(),
                 date.toString("MM/dd/yyyy") + "\n" + QLocale::c().dayName(date.dayOfWeek(), QLocale::ShortFormat));
        const QColor expected = column == marked ? QColor(255, 0, 0) : QColor(Qt::black);
        QCOMPARE(table->horizontalHeaderItem(column)->foreground().color(), expected);
    }
}

void TestGrid::rows_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<int>("person");
    QTest::addColumn<bool>("lockSchedule");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("staff");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<QString>("type");

    const QStringList allStaff{"N1", "AL--A1", "A2", "A3", "BE--B1", "B2"};
    QTest::newRow("employees, all") << 0 << 0 << false << "" << "" << allStaff << "personview";
    QTest::newRow("employees, one group") << 0 << 1 << false << "Alpha" << "" << QStringList{"A1", "A2", "A3"} << "personview";
    QTest::newRow("employees, no group") << 0 << 1 << false << "<None>" << "" << QStringList{"N1"} << "personview";
    QTest::newRow("employees, empty group") << 0 << 1 << false << "Gamma" << "" << QStringList{} << "personview";
    QTest::newRow("employees, one") << 0 << 2 << false << "Alpha" << "A2" << QStringList{"A2"} << "personview";
    QTest::newRow("employees, all, option on") << 0 << 0 << true << "" << "" << allStaff << "personview";
    QTest::newRow("employees, one group, option on") << 0 << 1 << true << "Beta" << "" << QStringList{"B1", "B2"}
                                                     << "personview";
    QTest::newRow("schedule, all") << 1 << 0 << false << "" << "" << QStringList{"AL--D", "N", "BE--D", "Late", "--N"}
                                   << "scheduleview";
    QTest::newRow("schedule, one group") << 1 << 1 << false << "Alpha" << "" << QStringList{"D", "N"} << "scheduleview";
    QTest::newRow("schedule, no group") << 1 << 1 << false << "<None>" << "" << QStringList{"N"} << "scheduleview";
    // One employee by schedule never sets the group: only the line without a group is left.
    QTest::newRow("schedule, one employee") << 1 << 2 << false << "Alpha" << "A2" << QStringList{"N"} << "scheduleview";
    // Every shift, whatever group or employee is chosen, and no group marks.
    QTest::newRow("shifts, option on") << 1 << 1 << true << "Alpha" << "" << QStringList{"D", "N", ""} << "shiftview";
    QTest::newRow("shifts, all, option on") << 1 << 0 << true << "" << "" << QStringList{"D", "N", ""} << "shiftview";
}

void TestGrid::rows()
{
    QFETCH(int, view);
    QFETCH(int, person);
    QFETCH(bool, lockSchedule);
    QFETCH(QString, group);
    QFETCH(QString, staff);
    QFETCH(QStringList, labels);
    QFETCH(QString, type);

    setOptions(0, 7, "1,2,3,4,5,6,7", lockSchedule);
    window->settingsChange();
    show(view, person, group, staff);

    QCOMPARE(window->rowLabels, labels);
    QTableWidget *table = window->ui->tableWidget;
    QCOMPARE(table->rowCount(), labels.size());
    for (int row = 0; row < labels.size(); ++row) {
        QCOMPARE(table->verticalHeaderItem(row)->text(), labels.at(row));
        QCOMPARE(window->gridRows.at(row).attr("type", QString()), type);
    }
    // The columns stay even without rows.
    QCOMPARE(table->columnCount(), 7);
}

void TestGrid::cellsByEmployee()
{
    show(0, 0);
    // Rows: N1, A1, A2, A3, B1, B2; columns 03/10 to 03/16.
    QCOMPARE(cell(1, 0), QString("D\nN"));
    QCOMPARE(cell(1, 0, Qt::UserRole), QString("Day\nNight"));
    QCOMPARE(cell(2, 0), QString("D"));
    QCOMPARE(cell(2, 0, Qt::UserRole), QString("Day"));
    QCOMPARE(cell(3, 1), QString("D"));
    QCOMPARE(cell(4, 1), QString("D"));
    QCOMPARE(cell(0, 2, Qt::UserRole), QString("Night"));
    // The record of a group that no longer exists, and the one after the cycle, show nowhere.
    QCOMPARE(cell(1, 3), QString("<no item>"));
    // A shift without abbreviation shows its name. B2's place in an Alpha line is not looked
    // for among Beta's rows.
    QCOMPARE(cell(5, 5), QString("Late"));
    QCOMPARE(cell(5, 5, Qt::UserRole), QString("Late"));
    for (int column = 0; column < 5; ++column)
        QCOMPARE(cell(5, column), QString("<no item>"));

    QTableWidget *table = window->ui->tableWidget;
    QCOMPARE(table->rowHeight(1), 50);
    QCOMPARE(table->rowHeight(2), 30);
    QCOMPARE(table->rowHeight(5), 30);

    // The next week clears what the last one showed.
    QTest::mouseClick(window->ui->btn_nextweek, Qt::LeftButton);
    QCOMPARE(cell(1, 0), QString("<no item>"));
    QCOMPARE(cell(2, 3, Qt::UserRole), QString("Day"));
    QCOMPARE(table->rowHeight(1), 30);
}

void TestGrid::cellsBySchedule()
{
    show(1, 0);
    // Rows: Alpha Day, Alpha Night, Beta Day, Beta Late, Night without a group.
    QCOMPARE(cell(0, 0), QString("A1\nA2"));
    QCOMPARE(cell(0, 0, Qt::UserRole), QString("A1\nA2"));
    // Ids are shown as stored, known or not.
    QCOMPARE(cell(0, 1), QString("A3\nX9"));
    QCOMPARE(cell(1, 0), QString("A1"));
    QCOMPARE(cell(1, 3), QString("B2"));
    QCOMPARE(cell(1, 4), QString(""));
    QCOMPARE(cell(2, 1), QString("B1"));
    QCOMPARE(cell(3, 5), QString("B2"));
    QCOMPARE(cell(4, 2, Qt::UserRole), QString("N1"));
    QCOMPARE(cell(2, 0), QString("<no item>"));

    QTableWidget *table = window->ui->tableWidget;
    QCOMPARE(table->rowHeight(0), 50);
    QCOMPARE(table->rowHeight(1), 30);

    // A second line of the same group and shift right after the first: one query served both,
    // and the second row stays empty.
    const QVector<ASAttribute> saved = getDB()->permanentSchedules;
    getDB()->permanentSchedules.insert(1, saved.first());
    show(1, 0);
    getDB()->permanentSchedules = saved;
    QCOMPARE(window->rowLabels, (QStringList{"AL--D", "D", "N", "BE--D", "Late", "--N"}));
    QCOMPARE(cell(0, 0), QString("A1\nA2"));
    for (int column = 0; column < 7; ++column)
        QCOMPARE(cell(1, column), QString("<no item>"));
    QCOMPARE(cell(2, 0), QString("A1"));
}

void TestGrid::cellsWithLockOption()
{
    setOptions(0, 7, "1,2,3,4,5,6,7", true);
    window->settingsChange();

    // By employee, one query without a group: A1 also shows the record of the removed group.
    show(0, 0);
    QCOMPARE(cell(1, 0), QString("D\nN"));
    QCOMPARE(cell(1, 3), QString("D"));
    QCOMPARE(cell(1, 3, Qt::UserRole), QString("Day"));
    QCOMPARE(cell(0, 2), QString("N"));
    // Without a group in the query B2's place in an Alpha line shows too.
    QCOMPARE(cell(5, 3), QString("N"));
    QCOMPARE(cell(5, 5), QString("Late"));

    // By shift: every group's record of a shift and date lands in one cell, the last one wins.
    show(1, 0);
    QCOMPARE(window->rowLabels, (QStringList{"D", "N", ""}));
    QCOMPARE(cell(0, 0), QString("A1\nA2"));
    QCOMPARE(cell(0, 1), QString("B1"));
    QCOMPARE(cell(0, 3), QString("A1"));
    QCOMPARE(cell(1, 2), QString("N1"));
    QCOMPARE(cell(1, 3), QString("B2"));
    QCOMPARE(cell(2, 5), QString("B2"));
}

void TestGrid::failedReadStopsQuietly()
{
    show(0, 0);
    QTableWidget *table = window->ui->tableWidget;
    table->setRowHeight(1, 77);

    // An apostrophe in a group breaks the query of that group's rows.
    const QVector<ASAttribute> saved = getDB()->staffs;
    getDB()->staffs.append(record({{"id", "Q1"}, {"groupname", "O'Neil"}}));
    BoxAnswer answer;
    show(0, 0);
    getDB()->staffs = saved;

    QCOMPARE(answer.shown(), 0);
    QCOMPARE(window->rowLabels.last(), QString("O'Neil--Q1"));
    // The cells read before the failure stay, the row heights are not touched.
    QCOMPARE(cell(1, 0), QString("D\nN"));
    QCOMPARE(cell(4, 1), QString("D"));
    QCOMPARE(table->rowHeight(1), 77);
}

void TestGrid::navigationButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("weekday");

    QTest::newRow("previous year") << "btn_preyear" << QDate(2024, 3, 12) << "Tuesday";
    QTest::newRow("previous month") << "btn_premonth" << QDate(2025, 2, 12) << "Wednesday";
    QTest::newRow("previous week") << "btn_preweek" << QDate(2025, 3, 5) << "Wednesday";
    QTest::newRow("next week") << "btn_nextweek" << QDate(2025, 3, 19) << "Wednesday";
    QTest::newRow("next month") << "btn_nextmonth" << QDate(2025, 4, 12) << "Saturday";
    QTest::newRow("next year") << "btn_nextyear" << QDate(2026, 3, 12) << "Thursday";
}

void TestGrid::navigationButtons()
{
    QFETCH(QString, button);
    QFETCH(QDate, date);
    QFETCH(QString, weekday);

    QTest::mouseClick(window->findChild<QToolButton *>(button), Qt::LeftButton);
    QCOMPARE(window->ui->date_current->date(), date);
    QCOMPARE(window->ui->label_weekday->text(), weekday);
    // The cycle follows at once and snaps to the week's Monday.
    QCOMPARE(window->cycleDates.first(), date.addDays(1 - date.dayOfWeek()));
    QCOMPARE(window->ui->tableWidget->horizontalHeaderItem(date.dayOfWeek() - 1)->foreground().color(),
             QColor(255, 0, 0));
}

void TestGrid::settingsChangeKeepsChoice()
{
    show(0, 2, "Alpha", "A3");
    window->settingsChange();
    QCOMPARE(window->ui->cmb_group->currentText(), QString("Alpha"));
    QCOMPARE(window->ui->cmb_person->currentText(), QString("A3"));
    QCOMPARE(window->rowLabels, QStringList{"A3"});

    // A choice that no longer exists falls back to the first entries.
    const QVector<ASAttribute> saved = getDB()->groups;
    getDB()->groups.removeFirst();
    window->settingsChange();
    getDB()->groups = saved;
    QCOMPARE(window->ui->cmb_group->currentIndex(), 0);
    QCOMPARE(window->ui->cmb_person->currentText(), QString("N1"));
    QCOMPARE(window->rowLabels, QStringList{"N1"});

    // The first person of a group counts as no choice: after a refill the box's first entry is
    // current, even when it is another employee now.
    window->settingsChange();
    show(0, 2, "Alpha", "A1");
    QCOMPARE(window->ui->cmb_person->currentIndex(), 0);
    const QVector<ASAttribute> staffs = getDB()->staffs;
    getDB()->staffs.insert(1, record({{"id", "A0"}, {"groupname", "Alpha"}}));
    window->settingsChange();
    getDB()->staffs = staffs;
    QCOMPARE(window->ui->cmb_group->currentText(), QString("Alpha"));
    QCOMPARE(window->ui->cmb_person->currentText(), QString("A0"));
    QCOMPARE(window->rowLabels, QStringList{"A0"});
}

void TestGrid::settingsChangeAppliesLockOption()
{
    show(1, 0);
    QVERIFY(window->ui->statusBar->isVisible());
    setOptions(0, 14, "1,2,3,4,5,6,7", true);
    window->settingsChange();
    QVERIFY(window->employeeLockSchedule);
    QVERIFY(!window->ui->statusBar->isVisible());
    QCOMPARE(window->gridRows.first().attr("type", QString()), QString("shiftview"));
    QCOMPARE(window->cycleDates.size(), 14);

    setOptions(0, 7, "1,2,3,4,5,6,7", false);
    window->settingsChange();
    QVERIFY(window->ui->statusBar->isVisible());
    QCOMPARE(window->gridRows.first().attr("type", QString()), QString("scheduleview"));
}

void TestGrid::menuMovesCheckWithoutRedraw()
{
    show(0, 0);
    QCOMPARE(window->rowLabels.size(), 6);

    window->ui->actionView_By_Schedule->trigger();
    window->ui->actionView_One_Group->trigger();
    QVERIFY(window->toolBar->ui->btn_bySchedule->isChecked());
    QVERIFY(window->toolBar->ui->btn_oneGroup->isChecked());
    QCOMPARE(window->toolBar->getViewType(), 1);
    QCOMPARE(window->toolBar->getPersonType(), 1);
    // The grid still shows all employees until something redraws.
    QCOMPARE(window->rowLabels.size(), 6);
    QCOMPARE(window->gridRows.first().attr("type", QString()), QString("personview"));
    // The refresh button shows it: the lines of "<None>", the group chosen in the box.
    QTest::mouseClick(window->toolBar->ui->btn_refreshSchedule, Qt::LeftButton);
    QCOMPARE(window->rowLabels, QStringList{"N"});
    QCOMPARE(window->gridRows.first().attr("type", QString()), QString("scheduleview"));

    // Values that name no button change nothing.
    window->toolBar->setViewType(2);
    window->toolBar->setPersonType(-1);
    QCOMPARE(window->toolBar->getViewType(), 1);
    QCOMPARE(window->toolBar->getPersonType(), 1);

    // A click on a button redraws at once.
    QTest::mouseClick(window->toolBar->ui->btn_allGroup, Qt::LeftButton);
    QCOMPARE(window->rowLabels, (QStringList{"AL--D", "N", "BE--D", "Late", "--N"}));
    QTest::mouseClick(window->toolBar->ui->btn_byPerson, Qt::LeftButton);
    QCOMPARE(window->rowLabels.size(), 6);
    QCOMPARE(window->toolBar->getViewType(), 0);
}

void TestGrid::resizeSharesWidthUpToSevenColumns()
{
    QTableWidget *table = window->ui->tableWidget;
    table->setColumnWidth(0, 33);
    window->on_refresh_schedule();
    // Only a resize sets the widths.
    QCOMPARE(table->columnWidth(0), 33);

    table->resize(760, 300);
    const int share = (760 - table->verticalHeader()->width()) / 7;
    for (int column = 0; column < 6; ++column)
        QCOMPARE(table->columnWidth(column), share);

    setOptions(0, 2, "1,2,3,4,5,6,7");
    window->on_refresh_schedule();
    table->resize(500, 300);
    QCOMPARE(table->columnWidth(0), (500 - table->verticalHeader()->width()) / 2);
}

void TestGrid::longCycleKeepsWidths()
{
    QTableWidget *table = window->ui->tableWidget;
    setOptions(0, 14, "1,2,3,4,5,6,7");
    window->on_refresh_schedule();
    // The last column of the old count and every new one get 100 pixels.
    for (int column = 6; column < 13; ++column)
        QCOMPARE(table->columnWidth(column), 100);

    table->setColumnWidth(2, 61);
    table->resize(700, 300);
    QCOMPARE(table->columnWidth(2), 61);
    QCOMPARE(table->columnWidth(8), 100);
    // Same count: no widths are set.
    window->on_refresh_schedule();
    QCOMPARE(table->columnWidth(2), 61);
}

ROSTERA_TEST_MAIN(TestGrid)
#include "test_grid.moc"

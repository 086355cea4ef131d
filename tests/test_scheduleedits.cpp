// Changes to the stored schedule: a cell edited through the grid's editors (the four kinds, a confirmed edit,
// refusals and Escape) or by hand, check and repair, copy and clear.
#include "fixture.h"
#include "engine/clearschedulesettings.h"
#include "engine/copyschedulesettings.h"
#include "engine/schedulestatus.h"
#include "masterdata/staffsselect.h"
#include "ui_clearschedulesettings.h"
#include "ui_copyschedulesettings.h"
#include "ui_schedulestatus.h"
#include "ui_staffsselect.h"
using Box = QMessageBox;

static const QString kNoNeed = "Don't need any employees for this shift of that day";
static const QString kEnough = "Already assigned enough employees for this shift of that day";
static const QString kAlready = "Already assigned on that day", kCorrect = "Current schedule is correct";
static const QString kAsk = "Need to allocate staff automatically?";
static const QString kReplace = "Are you sure to replace existing schedule?";
// 1 to 4 work in G, 5 and 6 in no group; S of G needs two on weekdays, every other shift one a day.
static const QString kPlan = "staff 1/G 2/G 3/G 4/G 5/ 6/ | shift S T U | row /S/1;1;1;1;1;1;1 G/S/2;2;2;2;2;0;0 "
                             "G/T/1;1;1;1;1;1;1 H/S/1;1;1;1;1;1;1";
static const QString kSpread = "02/H/S/h 08/G/S/b 09/G/S/c 10/H/S/d 16/G/S/e";

// The schedule of March 2026 as "day/group/shift/staffs" items in key order, and a plan written with one.
static QString march()
{
    return scheduleTable().join('|').remove("2026-03-").replace(' ', '/').replace('|', ' ');
}

static bool writeMarch(const QString &plan, QString items)
{
    return writePlan(plan + " | schedule " + (items.isEmpty() ? "" : "2026-03-" + items.replace(' ', " 2026-03-")));
}

static QString clearing(int from, int to)
{
    return QString("Are you sure to clear existing schedule\nfrom 3/%1/2026 to 3/%2/2026?").arg(from).arg(to);
}

// A check message from "A 02 G S 9": mark, day of March, group, shift, then the employee, or the need, the count
// and less or more.
static QString message(const QString &code)
{
    static const QStringList tails = {
        ",Employee [%4] doesn't exist,don't assign the employee",
        ",Employee [%4] is during the vacations, can't be assigned",
        ",Employee [%4] can't be assigned to more than one shift",
        ". Do not require employees,don't assign employees work for that day",
        ", that day is during the holidays. Do not require employees,don't assign employees work for that day",
        ",Need %4 employees work, %5 employees were assigned work for that day,%6 than need"};
    QString text = "Date:[2026-03-%1]Group:[%2]Shift:[%3]" + tails[code[0].unicode() - 'A'];
    for (int i = 1; i <= code.count(' '); ++i)
        text.replace('%' + QString::number(i), code.section(' ', i, i));
    return text;
}

// Lets t_schedule refuse an INSERT, UPDATE or DELETE, or hides it ("t_schedule"); mend() undoes either.
static void breakFile(const QString &f)
{
    if (f.startsWith("t_"))
        rows("ALTER TABLE " + f + " RENAME TO moved_" + f);
    else if (!f.isEmpty())
        rows("CREATE TRIGGER refuse BEFORE " + f + " ON t_schedule BEGIN SELECT RAISE(FAIL, 'no'); END");
}

static void mend()
{
    for (const char *sql : {"DROP TRIGGER IF EXISTS refuse", "ALTER TABLE moved_t_schedule RENAME TO t_schedule"})
        rows(sql);
}

class TestScheduleEdits : public QObject
{
    Q_OBJECT
    RosteraMain *window = nullptr;
private slots:
    void initTestCase()
    {
        QVERIFY((window = openWindow()));
        rows("PRAGMA synchronous=OFF");
    }
    void init()
    {
        setView(window, 0);
        window->holidays.clear();
        window->vacations.clear();
        window->tipText.clear();
    }
    // Cell (0, col) over Monday 2, Saturday 7, holiday Wednesday 4 March; row "1": employee 1 of G by employee,
    // "G/S": S of G by schedule.
    void adjust_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<int>("col");
        addColumns({"stored", "cell", "value"});
        addColumns<bool>({"commit", "answer"});
        addColumns({"tip", "after", "fault"});
        const auto row = [](const char *tag, const QString &row, int col, const QString &stored, const QString &cell,
                            const QString &value, bool commit, bool answer, const QString &tip = {},
                            const QString &after = {}, const QString &fault = {}) {
            QTest::newRow(tag) << row << col << stored << cell << value << commit << answer << tip << after << fault;
        };
        const QString holiday = "Don't need any employees, that day is during the holidays";
        const QString saveFailed = "Save schedule failed", readFailed = "Get schedule failed";
        row("enough", "1", 0, "02/G/S/2;3", "", "S", false, true, kEnough);
        row("no row, told before the holiday", "1", 2, "", "", "U", false, true, kNoNeed);
        row("holiday", "1", 2, "", "", "S", false, true, holiday);
        // With several shifts in a cell the first record and the first row read serve all of them.
        row("first record and row serve all", "1", 0, "02/G/S/2 02/G/T/3;4", "", "S\nT", false, true);
        row("cell behind the record", "G/S", 0, "02/G/S/3;4", "3", "4", false, false, kAlready);
        row("leave and join", "1", 0, "02/G/S/2;1;3;1 02/G/T/1 02/G/U/4", "S\nT", "U", true, true, "",
            "02/G/S/2;3;1 02/G/U/4;1");
        // A shift that has the employee already ends the commit: U stays unwritten.
        row("join until one has him", "1", 0, "02/G/T/1", "", "S\nT\nU", true, true, "", "02/G/S/1 02/G/T/1");
        row("cell cleared", "G/S", 0, "02/G/S/3;4 02/G/T/3;;4", "3\n4", "", true, true, "", "02/G/T/3;;4");
        row("save fails, removal stays", "1", 0, "02/G/S/1", "S", "T", true, false, saveFailed, "", "INSERT");
        row("read fails", "G/S", 0, "", "", "1", true, false, readFailed, "", "t_schedule");
    }
    void adjust()
    {
        QFETCH(QString, row);
        QFETCH(int, col);
        QFETCH(QString, stored);
        QFETCH(bool, commit);
        QVERIFY(writeMarch(kPlan + " | holiday 2026-03-04", stored));
        const bool byShift = row.contains('/');
        window->toolBar->setViewType(byShift);
        window->cycleDates = {QDate(2026, 3, 2), QDate(2026, 3, 7), QDate(2026, 3, 4)};
        const QString group = row.section('/', 0, 0), shift = row.section('/', 1);
        window->gridRows = {byShift ? record({{"groupname", group}, {"shiftname", shift}})
                                    : record({{"id", row}, {"groupname", "G"}})};
        QTableWidget *table = window->ui->tableWidget;
        table->setRowCount(1);
        table->setColumnCount(3);
        table->model()->setData(table->model()->index(0, col), field("cell"), Qt::UserRole);
        breakFile(field("fault"));
        const bool answered = window->adjustScheduleCommit(0, col, field("value"), commit);
        mend();
        QTEST(answered, "answer");
        QTEST(window->tipText, "tip");
        QCOMPARE(march(), commit ? field("after") : stored);
    }
    void check_data()
    {
        addColumns({"extra", "stored", "days", "group"});
        QTest::addColumn<bool>("repair");
        addColumns({"messages", "after"});
        QTest::newRow("every fault")
            << "| vacation 2/2026-03-03"
            << "02//S/5;6 02/G/S/9;1 02/G/T/1 02/G/U/9 03/G/S/2;3;1 03/G/T/3 07/G/S/1 07/G/T/2" << "02 03 07" << ""
            << false
            << "F 02 <None> S 1 2 more,F 03 <None> S 1 0 less,F 07 <None> S 1 0 less,A 02 G S 9,B 03 G S 2,"
               "F 03 G S 2 3 more,D 07 G S,C 02 G T 1,C 03 G T 3"
            << "";
        QTest::newRow("holiday, that alone") << "| holiday 2026-03-02" << "02/G/S/5;5" << "02" << "" << false
                                             << "E 02 G S" << "";
        QTest::newRow("twice in a record, repaired") << "" << "02/G/S/3;3 02/G/T/1" << "02" << "" << true
                                                     << "F 02 G S 2 1 less" << "02/G/S/3 02/G/T/1";
        QTest::newRow("repair removes and cuts")
            << "| vacation 2/2026-03-02" << "02/G/S/9;1;2 02/G/T/3;1;2 03/G/S/1;3;2;1 03/G/T/9" << "02 03" << "" << true
            << "F 02 G S 2 1 less,F 03 G T 1 0 less" << "02/G/S/1 02/G/T/3 03/G/S/1;3";
        QTest::newRow("repair empties idle days, leaves the rest as is")
            << "| holiday 2026-03-02" << "02/G/S/1 07/G/S/2;3 07/G/T/;1" << "02 07" << "" << true << "" << "07/G/T/;1";
        QTest::newRow("one group") << "" << "02/G/S/9;1 02/G/T/2 02/H/S/8" << "02" << "H" << false << "A 02 H S 8"
                                   << "";
    }
    void check()
    {
        QFETCH(QString, stored);
        QFETCH(QString, group);
        QFETCH(bool, repair);
        QVERIFY(writeMarch(kPlan + field("extra"), stored));
        setView(window, group.isEmpty() ? 0 : 1, group);
        window->cycleDates.clear();
        for (const QString &day : field("days").split(' '))
            window->cycleDates << QDate(2026, 3, day.toInt());
        QStringList expected;
        for (const QString &code : field("messages").split(',', Qt::SkipEmptyParts))
            expected << message(code);
        QCOMPARE(window->checkSchedule(repair), expected);
        QCOMPARE(march(), repair ? field("after") : stored);
    }
    void statusPanel()
    {
        // Each day 9 is unknown and, without 9, one short. Check mode stops at ten messages, here within the record
        // of the 11th.
        const QString days = "02/G/T/1;9 03/G/T/1;9 04/G/T/1;9 05/G/T/1;9 06/G/T/1;9 07/G/T/1;9 08/G/T/1;9 "
                             "09/G/T/1;9 10/G/T/1;9 11/G/T/1;9;x 12/G/T/1;9";
        QVERIFY(writeMarch("staff 1/G 2/G 3/G | row G/T/2;2;2;2;2;2;2", days));
        window->cycleDates = daysFrom(QDate(2026, 3, 2), 11);
        Ui_ScheduleStatus *ui = window->statusPanel->ui;
        ui->btn_checkSchedule->click();
        QCOMPARE(ui->schedule_textTip->text(), message("A 02 G T 9"));
        QCOMPARE(ui->schedule_textTip->toolTip().split("\r\n").mid(9), QStringList{message("A 11 G T 9")});
        QCOMPARE(ui->schedule_iconTip->text(), "<img src=':/res/error.ico'/>");
        Boxes boxes({Box::Cancel, Box::Yes, Box::Ok, Box::No});
        ui->btn_repairSchedule->click();
        breakFile("UPDATE");
        ui->btn_repairSchedule->click();
        mend();
        QCOMPARE(march(), days);
        // Repair removes every 9 and reports eleven shortages; without a refill the panel shows the check's ten. Yes
        // fills the places left open, keeping 1.
        ui->btn_repairSchedule->click();
        QVERIFY(!march().contains(";9"));
        QCOMPARE(window->checkSchedule(true).size(), 11);
        QCOMPARE(ui->schedule_textTip->text(), message("F 02 G T 2 1 less"));
        QCOMPARE(ui->schedule_textTip->toolTip().count("\r\n"), 9);
        ui->btn_repairSchedule->click();
        QCOMPARE(march().count("/1;"), 11);
        QCOMPARE(ui->schedule_textTip->text() + ui->schedule_textTip->toolTip(), kCorrect);
        QCOMPARE(ui->schedule_iconTip->text(), "<img src=':/res/success.ico'/>");
        QVERIFY(!ui->btn_repairSchedule->isEnabled());
        QCOMPARE(boxes.texts, QStringList({kAsk, kAsk, "Save schedule failed when repair it!", kAsk, kAsk}));
        QCOMPARE(boxes.buttons.value(0), Box::Yes | Box::No | Box::Cancel);
        QCOMPARE(boxes.defaults.value(0), Box::Yes);
        QCOMPARE(boxes.icons.value(2), Box::Warning);
    }
    void commands()
    {
        QVERIFY(writeMarch("", kSpread));
        Boxes boxes({Box::Yes, Box::Ok, Box::Yes, Box::No}, Box::Yes);
        // The previous cycle counts calendar days: five dates from Monday 9 copy the five days from Wednesday 4 on.
        setOption("cycle days", 5);
        window->cycleDates = daysFrom(QDate(2026, 3, 9), 5);
        window->on_copyPreCycle_schedule();
        setOption("cycle days", 7);
        QCOMPARE(march(), "02/H/S/h 08/G/S/b 13/G/S/b 16/G/S/e");
        // Both dialogs refuse a to date three days back, staying open, and then take the span they propose.
        bool stayed = true;
        const auto refuseThenTake = [&stayed](QDialog *d, QDateEdit *to) {
            const QDate date = to->date();
            to->setDate(date.addDays(-3));
            d->accept();
            stayed &= d->isVisible();
            to->setDate(date);
            d->accept();
            if (d->isVisible()) {
                d->reject();
                stayed = false;
            }
        };
        whenDialogOpens<CopyScheduleSettings>([&](CopyScheduleSettings *d) { refuseThenTake(d, d->ui->dt_copyTo); });
        window->cycleDates = daysFrom(QDate(2026, 3, 11), 3);
        window->on_copySpecifiedCycle_schedule();
        QCOMPARE(march(), "02/H/S/h 08/G/S/b 11/G/S/b 16/G/S/e");
        window->cycleDates = daysFrom(QDate(2026, 3, 9), 7);
        window->on_clear_schedule();
        whenDialogOpens<ClearScheduleSettings>([&](ClearScheduleSettings *d) { refuseThenTake(d, d->ui->dt_to); });
        window->cycleDates = {QDate(2026, 3, 11)};
        window->on_clear_date_schedule();
        QVERIFY(stayed);
        QCOMPARE(march(), "02/H/S/h 08/G/S/b 16/G/S/e");
        QCOMPARE(boxes.texts, QStringList({kReplace, "There has overlapping day between from and to dates", kReplace,
                                           clearing(9, 15), "To date can't before from date", clearing(11, 11)}));
    }
    void edit_data()
    {
        // The cell (option on, view, row label less the group mark, column), the item chosen or the values ticked and
        // the key, t_schedule and the cell afterwards, the tip, a change of the file after the grid was drawn.
        addColumns({"cell", "action", "stored", "shown", "tip", "behind"});
        // Shifts Sx and Tx are shown as S and T; a cell shows "text|value" afterwards.
        const QString before = "2026-03-02 G Sx 1";
        QTest::newRow("shift for an employee")
            << "0 0 2 0" << "T Return" << before + ",2026-03-02 G Tx 2" << "T|Tx" << "" << "";
        QTest::newRow("empty item removes the shift") << "0 0 1 0" << " Return" << "" << "|" << "" << "";
        QTest::newRow("employee for a line") << "0 1 S 0" << "2 Return" << "2026-03-02 G Sx 2" << "2|2" << "" << "";
        // Tips only warn: the commit writes all the same, after the empty item of the empty list.
        QTest::newRow("nobody needed") << "0 1 S 5" << "3 Return" << before + ",2026-03-07 G Sx ;3" << "3|3"
                                       << kNoNeed << "";
        QTest::newRow("refused") << "0 1 S 0" << "2 Return" << "2026-03-02 G Sx 1;2" << "1|1"
                                 << kAlready << "update t_schedule set staffs='1;2'";
        QTest::newRow("escape writes nothing") << "0 0 2 0" << "T Escape" << before << "|" << "" << "";
        // A group without standing rows (by employee) or employees (by schedule): no editor.
        QTest::newRow("nothing to choose by employee") << "0 0 9 0" << "" << before << "|" << "" << "";
        QTest::newRow("picker of shifts") << "1 0 3 0" << "Sx;Tx Return" << "2026-03-02 G Sx 1;3,2026-03-02 G Tx 3"
                                          << "S\nT|Sx\nTx" << "" << "";
        // By shift the line has no group: the record is a new one of the empty group.
        QTest::newRow("picker of employees")
            << "1 1 S 0" << "1;2 Return" << "2026-03-02  Sx ;1;2," + before << "1\n2|1\n2" << "" << "";
    }
    void edit()
    {
        QFETCH(QString, action);
        QFETCH(QString, tip);
        QFETCH(QString, behind);
        const QStringList f = field("cell").split(' ');
        QVERIFY(writePlan("group G H K | staff 1/G 2/G 3/G 4/G 5/G 6/G 9/K | shift Sx/S Tx/T"
                          " | row G/Sx/1;1;1;1;1;0;0 G/Tx/1;1;1;1;1;1;1 H/Sx/1 | schedule 2026-03-02/G/Sx/1"));
        setOption("employee lock schedule", f[0] == "1");
        window->settingsChange();
        window->toolBar->setViewType(f[1].toInt());
        window->ui->date_current->setDate({2026, 3, 2});
        window->on_refresh_schedule();
        window->tipText.clear();
        window->resize(800, 270);
        window->activateWindow(); // after the message boxes of the tests before
        QVERIFY(QTest::qWaitForWindowActive(window));
        QVERIFY(behind.isEmpty() || rows(behind).isEmpty());
        QTableWidget *table = window->ui->tableWidget;
        const int row = int(window->rowLabels.indexOf(QRegularExpression("(.*--)?" + f[2])));
        const QModelIndex index = table->model()->index(row, f[3].toInt());
        const int height = table->rowHeight(index.row());
        const QString old = index.data().toString();
        // A double click is a press and release, then a press that the double click follows.
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(index).center());
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(index).center());
        QWidget *editor = table->indexWidget(index);
        QCOMPARE(editor != nullptr, !action.isEmpty());
        const QString choice = action.section(' ', 0, 0);
        if (auto *box = qobject_cast<QComboBox *>(editor)) {
            QCOMPARE(box->itemText(0) + "|" + box->currentText(), "|" + old);
            QCOMPARE(box->geometry(), table->visualRect(index));
            box->setCurrentIndex(box->findText(choice));
            QTRY_COMPARE(QToolTip::text(), tip); // while the box is open
        } else if (auto *picker = qobject_cast<StaffsSelect *>(editor)) {
            // Capped by the table's height (here small) less 40 pixels.
            QCOMPARE(window->editorHeight, qMin(picker->ui->lst_staffs->count() * 20 + 10, table->height() - 40));
            for (int i = 0; i < picker->ui->lst_staffs->count(); ++i) {
                QListWidgetItem *item = picker->ui->lst_staffs->item(i);
                item->setCheckState(choice.split(';').contains(item->data(Qt::UserRole).toString()) ? Qt::Checked
                                                                                                  : Qt::Unchecked);
            }
            QCOMPARE(window->tipText, QString()); // ticking runs no check
        }
        if (editor)
            QTest::keyClick(QApplication::focusWidget(), action.endsWith("Return") ? Qt::Key_Return : Qt::Key_Escape);
        QTRY_VERIFY(!table->indexWidget(index));
        QTEST(scheduleTable().join(","), "stored");
        QCOMPARE(window->tipText, tip);
        QTEST(index.data().toString() + "|" + index.data(Qt::UserRole).toString(), "shown");
        QCOMPARE(table->rowHeight(index.row()), f[0] == "1" ? 50 : height);
        QToolTip::hideText();
    }
};

ROSTERA_TEST_MAIN(TestScheduleEdits)
#include "test_scheduleedits.moc"

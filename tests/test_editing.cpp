// Editing a grid cell through the real table: the four kinds of editor, what a confirmed edit
// writes, refusals and Escape, where the picker opens; and the picker itself.
#include "fixture.h"

#include <QComboBox>
#include <QListWidget>
#include <QSignalSpy>
#include <QToolTip>

#include "mainwindow/rosteramain.h"
#include "mainwindow/scheduledelegate.h"
#include "mainwindow/toolbar.h"
#include "masterdata/staffsselect.h"
#include "persistence/databasefunc.h"
#include "ui_rosteramain.h"
#include "ui_staffsselect.h"

class TestEditing : public QObject
{
    Q_OBJECT
    RosteraMain *window = nullptr;

private slots:
    void initTestCase() { QVERIFY((window = openWindow())); }
    void cleanupTestCase() { delete window; }

    void edit_data()
    {
        QTest::addColumn<QString>("cell");   // option on, view, row label (group mark left out), column
        QTest::addColumn<QString>("action"); // the item chosen or the values ticked, then the key
        QTest::addColumn<QString>("stored"); // t_schedule afterwards
        QTest::addColumn<QString>("shown");  // the cell afterwards
        QTest::addColumn<QString>("tip");
        QTest::addColumn<QString>("behind"); // a change of the file after the grid was drawn
        const QString before = "2026-03-02 G S 1";
        QTest::newRow("shift for an employee") << "0 0 2 0" << "T Return" << before + ",2026-03-02 G T 2" << "T" << "" << "";
        QTest::newRow("empty item removes the shift") << "0 0 1 0" << " Return" << "" << "" << "" << "";
        QTest::newRow("employee for a line") << "0 1 S 0" << "2 Return" << "2026-03-02 G S 2" << "2" << "" << "";
        QTest::newRow("the old value again") << "0 1 S 0" << "1 Return" << before << "1" << "" << "";
        // Tips only warn: the commit writes all the same, after the empty item of the empty list.
        QTest::newRow("nobody needed") << "0 1 S 5" << "3 Return" << before + ",2026-03-07 G S ;3" << "3"
                                       << "Don't need any employees for this shift of that day" << "";
        QTest::newRow("refused") << "0 1 S 0" << "2 Return" << "2026-03-02 G S 1;2" << "1" << "Already assigned on that day"
                                 << "update t_schedule set staffs='1;2'";
        QTest::newRow("escape writes nothing") << "0 0 2 0" << "T Escape" << before << "" << "" << "";
        // A group without standing rows (by employee) or employees (by schedule): no editor.
        QTest::newRow("nothing to choose by employee") << "0 0 9 0" << "" << before << "" << "" << "";
        QTest::newRow("nothing to choose by schedule") << "0 1 H--S 0" << "" << before << "" << "" << "";
        QTest::newRow("picker of shifts") << "1 0 3 0" << "S;T Return" << "2026-03-02 G S 1;3,2026-03-02 G T 3" << "S\nT"
                                          << "" << "";
        // By shift the line has no group: the record is a new one of the empty group.
        QTest::newRow("picker of employees") << "1 1 S 0" << "1;2 Return" << "2026-03-02  S ;1;2," + before << "1\n2"
                                             << "" << "";
    }
    void edit()
    {
        QFETCH(QString, cell);
        QFETCH(QString, action);
        QFETCH(QString, tip);
        QFETCH(QString, behind);
        const QStringList f = cell.split(' ');
        QVERIFY(writePlan("group G H K | staff 1/G 2/G 3/G 9/K | row G/S/1;1;1;1;1;0;0 G/T/1;1;1;1;1;1;1 H/S/1"
                          " | schedule 2026-03-02/G/S/1"));
        setOption("employee lock schedule", f[0] == "1");
        window->settingsChange();
        window->toolBar->setViewType(f[1].toInt());
        window->ui->date_current->setDate({2026, 3, 2});
        window->on_refresh_schedule();
        window->tipText.clear();
        QVERIFY(behind.isEmpty() || rows(behind).isEmpty());
        QTableWidget *table = window->ui->tableWidget;
        const QModelIndex index = table->model()->index(int(window->rowLabels.indexOf(QRegularExpression("(.*--)?" + f[2]))),
                                                        f[3].toInt());
        const int height = table->rowHeight(index.row());
        // A double click is a press and release, then a press that the double click follows.
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(index).center());
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(index).center());
        QWidget *editor = table->indexWidget(index);
        QCOMPARE(editor != nullptr, !action.isEmpty());
        const QString choice = action.section(' ', 0, 0);
        if (auto *box = qobject_cast<QComboBox *>(editor)) {
            QCOMPARE(box->itemText(0), QString());
            box->setCurrentIndex(box->findText(choice));
            QTRY_COMPARE(QToolTip::text(), tip); // while the box is open
        } else if (auto *picker = qobject_cast<StaffsSelect *>(editor)) {
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
        QTEST(table->item(index.row(), index.column()) ? table->item(index.row(), index.column())->text() : "", "shown");
        QCOMPARE(table->rowHeight(index.row()), f[0] == "1" ? 50 : height);
        QToolTip::hideText();
    }

    // The picker hangs down from its cell; near the bottom it opens upward from the cell's bottom
    // edge, and never above the table's top.
    void pickerGeometry()
    {
        setOption("employee lock schedule", true);
        window->settingsChange();
        window->ui->tableWidget->resize(400, 300);
        window->ui->tableWidget->setRowHeight(0, 30);
        QWidget editor;
        QStyleOptionViewItem option;
        for (const auto &[top, height, expected] : QList<std::tuple<int, int, QRect>>{
                 {0, 100, {10, 0, 100, 100}}, {150, 110, {10, 150, 100, 110}}, {250, 100, {10, 180, 100, 100}},
                 {250, 400, {10, 0, 100, 400}}}) {
            window->editorHeight = height;
            option.rect = QRect(10, top, 100, 30);
            window->ui->tableWidget->itemDelegate()->updateEditorGeometry(&editor, option,
                                                                          window->ui->tableWidget->model()->index(0, 0));
            QCOMPARE(editor.geometry(), expected);
        }
    }

    void picker_data()
    {
        QTest::addColumn<QString>("load"); // single, line feed, mode, group, greatest height, current
        QTest::addColumn<QString>("items");
        QTest::addColumn<int>("height");
        QTest::newRow("employees of all groups") << "0 0 0 -1 0 2;9;x" << "1 2+ 3 9+" << 50;
        QTest::newRow("employees of a group") << "0 1 0 G 500 3\n1" << "1+ 2 3+" << 70;
        QTest::newRow("standing rows, capped") << "0 0 1 -1 55 S" << "S+ T S+" << 55;
        QTest::newRow("shifts, at least 30") << "0 1 2 G 25 T" << "S T+" << 30;
        QTest::newRow("single choice by text") << "1 0 0 G 0 2;3" << "1 2* 3" << 50;
    }
    void picker()
    {
        QFETCH(QString, load);
        QFETCH(int, height);
        QVERIFY(writePlan("group G H K | staff 1/G 2/G 3/G 9/K | row G/S/1 G/T/1 H/S/1"));
        const QStringList f = load.split(' ');
        StaffsSelect picker(nullptr, f[0] == "1", f[1] == "1");
        QSignalSpy changed(&picker, &StaffsSelect::staffChanged);
        picker.setData(f[5], f[2].toInt(), f[3], f[4].toInt());
        QStringList shown;
        for (int i = 0; i < picker.ui->lst_staffs->count(); ++i) {
            const QListWidgetItem *item = picker.ui->lst_staffs->item(i);
            shown << item->text() + (item->checkState() == Qt::Checked ? "+" : item->isSelected() ? "*" : "");
        }
        QTEST(shown.join(' '), "items");
        QCOMPARE(picker.height() + picker.viewHeight, 2 * height);
        QCOMPARE(changed.count(), 0); // loading emits nothing
    }

    // As a popup the picker follows every tick and emits the texts; values are joined by ";".
    void pickerAsPopup()
    {
        QVERIFY(writePlan("shift Early/E Late/L | staff 1/G 2/G"));
        StaffsSelect picker(nullptr, false, false), single(nullptr, true, false);
        picker.setWindowFlags(Qt::Popup);
        picker.setData("", 2, "-1", 0);
        QSignalSpy changed(&picker, &StaffsSelect::staffChanged);
        picker.show();
        QVERIFY(QTest::qWaitForWindowExposed(&picker));
        for (int i : {1, 0}) {
            const QRect rect = picker.ui->lst_staffs->visualItemRect(picker.ui->lst_staffs->item(i));
            QTest::mouseClick(picker.ui->lst_staffs->viewport(), Qt::LeftButton, {}, {rect.left() + 10, rect.center().y()});
        }
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.last().first().toString() + " " + picker.getData(true), QString("E;L Early;Late"));
        single.setData("2", 0, "-1", 0);
        QCOMPARE(single.getData(true) + single.getData(false), QString("22"));
        single.setData("", 0, "-1", 0);
        QCOMPARE(single.getData(true), QString());
    }
};

ROSTERA_TEST_MAIN(TestEditing)
#include "test_editing.moc"

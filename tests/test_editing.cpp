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
        // The cell (option on, view, row label with the group mark left out, column), the item chosen or the
        // values ticked and the key, t_schedule and the cell afterwards, the tip, a change of the file after the
        // grid was drawn.
        for (const char *column : {"cell", "action", "stored", "shown", "tip", "behind"})
            QTest::addColumn<QString>(column);
        // Shifts Sx and Tx are shown as S and T; a cell shows "text|value" afterwards.
        const QString before = "2026-03-02 G Sx 1";
        QTest::newRow("shift for an employee")
            << "0 0 2 0" << "T Return" << before + ",2026-03-02 G Tx 2" << "T|Tx" << "" << "";
        QTest::newRow("empty item removes the shift") << "0 0 1 0" << " Return" << "" << "|" << "" << "";
        QTest::newRow("employee for a line") << "0 1 S 0" << "2 Return" << "2026-03-02 G Sx 2" << "2|2" << "" << "";
        QTest::newRow("the old value again") << "0 1 S 0" << "1 Return" << before << "1|1" << "" << "";
        // Tips only warn: the commit writes all the same, after the empty item of the empty list.
        QTest::newRow("nobody needed") << "0 1 S 5" << "3 Return" << before + ",2026-03-07 G Sx ;3" << "3|3"
                                       << "Don't need any employees for this shift of that day" << "";
        QTest::newRow("refused") << "0 1 S 0" << "2 Return" << "2026-03-02 G Sx 1;2" << "1|1"
                                 << "Already assigned on that day" << "update t_schedule set staffs='1;2'";
        QTest::newRow("escape writes nothing") << "0 0 2 0" << "T Escape" << before << "|" << "" << "";
        // A group without standing rows (by employee) or employees (by schedule): no editor.
        QTest::newRow("nothing to choose by employee") << "0 0 9 0" << "" << before << "|" << "" << "";
        QTest::newRow("nothing to choose by schedule") << "0 1 H--S 0" << "" << before << "|" << "" << "";
        QTest::newRow("picker of shifts") << "1 0 3 0" << "Sx;Tx Return" << "2026-03-02 G Sx 1;3,2026-03-02 G Tx 3"
                                          << "S\nT|Sx\nTx" << "" << "";
        // By shift the line has no group: the record is a new one of the empty group.
        QTest::newRow("picker of employees")
            << "1 1 S 0" << "1;2 Return" << "2026-03-02  Sx ;1;2," + before << "1\n2|1\n2" << "" << "";
    }
    void edit()
    {
        QFETCH(QString, cell);
        QFETCH(QString, action);
        QFETCH(QString, tip);
        QFETCH(QString, behind);
        const QStringList f = cell.split(' ');
        QVERIFY(writePlan("group G H K | staff 1/G 2/G 3/G 4/G 5/G 6/G 9/K | shift Sx/S Tx/T"
                          " | row G/Sx/1;1;1;1;1;0;0 G/Tx/1;1;1;1;1;1;1 H/Sx/1 | schedule 2026-03-02/G/Sx/1"));
        setOption("employee lock schedule", f[0] == "1");
        window->settingsChange();
        window->toolBar->setViewType(f[1].toInt());
        window->ui->date_current->setDate({2026, 3, 2});
        window->on_refresh_schedule();
        window->tipText.clear();
        window->resize(800, 270);
        QVERIFY(behind.isEmpty() || rows(behind).isEmpty());
        QTableWidget *table = window->ui->tableWidget;
        const int row = int(window->rowLabels.indexOf(QRegularExpression("(.*--)?" + f[2])));
        const QModelIndex index = table->model()->index(row, f[3].toInt());
        const int height = table->rowHeight(index.row());
        const QString old = table->item(row, index.column()) ? table->item(row, index.column())->text() : "";
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
        const QTableWidgetItem *item = table->item(index.row(), index.column());
        QTEST(item ? item->text() + "|" + item->data(Qt::UserRole).toString() : "|", "shown");
        QCOMPARE(table->rowHeight(index.row()), f[0] == "1" ? 50 : height);
        QToolTip::hideText();
    }
    // The picker hangs down from its cell; near the bottom it opens upward from the cell's bottom
    // edge, and never above the table's top.
    void pickerGeometry()
    {
        setOption("employee lock schedule", true);
        window->settingsChange();
        QTableWidget *table = window->ui->tableWidget;
        table->resize(400, 300);
        table->setRowHeight(0, 30);
        QWidget editor;
        QStyleOptionViewItem option;
        for (const auto &[top, height, expected] : QList<std::tuple<int, int, QRect>>{
                 {0, 100, {10, 0, 100, 100}}, {151, 110, {10, 151, 100, 110}}, {200, 100, {10, 130, 100, 100}},
                 {250, 400, {10, 0, 100, 400}}}) {
            window->editorHeight = height;
            option.rect = QRect(10, top, 100, 30);
            table->itemDelegate()->updateEditorGeometry(&editor, option, table->model()->index(0, 0));
            QCOMPARE(editor.geometry(), expected);
        }
    }
    void picker_data()
    {
        QTest::addColumn<QString>("load"); // single, line feed, mode, group, greatest height, current
        QTest::addColumn<QString>("items");
        QTest::addColumn<int>("height");
        QTest::addColumn<QString>("data"); // getData of values and of texts
        QTest::newRow("employees of all groups") << "0 0 0 -1 0 2;9;x" << "1 2+ 3 9+" << 50 << "2;9 2;9";
        QTest::newRow("employees of a group") << "0 1 0 G 500 3\n1" << "1+ 2 3+" << 70 << "1\n3 1\n3";
        QTest::newRow("standing rows, capped") << "0 0 1 -1 55 Se" << "S+ T S+" << 55 << "Se;Se S;S";
        QTest::newRow("shifts, at least 30") << "0 1 2 G 25 Tn" << "S T+" << 30 << "Tn T";
        QTest::newRow("single choice by text") << "1 0 0 G 0 2;3" << "1 2* 3" << 50 << "2 2";
        // A single choice is found by its text, not its value.
        QTest::newRow("single, nothing chosen") << "1 0 2 G 0 Tn" << "S T" << 50 << " ";
    }
    void picker()
    {
        QFETCH(QString, load);
        QFETCH(int, height);
        QVERIFY(writePlan("group G H K | staff 1/G 2/G 3/G 9/K | shift Se/S Tn/T | row G/Se/1 G/Tn/1 H/Se/1"));
        const QStringList f = load.split(' ');
        StaffsSelect picker(nullptr, f[0] == "1", f[1] == "1");
        QSignalSpy changed(&picker, &StaffsSelect::staffChanged);
        picker.setData("", 0, "-1", 0);
        picker.setData(f[5], f[2].toInt(), f[3], f[4].toInt()); // the list of the first load goes
        QStringList shown;
        for (int i = 0; i < picker.ui->lst_staffs->count(); ++i) {
            const QListWidgetItem *item = picker.ui->lst_staffs->item(i);
            shown << item->text() + (item->checkState() == Qt::Checked ? "+" : item->isSelected() ? "*" : "");
        }
        QTEST(shown.join(' '), "items");
        QCOMPARE(picker.height() + picker.viewHeight, 2 * height);
        QTEST(picker.getData(true) + " " + picker.getData(false), "data");
        QCOMPARE(changed.count(), 0); // loading emits nothing
    }
};

ROSTERA_TEST_MAIN(TestEditing)
#include "test_editing.moc"

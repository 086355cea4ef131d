// Editing a grid cell through the real table: the four kinds of editor, what a confirmed edit
// writes, refusals and Escape, where the picker opens; and the picker itself.
#include "fixture.h"
#include "ui_rosteramain.h"

#include <QComboBox>
#include <QListWidget>
#include <QSignalSpy>
#include <QToolTip>

#include "masterdata/staffsselect.h"
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
        // Tips only warn: the commit writes all the same, after the empty item of the empty list.
        QTest::newRow("nobody needed") << "0 1 S 5" << "3 Return" << before + ",2026-03-07 G Sx ;3" << "3|3"
                                       << "Don't need any employees for this shift of that day" << "";
        QTest::newRow("refused") << "0 1 S 0" << "2 Return" << "2026-03-02 G Sx 1;2" << "1|1"
                                 << "Already assigned on that day" << "update t_schedule set staffs='1;2'";
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
};

ROSTERA_TEST_MAIN(TestEditing)
#include "test_editing.moc"

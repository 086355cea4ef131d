#pragma once

#include <QItemDelegate>

// The item delegate of the schedule grid: the one way a user changes a schedule by hand. Every
// edit ends in RosteraMain::adjustScheduleCommit, which checks it and writes it at once. It owns
// no data: what it needs of the window it reaches through g_pMain.
class ScheduleDelegate : public QItemDelegate
{
    Q_OBJECT
public:
    using QItemDelegate::QItemDelegate;

    // A combo box over the row group's shifts (by employee) or employees (by schedule), with an
    // empty item first; with the option "employee lock schedule" a picker of several. No editor
    // where there is nothing to choose.
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

private slots:
    // Try-outs while the editor is open: at most a tip at the cell.
    void comboxStaffChanged(QString staffs);
    void comboxIdxChanged(int idx);
};

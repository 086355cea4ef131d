#include "mainwindow/scheduledelegate.h"

#include <QComboBox>
#include <QScrollBar>
#include <QTableWidget>

#include "core/helpers.h"
#include "mainwindow/rosteramain.h"
#include "mainwindow/toolbar.h"
#include "masterdata/staffsselect.h"
#include "persistence/databasefunc.h"
#include "ui_rosteramain.h"

QWidget *ScheduleDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    RosteraMain *window = g_pMain;
    window->tipRow = -1;
    window->tipCol = -1;
    if (index.row() >= window->gridRows.size())
        return nullptr;
    if (window->employeeLockSchedule)
        return new StaffsSelect(parent, false, true);

    const QString filter = QString("groupname='%1'").arg(window->gridRows.at(index.row()).attr("groupname", QString()));
    QVector<ASAttribute> records;
    QStringList values;
    QStringList texts;
    if (window->toolBar->getViewType() == 0) {
        getDB()->permanentSchedule(records, filter);
        for (const ASAttribute &record : records) {
            values << record.attr("shiftname", QString());
            texts << getShiftAbbre(values.last());
        }
    } else {
        getDB()->staffInfo(records, filter);
        for (const ASAttribute &record : records) {
            values << record.attr("id", QString());
            texts << values.last();
        }
    }
    if (values.isEmpty())
        return nullptr;

    // The empty item first: it is how a user removes an assignment.
    auto *box = new QComboBox(parent);
    box->addItem(QString(), QString());
    for (int i = 0; i < values.size(); ++i)
        box->addItem(texts.at(i), values.at(i));
    return box;
}

void ScheduleDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    RosteraMain *window = g_pMain;
    auto *self = const_cast<ScheduleDelegate *>(this);
    if (auto *box = qobject_cast<QComboBox *>(editor)) {
        // A cell of two lines matches no item: the box comes up without a current one.
        box->setCurrentIndex(box->findText(index.data(Qt::EditRole).toString(), Qt::MatchExactly | Qt::MatchCaseSensitive));
        window->tipRow = index.row();
        window->tipCol = index.column();
        // Connected only now, so that loading runs no check.
        connect(box, &QComboBox::currentIndexChanged, self, &ScheduleDelegate::comboxIdxChanged);
    } else if (auto *picker = qobject_cast<StaffsSelect *>(editor)) {
        const QTableWidget *table = window->ui->tableWidget;
        const int maxHeight = table->height() - (table->horizontalScrollBar()->isVisible() ? 60 : 40);
        picker->setData(index.data(Qt::UserRole).toString(), window->toolBar->getViewType() == 0 ? 2 : 0, "-1",
                        maxHeight);
        window->editorHeight = picker->height();
        // The tip's cell stays unset here, so ticking deliberately runs no check: the only one
        // is the commit's.
        connect(picker, &StaffsSelect::staffChanged, self, &ScheduleDelegate::comboxStaffChanged);
    }
}

void ScheduleDelegate::comboxIdxChanged(int idx)
{
    RosteraMain *window = g_pMain;
    if (window->tipRow == -1 || window->tipCol == -1)
        return;
    if (auto *box = qobject_cast<QComboBox *>(sender()))
        window->adjustScheduleCommit(window->tipRow, window->tipCol, box->itemData(idx).toString(), false);
}

void ScheduleDelegate::comboxStaffChanged(QString)
{
    RosteraMain *window = g_pMain;
    if (window->tipRow == -1 || window->tipCol == -1)
        return;
    if (auto *picker = qobject_cast<StaffsSelect *>(sender()))
        window->adjustScheduleCommit(window->tipRow, window->tipCol, picker->getData(true), false);
}

void ScheduleDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    RosteraMain *window = g_pMain;
    if (!window->employeeLockSchedule) {
        editor->setGeometry(option.rect);
        return;
    }
    // The picker hangs down from the cell; near the bottom it opens upward from the cell's
    // bottom edge, but never above the table's top.
    QRect rect = option.rect;
    rect.setBottom(rect.top() + window->editorHeight - 1);
    if (rect.bottom() > window->ui->tableWidget->height() - 40)
        rect.moveBottom(option.rect.top() + window->ui->tableWidget->rowHeight(index.row()) - 1);
    if (rect.top() < 0)
        rect.moveTop(0);
    editor->setGeometry(rect);
}

void ScheduleDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    RosteraMain *window = g_pMain;
    if (auto *box = qobject_cast<QComboBox *>(editor)) {
        const QString value = box->currentData().toString();
        if (!window->adjustScheduleCommit(index.row(), index.column(), value, true))
            return;
        // A box yields a single line: the row height stays.
        model->setData(index, box->currentText(), Qt::EditRole);
        model->setData(index, value, Qt::UserRole);
    } else if (auto *picker = qobject_cast<StaffsSelect *>(editor)) {
        const QString value = picker->getData(true);
        if (!window->adjustScheduleCommit(index.row(), index.column(), value, true))
            return;
        model->setData(index, picker->getData(false), Qt::EditRole);
        model->setData(index, value, Qt::UserRole);
        window->updateRowHeight(index.row());
    }
}

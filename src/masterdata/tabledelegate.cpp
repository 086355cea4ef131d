#include "masterdata/tabledelegate.h"

#include <QComboBox>
#include <QTimeEdit>

#include "core/helpers.h"
#include "masterdata/settings.h"
#include "persistence/databasefunc.h"
#include "ui_settings.h"

namespace {

enum class Cell { Other, Group, Shift, Employee, Rule, StartOrEnd, Length };

Cell cellKind(const Ui_Settings *ui, const QModelIndex &index)
{
    const int column = index.column();
    if (index.model() == ui->staffTable->model())
        return column == 3 ? Cell::Group : Cell::Other;
    if (index.model() == ui->shiftTable->model()) {
        if (column == 2 || column == 3)
            return Cell::StartOrEnd;
        return column == 4 ? Cell::Length : Cell::Other;
    }
    if (index.model() == ui->permanentScheduleTable->model()) {
        static const Cell columns[] = {Cell::Group, Cell::Shift, Cell::Employee, Cell::Rule};
        if (column >= 0 && column < 4)
            return columns[column];
    }
    return Cell::Other;
}

QString timeFormat(const Ui_Settings *ui)
{
    return ui->ck_use24hour->isChecked() ? "hh:mm" : "hh:mm A";
}

QTime cellTime(const QAbstractItemModel *model, int row, int column)
{
    return str2Time(model->index(row, column).data(Qt::EditRole).toString());
}

QComboBox *namesBox(QWidget *parent, bool withNone, const QVector<ASAttribute> &records, const char *key)
{
    auto *box = new QComboBox(parent);
    if (withNone)
        box->addItem(Settings::noneText());
    for (const ASAttribute &record : records)
        box->addItem(record.attr(key, QString()));
    return box;
}

} // namespace

TableDelegate::TableDelegate(Settings *settings)
    : QItemDelegate(settings)
    , settings(settings)
{
}

QString TableDelegate::lengthText(const QTime &start, const QTime &end)
{
    // QTime arithmetic wraps at midnight: 22:00 to 06:00 is 08:00, equal times 00:00.
    return QTime(0, 0).addSecs(start.secsTo(end)).toString("hh:mm");
}

QWidget *TableDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    const Ui_Settings *ui = settings->ui;
    switch (cellKind(ui, index)) {
    case Cell::Group:
        // Only saved groups are offered.
        return namesBox(parent, true, getDB()->groups, "name");
    case Cell::Shift:
        return namesBox(parent, false, getDB()->shifts, "name");
    case Cell::Employee: {
        // The untranslated literal stands for the empty group here, so in a translated interface
        // a row without a group is offered no employees.
        QString group = index.model()->index(index.row(), 0).data(Qt::EditRole).toString();
        if (group == "<None>")
            group.clear();
        QVector<ASAttribute> staffs;
        getDB()->staffInfo(staffs, QString("groupname='%1'").arg(group));
        return namesBox(parent, true, staffs, "id");
    }
    case Cell::Rule:
        // The rule has its own dialog; no inline editor opens.
        settings->editRule(index.row());
        return nullptr;
    case Cell::StartOrEnd:
    case Cell::Length: {
        auto *edit = new QTimeEdit(parent);
        edit->setDisplayFormat(cellKind(ui, index) == Cell::Length ? "hh:mm" : timeFormat(ui));
        return edit;
    }
    case Cell::Other:
        break;
    }
    return QItemDelegate::createEditor(parent, option, index);
}

void TableDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (auto *box = qobject_cast<QComboBox *>(editor))
        box->setCurrentIndex(box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    else if (auto *edit = qobject_cast<QTimeEdit *>(editor))
        edit->setTime(QTime::fromString(str2TimeFormat(text, true), "hh:mm"));
    else
        QItemDelegate::setEditorData(editor, index);
}

void TableDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const Ui_Settings *ui = settings->ui;
    const int row = index.row();
    if (auto *box = qobject_cast<QComboBox *>(editor)) {
        model->setData(index, box->currentText());
        return;
    }
    auto *edit = qobject_cast<QTimeEdit *>(editor);
    if (!edit) {
        QItemDelegate::setModelData(editor, model, index);
        return;
    }
    if (cellKind(ui, index) == Cell::Length) {
        // The start stays; the end moves to start plus the new length.
        model->setData(index, edit->time().toString("hh:mm"));
        const QTime end = cellTime(model, row, 2).addSecs(QTime(0, 0).secsTo(edit->time()));
        model->setData(model->index(row, 3), end.toString(timeFormat(ui)));
        return;
    }
    model->setData(index, edit->time().toString(timeFormat(ui)));
    model->setData(model->index(row, 4), lengthText(cellTime(model, row, 2), cellTime(model, row, 3)));
}

void TableDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                         const QModelIndex &) const
{
    editor->setGeometry(option.rect);
}

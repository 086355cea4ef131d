#pragma once

#include <QItemDelegate>
#include <QTime>

class Settings;

// Cell editors of the employees, shifts and standing rows tables of Settings: group, shift and
// employee combo boxes, time edits whose changes keep a shift's start, end and length in step,
// and the rule editor of a standing row.
class TableDelegate : public QItemDelegate
{
    Q_OBJECT
public:
    explicit TableDelegate(Settings *settings);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

    // A shift's length as "hh:mm"; an end before the start runs over midnight.
    static QString lengthText(const QTime &start, const QTime &end);

    Settings *settings;
};

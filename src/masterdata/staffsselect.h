#pragma once

#include <QWidget>

class Ui_StaffsSelect;

// The one list over employees or shifts, with check boxes or with a single choice. It holds no
// data: it is loaded with the current value as text and gives a value back as text. The grid
// uses it as a cell editor, the vacation and lock editors as a popup.
class StaffsSelect : public QWidget
{
    Q_OBJECT
public:
    // single: one item by the current row instead of ticks; lineFeed: values joined by a line
    // feed instead of ";".
    StaffsSelect(QWidget *parent, bool single, bool lineFeed);
    ~StaffsSelect() override;

    // Modes: 0 employees, 1 standing rows, 2 shifts; group "-1" means every group. With a
    // maxHeight the widget takes the height of its items, up to maxHeight.
    void setData(const QString &current, int mode, const QString &group, int maxHeight);
    // The item values (or texts) chosen, joined by the separator.
    QString getData(bool values) const;

    Ui_StaffsSelect *ui;
    bool single;
    bool lineFeed;
    // True while setData runs, so that loading emits no change.
    bool loading = false;
    int viewHeight = 50;

signals:
    void staffChanged(const QString &staffs);

private:
    // Follows a tick, or a change of the current row with a single choice.
    void on_staff_changed();
};

#pragma once

#include <QWidget>

class QButtonGroup;
class Ui_ToolBar;

// The tool strip above the grid. Its two sets of checked buttons are the view state of
// the whole program: nothing else stores which view is shown.
class ToolBar : public QWidget
{
    Q_OBJECT
public:
    explicit ToolBar(QWidget *parent = nullptr);
    ~ToolBar() override;

    // 0 by employee, 1 by schedule; -1 when no button is checked.
    int getViewType() const;
    // 0 all groups, 1 one group, 2 one employee; -1 when no button is checked.
    int getPersonType() const;
    // Check a button without redrawing; values that name no button are ignored.
    void setViewType(int type);
    void setPersonType(int type);

    // A click on a view button redraws the grid (the dates stay).
    void on_btn_by_clicked();

    Ui_ToolBar *ui;

private:
    QButtonGroup *viewGroup;
    QButtonGroup *personGroup;
};

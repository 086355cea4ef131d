#pragma once

#include <QStringList>
#include <QWidget>

class Ui_ScheduleStatus;

// The panel in the status bar that checks the displayed cycle and offers repair.
class ScheduleStatus : public QWidget
{
    Q_OBJECT
public:
    explicit ScheduleStatus(QWidget *parent = nullptr);
    ~ScheduleStatus() override;

    void refreshCheckState(bool ok, QStringList messages);

    Ui_ScheduleStatus *ui;

public slots:
    void on_btn_checkSchedule_clicked();
    void on_btn_repairSchedule_clicked();
};

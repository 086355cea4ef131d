#pragma once

#include <QDate>
#include <QDialog>
#include <QVector>

class Ui_ClearScheduleSettings;

// Asks for the span of dates to clear.
class ClearScheduleSettings : public QDialog
{
    Q_OBJECT
public:
    explicit ClearScheduleSettings(const QVector<QDate> &cycleDates, QWidget *parent = nullptr);
    ~ClearScheduleSettings() override;

    // Kept on OK.
    QDate fromDate;
    QDate toDate;

    Ui_ClearScheduleSettings *ui;

public slots:
    void accept() override;
};

#pragma once

#include <QDate>
#include <QDialog>

class Ui_RosteraSettings;

// Asks for the span of a generation of specified dates: a first date and a number of days.
class RosteraSettings : public QDialog
{
    Q_OBJECT
public:
    RosteraSettings(const QDate &from, int days, QWidget *parent = nullptr);
    ~RosteraSettings() override;

    // Kept on OK.
    QDate fromDate;
    int cycleDays = 0;

    Ui_RosteraSettings *ui;

public slots:
    void accept() override;
};

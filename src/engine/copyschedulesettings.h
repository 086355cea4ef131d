#pragma once

#include <QDate>
#include <QDialog>
#include <QVector>

class Ui_CopyScheduleSettings;

// Whether a copy of days days from from to to would write over its own source.
bool copySpansOverlap(const QDate &from, const QDate &to, int days);

// Asks for a copy: the first source date, the number of days and the first target date.
class CopyScheduleSettings : public QDialog
{
    Q_OBJECT
public:
    explicit CopyScheduleSettings(const QVector<QDate> &cycleDates, QWidget *parent = nullptr);
    ~CopyScheduleSettings() override;

    // Kept on OK.
    QDate fromDate;
    QDate toDate;
    int days = 0;

    Ui_CopyScheduleSettings *ui;

public slots:
    void accept() override;
};

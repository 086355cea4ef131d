#include "engine/copyschedulesettings.h"

#include <QMessageBox>

#include "ui_copyschedulesettings.h"

bool copySpansOverlap(const QDate &from, const QDate &to, int days)
{
    return (from <= to && to <= from.addDays(days - 1)) || (to < from && from <= to.addDays(days - 1));
}

// Proposes the cycle before the displayed one, counted in calendar days.
CopyScheduleSettings::CopyScheduleSettings(const QVector<QDate> &cycleDates, QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_CopyScheduleSettings)
{
    ui->setupUi(this);
    const QDate first = cycleDates.value(0);
    ui->dt_copyTo->setDate(first);
    ui->ed_copyDays->setValue(cycleDates.size());
    ui->dt_copyFrom->setDate(first.addDays(-cycleDates.size()));
}

CopyScheduleSettings::~CopyScheduleSettings()
{
    delete ui;
}

void CopyScheduleSettings::accept()
{
    fromDate = ui->dt_copyFrom->date();
    toDate = ui->dt_copyTo->date();
    days = ui->ed_copyDays->value();
    if (copySpansOverlap(fromDate, toDate, days)) {
        QMessageBox::warning(nullptr, QString(), tr("There has overlapping day between from and to dates"),
                             QMessageBox::Ok);
        return;
    }
    QDialog::accept();
}

#include "engine/clearschedulesettings.h"

#include <QMessageBox>

#include "ui_clearschedulesettings.h"

ClearScheduleSettings::ClearScheduleSettings(const QVector<QDate> &cycleDates, QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_ClearScheduleSettings)
{
    ui->setupUi(this);
    ui->dt_from->setDate(cycleDates.value(0));
    ui->dt_to->setDate(cycleDates.value(cycleDates.size() - 1));
}

ClearScheduleSettings::~ClearScheduleSettings()
{
    delete ui;
}

void ClearScheduleSettings::accept()
{
    fromDate = ui->dt_from->date();
    toDate = ui->dt_to->date();
    if (toDate < fromDate) {
        QMessageBox::warning(nullptr, QString(), tr("To date can't before from date"), QMessageBox::Ok);
        return;
    }
    QDialog::accept();
}

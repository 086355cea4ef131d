#include "engine/rosterasettings.h"

#include "ui_rosterasettings.h"

RosteraSettings::RosteraSettings(const QDate &from, int days, QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_RosteraSettings)
{
    ui->setupUi(this);
    ui->dt_from->setDate(from);
    ui->ed_cycleDays->setValue(days);
}

RosteraSettings::~RosteraSettings()
{
    delete ui;
}

void RosteraSettings::accept()
{
    fromDate = ui->dt_from->date();
    cycleDays = ui->ed_cycleDays->value();
    QDialog::accept();
}

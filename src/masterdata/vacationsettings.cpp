#include "masterdata/vacationsettings.h"

#include "ui_vacationsettings.h"

VacationSettings::VacationSettings(QWidget *parent)
    : RecordEditor(parent, "vacation")
    , ui(new Ui_VacationSettings)
{
    ui->setupUi(this);
    fields = {{"staffids", ui->ed_staffids}, {"date", ui->dt_date}, {"days", ui->ed_days}, {"note", ui->ed_note},
              {"valid", ui->ck_valid}};
    setStaffField(ui->ed_staffids, ui->btn_selStaff, false);
}

VacationSettings::~VacationSettings()
{
    delete ui;
}

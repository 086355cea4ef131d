#include "masterdata/holidaysettings.h"

#include "ui_holidaysettings.h"

HolidaySettings::HolidaySettings(QWidget *parent)
    : RecordEditor(parent, "holiday")
    , ui(new Ui_HolidaySettings)
{
    ui->setupUi(this);
    fields = {{"name", ui->ed_name}, {"date", ui->dt_date}, {"days", ui->ed_days}, {"repeat", ui->ck_repeat},
              {"valid", ui->ck_valid}};
}

HolidaySettings::~HolidaySettings()
{
    delete ui;
}

void HolidaySettings::accept()
{
    if (ui->ed_name->text().isEmpty())
        return refuse(tr("Please input a name."));
    RecordEditor::accept();
}

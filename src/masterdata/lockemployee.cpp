#include "masterdata/lockemployee.h"

#include "ui_lockemployee.h"

LockEmployee::LockEmployee(QWidget *parent)
    : RecordEditor(parent, "lock")
    , ui(new Ui_LockEmployee)
{
    ui->setupUi(this);
    fields = {{"staffids", ui->ed_staffids}, {"date", ui->dt_date}, {"note", ui->ed_note}, {"valid", ui->ck_valid}};
    setStaffField(ui->ed_staffids, ui->btn_selStaff, true);
}

LockEmployee::~LockEmployee()
{
    delete ui;
}

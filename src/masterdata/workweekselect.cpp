#include "masterdata/workweekselect.h"

#include <QMessageBox>

#include "ui_workweekselect.h"

WorkWeekSelect::WorkWeekSelect(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_WorkWeekSelect)
{
    ui->setupUi(this);
    dayBoxes = {ui->ck_1, ui->ck_2, ui->ck_3, ui->ck_4, ui->ck_5, ui->ck_6, ui->ck_7};
}

WorkWeekSelect::~WorkWeekSelect()
{
    delete ui;
}

// "3,,9,x,1" ticks Wednesday and Monday.
void WorkWeekSelect::setSel(const QString &days)
{
    for (const QString &item : days.split(',', Qt::SkipEmptyParts)) {
        const int day = item.trimmed().toInt();
        if (day >= 1 && day <= dayBoxes.size())
            dayBoxes.at(day - 1)->setChecked(true);
    }
}

QString WorkWeekSelect::getSel() const
{
    QStringList days;
    for (int i = 0; i < dayBoxes.size(); ++i) {
        if (dayBoxes.at(i)->isChecked())
            days << QString::number(i + 1);
    }
    return days.join(',');
}

void WorkWeekSelect::accept()
{
    if (getSel().isEmpty()) {
        QMessageBox::information(this, QString(), tr("Please select one day at least."), QMessageBox::Ok);
        return;
    }
    QDialog::accept();
}

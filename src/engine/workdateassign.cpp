#include "engine/workdateassign.h"

#include <QMessageBox>

#include "core/asattribute.h"
#include "ui_workdateassign.h"

// The numbers (from 1) of the ticked boxes, rising, joined by ";".
static QString tickedNumbers(const QList<QCheckBox *> &boxes)
{
    QStringList numbers;
    for (int i = 0; i < boxes.size(); ++i) {
        if (boxes.at(i)->isChecked())
            numbers << QString::number(i + 1);
    }
    return numbers.join(';');
}

// Ticks box n for every item n of the list that names a box; the others stay as they are.
static void tickNumbers(const QList<QCheckBox *> &boxes, const QString &numbers)
{
    for (const QString &item : numbers.split(';')) {
        const int n = item.toInt();
        if (n >= 1 && n <= boxes.size())
            boxes.at(n - 1)->setChecked(true);
    }
}

WorkDateAssign::WorkDateAssign(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_WorkDateAssign)
{
    ui->setupUi(this);
    staffNumBoxes = {ui->ed_num1, ui->ed_num2, ui->ed_num3, ui->ed_num4, ui->ed_num5, ui->ed_num6, ui->ed_num7};
    weekBoxes = {ui->ck_week1, ui->ck_week2, ui->ck_week3, ui->ck_week4, ui->ck_week5};
    dayweekBoxes = {ui->ck_day1, ui->ck_day2, ui->ck_day3, ui->ck_day4, ui->ck_day5, ui->ck_day6, ui->ck_day7};
    ui->dt_start->setDate(QDate::currentDate());
    ui->dt_end->setDate(QDate::currentDate().addYears(5));
}

WorkDateAssign::~WorkDateAssign()
{
    delete ui;
}

void WorkDateAssign::setData(const QString &daystaffnum)
{
    ASAttribute rule;
    if (!rule.setXmlAttrs(daystaffnum)) {
        setStuffNum(daystaffnum);
    } else if (rule.attr("t", 0) == 0) {
        setStuffNum(rule.attr("stn", QString()));
    } else {
        ui->tabWidget->setCurrentIndex(1);
        ui->dt_start->setDate(QDate::fromString(rule.attr("sdt", QString()), "yyyy-MM-dd"));
        ui->dt_end->setDate(QDate::fromString(rule.attr("edt", QString()), "yyyy-MM-dd"));
        setWeek(rule.attr("week", QString()));
        setDayweek(rule.attr("dayweek", QString()));
    }
}

QString WorkDateAssign::getData() const
{
    ASAttribute rule;
    const int tab = ui->tabWidget->currentIndex();
    rule.setAttr("t", tab);
    if (tab == 0) {
        rule.setAttr("stn", getStuffNum());
    } else {
        rule.setAttr("sdt", ui->dt_start->date().toString("yyyy-MM-dd"));
        rule.setAttr("edt", ui->dt_end->date().toString("yyyy-MM-dd"));
        rule.setAttr("week", getWeek());
        rule.setAttr("dayweek", getDayweek());
    }
    return rule.getXmlAttrs("dt");
}

QString WorkDateAssign::getStuffNum() const
{
    QStringList numbers;
    for (const QSpinBox *box : staffNumBoxes)
        numbers << QString::number(box->value());
    return numbers.join(';');
}

// Empty items count here: "2;;3" sets Monday 2, Tuesday 0, Wednesday 3.
void WorkDateAssign::setStuffNum(const QString &numbers)
{
    ui->tabWidget->setCurrentIndex(0);
    const QStringList items = numbers.split(';');
    for (int i = 0; i < items.size() && i < staffNumBoxes.size(); ++i)
        staffNumBoxes.at(i)->setValue(items.at(i).toInt());
}

QString WorkDateAssign::getWeek() const
{
    return tickedNumbers(weekBoxes);
}

void WorkDateAssign::setWeek(const QString &weeks)
{
    tickNumbers(weekBoxes, weeks);
}

QString WorkDateAssign::getDayweek() const
{
    return tickedNumbers(dayweekBoxes);
}

void WorkDateAssign::setDayweek(const QString &days)
{
    tickNumbers(dayweekBoxes, days);
}

void WorkDateAssign::accept()
{
    if (ui->tabWidget->currentIndex() == 1) {
        QString refusal;
        if (ui->dt_end->date() < ui->dt_start->date())
            refusal = tr("End date can't set before start date.");
        else if (getWeek().isEmpty())
            refusal = tr("Please select a week.");
        else if (getDayweek().isEmpty())
            refusal = tr("Please select a day of week.");
        if (!refusal.isEmpty()) {
            QMessageBox::warning(this, QString(), refusal, QMessageBox::Ok);
            return;
        }
    }
    QDialog::accept();
}

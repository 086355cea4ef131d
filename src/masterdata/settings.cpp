#include "masterdata/settings.h"

#include <QListWidget>
#include <QMessageBox>
#include <QSettings>

#include "core/apppaths.h"
#include "masterdata/workweekselect.h"
#include "persistence/databasefunc.h"
#include "ui_settings.h"

Settings::Settings(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_Settings)
{
    ui->setupUi(this);
    setupTables();
    addGroupInfos(getDB()->groups, false);
    addStaffInfos(getDB()->staffs, false);
    permanentSchedules = getDB()->permanentSchedules;
    addPermanentScheduleInfos(permanentSchedules, false);
    refreshHoliday();
    refreshVacation();
    refreshLock();
    // The shifts' times are shown in the form the options ask for.
    loadOptions();
    refreshShift(true);
    updateEmployeeLockSchedule();

    // Connected last, so that filling the lists runs none of these handlers.
    connect(ui->lst_holidays, &QListWidget::itemChanged, this, &Settings::on_holiday_changed);
    connect(ui->lst_vacations, &QListWidget::itemChanged, this, &Settings::on_vacation_changed);
    connect(ui->lst_lock, &QListWidget::itemChanged, this, &Settings::on_lock_changed);
    connect(ui->lst_holidays, &QListWidget::itemDoubleClicked, this, &Settings::on_btn_edit_holiday_clicked);
    connect(ui->lst_vacations, &QListWidget::itemDoubleClicked, this, &Settings::on_btn_edit_vacation_clicked);
    connect(ui->lst_lock, &QListWidget::itemDoubleClicked, this, &Settings::on_btn_edit_lock_clicked);
    connect(ui->ck_use24hour, &QCheckBox::clicked, this, &Settings::updateUse24H);
    connect(ui->ck_employeeLockSchedule, &QCheckBox::clicked, this, &Settings::updateEmployeeLockSchedule);
}

Settings::~Settings()
{
    delete ui;
}

void Settings::selSettings(int tab)
{
    ui->tabWidget->setCurrentIndex(tab);
}

void Settings::loadOptions()
{
    QSettings settings(getAppDataPath(0), QSettings::IniFormat);
    settings.beginGroup("Options");
    const int showFrom = settings.value("show from week", 0).toInt();
    ui->ck_showFrom->setChecked(showFrom >= 0);
    if (showFrom >= 0)
        ui->cmb_showFrom->setCurrentIndex(showFrom % 7);
    ui->ed_cycleDays->setValue(settings.value("cycle days", 7).toInt());
    ui->ck_use24hour->setChecked(settings.value("use 24h", false).toBool());
    // A value written by hand without quotes comes back as a list; join it to the same text.
    ui->btn_workWeek->setText(settings.value("work week", "1,2,3,4,5,6,7").toStringList().join(","));
    ui->ck_employeeLockSchedule->setChecked(settings.value("employee lock schedule", false).toBool());
    ui->cmb_showFrom->setEnabled(ui->ck_showFrom->isChecked());
}

void Settings::saveOptions()
{
    QSettings settings(getAppDataPath(0), QSettings::IniFormat);
    settings.beginGroup("Options");
    settings.setValue("cycle days", ui->ed_cycleDays->value());
    settings.setValue("show from week", ui->ck_showFrom->isChecked() ? ui->cmb_showFrom->currentIndex() : -1);
    settings.setValue("use 24h", ui->ck_use24hour->isChecked());
    settings.setValue("work week", ui->btn_workWeek->text());
    settings.setValue("employee lock schedule", ui->ck_employeeLockSchedule->isChecked());
}

void Settings::on_ck_showFrom_clicked()
{
    ui->cmb_showFrom->setEnabled(ui->ck_showFrom->isChecked());
}

void Settings::on_btn_workWeek_clicked()
{
    WorkWeekSelect picker(this);
    picker.setSel(ui->btn_workWeek->text());
    if (picker.exec() == QDialog::Accepted)
        ui->btn_workWeek->setText(picker.getSel());
}

// The shifts are read again, not converted: unsaved rows of the shifts tab are dropped.
void Settings::updateUse24H()
{
    refreshShift(false);
}

// With this option shifts are customers to which employees are tied.
void Settings::updateEmployeeLockSchedule()
{
    const bool customers = ui->ck_employeeLockSchedule->isChecked();
    ui->tabWidget->setTabText(ui->tabWidget->indexOf(ui->tabShift), customers ? tr("Customers") : tr("Shifts"));
    ui->shiftTable->horizontalHeaderItem(1)->setText(customers ? tr("Cust ID") : tr("Abbreviation"));
    ui->permanentScheduleTable->horizontalHeaderItem(1)->setText(customers ? tr("Customer") : tr("Shift"));
    ui->permanentScheduleTable->setColumnHidden(2, !customers);
}

QString Settings::noneText()
{
    return tr("<None>");
}

void Settings::warn(const QString &text)
{
    QMessageBox::warning(this, QString(), text, QMessageBox::Ok);
}

QString Settings::getDateAssignDesc(const QString &daystaffnum)
{
    ASAttribute rule;
    if (!rule.setXmlAttrs(daystaffnum))
        return daystaffnum;
    if (rule.attr("t", 0) == 0)
        return rule.attr("stn", QString());
    const QString start = rule.attr("sdt", QString());
    const QString end = rule.attr("edt", QString());
    QString text = start == end ? QString("Date:%1").arg(start) : QString("From:%1 To:%2").arg(start, end);
    return text + QString(" Week:%1").arg(rule.attr("week", QString()))
           + QString(" Day of week:%1").arg(rule.attr("dayweek", QString()));
}

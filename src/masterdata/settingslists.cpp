#include "masterdata/settings.h"

#include <QListWidget>

#include "masterdata/holidaysettings.h"
#include "masterdata/lockemployee.h"
#include "masterdata/vacationsettings.h"
#include "persistence/databasefunc.h"
#include "ui_settings.h"

// The three lists work alike: element i of the working vector belongs to row i of the list,
// and every change waits for the list's Save.

using UpdateItem = void (Settings::*)(QListWidgetItem *, ASAttribute &);
using AddInfos = void (Settings::*)(QVector<ASAttribute> &, bool);

// The item is filled before it joins the list, so filling never runs the tick handlers.
static void addItems(Settings *dialog, QListWidget *list, QVector<ASAttribute> &records, bool append,
                     UpdateItem update)
{
    if (!append)
        list->clear();
    for (ASAttribute &record : records) {
        auto *item = new QListWidgetItem;
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        (dialog->*update)(item, record);
        // The record keeps what the item shows: an imported one without "valid" is in force.
        record.setAttr("valid", item->checkState() == Qt::Checked ? 1 : 0);
        list->addItem(item);
    }
}

static void fillItem(QListWidgetItem *item, const QString &date, const QString &label, const ASAttribute &record)
{
    // The state goes first: setting the text of a listed item runs the tick handler, which
    // writes the item's state back into this very record.
    item->setCheckState(record.attr("valid", 1) != 0 ? Qt::Checked : Qt::Unchecked);
    item->setText(QString("%1 %2").arg(date, label));
}

static void setValid(QListWidget *list, QVector<ASAttribute> &records, QListWidgetItem *item)
{
    const int row = list->row(item);
    if (row >= 0 && row < records.size())
        records[row].setAttr("valid", item->checkState() == Qt::Checked ? 1 : 0);
}

// Opens the editor on the record and fills the record from it if it is accepted.
template <typename Editor>
static bool editRecord(Settings *dialog, ASAttribute &record)
{
    Editor editor(dialog);
    editor.setData(record);
    if (editor.exec() != QDialog::Accepted)
        return false;
    editor.getData(record);
    return true;
}

// The record joins the vector before its item joins the list, so that the item's row always
// has an element.
template <typename Editor>
static void addRecord(Settings *dialog, QVector<ASAttribute> &records, AddInfos add)
{
    ASAttribute record;
    if (!editRecord<Editor>(dialog, record))
        return;
    records.append(record);
    QVector<ASAttribute> added{record};
    (dialog->*add)(added, true);
}

template <typename Editor>
static void editCurrent(Settings *dialog, QListWidget *list, QVector<ASAttribute> &records, UpdateItem update)
{
    const int row = list->currentRow();
    if (row < 0 || row >= records.size())
        return;
    if (editRecord<Editor>(dialog, records[row]))
        (dialog->*update)(list->item(row), records[row]);
}

static void removeSelected(QListWidget *list, QVector<ASAttribute> &records)
{
    for (QListWidgetItem *item : list->selectedItems()) {
        const int row = list->row(item);
        delete list->takeItem(row);
        if (row < records.size())
            records.remove(row);
    }
}

static void reportSave(Settings *dialog, bool saved)
{
    if (!saved)
        dialog->warn(Settings::tr("Save failed!"));
}

void Settings::addHolidayInfos(QVector<ASAttribute> &list, bool append)
{
    addItems(this, ui->lst_holidays, list, append, &Settings::updateHolidayItem);
}

void Settings::addVacationInfos(QVector<ASAttribute> &list, bool append)
{
    addItems(this, ui->lst_vacations, list, append, &Settings::updateVacationItem);
}

void Settings::addLockInfos(QVector<ASAttribute> &list, bool append)
{
    addItems(this, ui->lst_lock, list, append, &Settings::updateLockItem);
}

// A holiday that comes back every year shows only month and day.
void Settings::updateHolidayItem(QListWidgetItem *item, ASAttribute &record)
{
    QString date = record.attr("date", QString());
    if (record.attr("repeat", 1) != 0)
        date = date.right(5);
    fillItem(item, date, record.attr("name", QString()), record);
}

void Settings::updateVacationItem(QListWidgetItem *item, ASAttribute &record)
{
    fillItem(item, record.attr("date", QString()), record.attr("staffids", QString()), record);
}

void Settings::updateLockItem(QListWidgetItem *item, ASAttribute &record)
{
    fillItem(item, record.attr("date", QString()), record.attr("staffids", QString()), record);
}

// A failed read leaves the list and its vector empty, without a word.
void Settings::refreshHoliday()
{
    QVector<ASAttribute> records;
    if (!getDB()->holidayInfo(records))
        return;
    holidayInfos = records;
    addHolidayInfos(holidayInfos, false);
}

void Settings::refreshVacation()
{
    QVector<ASAttribute> records;
    if (!getDB()->vacationInfo(records))
        return;
    vacationInfos = records;
    addVacationInfos(vacationInfos, false);
}

void Settings::refreshLock()
{
    QVector<ASAttribute> records;
    if (!getDB()->lockEmployeeInfo(records))
        return;
    lockInfos = records;
    addLockInfos(lockInfos, false);
}

void Settings::on_holiday_changed(QListWidgetItem *item)
{
    setValid(ui->lst_holidays, holidayInfos, item);
}

void Settings::on_vacation_changed(QListWidgetItem *item)
{
    setValid(ui->lst_vacations, vacationInfos, item);
}

void Settings::on_lock_changed(QListWidgetItem *item)
{
    setValid(ui->lst_lock, lockInfos, item);
}

void Settings::on_btn_add_holiday_clicked()
{
    addRecord<HolidaySettings>(this, holidayInfos, &Settings::addHolidayInfos);
}

void Settings::on_btn_remove_holiday_clicked()
{
    removeSelected(ui->lst_holidays, holidayInfos);
}

void Settings::on_btn_edit_holiday_clicked()
{
    editCurrent<HolidaySettings>(this, ui->lst_holidays, holidayInfos, &Settings::updateHolidayItem);
}

void Settings::on_btn_save_holiday_clicked()
{
    reportSave(this, getDB()->saveHolidayInfo(holidayInfos));
}

void Settings::on_btn_add_vacation_clicked()
{
    addRecord<VacationSettings>(this, vacationInfos, &Settings::addVacationInfos);
}

void Settings::on_btn_remove_vacation_clicked()
{
    removeSelected(ui->lst_vacations, vacationInfos);
}

void Settings::on_btn_edit_vacation_clicked()
{
    editCurrent<VacationSettings>(this, ui->lst_vacations, vacationInfos, &Settings::updateVacationItem);
}

void Settings::on_btn_save_vacation_clicked()
{
    reportSave(this, getDB()->saveVacationInfo(vacationInfos));
}

void Settings::on_btn_add_lock_clicked()
{
    addRecord<LockEmployee>(this, lockInfos, &Settings::addLockInfos);
}

void Settings::on_btn_remove_lock_clicked()
{
    removeSelected(ui->lst_lock, lockInfos);
}

void Settings::on_btn_edit_lock_clicked()
{
    editCurrent<LockEmployee>(this, ui->lst_lock, lockInfos, &Settings::updateLockItem);
}

void Settings::on_btn_save_lock_clicked()
{
    reportSave(this, getDB()->saveLockEmployeeInfo(lockInfos));
}

#include "masterdata/settings.h"

#include <QFileDialog>

#include "core/apppaths.h"
#include "core/csvfile.h"
#include "ui_settings.h"

// Every tab writes its rows to a CSV file and reads such a file back. An import replaces what
// the tab shows and waits, like any other change, for the tab's Save.

namespace {

// The columns of each kind of file, in file order.
const QStringList kGroupFields{"name", "abbreviation", "note"};
const QStringList kStaffFields{"fname", "lname", "id", "groupname", "phonenum", "note"};
const QStringList kShiftFields{"name", "abbreviation", "starttm", "endtm"};
const QStringList kPermanentFields{"groupname", "shiftname", "daystaffnum"};
const QStringList kHolidayFields{"name", "date", "days", "repeat", "valid"};
const QStringList kVacationFields{"staffids", "date", "days", "valid", "note"};
const QStringList kLockFields{"staffids", "date", "valid", "note"};

// Asks for a file and writes the records to it; the path is taken as it comes back.
void exportRecords(Settings *parent, QVector<ASAttribute> records, QStringList fields)
{
    const QString path =
        QFileDialog::getSaveFileName(parent, Settings::tr("Export"), getAppDataPath(2),
                                     Settings::tr("CSV File(*.csv)"));
    if (!path.isEmpty() && !infoExport(records, fields, path))
        parent->warn(Settings::tr("Export failed!"));
}

// Asks for a file and reads it. False, and the tab is left as it is, when nothing was chosen,
// the file cannot be read or it holds no record.
bool importRecords(Settings *parent, QStringList fields, QVector<ASAttribute> &records)
{
    const QString path =
        QFileDialog::getOpenFileName(parent, Settings::tr("Import"), getAppDataPath(2),
                                     Settings::tr("CSV File(*.csv)"));
    if (path.isEmpty())
        return false;
    if (!infoImport(records, fields, path)) {
        parent->warn(Settings::tr("Import failed!"));
        return false;
    }
    if (records.isEmpty()) {
        parent->warn(Settings::tr("The content is empty!"));
        return false;
    }
    return true;
}

} // namespace

void Settings::on_btn_groupExport_clicked()
{
    QVector<ASAttribute> records;
    groupInfo(records);
    exportRecords(this, records, kGroupFields);
}

void Settings::on_btn_groupImport_clicked()
{
    QVector<ASAttribute> records;
    if (importRecords(this, kGroupFields, records))
        addGroupInfos(records, false);
}

void Settings::on_btn_staffExport_clicked()
{
    QVector<ASAttribute> records;
    staffInfo(records);
    exportRecords(this, records, kStaffFields);
}

void Settings::on_btn_staffImport_clicked()
{
    QVector<ASAttribute> records;
    if (importRecords(this, kStaffFields, records))
        addStaffInfos(records, false);
}

void Settings::on_btn_shiftExport_clicked()
{
    QVector<ASAttribute> records;
    shiftInfo(records);
    exportRecords(this, records, kShiftFields);
}

void Settings::on_btn_shiftImport_clicked()
{
    QVector<ASAttribute> records;
    if (importRecords(this, kShiftFields, records))
        addShiftInfos(records, false);
}

// The working vector is brought up to date (and sorted) but the table is not refilled, so
// until the next Save the rows may pair with other elements' rules.
void Settings::on_btn_permanentScheduleExport_clicked()
{
    permanentScheduleInfo(permanentSchedules);
    exportRecords(this, permanentSchedules, kPermanentFields);
}

// Only the table takes the file's lines: the working vector keeps the old rules by index, and
// Save stores as many rows as it has.
void Settings::on_btn_permanentScheduleImport_clicked()
{
    QVector<ASAttribute> records;
    if (importRecords(this, kPermanentFields, records))
        addPermanentScheduleInfos(records, false);
}

void Settings::on_btn_export_holiday_clicked()
{
    exportRecords(this, holidayInfos, kHolidayFields);
}

void Settings::on_btn_import_holiday_clicked()
{
    QVector<ASAttribute> records;
    if (!importRecords(this, kHolidayFields, records))
        return;
    holidayInfos = records;
    addHolidayInfos(holidayInfos, false);
}

void Settings::on_btn_export_vacation_clicked()
{
    exportRecords(this, vacationInfos, kVacationFields);
}

void Settings::on_btn_import_vacation_clicked()
{
    QVector<ASAttribute> records;
    if (!importRecords(this, kVacationFields, records))
        return;
    vacationInfos = records;
    addVacationInfos(vacationInfos, false);
}

void Settings::on_btn_export_lock_clicked()
{
    exportRecords(this, lockInfos, kLockFields);
}

void Settings::on_btn_import_lock_clicked()
{
    QVector<ASAttribute> records;
    if (!importRecords(this, kLockFields, records))
        return;
    lockInfos = records;
    addLockInfos(lockInfos, false);
}

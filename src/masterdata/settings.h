#pragma once

#include <QDialog>
#include <QVector>

#include "core/asattribute.h"

class QListWidgetItem;
class TableDelegate;
class Ui_Settings;

// The one dialog in which the master data is kept. It works on copies: each tab's Save writes
// that tab's table, replaced whole; the options are written when the dialog closes.
// The members are defined by concern:
//   settings.cpp          frame, options, the standing rule's description
//   settingstables.cpp    groups, employees, shifts and standing rows (tables)
//   settingslists.cpp     holidays, vacations and locks (lists)
//   settingsexchange.cpp  CSV import and export of every tab
class Settings : public QDialog
{
    Q_OBJECT
public:
    explicit Settings(QWidget *parent = nullptr);
    ~Settings() override;

    Ui_Settings *ui;
    TableDelegate *delegate = nullptr;

    // Working copies; element i belongs to row i of its table or list.
    QVector<ASAttribute> permanentSchedules;
    QVector<ASAttribute> holidayInfos;
    QVector<ASAttribute> vacationInfos;
    QVector<ASAttribute> lockInfos;

    void selSettings(int tab);
    void loadOptions();
    void saveOptions();
    static QString getDateAssignDesc(const QString &daystaffnum);
    // The translated "<None>" that stands for an empty group or employee in the tables.
    static QString noneText();
    // A warning box with an empty title and an OK button, as every tab reports a refusal.
    void warn(const QString &text);

    // --- tables ---
    // Records of the table's rows (stored values: "" for "<None>", times "hh:mm"), sorted.
    bool groupInfo(QVector<ASAttribute> &out);
    bool staffInfo(QVector<ASAttribute> &out);
    bool shiftInfo(QVector<ASAttribute> &out);
    // Writes the cells of the standing rows into the first elements of out (never past
    // either end); sorted unless the option "employee lock schedule" is on.
    bool permanentScheduleInfo(QVector<ASAttribute> &out);
    void addGroupInfos(QVector<ASAttribute> &list, bool append);
    void addStaffInfos(QVector<ASAttribute> &list, bool append);
    void addShiftInfos(QVector<ASAttribute> &list, bool append);
    void addPermanentScheduleInfos(QVector<ASAttribute> &list, bool append);
    // cached: the database's cached list, else a fresh read (a failed read leaves the table).
    void refreshGroup(bool cached);
    void refreshStaff(bool cached);
    void refreshShift(bool cached);
    // Sets up the four tables' columns, headers and delegate.
    void setupTables();
    // Opens the rule editor for a standing row and stores an accepted value in the working copy.
    void editRule(int row);

    // --- lists ---
    void addHolidayInfos(QVector<ASAttribute> &list, bool append);
    void addVacationInfos(QVector<ASAttribute> &list, bool append);
    void addLockInfos(QVector<ASAttribute> &list, bool append);
    void updateHolidayItem(QListWidgetItem *item, ASAttribute &record);
    void updateVacationItem(QListWidgetItem *item, ASAttribute &record);
    void updateLockItem(QListWidgetItem *item, ASAttribute &record);
    void refreshHoliday();
    void refreshVacation();
    void refreshLock();
    // A tick sets the record's "valid" (connected after loading, not by name).
    void on_holiday_changed(QListWidgetItem *item);
    void on_vacation_changed(QListWidgetItem *item);
    void on_lock_changed(QListWidgetItem *item);

public slots:
    // frame and options
    void on_ck_showFrom_clicked();
    void on_btn_workWeek_clicked();
    void updateUse24H();
    void updateEmployeeLockSchedule();

    // tables
    void on_btn_groupAdd_clicked();
    void on_btn_groupDelete_clicked();
    void on_btn_groupSave_clicked();
    void on_btn_staffAdd_clicked();
    void on_btn_staffDelete_clicked();
    void on_btn_staffSave_clicked();
    void on_btn_shiftAdd_clicked();
    void on_btn_shiftDelete_clicked();
    void on_btn_shiftSave_clicked();
    void on_btn_permanentScheduleAdd_clicked();
    void on_btn_permanentScheduleDelete_clicked();
    void on_btn_permanentScheduleSave_clicked();

    // lists
    void on_btn_add_holiday_clicked();
    void on_btn_remove_holiday_clicked();
    void on_btn_edit_holiday_clicked();
    void on_btn_save_holiday_clicked();
    void on_btn_add_vacation_clicked();
    void on_btn_remove_vacation_clicked();
    void on_btn_edit_vacation_clicked();
    void on_btn_save_vacation_clicked();
    void on_btn_add_lock_clicked();
    void on_btn_remove_lock_clicked();
    void on_btn_edit_lock_clicked();
    void on_btn_save_lock_clicked();

    // import and export
    void on_btn_groupExport_clicked();
    void on_btn_groupImport_clicked();
    void on_btn_staffExport_clicked();
    void on_btn_staffImport_clicked();
    void on_btn_shiftExport_clicked();
    void on_btn_shiftImport_clicked();
    void on_btn_permanentScheduleExport_clicked();
    void on_btn_permanentScheduleImport_clicked();
    void on_btn_export_holiday_clicked();
    void on_btn_import_holiday_clicked();
    void on_btn_export_vacation_clicked();
    void on_btn_import_vacation_clicked();
    void on_btn_export_lock_clicked();
    void on_btn_import_lock_clicked();
};

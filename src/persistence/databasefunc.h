#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QVector>

#include "core/asattribute.h"

// The single owner of the database connection: schema, reads and writes of the nine
// tables, and the cached master data that the rest of the program reads directly.
class DatabaseFunc
{
public:
    QVector<ASAttribute> groups;
    QVector<ASAttribute> staffs;
    QVector<ASAttribute> shifts;
    QVector<ASAttribute> permanentSchedules;
    QSqlDatabase db;

    bool openDB(QString name);
    void closeDB();
    bool isOpen() const;
    QString getDBName() const;
    QString getVersion();
    bool isExistTable(QString name);
    void updateDB();

    bool groupInfo(QVector<ASAttribute> &out);
    bool shiftInfo(QVector<ASAttribute> &out);
    bool staffInfo(QVector<ASAttribute> &out, QString filter);
    bool staffInfo(QVector<ASAttribute> &out);
    bool permanentSchedule(QVector<ASAttribute> &out, QString filter);
    bool permanentSchedule(QVector<ASAttribute> &out);
    bool holidayInfo(QVector<ASAttribute> &out, QString filter);
    bool holidayInfo(QVector<ASAttribute> &out);
    bool vacationInfo(QVector<ASAttribute> &out, QString filter);
    bool vacationInfo(QVector<ASAttribute> &out);
    bool lockEmployeeInfo(QVector<ASAttribute> &out, QString filter);
    bool lockEmployeeInfo(QVector<ASAttribute> &out);
    bool schedule(QVector<ASAttribute> &out, QString filter);

    bool saveGroupInfo(QVector<ASAttribute> &list, QString &error);
    bool saveStaffInfo(QVector<ASAttribute> &list);
    bool saveShiftInfo(QVector<ASAttribute> &list);
    bool savePermanentSchedule(QVector<ASAttribute> &list);
    bool saveHolidayInfo(QVector<ASAttribute> &list);
    bool saveVacationInfo(QVector<ASAttribute> &list);
    bool saveLockEmployeeInfo(QVector<ASAttribute> &list);
    bool saveSchedule(QVector<ASAttribute> &list);
    bool updateSchedule(QVector<ASAttribute> &list);
    bool deleteSchedule(QString filter);

    static QString getValidStr(QString s);

    // The schema version that this program writes and knows.
    static constexpr const char *kCurrentVersion = "1.01";
    // Whether the open file is locked by another connection.
    bool isBusy();

private:
    // Fills a table just created from its template file, if it has one.
    void seedTable(const QString &table);
    // Moves a file of version "1.00" to the four-column t_permanentschedule.
    void upgradeSchema();
};

extern DatabaseFunc g_DB;
DatabaseFunc *getDB();

// The library has no widgets: the few warnings that opening a file can raise go through
// this hook. The GUI installs one that shows a warning box; the default writes to qWarning.
using WarningHandler = void (*)(const QString &text);
void setWarningHandler(WarningHandler handler);
void showWarning(const QString &text);

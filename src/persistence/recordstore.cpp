#include "persistence/databasefunc.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <initializer_list>

namespace {

enum class Kind { Text, Int, Bool };

struct Column
{
    const char *key;
    Kind kind;
};

QString withFilter(const QString &select, const QString &filter)
{
    return filter.isEmpty() ? select : select + " where " + filter;
}

// Appends one record per row; columns go by position, and a column that an older table
// lacks reads as an empty text.
bool readTable(QSqlDatabase &db, const QString &sql, const char *infotype, std::initializer_list<Column> columns,
               QVector<ASAttribute> &out)
{
    QSqlQuery query(db);
    // Each row is read once: the driver need not keep the rows already read.
    query.setForwardOnly(true);
    if (!query.exec(sql))
        return false;
    const int available = query.record().count();
    const QString type = infotype;
    QStringList keys;
    for (const Column &column : columns)
        keys << column.key;
    while (query.next()) {
        ASAttribute record;
        record.setAttr("infotype", type);
        int position = 0;
        for (const Column &column : columns) {
            const QString &key = keys.at(position);
            if (position >= available)
                record.setAttr(key, QString());
            else if (column.kind == Kind::Int)
                record.setAttr(key, query.value(position).toInt());
            else if (column.kind == Kind::Bool)
                record.setAttr(key, int(query.value(position).toBool()));
            else
                record.setAttr(key, query.value(position).toString());
            ++position;
        }
        out.append(record);
    }
    return true;
}

// All statements or none: the first failure rolls back and leaves the driver's text in error.
bool runBatch(QSqlDatabase &db, const QStringList &statements, QString *error = nullptr)
{
    db.transaction();
    QSqlQuery query(db);
    for (const QString &sql : statements) {
        if (!query.exec(sql)) {
            if (error)
                *error = query.lastError().text();
            query.finish();
            db.rollback();
            return false;
        }
    }
    db.commit();
    return true;
}

QString text(const ASAttribute &record, const char *key)
{
    return record.attr(key, QString());
}

QString escaped(const ASAttribute &record, const char *key)
{
    return DatabaseFunc::getValidStr(text(record, key));
}

} // namespace

bool DatabaseFunc::groupInfo(QVector<ASAttribute> &out)
{
    if (!readTable(db, "SELECT * FROM t_groupinfo", "group",
                   {{"name", Kind::Text}, {"abbreviation", Kind::Text}, {"note", Kind::Text}}, out))
        return false;
    groups = out;
    return true;
}

bool DatabaseFunc::shiftInfo(QVector<ASAttribute> &out)
{
    if (!readTable(db, "SELECT * FROM t_shiftinfo", "shift",
                   {{"name", Kind::Text}, {"abbreviation", Kind::Text}, {"starttm", Kind::Text}, {"endtm", Kind::Text}}, out))
        return false;
    shifts = out;
    return true;
}

bool DatabaseFunc::staffInfo(QVector<ASAttribute> &out, QString filter)
{
    return readTable(db, withFilter("SELECT * FROM t_staffinfo", filter), "staff",
                     {{"id", Kind::Text}, {"fname", Kind::Text}, {"lname", Kind::Text}, {"groupname", Kind::Text},
                      {"phonenum", Kind::Text}, {"note", Kind::Text}},
                     out);
}

bool DatabaseFunc::staffInfo(QVector<ASAttribute> &out)
{
    if (!staffInfo(out, QString()))
        return false;
    staffs = out;
    return true;
}

bool DatabaseFunc::permanentSchedule(QVector<ASAttribute> &out, QString filter)
{
    return readTable(db, withFilter("SELECT * FROM t_permanentschedule", filter), "permanentschedule",
                     {{"groupname", Kind::Text}, {"shiftname", Kind::Text}, {"daystaffnum", Kind::Text},
                      {"employee_name", Kind::Text}},
                     out);
}

bool DatabaseFunc::permanentSchedule(QVector<ASAttribute> &out)
{
    if (!permanentSchedule(out, QString()))
        return false;
    permanentSchedules = out;
    return true;
}

bool DatabaseFunc::holidayInfo(QVector<ASAttribute> &out, QString filter)
{
    return readTable(db, withFilter("SELECT * FROM t_holidayinfo", filter), "holiday",
                     {{"name", Kind::Text}, {"date", Kind::Text}, {"days", Kind::Int}, {"valid", Kind::Bool},
                      {"repeat", Kind::Bool}},
                     out);
}

bool DatabaseFunc::holidayInfo(QVector<ASAttribute> &out)
{
    return holidayInfo(out, QString());
}

bool DatabaseFunc::vacationInfo(QVector<ASAttribute> &out, QString filter)
{
    return readTable(db, withFilter("SELECT * FROM t_vacationinfo", filter), "vacation",
                     {{"staffids", Kind::Text}, {"date", Kind::Text}, {"days", Kind::Int}, {"note", Kind::Text},
                      {"valid", Kind::Bool}},
                     out);
}

bool DatabaseFunc::vacationInfo(QVector<ASAttribute> &out)
{
    return vacationInfo(out, QString());
}

bool DatabaseFunc::lockEmployeeInfo(QVector<ASAttribute> &out, QString filter)
{
    return readTable(db, withFilter("SELECT * FROM t_lock_employee", filter), "lock",
                     {{"staffids", Kind::Text}, {"date", Kind::Text}, {"shiftname", Kind::Text}, {"note", Kind::Text},
                      {"valid", Kind::Bool}},
                     out);
}

bool DatabaseFunc::lockEmployeeInfo(QVector<ASAttribute> &out)
{
    return lockEmployeeInfo(out, QString());
}

bool DatabaseFunc::schedule(QVector<ASAttribute> &out, QString filter)
{
    // No form without a filter: an empty one is a syntax error and the read fails.
    return readTable(db, QString("SELECT * FROM t_schedule where %1").arg(filter), "schedule",
                     {{"date", Kind::Text}, {"groupname", Kind::Text}, {"shiftname", Kind::Text}, {"staffs", Kind::Text}},
                     out);
}

// The whole-table saves replace the table with the list. Only notes, holiday names and
// employee lists are escaped: an apostrophe in any other field fails the insert, and the
// rollback keeps the old table.

bool DatabaseFunc::saveGroupInfo(QVector<ASAttribute> &list, QString &error)
{
    QStringList statements{"delete from t_groupinfo"};
    for (const ASAttribute &r : list)
        statements << QString("INSERT INTO t_groupinfo (name,abbreviation,note) VALUES ('%1','%2','%3')")
                          .arg(text(r, "name"))
                          .arg(text(r, "abbreviation"))
                          .arg(text(r, "note"));
    if (!runBatch(db, statements, &error))
        return false;
    groups = list;
    return true;
}

bool DatabaseFunc::saveStaffInfo(QVector<ASAttribute> &list)
{
    QStringList statements{"delete from t_staffinfo"};
    for (const ASAttribute &r : list)
        statements << QString("INSERT INTO t_staffinfo (id,fname,lname,groupname,phonenum,note) VALUES ('%1','%2','%3','%4','%5','%6')")
                          .arg(text(r, "id"))
                          .arg(text(r, "fname"))
                          .arg(text(r, "lname"))
                          .arg(text(r, "groupname"))
                          .arg(text(r, "phonenum"))
                          .arg(escaped(r, "note"));
    if (!runBatch(db, statements))
        return false;
    staffs = list;
    return true;
}

bool DatabaseFunc::saveShiftInfo(QVector<ASAttribute> &list)
{
    QStringList statements{"delete from t_shiftinfo"};
    for (const ASAttribute &r : list)
        statements << QString("INSERT INTO t_shiftinfo (name,abbreviation,starttm,endtm) VALUES ('%1','%2','%3','%4')")
                          .arg(text(r, "name"))
                          .arg(text(r, "abbreviation"))
                          .arg(text(r, "starttm"))
                          .arg(text(r, "endtm"));
    if (!runBatch(db, statements))
        return false;
    shifts = list;
    return true;
}

bool DatabaseFunc::savePermanentSchedule(QVector<ASAttribute> &list)
{
    QStringList statements{"delete from t_permanentschedule"};
    for (const ASAttribute &r : list)
        statements << QString("INSERT INTO t_permanentschedule (groupname,shiftname,daystaffnum,employee_name) VALUES ('%1','%2','%3','%4')")
                          .arg(text(r, "groupname"))
                          .arg(text(r, "shiftname"))
                          .arg(text(r, "daystaffnum"))
                          .arg(text(r, "employee_name"));
    if (!runBatch(db, statements))
        return false;
    permanentSchedules = list;
    return true;
}

bool DatabaseFunc::saveHolidayInfo(QVector<ASAttribute> &list)
{
    QStringList statements{"delete from t_holidayinfo"};
    for (const ASAttribute &r : list)
        statements << QString("INSERT INTO t_holidayinfo (name,date,days,repeat,valid) VALUES ('%1','%2',%3,%4,%5)")
                          .arg(escaped(r, "name"))
                          .arg(text(r, "date"))
                          .arg(r.attr("days", 1))
                          .arg(r.attr("repeat", 1))
                          .arg(r.attr("valid", 0));
    return runBatch(db, statements);
}

bool DatabaseFunc::saveVacationInfo(QVector<ASAttribute> &list)
{
    QStringList statements{"delete from t_vacationinfo"};
    for (const ASAttribute &r : list)
        statements << QString("INSERT INTO t_vacationinfo (staffids,date,days,note,valid) VALUES ('%1','%2',%3,'%4',%5)")
                          .arg(escaped(r, "staffids"))
                          .arg(text(r, "date"))
                          .arg(r.attr("days", 1))
                          .arg(escaped(r, "note"))
                          .arg(r.attr("valid", 0));
    return runBatch(db, statements);
}

bool DatabaseFunc::saveLockEmployeeInfo(QVector<ASAttribute> &list)
{
    // A lock is by employee and date: the shift column is always written empty.
    QStringList statements{"delete from t_lock_employee"};
    for (const ASAttribute &r : list)
        statements << QString("INSERT INTO t_lock_employee (staffids,date,shiftname,note,valid) VALUES ('%1','%2','','%3',%4)")
                          .arg(escaped(r, "staffids"))
                          .arg(text(r, "date"))
                          .arg(escaped(r, "note"))
                          .arg(r.attr("valid", 0));
    return runBatch(db, statements);
}

bool DatabaseFunc::saveSchedule(QVector<ASAttribute> &list)
{
    // Inserts only: a cell that already has a row fails the whole batch.
    QStringList statements;
    for (const ASAttribute &r : list)
        statements << QString("INSERT INTO t_schedule (date,groupname,shiftname,staffs) VALUES ('%1','%2','%3','%4')")
                          .arg(text(r, "date"))
                          .arg(text(r, "groupname"))
                          .arg(text(r, "shiftname"))
                          .arg(text(r, "staffs"));
    return runBatch(db, statements);
}

bool DatabaseFunc::updateSchedule(QVector<ASAttribute> &list)
{
    // A cell with nobody left loses its row; an update never creates one.
    QStringList statements;
    for (const ASAttribute &r : list) {
        const QString staffs = text(r, "staffs");
        if (staffs.isEmpty())
            statements << QString("delete from t_schedule where date='%1' and groupname='%2' and shiftname='%3'")
                              .arg(text(r, "date"))
                              .arg(text(r, "groupname"))
                              .arg(text(r, "shiftname"));
        else
            statements << QString("UPDATE t_schedule set staffs='%1' where date='%2' and groupname='%3' and shiftname='%4'")
                              .arg(staffs)
                              .arg(text(r, "date"))
                              .arg(text(r, "groupname"))
                              .arg(text(r, "shiftname"));
    }
    return runBatch(db, statements);
}

bool DatabaseFunc::deleteSchedule(QString filter)
{
    QSqlQuery query(db);
    return query.exec(QString("delete FROM t_schedule where %1").arg(filter));
}

QString DatabaseFunc::getValidStr(QString s)
{
    return s.replace("'", "''");
}

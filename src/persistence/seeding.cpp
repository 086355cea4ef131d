#include "persistence/databasefunc.h"

#include <QFile>
#include <QObject>
#include <QSqlQuery>

#include "core/apppaths.h"
#include "core/csvfile.h"

namespace {

struct TableTemplate
{
    const char *table;
    const char *file;
    const char *keys; // the columns that infoImport takes, joined by ","
    bool (*save)(DatabaseFunc &db, QVector<ASAttribute> &records);
};

const TableTemplate kTemplates[] = {
    {"t_groupinfo", "groups_template.csv", "name,abbreviation,note",
     [](DatabaseFunc &db, QVector<ASAttribute> &records) {
         QString error;
         return db.saveGroupInfo(records, error);
     }},
    {"t_staffinfo", "employees_template.csv", "fname,lname,id,groupname,phonenum,note",
     [](DatabaseFunc &db, QVector<ASAttribute> &records) { return db.saveStaffInfo(records); }},
    {"t_shiftinfo", "shifts_template.csv", "name,abbreviation,starttm,endtm",
     [](DatabaseFunc &db, QVector<ASAttribute> &records) { return db.saveShiftInfo(records); }},
    {"t_permanentschedule", "permanentschedules_template.csv", "groupname,shiftname,daystaffnum",
     [](DatabaseFunc &db, QVector<ASAttribute> &records) { return db.savePermanentSchedule(records); }},
    {"t_holidayinfo", "holidays_template.csv", "name,date,days,repeat,valid",
     [](DatabaseFunc &db, QVector<ASAttribute> &records) { return db.saveHolidayInfo(records); }},
};

} // namespace

void DatabaseFunc::seedTable(const QString &table)
{
    for (const TableTemplate &t : kTemplates) {
        if (table != t.table)
            continue;
        const QString file = t.file;
        const QString source = getAppPath() + "/datas/" + file;
        // A missing or unreadable template leaves the new table empty, without a word.
        QVector<ASAttribute> records;
        QStringList keys = QString(t.keys).split(',');
        infoImport(records, keys, source);
        t.save(*this, records);
        // The copy is the start of the import dialog; an existing one is kept.
        QFile::copy(source, getAppDataPath(2) + "/" + file);
    }
}

void DatabaseFunc::upgradeSchema()
{
    // Columns are read by position, so the old three-column rows come back with an
    // empty employee_name.
    QVector<ASAttribute> rows;
    QSqlQuery query(db);
    if (permanentSchedule(rows, QString()) && query.exec("DROP TABLE t_permanentschedule")
        && query.exec("CREATE TABLE [t_permanentschedule] ([groupname] NVARCHAR(100),[shiftname] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[daystaffnum] NTEXT, [employee_name] NVARCHAR(100), primary key (groupname,shiftname))")) {
        savePermanentSchedule(rows);
        showWarning(QObject::tr("Update database success!"));
    } else {
        showWarning(QObject::tr("Update database failed!"));
    }
    // The version moves on either way, so the upgrade is tried once only; rows read
    // before a failed CREATE are lost then, and the warning is all the user gets.
    query.exec("delete from t_version");
    query.exec("INSERT INTO t_version (version) VALUES ('1.01')");
}

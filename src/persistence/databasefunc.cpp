#include "persistence/databasefunc.h"

#include <QDebug>
#include <QObject>
#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>

#include "core/apppaths.h"

DatabaseFunc g_DB;

DatabaseFunc *getDB()
{
    return &g_DB;
}

static void warnToLog(const QString &text)
{
    qWarning().noquote() << text;
}

static WarningHandler g_warningHandler = warnToLog;

void setWarningHandler(WarningHandler handler)
{
    g_warningHandler = handler ? handler : warnToLog;
}

void showWarning(const QString &text)
{
    g_warningHandler(text);
}

namespace {

struct TableSchema
{
    const char *name;
    const char *create;
};

// In the order of creation. The statements are kept to the letter: files made by earlier
// versions hold the same text in sqlite_master.
const TableSchema kSchema[] = {
    {"t_groupinfo", "CREATE TABLE [t_groupinfo] ([name] NVARCHAR(100) NOT NULL ON CONFLICT FAIL, [abbreviation] NVARCHAR(40), [note] NVARCHAR(400), primary key(name))"},
    {"t_staffinfo", "CREATE TABLE [t_staffinfo] ([id] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[fname] NVARCHAR(100),[lname] NVARCHAR(100),[groupname] NVARCHAR(100),[phonenum] NVARCHAR(40),[note] NVARCHAR(400), primary key(id))"},
    {"t_shiftinfo", "CREATE TABLE [t_shiftinfo] ([name] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[abbreviation] NVARCHAR(40),[starttm] CHAR(5),[endtm] CHAR(5), primary key(name))"},
    {"t_permanentschedule", "CREATE TABLE [t_permanentschedule] ([groupname] NVARCHAR(100),[shiftname] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[daystaffnum] NTEXT,[employee_name] NVARCHAR(100), primary key (groupname,shiftname))"},
    {"t_holidayinfo", "CREATE TABLE [t_holidayinfo] ([name] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[date] DATE,[days] SMALLINT(1),[valid] TINYINT(1),[repeat] TINYINT(1), primary key(name,date))"},
    {"t_vacationinfo", "CREATE TABLE [t_vacationinfo] ([staffids] NVARCHAR(1000) NOT NULL ON CONFLICT FAIL,[date] DATE,[days] SMALLINT(1),[note] NVARCHAR(400),[valid] TINYINT(1), primary key(staffids,date))"},
    {"t_lock_employee", "CREATE TABLE [t_lock_employee] ([staffids] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[date] DATE,[shiftname] NVARCHAR(100),[note] NVARCHAR(400),[valid] TINYINT(1),primary key(staffids,date))"},
    {"t_schedule", "CREATE TABLE [t_schedule] ([date] DATE NOT NULL ON CONFLICT FAIL, [groupname] NVARCHAR(100), [shiftname] NVARCHAR(100), [staffs] NVARCHAR(1000), primary key (date,groupname,shiftname))"},
    {"t_version", "CREATE TABLE [t_version] ([version] NCHAR(20))"},
};

} // namespace

bool DatabaseFunc::openDB(QString name)
{
    if (name.isEmpty())
        name = QSettings(getAppDataPath(0), QSettings::IniFormat).value("lastdb", getAppDataPath(1) + "/default.db").toString();
    if (name == db.databaseName() && db.isOpen())
        return true;

    const QString previous = db.databaseName();
    // One connection serves every file of the run.
    if (!db.isValid())
        db = QSqlDatabase::addDatabase("QSQLITE", QSqlDatabase::defaultConnection);
    db.close();
    db.setDatabaseName(name);
    if (!db.open() || isBusy()) {
        db.setDatabaseName(previous);
        db.open();
        return false;
    }

    updateDB();
    QSettings(getAppDataPath(0), QSettings::IniFormat).setValue("lastdb", name);

    QVector<ASAttribute> list;
    groupInfo(list);
    list.clear();
    staffInfo(list);
    list.clear();
    shiftInfo(list);
    list.clear();
    permanentSchedule(list);
    return true;
}

bool DatabaseFunc::isBusy()
{
    // SQLite opens lazily: a file that another program holds locked opens fine, and then every
    // query waits out the busy timeout and fails. Such a file is refused like one that cannot be
    // opened, after one wait, rather than after a wait per table and with the old file's lists.
    QSqlQuery probe(db);
    if (probe.exec("SELECT COUNT(*) FROM sqlite_master"))
        return false;
    const QString code = probe.lastError().nativeErrorCode();
    return code == "5" || code == "6"; // SQLITE_BUSY, SQLITE_LOCKED
}

void DatabaseFunc::closeDB()
{
    db.close();
}

bool DatabaseFunc::isOpen() const
{
    return db.isOpen();
}

QString DatabaseFunc::getDBName() const
{
    return db.databaseName();
}

QString DatabaseFunc::getVersion()
{
    QSqlQuery query(db);
    if (!query.exec("SELECT * FROM t_version") || !query.next())
        return "1.00";
    return query.value(0).toString();
}

bool DatabaseFunc::isExistTable(QString name)
{
    // A file that cannot answer counts as having the table, so nothing is created in it.
    QSqlQuery query(db);
    return !(query.exec(QString("SELECT COUNT(*) FROM sqlite_master where type='table' and name='%1'").arg(name))
             && query.next() && query.value(0).toInt() < 1);
}

void DatabaseFunc::updateDB()
{
    // A file that already holds t_permanentschedule may hold its old three-column form.
    QString version = "1.00";
    for (const TableSchema &table : kSchema) {
        const QString name = table.name;
        if (isExistTable(name))
            continue;
        QSqlQuery query(db);
        if (!query.exec(table.create)) {
            if (name == "t_holidayinfo")
                showWarning("fail");
            return;
        }
        if (name == "t_permanentschedule")
            version = "1.01";
        else if (name == "t_version")
            query.exec(QString("INSERT INTO t_version (version) VALUES ('%1')").arg(version));
        seedTable(name);
    }
    const QString found = getVersion();
    if (found <= QString("1.00"))
        upgradeSchema();
    else if (found > QString(kCurrentVersion))
        showWarning(QObject::tr("This plan has the database version %1, which is newer than this program knows (%2). "
                                "It is opened as it is; saving may lose what the newer version keeps.")
                        .arg(found, kCurrentVersion));
}

#pragma once

#include <QCryptographicHash>
#include <QFile>
#include <QList>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QStringList>

#include "persistence/databasefunc.h"

// The nine CREATE statements of a new file, in the order of creation.
inline const QStringList kCreateStatements = {
    "CREATE TABLE [t_groupinfo] ([name] NVARCHAR(100) NOT NULL ON CONFLICT FAIL, [abbreviation] NVARCHAR(40), [note] NVARCHAR(400), primary key(name))",
    "CREATE TABLE [t_staffinfo] ([id] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[fname] NVARCHAR(100),[lname] NVARCHAR(100),[groupname] NVARCHAR(100),[phonenum] NVARCHAR(40),[note] NVARCHAR(400), primary key(id))",
    "CREATE TABLE [t_shiftinfo] ([name] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[abbreviation] NVARCHAR(40),[starttm] CHAR(5),[endtm] CHAR(5), primary key(name))",
    "CREATE TABLE [t_permanentschedule] ([groupname] NVARCHAR(100),[shiftname] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[daystaffnum] NTEXT,[employee_name] NVARCHAR(100), primary key (groupname,shiftname))",
    "CREATE TABLE [t_holidayinfo] ([name] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[date] DATE,[days] SMALLINT(1),[valid] TINYINT(1),[repeat] TINYINT(1), primary key(name,date))",
    "CREATE TABLE [t_vacationinfo] ([staffids] NVARCHAR(1000) NOT NULL ON CONFLICT FAIL,[date] DATE,[days] SMALLINT(1),[note] NVARCHAR(400),[valid] TINYINT(1), primary key(staffids,date))",
    "CREATE TABLE [t_lock_employee] ([staffids] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[date] DATE,[shiftname] NVARCHAR(100),[note] NVARCHAR(400),[valid] TINYINT(1),primary key(staffids,date))",
    "CREATE TABLE [t_schedule] ([date] DATE NOT NULL ON CONFLICT FAIL, [groupname] NVARCHAR(100), [shiftname] NVARCHAR(100), [staffs] NVARCHAR(1000), primary key (date,groupname,shiftname))",
    "CREATE TABLE [t_version] ([version] NCHAR(20))",
};

// Rows of a statement on the open file, every value as text. A failing statement gives one
// row that names it, so that a comparison shows the failure.
inline QList<QStringList> rows(const QString &sql)
{
    QSqlQuery query(getDB()->db);
    if (!query.exec(sql))
        return {{"query failed: " + sql}};
    QList<QStringList> result;
    while (query.next()) {
        QStringList row;
        for (int i = 0; i < query.record().count(); ++i)
            row << query.value(i).toString();
        result << row;
    }
    return result;
}

// Builds a file by hand on a connection of its own; false if anything failed.
inline bool makeFile(const QString &path, const QStringList &statements)
{
    bool ok = false;
    {
        QSqlDatabase maker = QSqlDatabase::addDatabase("QSQLITE", "maker");
        maker.setDatabaseName(path);
        ok = maker.open();
        QSqlQuery query(maker);
        for (const QString &sql : statements)
            ok = ok && query.exec(sql);
        query.finish();
        maker.close();
    }
    QSqlDatabase::removeDatabase("maker");
    return ok;
}

inline bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

// Empty for a file that cannot be read.
inline QByteArray fileHash(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256);
}

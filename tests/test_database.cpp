#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QTime>
#include <QtTest>

#include <algorithm>
#include <functional>

#include "core/apppaths.h"
#include "core/asattribute.h"
#include "databasefixture.h"
#include "persistence/databasefunc.h"
#include "testhome.h"

namespace {

QStringList g_warnings;

void collectWarning(const QString &text)
{
    g_warnings << text;
}

QString dataRoot()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString configFile()
{
    return dataRoot() + "/ConfigData/config.ini";
}

QString lastDb()
{
    return QSettings(configFile(), QSettings::IniFormat).value("lastdb").toString();
}

void setLastDb(const QString &path)
{
    QSettings(configFile(), QSettings::IniFormat).setValue("lastdb", path);
}

struct Csv
{
    QByteArray bytes;
    QStringList header;
    QList<QStringList> lines;
};

Csv readTemplate(const QString &name)
{
    Csv csv;
    QFile file(getAppPath() + "/datas/" + name);
    if (!file.open(QIODevice::ReadOnly))
        return csv;
    csv.bytes = file.readAll();
    QStringList lines = QString::fromLatin1(csv.bytes).split("\r\n");
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    csv.header = lines.value(0).split(',');
    for (int i = 1; i < lines.size(); ++i)
        csv.lines << lines.at(i).split(',');
    return csv;
}

QStringList keyValues(const QVector<ASAttribute> &records, const char *key)
{
    QStringList result;
    for (const ASAttribute &r : records)
        result << r.attr(key, QString("<absent>"));
    return result;
}

struct Seeded
{
    const char *table;
    const char *file;
};

const Seeded kSeeded[] = {
    {"t_groupinfo", "groups_template.csv"},
    {"t_staffinfo", "employees_template.csv"},
    {"t_shiftinfo", "shifts_template.csv"},
    {"t_permanentschedule", "permanentschedules_template.csv"},
    {"t_holidayinfo", "holidays_template.csv"},
};

// The whole-table saves and reads by kind, so that one test can run over all of them.
struct Store
{
    std::function<bool(QVector<ASAttribute> &)> save;
    std::function<bool(QVector<ASAttribute> &)> read;
    ASAttribute plain;
};

QMap<QString, Store> stores()
{
    DatabaseFunc *db = getDB();
    QMap<QString, Store> s;
    s["group"] = {[db](QVector<ASAttribute> &l) { QString e; return db->saveGroupInfo(l, e); },
                  [db](QVector<ASAttribute> &l) { return db->groupInfo(l); },
                  record({{"name", "Alpha"}, {"abbreviation", "AL"}, {"note", "first"}})};
    s["staff"] = {[db](QVector<ASAttribute> &l) { return db->saveStaffInfo(l); },
                  [db](QVector<ASAttribute> &l) { return db->staffInfo(l); },
                  record({{"id", "S1"}, {"fname", "Ann"}, {"lname", "Bell"}, {"groupname", "Alpha"}, {"phonenum", "1"}, {"note", "n"}})};
    s["shift"] = {[db](QVector<ASAttribute> &l) { return db->saveShiftInfo(l); },
                  [db](QVector<ASAttribute> &l) { return db->shiftInfo(l); },
                  record({{"name", "Day"}, {"abbreviation", "D"}, {"starttm", "08:00"}, {"endtm", "16:00"}})};
    s["permanentschedule"] = {[db](QVector<ASAttribute> &l) { return db->savePermanentSchedule(l); },
                              [db](QVector<ASAttribute> &l) { return db->permanentSchedule(l); },
                              record({{"groupname", "Alpha"}, {"shiftname", "Day"}, {"daystaffnum", "1;1"}, {"employee_name", "S1"}})};
    s["holiday"] = {[db](QVector<ASAttribute> &l) { return db->saveHolidayInfo(l); },
                    [db](QVector<ASAttribute> &l) { return db->holidayInfo(l); },
                    record({{"name", "Fair"}, {"date", "2025-06-01"}, {"days", "2"}, {"repeat", "0"}, {"valid", "1"}})};
    s["vacation"] = {[db](QVector<ASAttribute> &l) { return db->saveVacationInfo(l); },
                     [db](QVector<ASAttribute> &l) { return db->vacationInfo(l); },
                     record({{"staffids", "S1;S2"}, {"date", "2025-07-01"}, {"days", "3"}, {"note", "trip"}, {"valid", "1"}})};
    s["lock"] = {[db](QVector<ASAttribute> &l) { return db->saveLockEmployeeInfo(l); },
                 [db](QVector<ASAttribute> &l) { return db->lockEmployeeInfo(l); },
                 record({{"staffids", "S1"}, {"date", "2025-07-02"}, {"note", "fixed"}, {"valid", "1"}})};
    return s;
}

} // namespace

class TestDatabase : public QObject
{
    Q_OBJECT

private:
    QString m_default;

    void openFresh(const QString &name)
    {
        QVERIFY(getDB()->openDB(TestHome::path() + "/" + name));
    }

private slots:
    void initTestCase()
    {
        setWarningHandler(collectWarning);
        m_default = dataRoot() + "/ScheduleDatas/default.db";
    }

    void init()
    {
        g_warnings.clear();
    }

    void templatesAreWellFormed()
    {
        const QStringList expectedHeaders = {"name,abbreviation,note", "fname,lname,id,groupname,phonenum,note",
                                             "name,abbreviation,starttm,endtm", "groupname,shiftname,daystaffnum",
                                             "name,date,days,repeat,valid"};
        QMap<QString, Csv> csv;
        for (int i = 0; i < 5; ++i) {
            const QString name = kSeeded[i].file;
            csv[name] = readTemplate(name);
            const Csv &c = csv[name];
            QVERIFY2(!c.lines.isEmpty(), qPrintable(name));
            QCOMPARE(c.header.join(','), expectedHeaders.at(i));
            QVERIFY2(c.bytes.endsWith("\r\n"), qPrintable(name));
            QCOMPARE(c.bytes.count("\n"), c.bytes.count("\r\n"));
            QVERIFY2(std::none_of(c.bytes.cbegin(), c.bytes.cend(), [](char ch) { return uchar(ch) >= 0x80; }),
                     qPrintable(name + " holds a byte that is not ASCII"));
            for (const QStringList &line : c.lines)
                QVERIFY2(line.size() == c.header.size(), qPrintable(name + ": " + line.join(',')));
        }

        QStringList groups, shifts;
        for (const QStringList &line : csv["groups_template.csv"].lines)
            groups << line.at(0);
        for (const QStringList &line : csv["employees_template.csv"].lines)
            QVERIFY2(groups.contains(line.at(3)), qPrintable(line.join(',')));

        bool overMidnight = false;
        for (const QStringList &line : csv["shifts_template.csv"].lines) {
            const QTime start = QTime::fromString(line.at(2), "hh:mm");
            const QTime end = QTime::fromString(line.at(3), "hh:mm");
            QVERIFY2(start.isValid() && end.isValid(), qPrintable(line.join(',')));
            overMidnight |= end < start;
            shifts << line.at(0);
        }
        QVERIFY(overMidnight);

        // Each group's rows stand together; both forms of the staffing rule occur.
        const QRegularExpression weekly("^\\d+(;\\d+){6}$");
        QStringList finished;
        QString current;
        int plain = 0, weeklyRule = 0, dateRule = 0;
        for (const QStringList &line : csv["permanentschedules_template.csv"].lines) {
            if (line.at(0) != current) {
                QVERIFY2(!finished.contains(line.at(0)), qPrintable(line.at(0) + " is split"));
                finished << current;
                current = line.at(0);
            }
            QVERIFY(groups.contains(line.at(0)));
            QVERIFY(shifts.contains(line.at(1)));
            ASAttribute rule;
            if (!rule.setXmlAttrs(line.at(2))) {
                QVERIFY2(weekly.match(line.at(2)).hasMatch(), qPrintable(line.at(2)));
                ++plain;
            } else if (rule.attr("t", 0) == 0) {
                QVERIFY2(weekly.match(rule.attr("stn", QString())).hasMatch(), qPrintable(line.at(2)));
                ++weeklyRule;
            } else {
                const QDate from = QDate::fromString(rule.attr("sdt", QString()), "yyyy-MM-dd");
                const QDate to = QDate::fromString(rule.attr("edt", QString()), "yyyy-MM-dd");
                QVERIFY2(from.isValid() && from <= to, qPrintable(line.at(2)));
                QVERIFY(QRegularExpression("^[1-5](;[1-5])*$").match(rule.attr("week", QString())).hasMatch());
                QVERIFY(QRegularExpression("^[1-7](;[1-7])*$").match(rule.attr("dayweek", QString())).hasMatch());
                ++dateRule;
            }
        }
        QVERIFY(plain > 0 && weeklyRule > 0 && dateRule > 0);
    }

    void firstOpenCreatesSeededDefault()
    {
        QVERIFY(!QFile::exists(configFile()));
        QVERIFY(!QFile::exists(m_default));
        DatabaseFunc *db = getDB();
        QVERIFY(db->openDB(QString()));
        QVERIFY(db->isOpen());
        QCOMPARE(db->getDBName(), m_default);
        QVERIFY(QFile::exists(m_default));
        QCOMPARE(lastDb(), m_default);
        QVERIFY(g_warnings.isEmpty());

        QList<QStringList> expected;
        for (const QString &statement : kCreateStatements)
            expected << QStringList{statement.section('[', 1, 1).section(']', 0, 0), statement};
        QCOMPARE(rows("SELECT name, sql FROM sqlite_master WHERE type='table' ORDER BY rowid"), expected);
        QCOMPARE(db->getVersion(), QString("1.01"));
        QCOMPARE(rows("SELECT * FROM t_version"), QList<QStringList>{{"1.01"}});

        for (const Seeded &seeded : kSeeded) {
            const Csv csv = readTemplate(seeded.file);
            QCOMPARE(rows(QString("SELECT %1 FROM %2").arg(csv.header.join(','), seeded.table)), csv.lines);
            QCOMPARE(fileHash(dataRoot() + "/SettingDatas/" + seeded.file), fileHash(getAppPath() + "/datas/" + seeded.file));
        }
        QCOMPARE(rows("SELECT COUNT(*) FROM t_permanentschedule WHERE employee_name<>''"), QList<QStringList>{{"0"}});
        for (const char *table : {"t_vacationinfo", "t_lock_employee", "t_schedule"})
            QCOMPARE(rows(QString("SELECT COUNT(*) FROM %1").arg(table)), QList<QStringList>{{"0"}});

        // The caches hold the rows as read back, each with its kind.
        QCOMPARE(db->groups.size(), readTemplate("groups_template.csv").lines.size());
        QCOMPARE(db->staffs.size(), readTemplate("employees_template.csv").lines.size());
        QCOMPARE(db->shifts.size(), readTemplate("shifts_template.csv").lines.size());
        QCOMPARE(db->permanentSchedules.size(), readTemplate("permanentschedules_template.csv").lines.size());
        QCOMPARE(db->groups.first().attr("infotype", QString()), QString("group"));
        QCOMPARE(db->permanentSchedules.first().attr("infotype", QString()), QString("permanentschedule"));
        QVERIFY(db->permanentSchedules.first().exist("employee_name"));
    }

    void reopeningTheSameFile()
    {
        DatabaseFunc *db = getDB();
        const QByteArray before = fileHash(m_default);
        setLastDb("marker");
        db->groups.clear();
        QVERIFY(db->openDB(m_default));
        QVERIFY(db->groups.isEmpty());
        QCOMPARE(lastDb(), QString("marker"));

        // Closed, the same name runs the whole sequence, and an up-to-date file stays as it is.
        db->closeDB();
        QVERIFY(!db->isOpen());
        QCOMPARE(db->getDBName(), m_default);
        QVERIFY(db->openDB(m_default));
        QVERIFY(db->isOpen());
        QCOMPARE(lastDb(), m_default);
        QCOMPARE(db->groups.size(), readTemplate("groups_template.csv").lines.size());
        QCOMPARE(fileHash(m_default), before);

        // An empty name follows "lastdb"; without the configuration it is the default file again.
        openFresh("other.db");
        db->closeDB();
        QVERIFY(db->openDB(QString()));
        QCOMPARE(db->getDBName(), TestHome::path() + "/other.db");
        QVERIFY(QFile::remove(configFile()));
        QVERIFY(db->openDB(QString()));
        QCOMPARE(db->getDBName(), m_default);
        QVERIFY(g_warnings.isEmpty());
    }

    void failedOpenKeepsThePreviousFile()
    {
        DatabaseFunc *db = getDB();
        openFresh("kept.db");
        QVector<ASAttribute> one{record({{"name", "Only"}})};
        QString error;
        QVERIFY(db->saveGroupInfo(one, error));
        const QString kept = db->getDBName();

        QVERIFY(!db->openDB(TestHome::path() + "/no/such/folder/x.db"));
        QVERIFY(db->isOpen());
        QCOMPARE(db->getDBName(), kept);
        QCOMPARE(lastDb(), kept);
        QCOMPARE(keyValues(db->groups, "name"), QStringList{"Only"});
        QVector<ASAttribute> out;
        QVERIFY(db->groupInfo(out));
        QCOMPARE(keyValues(out, "name"), QStringList{"Only"});
    }

    void fileThatIsNoDatabase()
    {
        DatabaseFunc *db = getDB();
        openFresh("good.db");
        const QVector<ASAttribute> cached = db->staffs;
        const QString path = TestHome::path() + "/garbage.db";
        QVERIFY(writeFile(path, QByteArray("This is a shopping list and no database at all.\n").repeated(40)));
        const QByteArray before = fileHash(path);

        // Opening works; the file then answers no query, counts as having every table and
        // version "1.00", and the upgrade fails.
        QVERIFY(db->openDB(path));
        QCOMPARE(g_warnings, QStringList{"Update database failed!"});
        QVERIFY(db->isExistTable("t_groupinfo"));
        QVERIFY(db->isExistTable("no_such_table"));
        QCOMPARE(db->getVersion(), QString("1.00"));
        QCOMPARE(lastDb(), path);
        QVector<ASAttribute> out{record({{"name", "kept"}})};
        QVERIFY(!db->staffInfo(out));
        QCOMPARE(out.size(), 1);
        QCOMPARE(db->staffs, cached);
        QCOMPARE(fileHash(path), before);
    }

    void readOnlyFileIsNotChanged()
    {
        DatabaseFunc *db = getDB();
        const QString path = TestHome::path() + "/readonly.db";
        QVERIFY(db->openDB(path));
        openFresh("elsewhere.db");
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
        const QByteArray before = fileHash(path);

        QVERIFY(db->openDB(path));
        QVERIFY(g_warnings.isEmpty());
        QCOMPARE(db->getVersion(), QString("1.01"));
        QCOMPARE(db->shifts.size(), readTemplate("shifts_template.csv").lines.size());
        QCOMPARE(fileHash(path), before);
        QCOMPARE(lastDb(), path);

        // Root writes whatever the permissions say; for anyone else a save fails and keeps
        // the table, the cache and the file as they were.
        if (!QFileInfo(path).isWritable()) {
            const QVector<ASAttribute> cached = db->groups;
            QVector<ASAttribute> none;
            QString error;
            QVERIFY(!db->saveGroupInfo(none, error));
            QVERIFY2(error.contains("readonly"), qPrintable(error));
            QCOMPARE(db->groups, cached);
            QCOMPARE(rows("SELECT COUNT(*) FROM t_groupinfo"), QList<QStringList>{{QString::number(cached.size())}});
            QCOMPARE(fileHash(path), before);
        }
    }

    void failedCreateEndsTheUpdate_data()
    {
        QTest::addColumn<QString>("blocked");
        QTest::addColumn<QStringList>("warnings");
        QTest::newRow("t_staffinfo") << "t_staffinfo" << QStringList();
        QTest::newRow("t_holidayinfo") << "t_holidayinfo" << QStringList{"fail"};
    }

    void failedCreateEndsTheUpdate()
    {
        // A view of the table's name is no table, so its CREATE is tried and fails.
        QFETCH(QString, blocked);
        QFETCH(QStringList, warnings);
        const QString path = TestHome::path() + "/blocked-" + blocked + ".db";
        QVERIFY(makeFile(path, {QString("CREATE VIEW %1 AS SELECT 1 AS x").arg(blocked)}));
        QVERIFY(getDB()->openDB(path));
        // Neither the later tables nor the upgrade are tried.
        QCOMPARE(g_warnings, warnings);
        QStringList created;
        for (const QString &statement : kCreateStatements) {
            const QString table = statement.section('[', 1, 1).section(']', 0, 0);
            if (table == blocked)
                break;
            created << table;
        }
        QStringList tables;
        for (const QStringList &row : rows("SELECT name FROM sqlite_master WHERE type='table' ORDER BY rowid"))
            tables << row;
        QCOMPARE(tables, created);
        QCOMPARE(rows("SELECT COUNT(*) FROM t_groupinfo"), QList<QStringList>{{QString::number(readTemplate("groups_template.csv").lines.size())}});
        QCOMPARE(lastDb(), path);
    }

    void readsAndCaches()
    {
        DatabaseFunc *db = getDB();
        openFresh("reads.db");
        QVector<ASAttribute> staff{record({{"id", "A1"}, {"groupname", "North"}}), record({{"id", "B1"}, {"groupname", "South"}}),
                                   record({{"id", "A2"}, {"groupname", "North"}})};
        QVERIFY(db->saveStaffInfo(staff));
        QCOMPARE(db->staffs, staff);

        // A filtered read appends in table order and leaves the cache alone.
        QVector<ASAttribute> out{record({{"id", "mine"}})};
        QVERIFY(db->staffInfo(out, "groupname='North'"));
        QCOMPARE(keyValues(out, "id"), (QStringList{"mine", "A1", "A2"}));
        QCOMPARE(out.at(1).attr("infotype", QString()), QString("staff"));
        QCOMPARE(out.at(1).attr("note", QString("<absent>")), QString());
        QCOMPARE(db->staffs, staff);

        // The plain read sets the cache to the whole of out, what the caller put there included.
        QVERIFY(db->staffInfo(out));
        QCOMPARE(keyValues(db->staffs, "id"), (QStringList{"mine", "A1", "A2", "A1", "B1", "A2"}));

        const QVector<ASAttribute> cached = db->staffs;
        out.clear();
        QVERIFY(!db->staffInfo(out, "nosuchcolumn=1"));
        QVERIFY(out.isEmpty());
        QVERIFY(!db->staffInfo(out, "groupname='O'Neil'"));
        QCOMPARE(db->staffs, cached);

        QVector<ASAttribute> rows{record({{"groupname", "North"}, {"shiftname", "Day"}}),
                                  record({{"groupname", "South"}, {"shiftname", "Day"}})};
        QVERIFY(db->savePermanentSchedule(rows));
        out.clear();
        QVERIFY(db->permanentSchedule(out, "groupname='South' and shiftname='Day'"));
        QCOMPARE(out.size(), 1);
        QCOMPARE(db->permanentSchedules, rows);
        out.clear();
        QVERIFY(db->permanentSchedule(out));
        QCOMPARE(db->permanentSchedules, out);
        QCOMPARE(out.size(), 2);

        // Groups and shifts have only the plain read, and it always replaces the cache.
        db->groups.clear();
        out.clear();
        QVERIFY(db->groupInfo(out));
        QCOMPARE(db->groups, out);
        QVERIFY(!out.isEmpty());
    }

    void saveEscaping_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("saved");
        const QList<std::pair<const char *, QStringList>> escaped = {
            {"group", {}}, {"staff", {"note"}}, {"shift", {}}, {"permanentschedule", {}},
            {"holiday", {"name"}}, {"vacation", {"staffids", "note"}}, {"lock", {"staffids", "note"}}};
        const QMap<QString, Store> all = stores();
        for (const auto &kind : escaped) {
            const ASAttribute plain = all.value(kind.first).plain;
            for (auto it = plain.values().cbegin(); it != plain.values().cend(); ++it) {
                const QString key = it.key();
                // Numbers go in unquoted as integers, so no text reaches the statement.
                if (key == "days" || key == "valid" || key == "repeat")
                    continue;
                QTest::addRow("%s %s", kind.first, qPrintable(key)) << QString(kind.first) << key << kind.second.contains(key);
            }
        }
    }

    void saveEscaping()
    {
        QFETCH(QString, kind);
        QFETCH(QString, key);
        QFETCH(bool, saved);
        openFresh("escaping.db");
        const Store store = stores().value(kind);
        QVector<ASAttribute> old{store.plain};
        QVERIFY(store.save(old));

        ASAttribute changed = store.plain;
        changed.setAttr(key, QString("don't"));
        QVector<ASAttribute> list{changed};
        QCOMPARE(store.save(list), saved);

        QVector<ASAttribute> out;
        QVERIFY(store.read(out));
        QCOMPARE(out.size(), 1);
        QCOMPARE(out.first().attr(key, QString()), saved ? QString("don't") : store.plain.attr(key, QString()));
    }

    void saveGroupsFailureAndError()
    {
        DatabaseFunc *db = getDB();
        openFresh("groups.db");
        QVector<ASAttribute> two{record({{"name", "A"}}), record({{"name", "B"}, {"note", "second"}})};
        QString error;
        QVERIFY(db->saveGroupInfo(two, error));
        QVERIFY(error.isEmpty());
        QCOMPARE(db->groups, two);

        QVector<ASAttribute> apostrophe{record({{"name", "C"}}), record({{"name", "O'Neil"}})};
        QVERIFY(!db->saveGroupInfo(apostrophe, error));
        QVERIFY2(error.contains("syntax error"), qPrintable(error));
        QVector<ASAttribute> twice{record({{"name", "D"}}), record({{"name", "D"}})};
        QVERIFY(!db->saveGroupInfo(twice, error));
        QVERIFY2(error.contains("UNIQUE"), qPrintable(error));
        QCOMPARE(rows("SELECT name, abbreviation, note FROM t_groupinfo"), (QList<QStringList>{{"A", "", ""}, {"B", "", "second"}}));
        QCOMPARE(db->groups, two);

        QVector<ASAttribute> none;
        QVERIFY(db->saveGroupInfo(none, error));
        QVERIFY(db->groups.isEmpty());
        QCOMPARE(rows("SELECT COUNT(*) FROM t_groupinfo"), QList<QStringList>{{"0"}});
        QCOMPARE(DatabaseFunc::getValidStr("O'Neil's"), QString("O''Neil''s"));
    }

    void integerColumnsAndDefaults()
    {
        DatabaseFunc *db = getDB();
        openFresh("numbers.db");
        QVector<ASAttribute> holidays{record({{"name", "Bare"}, {"date", "2025-01-01"}}),
                                      record({{"name", "Five"}, {"date", "2025-02-01"}, {"valid", "5"}, {"repeat", "0"}, {"days", "2'"}})};
        QVERIFY(db->saveHolidayInfo(holidays));
        QCOMPARE(rows("SELECT name, days, repeat, valid FROM t_holidayinfo"),
                 (QList<QStringList>{{"Bare", "1", "1", "0"}, {"Five", "0", "0", "5"}}));
        QVector<ASAttribute> out;
        QVERIFY(db->holidayInfo(out, "valid=5"));
        QCOMPARE(out.size(), 1);
        QCOMPARE(out.first().attr("valid", QString()), QString("1"));
        QCOMPARE(out.first().attr("infotype", QString()), QString("holiday"));

        QVector<ASAttribute> vacations{record({{"staffids", "A;B"}, {"date", "2025-03-01"}})};
        QVERIFY(db->saveVacationInfo(vacations));
        QCOMPARE(rows("SELECT days, valid, note FROM t_vacationinfo"), (QList<QStringList>{{"1", "0", ""}}));

        // A lock is by employee and date: its shift is never stored.
        QVector<ASAttribute> locks{record({{"staffids", "A"}, {"date", "2025-03-02"}, {"shiftname", "Night"}})};
        QVERIFY(db->saveLockEmployeeInfo(locks));
        QCOMPARE(rows("SELECT shiftname, valid FROM t_lock_employee"), (QList<QStringList>{{"", "0"}}));
        out.clear();
        QVERIFY(db->lockEmployeeInfo(out, "date='2025-03-02' and valid=0"));
        QCOMPARE(out.size(), 1);
        QVERIFY(out.first().exist("shiftname"));
        QCOMPARE(out.first().attr("shiftname", QString("<absent>")), QString());

        // The same primary key twice fails the whole save.
        QVector<ASAttribute> twice{record({{"name", "X"}, {"date", "2025-05-05"}}), record({{"name", "X"}, {"date", "2025-05-05"}})};
        QVERIFY(!db->saveHolidayInfo(twice));
        QCOMPARE(rows("SELECT COUNT(*) FROM t_holidayinfo"), QList<QStringList>{{"2"}});
    }

    void scheduleRows()
    {
        DatabaseFunc *db = getDB();
        openFresh("schedule.db");
        auto cell = [](const QString &date, const QString &shift, const QString &staffs) {
            return record({{"date", date}, {"groupname", "G"}, {"shiftname", shift}, {"staffs", staffs}});
        };
        const QString all = "date>='2025-01-01' and date<='2025-12-31'";
        QVector<ASAttribute> first{cell("2025-04-01", "Day", "A;B"), cell("2025-04-02", "Day", "C")};
        QVERIFY(db->saveSchedule(first));

        // Inserts only: a cell that exists fails the batch, and nothing of it is written.
        QVector<ASAttribute> clash{cell("2025-04-03", "Day", "D"), cell("2025-04-01", "Day", "E")};
        QVERIFY(!db->saveSchedule(clash));
        QVector<ASAttribute> out;
        QVERIFY(db->schedule(out, all));
        QCOMPARE(keyValues(out, "staffs"), (QStringList{"A;B", "C"}));
        QCOMPARE(out.first().attr("infotype", QString()), QString("schedule"));

        QVERIFY(!db->schedule(out, QString()));
        QCOMPARE(out.size(), 2);

        // Empty staffs removes the row; an update of a missing cell creates nothing.
        QVector<ASAttribute> update{cell("2025-04-01", "Day", ""), cell("2025-04-02", "Day", "F;G"), cell("2025-04-09", "Day", "H")};
        QVERIFY(db->updateSchedule(update));
        QCOMPARE(rows("SELECT date, staffs FROM t_schedule"), (QList<QStringList>{{"2025-04-02", "F;G"}}));

        QVector<ASAttribute> broken{cell("2025-04-02", "Day", ""), cell("2025-04-02", "Day", "it's")};
        QVERIFY(!db->updateSchedule(broken));
        QCOMPARE(rows("SELECT date, staffs FROM t_schedule"), (QList<QStringList>{{"2025-04-02", "F;G"}}));

        QVERIFY(!db->deleteSchedule(QString()));
        QVERIFY(db->deleteSchedule(all + " and groupname='G'"));
        QCOMPARE(rows("SELECT COUNT(*) FROM t_schedule"), QList<QStringList>{{"0"}});
    }

    void cleanupTestCase()
    {
        getDB()->closeDB();
    }
};

ROSTERA_TEST_MAIN(TestDatabase)
#include "test_database.moc"

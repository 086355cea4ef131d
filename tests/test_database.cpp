#include <QSettings>
#include <QStandardPaths>

#include "core/apppaths.h"
#include "engine/enginecommon.h"
#include "fixture.h"
#include "mainwindow/appstart.h"
#include "persistence/databasefunc.h"

// The nine tables of a new file, word for word, in the order of creation.
static const QStringList kCreate = {
    "CREATE TABLE [t_groupinfo] ([name] NVARCHAR(100) NOT NULL ON CONFLICT FAIL, [abbreviation] NVARCHAR(40), [note] NVARCHAR(400), primary key(name))",
    "CREATE TABLE [t_staffinfo] ([id] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[fname] NVARCHAR(100),[lname] NVARCHAR(100),[groupname] NVARCHAR(100),[phonenum] NVARCHAR(40),[note] NVARCHAR(400), primary key(id))",
    "CREATE TABLE [t_shiftinfo] ([name] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[abbreviation] NVARCHAR(40),[starttm] CHAR(5),[endtm] CHAR(5), primary key(name))",
    "CREATE TABLE [t_permanentschedule] ([groupname] NVARCHAR(100),[shiftname] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[daystaffnum] NTEXT,[employee_name] NVARCHAR(100), primary key (groupname,shiftname))",
    "CREATE TABLE [t_holidayinfo] ([name] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[date] DATE,[days] SMALLINT(1),[valid] TINYINT(1),[repeat] TINYINT(1), primary key(name,date))",
    "CREATE TABLE [t_vacationinfo] ([staffids] NVARCHAR(1000) NOT NULL ON CONFLICT FAIL,[date] DATE,[days] SMALLINT(1),[note] NVARCHAR(400),[valid] TINYINT(1), primary key(staffids,date))",
    "CREATE TABLE [t_lock_employee] ([staffids] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[date] DATE,[shiftname] NVARCHAR(100),[note] NVARCHAR(400),[valid] TINYINT(1),primary key(staffids,date))",
    "CREATE TABLE [t_schedule] ([date] DATE NOT NULL ON CONFLICT FAIL, [groupname] NVARCHAR(100), [shiftname] NVARCHAR(100), [staffs] NVARCHAR(1000), primary key (date,groupname,shiftname))",
    "CREATE TABLE [t_version] ([version] NCHAR(20))"};
// The standing rows' table before the upgrade to 1.01, after it (a blank more than new), and one whose
// rows no connection can read.
static const QString kOldRule = QString(kCreate[3]).remove(",[employee_name] NVARCHAR(100)");
static const QString kNewRule = QString(kCreate[3]).replace(",[employee_name]", ", [employee_name]");
static const QString kBadRule =
    QString(kOldRule).replace("[daystaffnum] NTEXT", "[daystaffnum] AS (nosuchfunction(groupname))");

static QString lastDb()
{
    return QSettings(getAppDataPath(3) + "/ConfigData/config.ini", QSettings::IniFormat).value("lastdb").toString();
}

static QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "unreadable";
}

// A record from "key=value ...".
static ASAttribute parse(const QString &text)
{
    ASAttribute r;
    for (const QString &pair : text.split(' ', Qt::SkipEmptyParts))
        r.setAttr(pair.section('=', 0, 0), pair.section('=', 1));
    return r;
}

// Whether a save of one kind went through, and the plain read then.
static QString saveAndRead(const QString &kind, const QVector<ASAttribute> &list)
{
    DatabaseFunc *db = getDB();
    QVector<ASAttribute> out;
    const bool saved = saveRecords(kind, list);
    const bool read = kind == "group"      ? db->groupInfo(out)
                      : kind == "staff"    ? db->staffInfo(out)
                      : kind == "shift"    ? db->shiftInfo(out)
                      : kind == "row"      ? db->permanentSchedule(out)
                      : kind == "holiday"  ? db->holidayInfo(out)
                      : kind == "vacation" ? db->vacationInfo(out)
                                           : db->lockEmployeeInfo(out);
    return QString(saved ? "saved: " : "refused: ") + (read ? show(out) : "no read");
}

class TestDatabase : public QObject
{
    Q_OBJECT
    DatabaseFunc *db = getDB();
    Boxes boxes;
private slots:
    // Started by its full path, the program finds its support folder from any working folder.
    void initTestCase()
    {
        useWarningBoxes();
        if (QDir::isAbsolutePath(QCoreApplication::arguments().value(0)))
            QDir::setCurrent(TestHome::path());
    }
    void init()
    {
        boxes.texts.clear();
        db->db.setConnectOptions();
    }
    void opening()
    {
        const QString root = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        const QString first = root + "/ScheduleDatas/default.db";
        // A copy that is there is kept.
        QVERIFY(getAppDataPath(3) == root && writeFile(getAppDataPath(2) + "/holidays_template.csv", "mine"));
        QVERIFY(db->openDB(QString()) && db->getDBName() == first && lastDb() == first && !db->isExistTable("t_none"));
        QCOMPARE(rowsText("SELECT sql FROM sqlite_master WHERE type='table' ORDER BY rowid") + " | " + db->getVersion(),
                 kCreate.join(" | ") + " | 1.01");
        // The name that is open: nothing happens. The same name closed: the whole opening, which fills the
        // caches and leaves an up-to-date file as it is.
        const QByteArray before = content(first);
        QList<QVector<ASAttribute> *> caches = {&db->groups, &db->staffs, &db->shifts, &db->permanentSchedules};
        for (QVector<ASAttribute> *cache : caches)
            cache->clear();
        config().setValue("lastdb", "marker");
        QVERIFY(db->openDB(first) && db->staffs.isEmpty() && lastDb() == "marker");
        db->closeDB();
        QVERIFY(!db->isOpen() && db->openDB(first) && db->isOpen() && lastDb() == first && content(first) == before);
        // Seeded, and copied for the import.
        for (const QString names : {"groups t_groupinfo", "employees t_staffinfo", "shifts t_shiftinfo",
                                    "permanentschedules t_permanentschedule", "holidays t_holidayinfo"}) {
            const QString name = names.section(' ', 0, 0);
            const QByteArray bytes = content(QString(ROSTERA_SOURCE_DIR "/resources/datas/%1_template.csv").arg(name));
            const QStringList data = QString::fromUtf8(bytes).split("\r\n", Qt::SkipEmptyParts);
            QCOMPARE(rowsText(QString("SELECT %1 FROM %2 ORDER BY rowid").arg(data.first(), names.section(' ', 1))),
                     data.mid(1).join(" | "));
            QVERIFY(caches.isEmpty() || caches.takeFirst()->size() == data.size() - 1);
            QCOMPARE(content(QString("%1/SettingDatas/%2_template.csv").arg(root, name)),
                     name == "holidays" ? "mine" : bytes);
        }
        // An empty name follows "lastdb"; a configuration of junk, or none, gives the first-start file.
        const char junk[] = "\x01\xff[[=\n\x00\x00lastdb\xfe\n=====\n[Options\nlanguage\n";
        QVERIFY(db->openDB(TestHome::file("other.db")));
        db->closeDB();
        QVERIFY(db->openDB(QString()) && db->getDBName() == TestHome::file("other.db"));
        QVERIFY(writeFile(getAppDataPath(0), QByteArray(junk, sizeof junk - 1).repeated(20)) && db->openDB(QString())
                && db->getDBName() == first);
        QVERIFY(db->openDB(TestHome::file("other.db")) && QFile::remove(getAppDataPath(0)) && db->openDB(QString())
                && db->getDBName() == first && boxes.texts.isEmpty());
    }
    void unusableFiles()
    {
        // A failed open keeps the file, the caches and "lastdb" as they were, and at start it is said.
        QVERIFY(db->openDB(TestHome::file("kept.db")) && writePlan("group Only") && !db->openDB(TestHome::file("no/such/x.db"))
                && lastDb() == TestHome::file("kept.db"));
        config().setValue("lastdb", TestHome::file("no/such/x.db"));
        QVERIFY(!openStartDatabase() && db->getDBName() == TestHome::file("kept.db")
                && rowsText("SELECT name FROM t_groupinfo") == "Only" && show(db->groups) == "abbreviation=Only name=Only");
        // A file that is no database opens but answers no query: it has every table, at version "1.00", and its
        // upgrade fails.
        const QByteArray junk = QByteArray("This is a shopping list and no database at all.\n").repeated(40);
        QVector<ASAttribute> out, staffs = db->staffs;
        QVERIFY(writeFile(TestHome::file("list.db"), junk) && db->openDB(TestHome::file("list.db")) && db->isExistTable("t_none")
                && db->getVersion() == "1.00");
        QVERIFY(!db->groupInfo(out) && !db->staffInfo(out) && !db->shiftInfo(out) && !db->permanentSchedule(out)
                && !db->holidayInfo(out) && !db->schedule(out, "1=1"));
        QVERIFY(out.isEmpty() && db->staffs == staffs && content(TestHome::file("list.db")) == junk);
        // A read-only file of an older program: the first table it lacks can't be made, and there it ends; a
        // save fails and keeps everything.
        QVERIFY(db->openDB(TestHome::file("readonly.db")) && rows("DROP TABLE t_holidayinfo").isEmpty()
                && rows("DROP TABLE t_version").isEmpty() && db->openDB(TestHome::file("kept.db")));
        const QByteArray before = content(TestHome::file("readonly.db"));
        // as SQLite opens a file it may not write, also for root
        db->db.setConnectOptions("QSQLITE_OPEN_READONLY");
        QVERIFY(db->openDB(TestHome::file("readonly.db")));
        QCOMPARE(boxes.texts, QStringList({"Open Database Failed!", "Update database failed!", "fail"}));
        QString error;
        const QVector<ASAttribute> groups = db->groups;
        QVERIFY2(!groups.isEmpty() && !db->saveGroupInfo(out, error) && error.contains("readonly")
                     && db->groups == groups && content(TestHome::file("readonly.db")) == before,
                 qPrintable(error));
        QCOMPARE(rowsText("SELECT name FROM sqlite_master WHERE type='table' ORDER BY rowid"),
                 "t_groupinfo | t_staffinfo | t_shiftinfo | t_permanentschedule | t_vacationinfo | t_lock_employee | "
                 "t_schedule");
    }
    void store_data()
    {
        // The text fields, those that are escaped marked with "*".
        for (const char *column : {"kind", "record", "readBack", "texts"})
            QTest::addColumn<QString>(column);
        QTest::newRow("group") << "group" << "name=A abbreviation=AB note=n"
                               << "abbreviation=AB infotype=group name=A note=n" << "name abbreviation note";
        QTest::newRow("staff") << "staff" << "id=S1 fname=Ann lname=Bell groupname=A phonenum=555 note=n"
                               << "fname=Ann groupname=A id=S1 infotype=staff lname=Bell note=n phonenum=555"
                               << "id fname lname groupname phonenum note*";
        QTest::newRow("shift") << "shift" << "name=Day abbreviation=D starttm=08:00 endtm=16:00"
                               << "abbreviation=D endtm=16:00 infotype=shift name=Day starttm=08:00"
                               << "name abbreviation starttm endtm";
        QTest::newRow("rule") << "row" << "groupname=A shiftname=Day daystaffnum=1;2 employee_name=S1"
                              << "daystaffnum=1;2 employee_name=S1 groupname=A infotype=permanentschedule shiftname=Day"
                              << "groupname shiftname daystaffnum employee_name";
        QTest::newRow("holiday, numbers unquoted, no number is 0")
            << "holiday" << "name=Fair date=2025-06-01 days=2 valid=5 repeat=1'"
            << "date=2025-06-01 days=2 infotype=holiday name=Fair repeat=0 valid=1" << "name* date";
        QTest::newRow("vacation") << "vacation" << "staffids=S1;S2 date=2025-07-01 days=3 note=trip valid=1"
                                  << "date=2025-07-01 days=3 infotype=vacation note=trip staffids=S1;S2 valid=1"
                                  << "staffids* date note*";
        QTest::newRow("lock, its shift never stored")
            << "lock" << "staffids=S1 date=2025-07-02 shiftname=Night note=n valid=1"
            << "date=2025-07-02 infotype=lock note=n shiftname= staffids=S1 valid=1" << "staffids* date note*";
        QTest::newRow("holiday, number defaults") << "holiday" << "name=Bare date=2025-01-01"
                                                  << "date=2025-01-01 days=1 infotype=holiday name=Bare repeat=1 valid=0"
                                                  << "";
        QTest::newRow("vacation, number defaults") << "vacation" << "staffids=A date=2025-03-01"
                                                   << "date=2025-03-01 days=1 infotype=vacation note= staffids=A valid=0"
                                                   << "";
        QTest::newRow("lock, number default") << "lock" << "staffids=A date=2025-03-02"
                                              << "date=2025-03-02 infotype=lock note= shiftname= staffids=A valid=0" << "";
    }
    // An apostrophe goes through the escaped fields; in any other it fails the save, which keeps the table.
    void store()
    {
        QFETCH(QString, kind);
        QFETCH(QString, record);
        QFETCH(QString, readBack);
        QFETCH(QString, texts);
        QVERIFY(db->openDB(TestHome::file("store.db")));
        QCOMPARE(saveAndRead(kind, {parse(record)}), "saved: " + readBack);
        for (const QString &field : texts.split(' ', Qt::SkipEmptyParts)) {
            const QString key = field.chopped(field.endsWith('*')), was = key + "=" + parse(record).attr(key, QString());
            QCOMPARE(saveAndRead(kind, {parse(record + " " + key + "=it's")}),
                     field.endsWith('*') ? "saved: " + QString(readBack).replace(was, key + "=it's") : "refused: " + readBack);
            saveAndRead(kind, {parse(record)});
        }
    }
    void scheduleRows()
    {
        QVector<ASAttribute> out, clash = planRecords("schedule", "2025-04-03/G/S/D 2025-04-01/G/S/E");
        QVector<ASAttribute> update = planRecords("schedule", "2025-04-01/G/S/ 2025-04-02/G/S/F;G 2025-04-09/G/S/H");
        QVector<ASAttribute> broken = planRecords("schedule", "2025-04-02/G/S/ 2025-04-02/G/S/it's");
        // Inserts only: a cell that has a row fails the batch. Nobody left removes the row, an update never makes
        // one, and a failing statement undoes the batch.
        QVERIFY(db->openDB(TestHome::file("reads.db")) && writePlan("schedule 2025-04-01/G/S/A;B 2025-04-02/G/S/C")
                && !db->saveSchedule(clash));
        QVERIFY(db->schedule(out, "date>='2025-04-01' and groupname='G'") && !db->schedule(out, QString()));
        QCOMPARE(show(out), QString("date=2025-04-01 groupname=G infotype=schedule shiftname=S staffs=A;B | "
                                    "date=2025-04-02 groupname=G infotype=schedule shiftname=S staffs=C"));
        QVERIFY(db->updateSchedule(update) && !db->updateSchedule(broken)
                && scheduleTable() == QStringList{"2025-04-02 G S F;G"});
        QVERIFY(!db->deleteSchedule(QString()) && db->deleteSchedule("groupname='G'") && scheduleTable().isEmpty());
    }
    // One read of all groups answers for each group as that group's own read: rows of no text group match none, and
    // names with an apostrophe (which break or change the condition) are read as they stand.
    void groupReads()
    {
        QVERIFY(db->openDB(TestHome::file("groups.db")));
        for (const char *values : {"'2026-03-02','G','S','A'", "'2026-03-03','','S','B'", "'2026-03-04',NULL,'S','C'",
                                   "'2026-03-05',x'47','S','D'", "'2026-03-06','O''N','S','E'",
                                   "'2026-09-06','G','S','F'"})
            QCOMPARE(rows(QString("insert into t_schedule values (%1)").arg(values)), QList<QStringList>());
        const GroupRecords groups = GroupRecords::ofSchedule(" and date<='2026-03-31'");
        for (const QString group : {"G", "", "O'N", "x' or '1'='1", "H"}) {
            QVector<ASAttribute> served, own;
            const bool ok = groups.of(group, served);
            QCOMPARE(ok, db->schedule(own, QString("groupname='%1'").arg(group) + " and date<='2026-03-31'"));
            QCOMPARE(show(served), show(own));
        }
    }
    void upgrade_data()
    {
        QTest::addColumn<QStringList>("shape");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QString>("rule");
        const QStringList old = {"DROP TABLE t_permanentschedule", kOldRule,
                                 "INSERT INTO t_permanentschedule VALUES ('N','Day','1;0'), ('S','Night','<dt t=\"0\"/>')",
                                 "DELETE FROM t_version"};
        const QString success = "Update database success!", version = "INSERT INTO t_version VALUES ('%1')";
        QTest::newRow("1.00") << old + QStringList{version.arg("1.00")} << success << kNewRule;
        QTest::newRow("no table") << old + QStringList{"DROP TABLE t_version"} << success << kNewRule;
        QTest::newRow("1.01") << old + QStringList{version.arg("1.01")} << "" << kOldRule;
        QTest::newRow("unreadable, and the version moves on all the same")
            << old + QStringList({version.arg("1.00"), "PRAGMA writable_schema=ON",
                                  "UPDATE sqlite_master SET sql='" + kBadRule + "' WHERE name='t_permanentschedule'"})
            << "Update database failed!" << kBadRule;
    }
    void upgrade()
    {
        QFETCH(QStringList, shape);
        QFETCH(QString, warning);
        QFETCH(QString, rule);
        QVERIFY(db->openDB(TestHome::file("upgrade.db")) && writePlan("group Own"));
        for (const QString &sql : shape)
            QVERIFY2(rows(sql).isEmpty(), qPrintable(sql));
        QVERIFY(db->openDB(TestHome::file("between.db")) && db->openDB(TestHome::file("upgrade.db")));
        QCOMPARE(boxes.texts, QStringList(warning.isEmpty() ? 0 : 1, warning));
        // and a table there is not seeded
        QCOMPARE(rowsText("SELECT sql FROM sqlite_master WHERE name='t_permanentschedule'") + " | "
                     + rowsText("SELECT * FROM t_version") + " | " + rowsText("SELECT name FROM t_groupinfo"),
                 rule + " | 1.01 | Own");
        QVERIFY(rule != kNewRule
                || rowsText("SELECT * FROM t_permanentschedule") == "N,Day,1;0, | S,Night,<dt t=\"0\"/>,");
        QVERIFY(db->openDB(TestHome::file("between.db")) && db->openDB(TestHome::file("upgrade.db"))
                && boxes.texts.size() == (warning.isEmpty() ? 0 : 1));
    }
};

ROSTERA_TEST_MAIN(TestDatabase)
#include "test_database.moc"

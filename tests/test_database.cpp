#include "fixture.h"
#include "mainwindow/appstart.h"

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
// The standing rows' table before the upgrade to 1.01, after it (a blank more than new), and one whose rows no
// connection can read.
static const QString kOldRule = QString(kCreate[3]).remove(",[employee_name] NVARCHAR(100)");
static const QString kNewRule = QString(kCreate[3]).replace(",[employee_name]", ", [employee_name]");
static const QString kBadRule =
    QString(kOldRule).replace("[daystaffnum] NTEXT", "[daystaffnum] AS (nosuchfunction(groupname))");

static QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "unreadable";
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
            QDir::setCurrent(QDir::homePath());
    }
    void init()
    {
        boxes.texts.clear();
        db->db.setConnectOptions();
    }
    void unusableFiles()
    {
        QVERIFY(db->openDB(TestHome::file("kept.db")));
        QCOMPARE(rowsText("SELECT sql FROM sqlite_master WHERE type='table' ORDER BY rowid") + " | " + db->getVersion(),
                 kCreate.join(" | ") + " | 1.01");
        // A failed open keeps the file, the caches and "lastdb" as they were, and at start it is said.
        QVERIFY(writePlan("group Only") && !db->openDB(TestHome::file("no/such/x.db"))
                && config().value("lastdb").toString() == TestHome::file("kept.db"));
        config().setValue("lastdb", TestHome::file("no/such/x.db"));
        QVERIFY(!openStartDatabase() && db->getDBName() == TestHome::file("kept.db")
                && rowsText("SELECT name FROM t_groupinfo") == "Only" && show(db->groups) == "abbreviation=Only name=Only");
        // A file that is no database opens but answers no query: it has every table, at "1.00", and its upgrade fails.
        const QByteArray junk = QByteArray("This is a shopping list and no database at all.\n").repeated(40);
        QVector<ASAttribute> out, staffs = db->staffs;
        QVERIFY(writeFile(TestHome::file("list.db"), junk) && db->openDB(TestHome::file("list.db")) && db->isExistTable("t_none")
                && db->getVersion() == "1.00");
        QVERIFY(!db->groupInfo(out) && !db->staffInfo(out) && !db->shiftInfo(out) && !db->permanentSchedule(out)
                && !db->holidayInfo(out) && !db->schedule(out, "1=1"));
        QVERIFY(out.isEmpty() && db->staffs == staffs && content(TestHome::file("list.db")) == junk);
        // A read-only file of an older program: the first table it lacks can't be made, and there it ends; a save
        // fails and keeps everything.
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
    // Only some text fields are escaped: an apostrophe in any other fails the save, which keeps the table. Numbers
    // go unquoted, so one that is no number is 0; those left out take the store's defaults.
    void recordStore()
    {
        QVector<ASAttribute> staff, holidays, locks;
        QVERIFY(db->openDB(TestHome::file("store.db")));
        QVERIFY(saveRecords("staff", {record({{"id", "S1"}, {"note", "it's"}})}));
        for (const char *field : {"id", "fname", "lname", "groupname", "phonenum"})
            QVERIFY2(!saveRecords("staff", {record({{"id", "S2"}, {field, "it's"}})}), field);
        QVERIFY(db->staffInfo(staff));
        QCOMPARE(show(staff), "fname= groupname= id=S1 infotype=staff lname= note=it's phonenum=");
        const ASAttribute fair = record(
            {{"name", "Fair's"}, {"date", "2025-06-01"}, {"days", "2"}, {"valid", "5"}, {"repeat", "1'"}});
        QVERIFY(saveRecords("holiday", {fair, record({{"name", "Bare"}, {"date", "2025-01-01"}})})
                && db->holidayInfo(holidays));
        QCOMPARE(show(holidays), "date=2025-06-01 days=2 infotype=holiday name=Fair's repeat=0 valid=1 | "
                                 "date=2025-01-01 days=1 infotype=holiday name=Bare repeat=1 valid=0");
        QVERIFY(!saveRecords("group", {record({{"name", "A"}, {"note", "it's"}})}) && saveRecords("lock", {record(
                    {{"staffids", "it's"}, {"date", "2025-07-02"}, {"shiftname", "Night"}, {"note", "it's"}})})
                && db->lockEmployeeInfo(locks));
        QCOMPARE(show(locks), "date=2025-07-02 infotype=lock note=it's shiftname= staffids=it's valid=0");
    }
    void upgrade_data()
    {
        QTest::addColumn<QStringList>("shape");
        addColumns({"warning", "rule"});
        const QStringList old = {"DROP TABLE t_permanentschedule", kOldRule,
                                 "INSERT INTO t_permanentschedule VALUES ('N','Day','1;0'), ('S','Night','<dt t=\"0\"/>')",
                                 "DELETE FROM t_version"};
        const QString success = "Update database success!", version = "INSERT INTO t_version VALUES ('%1')";
        QTest::newRow("1.00") << old + QStringList{version.arg("1.00")} << success << kNewRule;
        QTest::newRow("1.01") << old + QStringList{version.arg("1.01")} << "" << kOldRule;
        QTest::newRow("unreadable, and the version moves on all the same")
            << old + QStringList({version.arg("1.00"), "PRAGMA writable_schema=ON",
                                  "UPDATE sqlite_master SET sql='" + kBadRule + "' WHERE name='t_permanentschedule'"})
            << "Update database failed!" << kBadRule;
    }
    void upgrade()
    {
        QFETCH(QString, warning);
        QFETCH(QString, rule);
        QVERIFY(db->openDB(TestHome::file("upgrade.db")) && writePlan("group Own"));
        for (const QString &sql : field<QStringList>("shape"))
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

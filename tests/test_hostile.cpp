// Hostile files and surroundings: plans locked by another program, written by a newer version,
// with tables of other columns, a disk that takes no more bytes, a configuration of junk, huge or
// binary CSV files, and a program folder without its templates. Each is met with the message
// the user is owed, and nothing is lost.
#include <QSqlDatabase>
#include <QSqlQuery>

#include <csignal>
#include <sys/resource.h>

#include "core/csvfile.h"
#include "fixture.h"
#include "mainwindow/appstart.h"
#include "reports/reports.h"

// While it lives, no file of this process may grow beyond the given size: a full disk, as
// SQLite meets it, without a file system of its own.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_old);
        rlimit limit = m_old;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &m_old); }

private:
    rlimit m_old;
};

class TestHostile : public QObject
{
    Q_OBJECT
    DatabaseFunc *db = getDB();

private slots:
    void initTestCase()
    {
        useWarningBoxes();
        // A write beyond the limit fails with an error instead of ending the process.
        signal(SIGXFSZ, SIG_IGN);
    }
    // The program folder has no support folder: new tables start empty and nothing is said.
    void missingTemplates()
    {
        Boxes boxes;
        QVERIFY(db->openDB(TestHome::file("bare.db")));
        QCOMPARE(rowsText("SELECT COUNT(*) FROM sqlite_master WHERE type='table'"), "9");
        QCOMPARE(rowsText("SELECT (SELECT COUNT(*) FROM t_groupinfo) + (SELECT COUNT(*) FROM t_staffinfo) + "
                          "(SELECT COUNT(*) FROM t_shiftinfo) + (SELECT COUNT(*) FROM t_permanentschedule) + "
                          "(SELECT COUNT(*) FROM t_holidayinfo)"),
                 "0");
        QCOMPARE(db->getVersion(), "1.01");
        QVERIFY(QDir(getAppDataPath(2)).isEmpty());
        QVERIFY(boxes.texts.isEmpty());
    }
    // Another program holds the plan: while it writes, this one reads but its saves wait and
    // fail, keeping both; while it holds the whole file, the plan is not opened at all.
    void lockedByAnotherProgram()
    {
        Boxes boxes;
        db->closeDB();
        db->db.setConnectOptions("QSQLITE_BUSY_TIMEOUT=200");
        QVERIFY(db->openDB(TestHome::file("shared.db")) && writePlan("group Mine | staff A/Mine"));
        {
            QSqlDatabase other = QSqlDatabase::addDatabase("QSQLITE", "other");
            other.setDatabaseName(TestHome::file("shared.db"));
            QSqlQuery query(other);
            QVERIFY(other.open() && query.exec("BEGIN IMMEDIATE"));
            QVERIFY(query.exec("INSERT INTO t_groupinfo VALUES ('Theirs','T','')"));
            QVector<ASAttribute> groups = planRecords("group", "Replaced");
            QString error;
            QVERIFY(!db->saveGroupInfo(groups, error));
            QVERIFY2(error.contains("locked"), qPrintable(error));
            QCOMPARE(rowsText("SELECT name FROM t_groupinfo"), "Mine");
            QVERIFY(query.exec("COMMIT"));
            QCOMPARE(rowsText("SELECT name FROM t_groupinfo ORDER BY 1"), "Mine | Theirs");

            QVERIFY(query.exec("BEGIN EXCLUSIVE"));
            QVERIFY(db->openDB(TestHome::file("other.db")) && !db->openDB(TestHome::file("shared.db")));
            QCOMPARE(db->getDBName(), TestHome::file("other.db"));
            config().setValue("lastdb", TestHome::file("shared.db"));
            db->closeDB();
            QVERIFY(!openStartDatabase());
            QCOMPARE(boxes.texts, QStringList{"Open Database Failed!"});
            QVERIFY(query.exec("ROLLBACK"));
            other.close();
        }
        QSqlDatabase::removeDatabase("other");
        QVERIFY(db->openDB(TestHome::file("shared.db")));
        QCOMPARE(rowsText("SELECT name FROM t_groupinfo ORDER BY 1"), "Mine | Theirs");
        db->db.setConnectOptions();
    }
    // No file may grow: each save is refused whole with its message, and the file stays sound.
    void fullDisk()
    {
        QVERIFY(db->openDB(TestHome::file("full.db")));
        QVERIFY(writePlan("staff A/G B/G C/G | row G/S/1;1;1;1;1;1;1 | schedule 2026-03-02/G/S/C"));
        RosteraMain *window = openWindow();
        QVERIFY(window);
        window->ui->date_current->setDate(QDate(2026, 3, 2));
        QVector<ASAttribute> staff = planRecords("staff", "X/G Y/G Z/G");
        {
            Boxes boxes;
            FileSizeLimit limit(1024);
            QVERIFY(!db->saveStaffInfo(staff));
            window->auto_schedule(window->cycleDates, true);
            QCOMPARE(boxes.texts, QStringList{"Save schedule information failed!"});
        }
        QCOMPARE(rowsText("PRAGMA integrity_check"), "ok");
        QCOMPARE(rowsText("SELECT id FROM t_staffinfo ORDER BY 1"), "A | B | C");
        QCOMPARE(scheduleTable(), QStringList{"2026-03-02 G S C"});
        delete window;
    }
    // A plan of a newer version opens as it stands, with a word that this version may not keep
    // all of it; tables of other columns are read by position and refuse a save.
    void foreignPlans()
    {
        QVERIFY(db->openDB(TestHome::file("newer.db")) && writePlan("group G"));
        QVERIFY(rows("UPDATE t_version SET version='3.00'").isEmpty());
        QVERIFY(rows("DROP TABLE t_staffinfo").isEmpty());
        QVERIFY(rows("CREATE TABLE t_staffinfo (id TEXT, lname TEXT, extra TEXT)").isEmpty());
        QVERIFY(rows("INSERT INTO t_staffinfo VALUES ('E1', 'Bell', 'more')").isEmpty());
        Boxes boxes;
        QVERIFY(db->openDB(TestHome::file("other.db")) && db->openDB(TestHome::file("newer.db")));
        QCOMPARE(boxes.texts,
                 QStringList{"This plan has the database version 3.00, which is newer than this program knows (1.01). "
                             "It is opened as it is; saving may lose what the newer version keeps."});
        QCOMPARE(db->getVersion(), "3.00");
        QCOMPARE(show(db->staffs), "fname=Bell groupname= id=E1 infotype=staff lname=more note= phonenum=");
        QVector<ASAttribute> staff = planRecords("staff", "E2/G");
        QVERIFY(!db->saveStaffInfo(staff));
        QCOMPARE(rowsText("SELECT id, lname FROM t_staffinfo"), "E1,Bell");
    }
    // A configuration written by hand or by accident: wrong types, binary bytes, numbers out of
    // range. The program starts and shows its grid.
    void junkConfiguration()
    {
        QVERIFY(db->openDB(TestHome::file("config.db")) && writePlan("staff A/G | row G/S/1;1;1;1;1;1;1"));
        // "\\0" stands for a NUL byte, which a literal would end at.
        QByteArray junk = "language=@Variant(\\0\\0\\0\\x7f\\0\\0\\0\\x4junk)\ncolumns=!!not base64\x01\xfe\n"
                          "auto%20update=@Rect(1 2 3 4)\n[Options]\ncycle%20days=2000000000\n"
                          "show%20from%20week=\x02\x03\nwork%20week=\x01\xff,8,x\nuse%2024h=@Size(1 2)\n"
                          "[print%20settings]\npage%20margins=yes\n"
                          "print%20configure=<report><type0 title=\"\\0\x01\"\n";
        junk.replace("\\0", QByteArray(1, '\0'));
        QVERIFY(writeFile(getAppDataPath(0), junk.prepend("lastdb=" + TestHome::file("config.db").toUtf8() + "\n")));
        QCOMPARE(storedLanguage(), 0);
        QVERIFY(openStartDatabase());
        RosteraMain *window = openWindow();
        QVERIFY(window);
        // The span stops at the longest one the dialogs offer; every day counts as a work day.
        QCOMPARE(window->cycleDates.size(), 999);
        QCOMPARE(window->cycleDates.last(), window->cycleDates.first().addDays(998));
        delete new Reports(window); // which reads the print settings
        delete window;
    }
    void hugeCsv_data()
    {
        QTest::addColumn<QByteArray>("content");
        addColumns<int>({"records", "longest"});
        const QByteArray header = "id,fname,lname,groupname\r\n";
        QTest::newRow("100,000 lines") << header + QByteArray("E,Ann,Bell,G\r\n").repeated(100000) << 100000 << 4;
        QTest::newRow("one line of 10 MB") << header + "E," + QByteArray(10 << 20, 'x') + ",Bell,G" << 1 << (10 << 20);
        QTest::newRow("NUL bytes") << header + QByteArray(100000, '\0') + "\r\nE,\0\0,Bell,G" << 2 << 100000;
    }
    // Read whole, without a fault; what a save of such records meets is the store's matter.
    void hugeCsv()
    {
        QVERIFY(writeFile(TestHome::file("big.csv"), field<QByteArray>("content")));
        QVector<ASAttribute> read;
        QStringList keys = {"id", "fname", "lname", "groupname"};
        QVERIFY(infoImport(read, keys, TestHome::file("big.csv")));
        QCOMPARE(read.size(), field<int>("records"));
        int longestRead = 0;
        for (const ASAttribute &record : read)
            for (const QString &value : record.values())
                longestRead = qMax(longestRead, int(value.size()));
        QCOMPARE(longestRead, field<int>("longest"));
    }
};

int main(int argc, char **argv)
{
    TestHome home;
    // Started from a folder with no support folder beside it: no templates, no help.
    QByteArray program = (TestHome::path() + "/bare/bin/test_hostile").toLocal8Bit();
    argv[0] = program.data();
    QApplication app(argc, argv);
    TestHostile test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_hostile.moc"

#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QtTest>

#include "databasefixture.h"
#include "mainwindow/appstart.h"
#include "persistence/databasefunc.h"
#include "testhome.h"

namespace {

// The program of this test sits in a bundle of its own, so that it has its own templates.
QString templateFolder()
{
    return TestHome::path() + "/bundle/SharedSupport/datas";
}

void writeTemplate(const QString &name, const QByteArray &content)
{
    writeFile(templateFolder() + "/" + name, content);
}

const char *const kTemplateNames[] = {"groups_template.csv", "employees_template.csv", "shifts_template.csv",
                                      "permanentschedules_template.csv", "holidays_template.csv"};

void writeStandardTemplates()
{
    writeTemplate("groups_template.csv", "name,abbreviation,note\r\nAlpha,A,\r\nBeta,B,\r\n");
    writeTemplate("employees_template.csv", "fname,lname,id,groupname,phonenum,note\r\nAnn,Bell,S1,Alpha,1,\r\n");
    writeTemplate("shifts_template.csv", "name,abbreviation,starttm,endtm\r\nDay,D,08:00,16:00\r\n");
    writeTemplate("permanentschedules_template.csv", "groupname,shiftname,daystaffnum\r\nAlpha,Day,1;1;1;1;1;0;0\r\n");
    writeTemplate("holidays_template.csv", "name,date,days,repeat,valid\r\nNew Year,2025-01-01,1,1,1\r\n");
}

const QString kOldPermanent = "CREATE TABLE [t_permanentschedule] ([groupname] NVARCHAR(100),[shiftname] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[daystaffnum] NTEXT, primary key (groupname,shiftname))";
const QString kUpgradedPermanent = "CREATE TABLE [t_permanentschedule] ([groupname] NVARCHAR(100),[shiftname] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[daystaffnum] NTEXT, [employee_name] NVARCHAR(100), primary key (groupname,shiftname))";
const QStringList kOldRows = {"INSERT INTO t_permanentschedule VALUES ('North','Day','1;1;1;1;1;0;0')",
                              "INSERT INTO t_permanentschedule VALUES ('South','Night','<dt t=\"0\" stn=\"2;2\"/>')"};
const QList<QStringList> kUpgradedRows = {{"North", "Day", "1;1;1;1;1;0;0", ""}, {"South", "Night", "<dt t=\"0\" stn=\"2;2\"/>", ""}};

// A whole file of the older version: every table, t_permanentschedule with three columns.
QStringList oldFile()
{
    QStringList statements = kCreateStatements;
    statements[3] = kOldPermanent;
    statements << kOldRows << "INSERT INTO t_groupinfo (name) VALUES ('Own')";
    return statements;
}

QList<QStringList> permanentSql()
{
    return rows("SELECT sql FROM sqlite_master WHERE name='t_permanentschedule'");
}

} // namespace

class TestUpgrade : public QObject
{
    Q_OBJECT

private:
    static QString file(const QString &name) { return TestHome::path() + "/" + name; }

    // Opening another file and this one again runs the whole sequence on it.
    static bool reopen(const QString &path)
    {
        return getDB()->openDB(file("between.db")) && getDB()->openDB(path);
    }

    static void checkSuccessBox(const BoxAnswer &answer)
    {
        QCOMPARE(answer.texts(), QStringList{"Update database success!"});
        QCOMPARE(answer.titles(), QStringList{QString()});
        QCOMPARE(answer.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(answer.icon(), QMessageBox::Warning);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(QDir().mkpath(templateFolder()));
        useWarningBoxes();
    }

    void init()
    {
        writeStandardTemplates();
    }

    void upgradeByVersion_data()
    {
        QTest::addColumn<QStringList>("versionRows");
        QTest::addColumn<bool>("upgraded");
        QTest::newRow("1.00") << QStringList{"INSERT INTO t_version VALUES ('1.00')"} << true;
        QTest::newRow("no row") << QStringList() << true;
        QTest::newRow("empty text") << QStringList{"INSERT INTO t_version VALUES ('')"} << true;
        QTest::newRow("0.99") << QStringList{"INSERT INTO t_version VALUES ('0.99')"} << true;
        QTest::newRow("1.01") << QStringList{"INSERT INTO t_version VALUES ('1.01')"} << false;
    }

    void upgradeByVersion()
    {
        QFETCH(QStringList, versionRows);
        QFETCH(bool, upgraded);
        const QString path = file(QString("version-%1.db").arg(QTest::currentDataTag()));
        QVERIFY(makeFile(path, oldFile() + versionRows));

        BoxAnswer answer;
        QVERIFY(getDB()->openDB(path));
        QCOMPARE(rows("SELECT * FROM t_version"), QList<QStringList>{{"1.01"}});
        // Existing tables are never seeded.
        QCOMPARE(rows("SELECT name FROM t_groupinfo"), QList<QStringList>{{"Own"}});
        if (!upgraded) {
            QCOMPARE(answer.shown(), 0);
            QCOMPARE(permanentSql(), QList<QStringList>{{kOldPermanent}});
            return;
        }
        checkSuccessBox(answer);
        QCOMPARE(permanentSql(), QList<QStringList>{{kUpgradedPermanent}});
        QCOMPARE(rows("SELECT * FROM t_permanentschedule"), kUpgradedRows);
        QCOMPARE(getDB()->permanentSchedules.size(), 2);
        QCOMPARE(getDB()->permanentSchedules.at(1).attr("employee_name", QString("<absent>")), QString());

        // Once only.
        QVERIFY(reopen(path));
        QCOMPARE(answer.shown(), 1);
        QCOMPARE(rows("SELECT * FROM t_permanentschedule"), kUpgradedRows);
    }

    void permanentTableWithoutVersion()
    {
        // The missing t_version is made with "1.00" and the same run upgrades the file.
        const QString path = file("noversion.db");
        QVERIFY(makeFile(path, QStringList{kOldPermanent} + kOldRows));
        BoxAnswer answer;
        QVERIFY(getDB()->openDB(path));
        checkSuccessBox(answer);
        QCOMPARE(rows("SELECT * FROM t_version"), QList<QStringList>{{"1.01"}});
        QCOMPARE(permanentSql(), QList<QStringList>{{kUpgradedPermanent}});
        QCOMPARE(rows("SELECT * FROM t_permanentschedule"), kUpgradedRows);
        // The tables that were missing are created and seeded.
        QCOMPARE(rows("SELECT name FROM t_groupinfo"), (QList<QStringList>{{"Alpha"}, {"Beta"}}));
        QCOMPARE(rows("SELECT COUNT(*) FROM sqlite_master WHERE type='table'"), QList<QStringList>{{"9"}});
    }

    void fileThatIsNoDatabase()
    {
        const QString path = file("notes.db");
        QVERIFY(writeFile(path, QByteArray("Remember to order flour and yeast.\n").repeated(50)));
        const QByteArray before = fileHash(path);

        BoxAnswer answer;
        QVERIFY(getDB()->openDB(path));
        QCOMPARE(answer.texts(), QStringList{"Update database failed!"});
        QCOMPARE(answer.titles(), QStringList{QString()});
        QCOMPARE(answer.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(fileHash(path), before);
    }

    void failedUpgradeStillMovesTheVersion()
    {
        // The stored definition computes daystaffnum by a function that no connection has,
        // so reading the rows fails while the rest of the file works.
        const QString path = file("unreadable.db");
        QVERIFY(makeFile(path, oldFile() << "INSERT INTO t_version VALUES ('1.00')" << "PRAGMA writable_schema=ON"
                                          << "UPDATE sqlite_master SET sql='CREATE TABLE [t_permanentschedule] ([groupname] NVARCHAR(100),"
                                             "[shiftname] NVARCHAR(100) NOT NULL ON CONFLICT FAIL,[daystaffnum] AS (nosuchfunction(groupname)), "
                                             "primary key (groupname,shiftname))' WHERE name='t_permanentschedule'"));
        BoxAnswer answer;
        QVERIFY(getDB()->openDB(path));
        QCOMPARE(answer.texts(), QStringList{"Update database failed!"});
        QCOMPARE(rows("SELECT * FROM t_version"), QList<QStringList>{{"1.01"}});
        QVERIFY(permanentSql().value(0).value(0).contains("nosuchfunction"));

        QVERIFY(reopen(path));
        QCOMPARE(answer.shown(), 1);
    }

    void seedingOnlyForCreatedTables()
    {
        DatabaseFunc *db = getDB();
        const QString path = file("seeded.db");
        BoxAnswer answer;
        QVERIFY(db->openDB(path));
        QCOMPARE(rows("SELECT * FROM t_groupinfo"), (QList<QStringList>{{"Alpha", "A", ""}, {"Beta", "B", ""}}));
        QCOMPARE(rows("SELECT * FROM t_staffinfo"), (QList<QStringList>{{"S1", "Ann", "Bell", "Alpha", "1", ""}}));
        const QString copy = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/SettingDatas/shifts_template.csv";
        const QByteArray copied = fileHash(copy);
        QCOMPARE(copied, fileHash(templateFolder() + "/shifts_template.csv"));

        QVector<ASAttribute> none;
        QString error;
        QVERIFY(db->saveGroupInfo(none, error));
        QSqlQuery query(db->db);
        QVERIFY(query.exec("DROP TABLE t_shiftinfo"));
        writeTemplate("shifts_template.csv", "name,abbreviation,starttm,endtm\r\nLate,L,14:00,22:00\r\n");
        writeTemplate("groups_template.csv", "name,abbreviation,note\r\nGamma,G,\r\n");

        QVERIFY(reopen(path));
        QCOMPARE(answer.shown(), 0);
        QCOMPARE(rows("SELECT COUNT(*) FROM t_groupinfo"), QList<QStringList>{{"0"}});
        QVERIFY(db->groups.isEmpty());
        QCOMPARE(rows("SELECT * FROM t_shiftinfo"), (QList<QStringList>{{"Late", "L", "14:00", "22:00"}}));
        QCOMPARE(db->shifts.size(), 1);
        QCOMPARE(rows("SELECT * FROM t_staffinfo"), (QList<QStringList>{{"S1", "Ann", "Bell", "Alpha", "1", ""}}));
        // An existing copy is kept.
        QCOMPARE(fileHash(copy), copied);
    }

    void unusableTemplatesGiveEmptyTables_data()
    {
        QTest::addColumn<bool>("present");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("missing") << false << QByteArray();
        QTest::newRow("empty") << true << QByteArray();
        QTest::newRow("garbage") << true << QByteArray("\x01\x02\xff garbage;;;|\n\n\x7f\x03 more\r\n");
        QTest::newRow("commas") << true << QByteArray(",,,,,,\r\n,,,\r\n,,,,,,,,,,,,\r\n");
    }

    void unusableTemplatesGiveEmptyTables()
    {
        QFETCH(bool, present);
        QFETCH(QByteArray, content);
        for (const char *name : kTemplateNames) {
            QFile::remove(templateFolder() + "/" + name);
            if (present)
                writeTemplate(name, content);
        }
        BoxAnswer answer;
        QVERIFY(getDB()->openDB(file(QString("templates-%1.db").arg(QTest::currentDataTag()))));
        QCOMPARE(answer.shown(), 0);
        QCOMPARE(getDB()->getVersion(), QString("1.01"));
        for (const char *table : {"t_groupinfo", "t_staffinfo", "t_shiftinfo", "t_permanentschedule", "t_holidayinfo"})
            QCOMPARE(rows(QString("SELECT COUNT(*) FROM %1").arg(table)), QList<QStringList>{{"0"}});
        QVERIFY(getDB()->groups.isEmpty());
        QVERIFY(getDB()->permanentSchedules.isEmpty());
    }

    void templateInAnotherEncoding()
    {
        // Bytes that the locale's encoding can't read are replaced; the row is seeded all the same.
        const QByteArray latin1 = "name,abbreviation,note\r\nCaf\xe9,C,\xab" "fresh\xbb\r\n";
        writeTemplate("groups_template.csv", latin1);
        BoxAnswer answer;
        QVERIFY(getDB()->openDB(file("latin1.db")));
        QCOMPARE(answer.shown(), 0);
        QCOMPARE(rows("SELECT * FROM t_groupinfo"),
                 (QList<QStringList>{{QString::fromLocal8Bit("Caf\xe9"), "C", QString::fromLocal8Bit("\xab" "fresh\xbb")}}));
        QCOMPARE(getDB()->groups.size(), 1);
    }

    void cleanupTestCase()
    {
        getDB()->closeDB();
    }
};

int main(int argc, char **argv)
{
    TestHome home;
    QByteArray program = (TestHome::path() + "/bundle/bin/test_upgrade").toLocal8Bit();
    QVector<char *> args{program.data()};
    for (int i = 1; i < argc; ++i)
        args << argv[i];
    int count = args.size();
    args << nullptr;
    QApplication app(count, args.data());
    TestUpgrade tc;
    return QTest::qExec(&tc, argc, argv);
}

#include "test_upgrade.moc"

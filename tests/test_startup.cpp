// Program start: language choice, translators, data folders, the first database.
#include "testhome.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

#include "core/apppaths.h"
#include "core/helpers.h"
#include "databasefixture.h"
#include "mainwindow/appstart.h"
#include "persistence/databasefunc.h"

class TestStartup : public QObject
{
    Q_OBJECT
private slots:
    void languageCode_data();
    void languageCode();
    void storedLanguage_data();
    void storedLanguage();
    void dataPathsAreCreated();
    void supportPathIsBesideProgramFolder();
    void failedStartDatabaseWarns();
    void startDatabaseUsesLastDb();
    void garbageConfigurationFile();
    // Last: the translators it installs stay for the rest of the run.
    void translatorsComeFromResources();
};

void TestStartup::languageCode_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("code");
    QTest::newRow("system german") << 0 << "de_DE" << "de";
    QTest::newRow("system english needs none") << 0 << "en_US" << "";
    QTest::newRow("system unknown") << 0 << "nl_NL" << "";
    QTest::newRow("system zh_CN") << 0 << "zh_CN" << "zh_cn";
    QTest::newRow("system zh_TW") << 0 << "zh_TW" << "zh_tw";
    QTest::newRow("system zh_SG") << 0 << "zh_SG" << "zh_cn";
    QTest::newRow("system zh_HK") << 0 << "zh_HK" << "zh_tw";
    QTest::newRow("system zh_MO") << 0 << "zh_MO" << "zh_tw";
    QTest::newRow("system japanese") << 0 << "ja_JP" << "ja";
    QTest::newRow("english ignores locale") << 1 << "de_DE" << "";
    QTest::newRow("2 is german") << 2 << "en_US" << "de";
    QTest::newRow("4 is japanese") << 4 << "en_US" << "ja";
    QTest::newRow("7 is spanish") << 7 << "en_US" << "es";
    QTest::newRow("8 is italian") << 8 << "en_US" << "it";
    QTest::newRow("10 is traditional chinese") << 10 << "en_US" << "zh_tw";
    QTest::newRow("11 is none") << 11 << "de_DE" << "";
    QTest::newRow("negative is none") << -1 << "de_DE" << "";
}

void TestStartup::languageCode()
{
    QFETCH(int, language);
    QFETCH(QString, locale);
    QFETCH(QString, code);
    QCOMPARE(chooseLanguageCode(language, locale), code);
}

void TestStartup::storedLanguage_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("language");
    QTest::newRow("missing") << QByteArray() << 0;
    QTest::newRow("number") << QByteArray("language=4") << 4;
    QTest::newRow("out of range") << QByteArray("language=99") << 99;
    QTest::newRow("empty") << QByteArray("language=") << 0;
    QTest::newRow("word") << QByteArray("language=german") << 0;
    QTest::newRow("fraction") << QByteArray("language=2.5") << 0;
    QTest::newRow("list") << QByteArray("language=2, 3") << 0;
}

// Whatever the file holds, a number comes out; only a real number picks a language.
void TestStartup::storedLanguage()
{
    QFETCH(QByteArray, line);
    QFETCH(int, language);
    QVERIFY(writeFile(getAppDataPath(0), "[General]\n" + line + "\n"));
    QCOMPARE(::storedLanguage(), language);
    QVERIFY(QFile::remove(getAppDataPath(0)));
}

// A configuration file of binary junk gives the defaults: the first-start database.
void TestStartup::garbageConfigurationFile()
{
    static const char junk[] = "\x01\xff[[=\n\x00\x00lastdb\xfe\n=====\n[Options\nlanguage\n";
    QVERIFY(writeFile(getAppDataPath(0), QByteArray(junk, sizeof junk - 1).repeated(20)));
    QCOMPARE(::storedLanguage(), 0);
    BoxAnswer answer;
    QVERIFY(openStartDatabase());
    QCOMPARE(answer.shown(), 0);
    QCOMPARE(getDB()->getDBName(), getAppDataPath(1) + "/default.db");
    getDB()->closeDB();
    QVERIFY(QFile::remove(getAppDataPath(0)));
}

void TestStartup::translatorsComeFromResources()
{
    // Qt's own texts are compiled in for every language but Italian.
    for (const QString code : {"de", "es", "fr", "ja", "pl", "ru", "zh_cn", "zh_tw"}) {
        QTranslator qt;
        QVERIFY2(qt.load(":/qt_" + code + ".qm", ".", "", ""), qPrintable(code));
        QVERIFY(!qt.isEmpty());
    }
    QVERIFY(!QFile::exists(":/qt_it.qm"));
    for (const QString code : {"de", "es", "fr", "it", "ja", "pl", "ru", "zh_cn", "zh_tw"})
        QVERIFY2(QFile::exists(":/rostera_" + code + ".qm"), qPrintable(code));

    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Cancel"));
    QCOMPARE(QObject::tr("Open Database Failed!"), QString("Open Database Failed!"));
    installTranslators("");
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Cancel"));
    installTranslators("de");
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Abbrechen"));
    QVERIFY(QObject::tr("Open Database Failed!") != QString("Open Database Failed!"));
    // The week-day names were fixed before any translator existed; "Error" is looked up each time.
    QCOMPARE(getWeekDes(7), QString("Sunday"));
    QCOMPARE(getWeekDes(0), QString("Fehler"));
}

void TestStartup::dataPathsAreCreated()
{
    const QString root = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QVERIFY(root.startsWith(TestHome::path()));
    QVERIFY(root.endsWith("/TavrelinSoftware/Rostera"));
    QCOMPARE(getAppDataPath(0), root + "/ConfigData/config.ini");
    QVERIFY(QDir(root + "/ConfigData").exists());
    QCOMPARE(getAppDataPath(1), root + "/ScheduleDatas");
    QVERIFY(QDir(root + "/ScheduleDatas").exists());
    QCOMPARE(getAppDataPath(2), root + "/SettingDatas");
    QVERIFY(QDir(root + "/SettingDatas").exists());
    QCOMPARE(getAppDataPath(3), root);
}

void TestStartup::supportPathIsBesideProgramFolder()
{
    // The test program lives in <build>/tests, so the support folder is <build>/SharedSupport.
    QDir build(QCoreApplication::applicationDirPath());
    build.cdUp();
    QCOMPARE(getAppPath(), build.path() + "/SharedSupport");
    QVERIFY(QFile::exists(getAppPath() + "/datas/groups_template.csv"));
}

void TestStartup::failedStartDatabaseWarns()
{
    QSettings(getAppDataPath(0), QSettings::IniFormat).setValue("lastdb", TestHome::path() + "/missing/dir/plan.db");
    BoxAnswer answer;
    QVERIFY(!openStartDatabase());
    QCOMPARE(answer.texts(), QStringList{"Open Database Failed!"});
    QCOMPARE(answer.titles(), QStringList{QString()});
    QCOMPARE(answer.icon(), QMessageBox::Warning);
    QCOMPARE(answer.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(getDB()->getDBName(), QString());
}

void TestStartup::startDatabaseUsesLastDb()
{
    QSettings(getAppDataPath(0), QSettings::IniFormat).remove("lastdb");
    BoxAnswer answer;
    QVERIFY(openStartDatabase());
    QCOMPARE(answer.shown(), 0);
    QCOMPARE(getDB()->getDBName(), getAppDataPath(1) + "/default.db");
    QVERIFY(QFile::exists(getAppDataPath(1) + "/default.db"));
    QCOMPARE(QSettings(getAppDataPath(0), QSettings::IniFormat).value("lastdb").toString(),
             getAppDataPath(1) + "/default.db");
    getDB()->closeDB();
}

ROSTERA_TEST_MAIN(TestStartup)
#include "test_startup.moc"

// The main window over a real file: its language menu and the database commands.
#include "fixture.h"
#include "ui_rosteramain.h"

#include <QActionGroup>

#include "mainwindow/appstart.h"

class TestWindow : public QObject
{
    Q_OBJECT
    RosteraMain *window = nullptr;
    QString defaultDb;
private slots:
    void initTestCase()
    {
        QVERIFY(getDB()->openDB(QString()));
        defaultDb = getDB()->getDBName();
    }
    // A fresh configuration per test.
    void init()
    {
        QFile::remove(getAppDataPath(0));
        QVERIFY(getDB()->openDB(defaultDb));
        QVERIFY((window = openWindow()));
    }
    void cleanup() { delete window; }
    // Whatever the file holds, a number comes out, and the menu checks the entry at that place.
    void languageMenu()
    {
        for (const QString &row : {"|0|action_lan_system", "language=10|10|action_lan_tw", "language=11|11|",
                                   "language=-1|-1|", "language=2.5|0|action_lan_system"}) {
            const QStringList f = row.split('|');
            QVERIFY(writeFile(getAppDataPath(0), "[General]\n" + f[0].toUtf8() + "\n"));
            QCOMPARE(::storedLanguage(), f[1].toInt());
            delete window;
            window = new RosteraMain;
            const QActionGroup *group = window->ui->action_lan_de->actionGroup();
            QCOMPARE(group->checkedAction() ? group->checkedAction()->objectName() : "", f[2]);
        }
        Boxes boxes;
        window->ui->action_lan_de->trigger();
        window->ui->action_lan_de->trigger(); // the stored choice again: no message, still checked
        QVERIFY(window->ui->action_lan_de->isChecked());
        window->ui->action_lan_tw->trigger();
        QCOMPARE(window->ui->action_lan_de->actionGroup()->checkedAction(), window->ui->action_lan_tw);
        QCOMPARE(config().value("language").toInt(), 10);
        QCOMPARE(boxes.texts, QStringList(2, "Language change will take effect after the restart of the software."));
        QCOMPARE(boxes.icons.value(0), QMessageBox::Information);
    }
    void databaseFiles()
    {
        const QString second = getAppDataPath(1) + "/second.db";
        QVERIFY(getDB()->openDB(second) && writePlan("group Solo | staff Z1/Solo") && getDB()->openDB(defaultDb));
        Boxes boxes({QMessageBox::Ok, QMessageBox::Yes});
        QStringList dialog;
        answerFileDialog(second, &dialog);
        window->ui->actionOpen_Database->trigger();
        // The dialog starts where the last database lies.
        QCOMPARE(dialog, (QStringList{"Open Database", "DB File(*.db)", getAppDataPath(1)}));
        QCOMPARE(window->windowTitle() + " " + window->rowLabels.join(",") + " " + config().value("lastdb").toString(),
                 "Rostera-second Solo--Z1 " + second);
        // A path longer than the database library takes does not open: the previous file stays.
        const QString folder = TestHome::file(QStringList(3, QString(200, 'a')).join('/'));
        QVERIFY(QDir().mkpath(folder) && QFile::copy(defaultDb, folder + "/plan.db"));
        answerFileDialog(folder + "/plan.db", &dialog);
        window->ui->actionOpen_Database->trigger();
        QCOMPARE(boxes.texts, QStringList{"Open database failed!"});
        QCOMPARE(getDB()->getDBName(), second);
        // Save As copies the file and never overwrites, even after the dialog's own Yes to replace.
        answerFileDialog(defaultDb, &dialog);
        window->ui->actionSave_Database->trigger();
        QCOMPARE(dialog, (QStringList{"Save As Database", "DB File(*.db)", getAppDataPath(1)}));
        QCOMPARE(boxes.texts.last() + boxes.titles.last(), QString("Save as database failed!"));
        QCOMPARE(getDB()->getDBName(), second);
        answerFileDialog(getAppDataPath(1) + "/my.copy.db", &dialog);
        window->ui->actionSave_Database->trigger();
        // The title stops at the first dot.
        QCOMPARE(window->windowTitle() + " " + window->rowLabels.join(",") + " " + config().value("lastdb").toString(),
                 "Rostera-my Solo--Z1 " + getAppDataPath(1) + "/my.copy.db");
        QCOMPARE(boxes.texts.size(), 3);
    }
};

ROSTERA_TEST_MAIN(TestWindow)
#include "test_window.moc"

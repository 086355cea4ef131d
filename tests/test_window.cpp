// The main window over a real file: its language menu, the database commands and the update check at start.
#include "fixture.h"

#include <QtNetwork>

#include "ui_softupdate.h"
#include "update/softupdate.h"

class TestWindow : public QObject
{
    Q_OBJECT
    RosteraMain *window = nullptr;
    QString defaultDb;
    // A loopback update host: each path gets its canned answer; a path without one is closed unanswered.
    QTcpServer host;
    QMap<QByteArray, QByteArray> answers;
private slots:
    void initTestCase()
    {
        QVERIFY(getDB()->openDB(QString()));
        defaultDb = getDB()->getDBName();
        QVERIFY(host.listen(QHostAddress::LocalHost));
        connect(&host, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = host.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                const QByteArray answer = answers.value(socket->readAll().split(' ').value(1));
                answer.isEmpty() ? socket->close() : void(socket->write(answer));
            });
        });
    }
    // A fresh configuration per test.
    void init()
    {
        QFile::remove(getAppDataPath(0));
        QVERIFY(getDB()->openDB(defaultDb));
        QVERIFY((window = openWindow()));
    }
    void cleanup() { delete window; }
    // A new choice is stored and said to need a restart; the stored one again says nothing.
    void languageMenu()
    {
        Boxes boxes;
        window->ui->action_lan_de->trigger();
        window->ui->action_lan_de->trigger(); // the stored choice again: no message, still checked
        QVERIFY(window->ui->action_lan_de->isChecked());
        window->ui->action_lan_tw->trigger();
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
    // With the option unset (on), a newer version opens the dialog, whose check box turns the option off and
    // whose Close button closes it.
    void autoUpdate()
    {
        answers = {{SoftUpdate::versionFile,
                    "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: 8\r\n\r\n[99.1.1]"}};
        SoftUpdate::server = QString("http://127.0.0.1:%1").arg(host.serverPort());
        config().remove("auto update");
        bool closed = false;
        whenDialogOpens<SoftUpdate>([&closed](SoftUpdate *dialog) {
            QTest::mouseClick(dialog->ui->ck_autoDetect, Qt::LeftButton);
            QTest::mouseClick(dialog->ui->btn_close, Qt::LeftButton);
            closed = !dialog->isVisible();
            dialog->reject(); // where the button failed, so that the test goes on
        });
        window->checkUpdate();
        QTRY_COMPARE(config().value("auto update"), QVariant(false));
        QVERIFY(closed);
        SoftUpdate::server = "http://127.0.0.1:1";
    }
};

ROSTERA_TEST_MAIN(TestWindow)
#include "test_window.moc"

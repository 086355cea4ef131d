#include <QDesktopServices>
#include <QtNetwork>
#include <sys/stat.h>

#include "core/apppaths.h"
#include "fixture.h"
#include "mainwindow/rosteramain.h"
#include "ui_rosteramain.h"
#include "ui_softupdate.h"
#include "update/softupdate.h"

static QByteArray http(const QByteArray &body, int length = -1)
{
    return "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: "
           + QByteArray::number(length < 0 ? body.size() : length) + "\r\n\r\n" + body;
}

// A loopback update host: each path gets its canned answer and the connection stays open; a path without one
// is closed unanswered. The program's version is the date of its file, here 9 May 2013, so 3.5.9.
class UpdateTest : public QObject
{
    Q_OBJECT
    QTcpServer host;
    QMap<QByteArray, QByteArray> answers;
    QPointer<QTcpSocket> last;
    QList<QUrl> opened;
    RosteraMain *window = nullptr;
    const QString tmp = TestHome::path() + "/tmp", hostUrl = "http://127.0.0.1:%1";

public slots:
    void openUrl(const QUrl &url) { opened << url; }

private slots:
    void initTestCase()
    {
        const timespec date = {QDateTime(QDate(2013, 5, 9), QTime(12, 0)).toSecsSinceEpoch(), 0};
        const timespec dates[] = {date, date};
        QVERIFY(utimensat(0, QFile::encodeName(QCoreApplication::applicationFilePath()), dates, 0) == 0);
        QVERIFY(host.listen(QHostAddress::LocalHost));
        connect(&host, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = last = host.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                const QByteArray answer = answers.value(socket->readAll().split(' ').value(1));
                answer.isEmpty() ? socket->close() : void(socket->write(answer));
            });
        });
        QDesktopServices::setUrlHandler("file", this, "openUrl");
        QVERIFY(QDir().mkpath(tmp) && (window = openWindow()));
    }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler("file"); }
    // One path for all: the start-up check (its option off) and the dialog read the version file, the update
    // button downloads into the temporary folder (in "no folder" a file), the close button ends, asking while
    // a download runs (answered No, then Yes).
    void update_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("installer");
        for (const char *column : {"folder", "shown", "offered"})
            QTest::addColumn<QString>(column);
        QTest::addColumn<int>("progress");
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<qint64>("bytes");
        const auto row = [](const char *tag, const QByteArray &file, const QString &shown,
                            const QByteArray &installer = {}, const QString &offered = {}, int progress = 0,
                            const QStringList &messages = {}, qint64 bytes = 0, const QString &folder = {}) {
            QTest::newRow(tag) << file << installer << folder << shown << offered << progress << messages << bytes;
        };
        const QString cancel = "Being updated, you want to cancel?", notes = "[4.1.1]\nFaster.";
        const QByteArray v = notes.toLatin1();
        row("equal", "[3.5.9]\nNotes", "[3.5.9]\nNotes");
        row("blank first", " [4.1.1]", " [4.1.1]");
        row("too long", "[10.12.31.99]", "[10.12.31.99]");
        row("nul byte", QByteArray("[4.1\0.1] x", 10), "[4.1");
        row("closed port", {}, "");
        row("installer", v, notes, http(QByteArray(10001, 'x')), "4.1.1", 100,
            {"Download update file finish\nThe update file is in " + tmp}, 10001);
        row("error page", v, notes, http(QByteArray(10000, 'x')), "4.1.1", 100, {"Download file failed"}, 10000);
        row("no answer", "[1.1.1.1]", "[1.1.1.1]", {}, "1.1.1.1", 0, {"Download error"});
        row("no folder", v, notes, http("x"), "4.1.1", 0, {"Create update file failed"}, 0,
            QCoreApplication::applicationFilePath());
        row("cancelled", v, notes, http(QByteArray(2000, 'x'), 50000), "4.1.1", 4, {cancel, cancel}, 2000);
    }
    void update()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, installer);
        QFETCH(QString, folder);
        QFETCH(QString, offered);
        QFETCH(int, progress);
        QFETCH(QStringList, messages);
        answers = {{SoftUpdate::versionFile, http(file)}, {SoftUpdate::installerFile, installer}};
        SoftUpdate::server = hostUrl.arg(file.isEmpty() ? 1 : host.serverPort());
        qputenv("TMPDIR", (folder.isEmpty() ? tmp : folder).toUtf8());
        QFile::remove(tmp + "/rtrupdate.exe");
        opened.clear();
        config().setValue("auto update", false);
        window->ui->action_Update->setVisible(false);
        window->checkUpdate();
        SoftUpdate dialog;
        dialog.show();
        QTRY_VERIFY(!dialog.versionReply && !window->findChild<QNetworkAccessManager *>());
        QCOMPARE(dialog.ui->lab_version->text(),
                 offered.isEmpty() ? QString("Current[3.5.9] is the latest version")
                                   : QString("New version[%1] available, current version[3.5.9]").arg(offered));
        QTEST(dialog.ui->ed_versionText->toPlainText(), "shown");
        QCOMPARE(window->ui->action_Update->isVisible(), !offered.isEmpty());
        QCOMPARE(dialog.ui->btn_update->isEnabled(), !offered.isEmpty());
        Boxes boxes({QMessageBox::No, QMessageBox::Yes});
        QTest::mouseClick(dialog.ui->btn_update, Qt::LeftButton);
        const int questions = messages.filter("cancel?").size();
        QTRY_VERIFY(questions ? dialog.ui->progressBar->value() == progress : boxes.texts.size() == messages.size());
        QTRY_VERIFY(!QApplication::activeModalWidget());
        for (int click = 0; click < 2 && dialog.isVisible(); ++click)
            QTest::mouseClick(dialog.ui->btn_close, Qt::LeftButton);
        QTRY_VERIFY(!dialog.isVisible() && (!last || last->state() == QAbstractSocket::UnconnectedState));
        QCOMPARE(boxes.texts, messages);
        QCOMPARE(boxes.titles, QStringList(messages.size(), questions ? "Software Update" : ""));
        QCOMPARE(dialog.ui->progressBar->value(), progress);
        QTEST(QFileInfo(tmp + "/rtrupdate.exe").size(), "bytes");
        const bool finished = messages.value(0).startsWith("Download update file finish");
        QCOMPARE(opened, QList<QUrl>(finished, QUrl::fromLocalFile(tmp)));
    }
    // With the option unset (on), a newer version opens the dialog, whose check box turns the option off.
    void autoUpdate()
    {
        answers = {{SoftUpdate::versionFile, http("[4.1.1]")}};
        SoftUpdate::server = hostUrl.arg(host.serverPort());
        config().remove("auto update");
        whenDialogOpens<SoftUpdate>([](SoftUpdate *dialog) {
            QTest::mouseClick(dialog->ui->ck_autoDetect, Qt::LeftButton);
            dialog->reject();
        });
        window->checkUpdate();
        QTRY_COMPARE(config().value("auto update"), QVariant(false));
    }
};

ROSTERA_TEST_MAIN(UpdateTest)
#include "test_update.moc"

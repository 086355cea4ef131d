#include <QtNetwork>
#include <sys/stat.h>

#include "fixture.h"
#include "ui_rosteramain.h"
#include "ui_softupdate.h"
#include "update/softupdate.h"

static QByteArray http(const QByteArray &body)
{
    return "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n"
           + body;
}

// A loopback update host: each path gets its canned answer and the connection stays open; a path without one
// is closed unanswered. The program's version is the date of its file, here 9 May 2013, so 3.5.9.
class UpdateTest : public QObject
{
    Q_OBJECT
    QTcpServer host;
    QMap<QByteArray, QByteArray> answers;
    RosteraMain *window = nullptr;

private slots:
    void initTestCase()
    {
        const timespec date = {QDateTime(QDate(2013, 5, 9), QTime(12, 0)).toSecsSinceEpoch(), 0};
        const timespec dates[] = {date, date};
        QVERIFY(utimensat(0, QFile::encodeName(QCoreApplication::applicationFilePath()), dates, 0) == 0);
        QVERIFY(host.listen(QHostAddress::LocalHost));
        connect(&host, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = host.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                const QByteArray answer = answers.value(socket->readAll().split(' ').value(1));
                answer.isEmpty() ? socket->close() : void(socket->write(answer));
            });
        });
        QVERIFY((window = openWindow()));
    }
    // With the option unset (on), a newer version opens the dialog, whose check box turns the option off.
    void autoUpdate()
    {
        answers = {{SoftUpdate::versionFile, http("[4.1.1]")}};
        SoftUpdate::server = QString("http://127.0.0.1:%1").arg(host.serverPort());
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

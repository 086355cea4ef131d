#include "update/softupdate.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QNetworkReply>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>

#include "core/appinfo.h"
#include "core/apppaths.h"
#include "core/helpers.h"
#include "ui_softupdate.h"

// The vendor's web host serves the updates, over plain HTTP on port 80.
QString SoftUpdate::server = QStringLiteral("http://") + QLatin1String(AppInfo::webHost);

// Anything this size or smaller is an error page rather than an installer; the status of the
// response is not looked at.
static const qint64 minimumInstallerBytes = 10000;

QUrl SoftUpdate::updateUrl(const char *path)
{
    return QUrl(server + QLatin1String(path));
}

QString SoftUpdate::currentVersion()
{
    // Deliberately no fixed number: the offered versions are dates too, and a new file is a new version.
    const QDate date = QFileInfo(QCoreApplication::applicationFilePath()).lastModified().date();
    return QStringLiteral("%1.%2.%3").arg(date.year() - 2010).arg(date.month()).arg(date.day());
}

QString SoftUpdate::offeredVersion(const QString &text)
{
    QString head = text.left(10);
    const int close = head.indexOf(QLatin1Char(']'));
    if (close >= 0)
        head.truncate(close + 1);
    if (!head.startsWith(QLatin1Char('[')) || !head.endsWith(QLatin1Char(']')))
        return QString();
    return head.mid(1, head.size() - 2);
}

SoftUpdate::SoftUpdate(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_SoftUpdate)
{
    ui->setupUi(this);
    ui->ck_autoDetect->setChecked(
        QSettings(getAppDataPath(0), QSettings::IniFormat).value("auto update", true).toBool());
    connect(ui->btn_close, &QPushButton::clicked, this, &SoftUpdate::reject);

    // Asked anew at every display, whatever the start-up check found.
    versionReply = network.get(QNetworkRequest(updateUrl(versionFile)));
    connect(versionReply, &QNetworkReply::finished, this, &SoftUpdate::ifUpdate);

    ui->progressBar->setValue(0);
    ui->btn_update->setEnabled(false);
    ui->progressBar->setEnabled(false);
}

SoftUpdate::~SoftUpdate()
{
    closeUpdate();
    delete ui;
}

void SoftUpdate::ifUpdate()
{
    QByteArray body = versionReply->readAll();
    versionReply->deleteLater();
    versionReply = nullptr;
    const int nul = body.indexOf('\0');
    if (nul >= 0)
        body.truncate(nul);
    const QString text = QString::fromLatin1(body);

    // A failed request leaves an empty text, which reads as "latest": the check has no message of its own.
    const QString current = currentVersion();
    const QString offered = offeredVersion(text);
    updatable = cmpVersion(offered, current);
    ui->lab_version->setText(updatable ? tr("New version[%1] available, current version[%2]").arg(offered, current)
                                       : tr("Current[%1] is the latest version").arg(current));
    ui->ed_versionText->setPlainText(text);
    ui->btn_update->setEnabled(updatable);
    ui->progressBar->setEnabled(updatable);
}

void SoftUpdate::on_ck_autoDetect_clicked()
{
    QSettings(getAppDataPath(0), QSettings::IniFormat).setValue("auto update", ui->ck_autoDetect->isChecked());
}

void SoftUpdate::on_btn_update_clicked()
{
    if (downloading)
        return;
    downloadReply = network.get(QNetworkRequest(updateUrl(installerFile)));
    connect(downloadReply, &QNetworkReply::readyRead, this, &SoftUpdate::readyRead);
    connect(downloadReply, &QNetworkReply::finished, this, &SoftUpdate::stopDownload);
    downloading = true;
    downloadedBytes = 0;
}

void SoftUpdate::readyRead()
{
    if (!downloadFile) {
        downloadPath = QStandardPaths::writableLocation(QStandardPaths::TempLocation) + QStringLiteral("/rtrupdate.exe");
        downloadFile = new QFile(downloadPath);
        if (!downloadFile->open(QIODevice::WriteOnly))
            return fail(tr("Create update file failed"));
    }
    char block[1024];
    qint64 size = 0;
    while ((size = downloadReply->read(block, sizeof block)) > 0) {
        if (downloadFile->write(block, size) != size)
            return fail(tr("Write update file failed"));
        downloadedBytes += size;
    }
    // Counted here rather than from the reply's own progress signal, which is throttled and comes before the data.
    progress(downloadedBytes, downloadReply->header(QNetworkRequest::ContentLengthHeader).toLongLong());
}

void SoftUpdate::progress(qint64 done, qint64 total)
{
    // A server that sends no length leaves the bar alone.
    if (downloadFile && downloadFile->isOpen() && total > 0)
        ui->progressBar->setValue(int(done * 100 / total));
}

void SoftUpdate::stopDownload()
{
    downloading = false;
    if (downloadReply->error() != QNetworkReply::NoError)
        return fail(tr("Download error"));
    if (downloadedBytes <= minimumInstallerBytes)
        return fail(tr("Download file failed"));

    ui->progressBar->setValue(100);
#ifdef Q_OS_WIN
    QMessageBox::warning(this, QString(), tr("Download update file finish\nupdate process will start automatically"),
                         QMessageBox::Ok);
#else
    const QString folder = QFileInfo(downloadPath).absolutePath();
    QMessageBox::warning(this, QString(),
                         tr("Download update file finish\nThe update file is in %1").arg(QDir::toNativeSeparators(folder)),
                         QMessageBox::Ok);
#endif
    const bool present = QFile::exists(downloadPath);
    closeUpdate();
    if (!present)
        return;
#ifdef Q_OS_WIN
    // The quotes belong to the strings: the installer reads the program's folder from "-D".
    QProcess::startDetached(QStringLiteral("\"%1\"").arg(downloadPath),
                            {QStringLiteral("\"-D%1\"").arg(QCoreApplication::applicationDirPath())});
    QCoreApplication::exit(0);
#else
    // The installer is a Windows program and is never started here: the user gets its folder instead.
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
    accept();
#endif
}

void SoftUpdate::fail(const QString &text)
{
    // Stopped before the box is shown, so that no more data arrive while it is open.
    closeUpdate();
    QMessageBox::warning(this, QString(), text, QMessageBox::Ok);
}

void SoftUpdate::closeUpdate()
{
    // The partial file stays on disk; its path and the byte count are kept.
    if (downloadReply) {
        downloadReply->disconnect(this);
        downloadReply->abort();
        downloadReply->deleteLater();
        downloadReply = nullptr;
    }
    if (downloadFile) {
        downloadFile->close();
        delete downloadFile;
        downloadFile = nullptr;
    }
    downloading = false;
}

void SoftUpdate::reject()
{
    if (downloading
        && QMessageBox::question(this, tr("Software Update"), tr("Being updated, you want to cancel?"),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
               != QMessageBox::Yes)
        return;
    closeUpdate();
    QDialog::reject();
}

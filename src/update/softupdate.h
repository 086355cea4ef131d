#pragma once

#include <QDialog>
#include <QNetworkAccessManager>
#include <QString>
#include <QUrl>

class QFile;
class QNetworkReply;
class Ui_SoftUpdate;

// Shows the version the update host offers with its notes, and downloads the installer.
class SoftUpdate : public QDialog
{
    Q_OBJECT
public:
    explicit SoftUpdate(QWidget *parent = nullptr);
    ~SoftUpdate() override;

    // Where the update host is reached. The program never changes it; tests point it at a
    // server of their own.
    static QString server;
    static constexpr const char *versionFile = "/softupdate/rtr/rtrversion.txt";
    static constexpr const char *installerFile = "/softupdate/rtr/rtrupdate.exe";
    static QUrl updateUrl(const char *path);
    // The version of the running program, taken from the date of its file: year - 2010, month, day.
    static QString currentVersion();
    // The version in brackets at the start of the version file, or an empty text. Only the first
    // ten characters count and nothing is trimmed, so a blank before the bracket spoils it.
    static QString offeredVersion(const QString &text);

    void closeUpdate();

    bool downloading = false;
    bool updatable = false;
    QNetworkAccessManager network;
    QNetworkReply *versionReply = nullptr;
    QNetworkReply *downloadReply = nullptr;
    QFile *downloadFile = nullptr;
    QString downloadPath;
    qint64 downloadedBytes = 0;
    Ui_SoftUpdate *ui = nullptr;

public slots:
    void ifUpdate();
    void on_ck_autoDetect_clicked();
    void on_btn_update_clicked();
    void readyRead();
    void progress(qint64 done, qint64 total);
    void stopDownload();
    void reject() override;

private:
    void fail(const QString &text);
};

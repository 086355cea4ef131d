#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSettings>

#include "core/apppaths.h"
#include "core/helpers.h"
#include "mainwindow/rosteramain.h"
#include "ui_rosteramain.h"
#include "update/softupdate.h"

void RosteraMain::checkUpdate()
{
    // The window goes on at once; the answer arrives in ifUpdate.
    auto *manager = new QNetworkAccessManager(this);
    QNetworkReply *reply = manager->get(QNetworkRequest(SoftUpdate::updateUrl(SoftUpdate::versionFile)));
    connect(reply, &QNetworkReply::finished, this, &RosteraMain::ifUpdate);
}

void RosteraMain::ifUpdate()
{
    auto *reply = qobject_cast<QNetworkReply *>(sender());
    if (!reply)
        return;
    // The manager served this one request; the reply goes with it.
    reply->manager()->deleteLater();
    // Only the head of the file matters here; a failed request reads as empty and ends silently.
    const QByteArray head = reply->read(10);
    if (!cmpVersion(SoftUpdate::offeredVersion(QString::fromLatin1(head.constData())), SoftUpdate::currentVersion()))
        return;
    ui->action_Update->setVisible(true);
    if (QSettings(getAppDataPath(0), QSettings::IniFormat).value("auto update", true).toBool())
        on_action_Update_triggered();
}

void RosteraMain::on_action_Update_triggered()
{
    SoftUpdate dialog(this);
    dialog.exec();
}

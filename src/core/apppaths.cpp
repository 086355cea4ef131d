#include "core/apppaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

QString getAppDataPath(int kind)
{
    QString path = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    switch (kind) {
    case 0: path += "/ConfigData"; break;
    case 1: path += "/ScheduleDatas"; break;
    case 2: path += "/SettingDatas"; break;
    default: break;
    }
    QDir().mkpath(path);
    return kind == 0 ? path + "/config.ini" : path;
}

QString getAppPath()
{
    const QStringList args = QCoreApplication::arguments();
    QDir dir(QFileInfo(args.value(0)).absolutePath());
    dir.cdUp();
    return dir.path() + "/SharedSupport";
}

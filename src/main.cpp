#include <QApplication>
#include <QMessageBox>
#include <QSettings>

#include "core/appinfo.h"
#include "core/apppaths.h"
#include "mainwindow/appstart.h"
#include "mainwindow/rosteramain.h"
#include "persistence/databasefunc.h"

int main(int argc, char **argv)
{
    // The data location depends on these, so they come before the application object.
    QCoreApplication::setOrganizationName(AppInfo::organizationName);
    QCoreApplication::setOrganizationDomain(AppInfo::organizationDomain);
    QCoreApplication::setApplicationVersion(AppInfo::applicationVersion);
    QCoreApplication::setApplicationName(AppInfo::applicationName);

    QApplication app(argc, argv);
    Q_INIT_RESOURCE(rostera);
    QCoreApplication::addLibraryPath("./plugins");

    const int language = QSettings(getAppDataPath(0), QSettings::IniFormat).value("language", "0").toString().toInt();
    installTranslators(chooseLanguageCode(language, QLocale::system().name()));
    useWarningBoxes();

    if (!getDB()->openDB(QString())) {
        QMessageBox::warning(nullptr, QString(), QObject::tr("Open Database Failed!"), QMessageBox::Ok);
        return 0;
    }

    RosteraMain window;
    window.showMaximized();
    const int code = app.exec();
    getDB()->closeDB();
    return code;
}

#include <QApplication>
#include <QSettings>

#include "core/apppaths.h"
#include "mainwindow/appstart.h"
#include "mainwindow/rosteramain.h"
#include "persistence/databasefunc.h"

int main(int argc, char **argv)
{
    setApplicationIdentity();

    QApplication app(argc, argv);
    Q_INIT_RESOURCE(rostera);
    QCoreApplication::addLibraryPath("./plugins");

    const int language = QSettings(getAppDataPath(0), QSettings::IniFormat).value("language", "0").toString().toInt();
    installTranslators(chooseLanguageCode(language, QLocale::system().name()));
    useWarningBoxes();

    if (!openStartDatabase())
        return 0;

    RosteraMain window;
    window.showMaximized();
    const int code = app.exec();
    getDB()->closeDB();
    return code;
}

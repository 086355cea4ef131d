#include <QApplication>
#include <QLocale>

#include "mainwindow/appstart.h"
#include "mainwindow/rosteramain.h"
#include "persistence/databasefunc.h"

int main(int argc, char **argv)
{
    setApplicationIdentity();

    QApplication app(argc, argv);
    Q_INIT_RESOURCE(rostera);
    QCoreApplication::addLibraryPath("./plugins");

    installTranslators(chooseLanguageCode(storedLanguage(), QLocale::system().name()));
    useWarningBoxes();

    if (!openStartDatabase())
        return 0;

    RosteraMain window;
    window.showMaximized();
    const int code = app.exec();
    getDB()->closeDB();
    return code;
}

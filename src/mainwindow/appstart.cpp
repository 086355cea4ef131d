#include "mainwindow/appstart.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QSettings>
#include <QStringList>
#include <QTranslator>

#include "core/appinfo.h"
#include "core/apppaths.h"
#include "persistence/databasefunc.h"

void setApplicationIdentity()
{
    QCoreApplication::setOrganizationName(AppInfo::organizationName);
    QCoreApplication::setOrganizationDomain(AppInfo::organizationDomain);
    QCoreApplication::setApplicationVersion(AppInfo::applicationVersion);
    QCoreApplication::setApplicationName(AppInfo::applicationName);
}

int storedLanguage()
{
    return QSettings(getAppDataPath(0), QSettings::IniFormat).value("language", "0").toString().toInt();
}

QString chooseLanguageCode(int language, const QString &systemLocale)
{
    static const QStringList codes = {"en", "de", "fr", "ja", "pl", "ru", "es", "it", "zh_cn", "zh_tw"};
    if (language == 0) {
        // The scan starts at "de": an English system needs no translator.
        for (int i = 1; i < codes.size(); ++i) {
            if (systemLocale.startsWith("zh_SG", Qt::CaseInsensitive))
                return "zh_cn";
            if (systemLocale.startsWith("zh_HK", Qt::CaseInsensitive) || systemLocale.startsWith("zh_MO", Qt::CaseInsensitive))
                return "zh_tw";
            if (systemLocale.startsWith(codes.at(i), Qt::CaseInsensitive))
                return codes.at(i);
        }
        return QString();
    }
    if (language >= 2 && language <= codes.size())
        return codes.at(language - 1);
    return QString();
}

void installTranslators(const QString &code)
{
    if (code.isEmpty())
        return;
    // Both stay for the whole run; each is installed even when its file is missing.
    for (const char *prefix : {":/qt_", ":/rostera_"}) {
        auto *translator = new QTranslator(QCoreApplication::instance());
        (void)translator->load(prefix + code + ".qm", ".", "", "");
        QCoreApplication::installTranslator(translator);
    }
}

static void warningBox(const QString &text)
{
    QMessageBox::warning(nullptr, QString(), text, QMessageBox::Ok);
}

void useWarningBoxes()
{
    setWarningHandler(warningBox);
}

bool openStartDatabase()
{
    if (getDB()->openDB(QString()))
        return true;
    QMessageBox::warning(nullptr, QString(), QObject::tr("Open Database Failed!"), QMessageBox::Ok);
    return false;
}

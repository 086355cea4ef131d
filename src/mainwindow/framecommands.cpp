#include "mainwindow/rosteramain.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSettings>
#include <QUrl>

#include "core/appinfo.h"
#include "core/apppaths.h"
#include "masterdata/settings.h"
#include "persistence/databasefunc.h"
#include "reports/calendarexport.h"
#include "reports/reports.h"
#include "ui_rosteramain.h"

void RosteraMain::updateTitle()
{
    // baseName stops at the first dot: "my.plan.db" is shown as "my".
    const QString title = tr("Rostera-%1").arg(QFileInfo(getDB()->getDBName()).baseName());
    if (windowTitle() != title)
        setWindowTitle(title);
}

void RosteraMain::on_actionOpen_Database_triggered()
{
    const QString start = QSettings(getAppDataPath(0), QSettings::IniFormat)
                              .value("lastdb", getAppDataPath(1) + "//default.db")
                              .toString();
    const QString path = QFileDialog::getOpenFileName(this, tr("Open Database"), start, tr("DB File(*.db)"));
    if (path.isEmpty())
        return;
    // On failure the previous file stays open and the window as it was.
    if (!getDB()->openDB(path)) {
        QMessageBox::warning(this, QString(), tr("Open database failed!"), QMessageBox::Ok);
        return;
    }
    refillView(QString(), QString());
}

// A save-as by file copy: every change is in the open file already.
void RosteraMain::on_actionSave_Database_triggered()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save As Database"), getAppDataPath(1), tr("DB File(*.db)"));
    const QString current = getDB()->getDBName();
    if (path.isEmpty() || current.isEmpty())
        return;
    // QFile::copy never overwrites, even when the user agreed to replace the file.
    if (!QFile::copy(current, path)) {
        QMessageBox::warning(this, QString(), tr("Save as database failed!"), QMessageBox::Ok);
        return;
    }
    // Same contents, so the grid stays; only the title names the new file.
    getDB()->openDB(path);
    updateTitle();
}

void RosteraMain::on_actionExit_triggered()
{
    close();
}

void RosteraMain::on_select_language()
{
    const int position = int(ui->menuLanguage->actions().indexOf(qobject_cast<QAction *>(sender())));
    if (position < 0)
        return;
    QSettings settings(getAppDataPath(0), QSettings::IniFormat);
    if (settings.value("language", "0").toString().toInt() == position)
        return;
    // Nothing is retranslated while the program runs.
    QMessageBox::information(this, QString(), tr("Language change will take effect after the restart of the software."),
                             QMessageBox::Ok);
    settings.setValue("language", position);
}

void RosteraMain::on_action_Help_triggered()
{
    // The guide beside the program, in the default browser; without it the online help.
    const QString guide = getAppPath() + "/help/index.html";
    if (QFile::exists(guide))
        QDesktopServices::openUrl(QUrl::fromLocalFile(guide));
    else
        QDesktopServices::openUrl(QUrl(QString("http://%1%2").arg(AppInfo::webHost, AppInfo::onlineHelpPath)));
}

void RosteraMain::on_action_Website_triggered()
{
    QDesktopServices::openUrl(QUrl(AppInfo::homePage));
}

void RosteraMain::on_action_About_triggered()
{
    const QString name = QCoreApplication::applicationName();
    const QString maker = tr("Made by %1, <a href=\"%2\">%2</a>").arg(AppInfo::organizationName, AppInfo::homePage);
    QMessageBox::about(centralWidget(), tr("About") + " " + name,
                       "<p>" + name + "<br><br>" + maker + "<br><br>" + "\n\n" + tr("Version") + ": "
                           + QCoreApplication::applicationVersion() + "<br><br>" + "</p>");
}

// However the dialog ends, the options are written and the window rebuilt from the cached lists.
void RosteraMain::openSettings(int tab)
{
    Settings settings(this);
    settings.selSettings(tab);
    settings.exec();
    settings.saveOptions();
    settingsChange();
}

void RosteraMain::on_actionGroup_Settings_triggered() { openSettings(0); }
void RosteraMain::on_actionStaff_Settings_triggered() { openSettings(1); }
void RosteraMain::on_actionShift_Settings_triggered() { openSettings(2); }
void RosteraMain::on_actionPermanentSchedule_Settings_triggered() { openSettings(3); }
void RosteraMain::on_actionHoliday_Settings_triggered() { openSettings(4); }
void RosteraMain::on_actionOptions_Settings_triggered() { openSettings(5); }

void RosteraMain::on_actionExport_Calendar_triggered()
{
    CalendarExport dialog(this);
    dialog.exec();
}

void RosteraMain::on_reports_clicked()
{
    Reports reports(this);
    reports.exec();
}

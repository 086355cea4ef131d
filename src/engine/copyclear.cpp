#include <QMessageBox>
#include <QSettings>

#include "core/apppaths.h"
#include "engine/clearschedulesettings.h"
#include "engine/copyschedulesettings.h"
#include "engine/enginecommon.h"
#include "mainwindow/rosteramain.h"
#include "persistence/databasefunc.h"

static bool confirmed(QWidget *parent, const QString &question)
{
    return QMessageBox::question(parent, QString(), question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
           == QMessageBox::Yes;
}

// The previous cycle is counted in calendar days, even where the work week makes the
// displayed cycle span more of them.
void RosteraMain::on_copyPreCycle_schedule()
{
    const int days = QSettings(getAppDataPath(0), QSettings::IniFormat).value("Options/cycle days", 7).toInt();
    const QDate first = cycleDates.value(0);
    copySchedule(first.addDays(-days), first, days, true);
}

void RosteraMain::on_copySpecifiedCycle_schedule()
{
    CopyScheduleSettings dialog(cycleDates, this);
    if (dialog.exec() == QDialog::Accepted)
        copySchedule(dialog.fromDate, dialog.toDate, dialog.days, true);
}

void RosteraMain::on_clear_schedule()
{
    clearSchedule(cycleDates.value(0), cycleDates.value(cycleDates.size() - 1));
}

void RosteraMain::on_clear_date_schedule()
{
    ClearScheduleSettings dialog(cycleDates, this);
    if (dialog.exec() == QDialog::Accepted)
        clearSchedule(dialog.fromDate, dialog.toDate);
}

void RosteraMain::copySchedule(const QDate &from, const QDate &to, int days, bool previousCycle)
{
    if (!confirmed(this, tr("Are you sure to replace existing schedule?")))
        return;
    if (copySpansOverlap(from, to, days))
        return;
    const qint64 offset = from.daysTo(to);
    const QString groupFilter = viewGroupFilter(this);
    DatabaseFunc *db = getDB();
    // A failed read counts as an empty source.
    QVector<ASAttribute> list;
    db->schedule(list, spanFilter(from, from.addDays(days - 1)) + groupFilter);
    // Going on with nothing clears the target.
    if (list.isEmpty() && !confirmed(this, tr("Source schedule is empty, continue?")))
        return;
    for (ASAttribute &record : list)
        record.setAttr("date", QDate::fromString(record.attr("date", QString()), "yyyy-MM-dd")
                                   .addDays(offset)
                                   .toString("yyyy-MM-dd"));
    // Delete and save are separate: a failed save leaves the target empty.
    db->deleteSchedule(spanFilter(to, to.addDays(days - 1)) + groupFilter);
    if (!db->saveSchedule(list))
        QMessageBox::warning(this, QString(),
                             previousCycle ? tr("Copy schedule of previous week failed!")
                                           : tr("Copy schedule from %1 failed!").arg(from.toString("yyyy-MM-dd")),
                             QMessageBox::Ok);
    calcFromToDay();
    prepareTable();
    refreshTable();
}

void RosteraMain::clearSchedule(const QDate &from, const QDate &to)
{
    if (!confirmed(this, tr("Are you sure to clear existing schedule\nfrom %1 to %2?")
                             .arg(from.toString("M/d/yyyy"), to.toString("M/d/yyyy"))))
        return;
    if (!getDB()->deleteSchedule(spanFilter(from, to) + viewGroupFilter(this))) {
        QMessageBox::warning(this, QString(), tr("Clear schedule failed!"), QMessageBox::Ok);
        return;
    }
    calcFromToDay();
    prepareTable();
    refreshTable();
}

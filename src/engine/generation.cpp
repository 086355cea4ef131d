#include <QMessageBox>
#include <QSettings>

#include <utility>

#include "core/apppaths.h"
#include "core/schedulelookup.h"
#include "engine/rosterasettings.h"
#include "engine/enginecommon.h"
#include "mainwindow/rosteramain.h"
#include "persistence/databasefunc.h"

static QMessageBox::StandardButton askDeleteExisting(QWidget *parent)
{
    return QMessageBox::question(parent, QString(), RosteraMain::tr("Delete existing schedule?"),
                                 QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
}

void RosteraMain::on_auto_schedule()
{
    const QMessageBox::StandardButton answer = askDeleteExisting(this);
    if (answer == QMessageBox::Cancel)
        return;
    auto_schedule(cycleDates, answer == QMessageBox::Yes);
    calcFromToDay();
    prepareTable();
    refreshTable();
}

void RosteraMain::on_auto_date_schedule()
{
    RosteraSettings dialog(cycleDates.value(0), cycleDates.size(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QMessageBox::StandardButton answer = askDeleteExisting(this);
    if (answer == QMessageBox::Cancel)
        return;
    // Calendar days here, unlike the displayed cycle, which counts work dates.
    const QStringList workWeek = QSettings(getAppDataPath(0), QSettings::IniFormat)
                                     .value("Options/work week", "1,2,3,4,5,6,7")
                                     .toString()
                                     .split(',');
    QVector<QDate> dates;
    for (int i = 0; i < dialog.cycleDays; ++i) {
        const QDate date = dialog.fromDate.addDays(i);
        if (workWeek.size() == 0 || workWeek.size() == 7 || workWeek.contains(QString::number(date.dayOfWeek())))
            dates.append(date);
    }
    auto_schedule(dates, answer == QMessageBox::Yes);
    calcFromToDay();
    prepareTable();
    refreshTable();
}

bool RosteraMain::auto_schedule(const QVector<QDate> &dates, bool deleteExisting)
{
    const bool oneGroup = isOneGroupView(this);
    const QString group = viewGroup(this);
    const QString filter = spanFilter(dates.value(0), dates.value(dates.size() - 1)) + viewGroupFilter(this);
    DatabaseFunc *db = getDB();
    QVector<ASAttribute> keep;
    QVector<ASAttribute> out;
    if (!deleteExisting)
        db->schedule(keep, filter);
    // Not undone if the save below fails.
    db->deleteSchedule(filter);
    db->holidayInfo(holidays, "valid=1");
    db->vacationInfo(vacations, "valid=1");
    GenerationRun run(keep, out, [db](QVector<ASAttribute> &list, QString filter) { return db->staffInfo(list, filter); });
    generationRun = &run;
    // The valid locks by date, as a read of each date's locks would give them.
    QVector<ASAttribute> locks;
    db->lockEmployeeInfo(locks, "valid=1");
    for (const ASAttribute &lock : locks)
        run.lockedIds[lock.attr("date", QString())].append(lock.attr("staffids", QString()));

    // Groups are runs of adjacent rows: a group whose rows are apart is scheduled twice. The
    // first row taken also closes a run, the empty one under the empty group name: it writes
    // nothing, but it draws for the employees without a group, and so moves every later draw.
    QVector<ASAttribute> rows;
    QString current;
    bool first = true;
    for (const ASAttribute &row : db->permanentSchedules) {
        const QString groupname = row.attr("groupname", QString());
        if (oneGroup && groupname != group)
            continue;
        if (first || groupname != current) {
            scheduleGroup(current, rows, keep, out, dates);
            rows.clear();
            current = groupname;
            first = false;
        }
        rows.append(row);
    }
    scheduleGroup(current, rows, keep, out, dates);
    holidays.clear();
    vacations.clear();

    // Kept records that no row touched survive only in the lock mode; otherwise they are lost
    // even when the user chose to keep the schedule.
    if (employeeLockSchedule) {
        for (const ASAttribute &kept : keep) {
            if (run.outAt.find(kept.attr("date", QString()), kept.attr("groupname", QString()),
                               kept.attr("shiftname", QString()))
                < 0)
                run.outAt.append(kept);
        }
    }
    generationRun = nullptr;
    if (!db->saveSchedule(out)) {
        QMessageBox::warning(this, QString(), tr("Save schedule information failed!"), QMessageBox::Ok);
        return false;
    }
    return true;
}

// The dates filled are always those of the displayed cycle, whatever the caller deleted and
// kept: the specified-date command relies on that coupling as it stands. It runs only inside
// auto_schedule, whose lookups of keep and out it shares.
void RosteraMain::scheduleGroup(QString groupname, QVector<ASAttribute> &rows, QVector<ASAttribute> &keep,
                                QVector<ASAttribute> &out, const QVector<QDate> &)
{
    // The working copies (the ring) carry the counters and, per date position, the shift taken.
    QVector<ASAttribute> copies;
    generationRun->staffOf.of(groupname, copies);
    const int n = copies.size();
    if (n == 0)
        return;
    QVector<ASAttribute *> ring;
    // getStaff's answers over the ring: the first position of each id.
    QHash<QString, int> ringAt;
    for (int i = n - 1; i >= 0; --i)
        ringAt.insert(copies.at(i).attr("id", QString()), i);
    for (ASAttribute &copy : copies)
        ring.append(&copy);

    // The only draws of chance in the program, in this order.
    shuffledStaff.clear();
    for (int i = 0; i < n; ++i)
        shuffledStaff.append(i);
    int rotation = randomNumber() % n;
    for (int i = n - 1; i >= 1; --i)
        std::swap(shuffledStaff[i], shuffledStaff[randomNumber() % i]);

    // Demand over the cycle, holidays left out; kept assignments count against the shares.
    // The holidays and the need of each row on each date are worked out once for all passes.
    QVector<bool> holidayAt;
    QVector<QVector<int>> needs;
    const ScheduleIndex &keptAt = generationRun->keptAt;
    ScheduleIndex &outAt = generationRun->outAt;
    assignStats.clear();
    for (int p = 0; p < cycleDates.size(); ++p) {
        const QDate date = cycleDates.at(p);
        const QString dateText = date.toString("yyyy-MM-dd");
        holidayAt.append(checkHoliday(date));
        needs.append(QVector<int>());
        for (const ASAttribute &row : rows) {
            const QString shift = row.attr("shiftname", QString());
            const int need = getStaffNum(row.attr("daystaffnum", QString()), date, date.dayOfWeek() - 1);
            needs.last().append(need);
            if (!holidayAt.at(p) && need > 0)
                assignStats.setAttr(shift, assignStats.attr(shift, 0) + need);
            const int kept = keptAt.find(dateText, groupname, shift);
            if (kept < 0)
                continue;
            for (const QString &id : keep.at(kept).attr("staffs", QString()).split(';', Qt::SkipEmptyParts)) {
                const int s = ringAt.value(id, -1);
                if (s < 0)
                    continue;
                if (ring[s]->attr(QString::number(p), QString()).isEmpty())
                    ring[s]->setAttr(QString::number(p), shift);
                countOne(*ring[s], shift + "_ass");
                countOne(assignStats, shift + "_ass");
            }
        }
    }
    for (const ASAttribute &shiftRecord : getDB()->shifts) {
        const QString shift = shiftRecord.attr("name", QString());
        const int total = assignStats.attr(shift, 0);
        assignStats.setAttr(shift + "_num", float(total));
        assignStats.setAttr(shift + "_ave", qMax(float(total) / float(n), 1.0f));
        assignStats.setAttr(shift + "_int", float(n * int(assignStats.attr(shift + "_ave", 0.0f))));
    }

    // Pass 0 the locked employees, pass 1 (lock mode only) the designated ones, pass 2 the
    // rotation; each pass over all dates before the next.
    for (int pass = 0; pass < 3; ++pass) {
        if (pass == 1 && !employeeLockSchedule)
            continue;
        for (int p = 0; p < cycleDates.size(); ++p) {
            const QDate date = cycleDates.at(p);
            const QString dateText = date.toString("yyyy-MM-dd");
            QVector<ASAttribute *> locked;
            if (pass == 0) {
                // A lock naming several employees matches nobody, as its text is compared whole.
                for (const QString &ids : generationRun->lockedIds.value(dateText)) {
                    const int s = ringAt.value(ids, -1);
                    if (s >= 0)
                        locked.append(ring[s]);
                }
                if (locked.isEmpty())
                    continue;
            }
            for (int r = 0; r < rows.size(); ++r) {
                const ASAttribute &row = rows.at(r);
                const QString shift = row.attr("shiftname", QString());
                QString designated;
                if (pass == 1) {
                    designated = row.attr("employee_name", QString());
                    if (designated.isEmpty() || ringAt.value(designated, -1) < 0)
                        continue;
                }
                // The output's record, else the kept one, else a new one.
                const int outPos = outAt.find(dateText, groupname, shift);
                const int kept = keptAt.find(dateText, groupname, shift);
                ASAttribute record = outPos >= 0 ? out.at(outPos)
                                     : kept >= 0 ? keep.at(kept)
                                                 : newSchedule(dateText, groupname, shift);
                const int need = needs.at(p).at(r);
                if (need == 0)
                    continue;
                QStringList staffs;
                if (!holidayAt.at(p)) {
                    staffs = record.attr("staffs", QString()).split(';', Qt::SkipEmptyParts);
                    while (staffs.size() < need) {
                        // The designated employee is taken as is: no test, no counter.
                        const QString id = pass == 0 ? getNextValidStaff(date, locked, rotation, p, shift, 0)
                                           : pass == 1 ? designated
                                                       : getNextValidStaff(date, ring, rotation, p, shift, 2);
                        if (id.isEmpty())
                            break;
                        staffs.append(id);
                    }
                }
                record.setAttr("staffs", staffs.join(';'));
                if (outPos >= 0)
                    out[outPos] = record;
                else
                    outAt.append(record);
            }
        }
    }
}

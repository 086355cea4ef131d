#include <QAbstractItemModel>
#include <QTableWidget>

#include "mainwindow/rosteramain.h"
#include "mainwindow/toolbar.h"
#include "persistence/databasefunc.h"
#include "ui_rosteramain.h"

static QStringList staffsOf(const ASAttribute &record)
{
    return record.attr("staffs", QString()).split(';', Qt::SkipEmptyParts);
}

// The first record of a cell, or a new one that carries only the cell's key: the save has no
// use for an "infotype".
static ASAttribute firstOrNew(const QVector<ASAttribute> &records, const QString &date, const QString &group,
                              const QString &shift)
{
    if (!records.isEmpty())
        return records.first();
    ASAttribute record;
    record.setAttr("date", date);
    record.setAttr("groupname", group);
    record.setAttr("shiftname", shift);
    return record;
}

// The end of both try-outs: tips about the day's demand. They only warn; the commit that
// follows may write all the same.
static void tipOnDemand(RosteraMain *window, int row, int col, const QDate &date, const ASAttribute &permanentRow,
                        int assigned)
{
    getDB()->holidayInfo(window->holidays, "valid=1");
    if (window->checkHoliday(date)) {
        window->show_tip(row, col, RosteraMain::tr("Don't need any employees, that day is during the holidays"));
        return;
    }
    const int need = window->getStaffNum(permanentRow.attr("daystaffnum", QString()), date, date.dayOfWeek() - 1);
    if (need < assigned)
        window->show_tip(row, col,
                         need == 0 ? RosteraMain::tr("Don't need any employees for this shift of that day")
                                   : RosteraMain::tr("Already assigned enough employees for this shift of that day"));
}

bool RosteraMain::adjustScheduleCommit(int row, int col, QString value, bool commit)
{
    const QDate date = cycleDates.value(col);
    const QString dateText = date.toString("yyyy-MM-dd");
    const ASAttribute gridRow = gridRows.value(row);
    const QString group = gridRow.attr("groupname", QString());
    const QAbstractItemModel *model = ui->tableWidget->model();
    const QString current = model->data(model->index(row, col), Qt::UserRole).toString();
    if (current == value)
        return true;
    const QStringList oldList = current.split('\n', Qt::SkipEmptyParts);
    const QStringList newList = value.split('\n', Qt::SkipEmptyParts);
    const QString alreadyAssigned = tr("Already assigned on that day");
    DatabaseFunc *db = getDB();
    // A failed read or write stops the function; only a commit tells the user.
    const auto readRecords = [&](const QString &shift, QVector<ASAttribute> &records) {
        if (db->schedule(records, QString("date='%1' and groupname='%2' and shiftname='%3'").arg(dateText, group, shift)))
            return true;
        if (commit)
            show_tip(row, col, tr("Get schedule failed"));
        return false;
    };
    // Appends the shift's standing rows; false when the try-out ends here.
    const auto rowsRead = [&](const QString &shift, QVector<ASAttribute> &rows) {
        if (!db->permanentSchedule(rows, QString("groupname='%1' and shiftname='%2'").arg(group, shift)))
            return false;
        if (rows.isEmpty()) {
            show_tip(row, col, tr("Don't need any employees for this shift of that day"));
            return false;
        }
        return true;
    };
    const auto written = [&](QVector<ASAttribute> list, bool update) {
        if (update ? db->updateSchedule(list) : db->saveSchedule(list))
            return true;
        show_tip(row, col, tr("Save schedule failed"));
        return false;
    };

    if (toolBar->getViewType() == 0) {
        const QString employee = gridRow.attr("id", QString());
        if (!commit) {
            if (newList.isEmpty())
                return true;
            // Both lists grow over the shifts: with several shifts in a cell the first record
            // read and the first row read serve all of them.
            QVector<ASAttribute> records;
            QVector<ASAttribute> rows;
            QStringList staffs;
            for (const QString &shift : newList) {
                if (!readRecords(shift, records))
                    return true;
                if (!records.isEmpty())
                    staffs = staffsOf(records.first());
                if (staffs.contains(employee))
                    return true;
                staffs.append(employee);
                if (!rowsRead(shift, rows))
                    return true;
            }
            tipOnDemand(this, row, col, date, rows.first(), staffs.size());
            return true;
        }
        for (const QString &shift : oldList) {
            QVector<ASAttribute> records;
            if (!readRecords(shift, records))
                return false;
            QVector<ASAttribute> changed;
            for (ASAttribute &record : records) {
                QStringList staffs = staffsOf(record);
                if (staffs.removeOne(employee)) {
                    record.setAttr("staffs", staffs.join(';'));
                    changed.append(record);
                }
            }
            // A record left without anybody loses its row.
            if (!changed.isEmpty() && !written(changed, true))
                return false;
        }
        for (const QString &shift : newList) {
            QVector<ASAttribute> records;
            if (!readRecords(shift, records))
                return false;
            ASAttribute record = firstOrNew(records, dateText, group, shift);
            QStringList staffs = staffsOf(record);
            // Deliberately ends the whole commit: the shifts after this one stay unwritten.
            if (staffs.contains(employee))
                return true;
            staffs.append(employee);
            record.setAttr("staffs", staffs.join(';'));
            if (!written({record}, !records.isEmpty()))
                return false;
        }
        return true;
    }

    const QString shift = gridRow.attr("shiftname", QString());
    if (!commit && newList.isEmpty())
        return true;
    QVector<ASAttribute> records;
    if (!readRecords(shift, records))
        return !commit;
    ASAttribute record = firstOrNew(records, dateText, group, shift);
    // The commit keeps empty items, the one of an empty text too: ids put into a cell that had
    // no staff follow a ";".
    QStringList staffs = commit ? record.attr("staffs", QString()).split(';') : staffsOf(record);
    for (const QString &id : oldList)
        staffs.removeOne(id);
    for (const QString &id : newList) {
        if (staffs.contains(id)) {
            show_tip(row, col, alreadyAssigned);
            return false;
        }
        staffs.append(id);
    }
    if (commit) {
        record.setAttr("staffs", staffs.join(';'));
        return written({record}, !records.isEmpty());
    }
    QVector<ASAttribute> rows;
    if (!rowsRead(shift, rows))
        return true;
    tipOnDemand(this, row, col, date, rows.first(), staffs.size());
    return true;
}

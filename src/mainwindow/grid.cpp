#include "mainwindow/rosteramain.h"

#include <QHeaderView>
#include <algorithm>
#include <QSettings>

#include "core/apppaths.h"
#include "core/helpers.h"
#include "mainwindow/toolbar.h"
#include "persistence/databasefunc.h"
#include "ui_rosteramain.h"

void RosteraMain::calcFromToDay()
{
    QSettings settings(getAppDataPath(0), QSettings::IniFormat);
    settings.beginGroup("Options");
    const int showFromWeek = settings.value("show from week", 0).toInt();
    // Any number a hand-edited file holds is taken, up to the longest span that the dialogs offer:
    // beyond it the columns would only exhaust memory.
    const int cycleDays = qMin(settings.value("cycle days", 7).toInt(), 999);
    // A value written by hand without quotes comes back as a list; join it to the same text.
    const QStringList workWeek = settings.value("work week", "1,2,3,4,5,6,7").toStringList().join(",").split(",");

    QDate first = ui->date_current->date();
    if (showFromWeek != -1) {
        // The latest day of the cycle's start weekday that is not after the picked date.
        const int day = first.dayOfWeek();
        const int start = showFromWeek + 1;
        first = first.addDays(start <= day ? start - day : start - day - 7);
    }
    // Seven items mean every day is a work day; more are taken item by item. A list that
    // names no day at all can only come from a hand-edited file: it counts as every day,
    // for otherwise the search for a work day would never end.
    const bool namesADay = std::any_of(workWeek.begin(), workWeek.end(), [](const QString &item) {
        return item.toInt() >= 1 && item.toInt() <= 7;
    });
    const bool everyDay = workWeek.size() == 7 || !namesADay;
    if (!everyDay && workWeek.size() <= 6) {
        while (!workWeek.contains(QString::number(first.dayOfWeek())))
            first = first.addDays(1);
    }

    // "cycle days" counts shown work dates; days off get no column.
    cycleDates.clear();
    cycleDates.append(first);
    for (QDate date = first.addDays(1); cycleDates.size() < cycleDays; date = date.addDays(1)) {
        bool workDay = everyDay;
        for (const QString &item : workWeek)
            workDay = workDay || item.toInt() == date.dayOfWeek();
        if (workDay)
            cycleDates.append(date);
    }
}

void RosteraMain::prepareTable()
{
    if (refreshBlocked)
        return;
    rowLabels.clear();
    gridRows.clear();
    const int view = toolBar->getViewType();
    const int person = toolBar->getPersonType();

    QString staffFilter;
    QString groupFilter;
    if (person == 2)
        staffFilter = ui->cmb_person->currentText();
    else if (person == 1 && ui->cmb_group->currentIndex() > 0)
        groupFilter = ui->cmb_group->currentText();

    // Under "View All" the first row of each group carries the group's abbreviation.
    QString lastAbbre;
    auto addRow = [&](const ASAttribute &row, QString label) {
        if (person == 0) {
            const QString abbre = getGroupAbbre(row.attr("groupname", QString()));
            if (abbre != lastAbbre) {
                lastAbbre = abbre;
                label = abbre + "--" + label;
            }
        }
        gridRows.append(row);
        rowLabels.append(label);
    };

    if (view == 1 && employeeLockSchedule) {
        for (const ASAttribute &shift : getDB()->shifts) {
            ASAttribute row;
            row.setAttr("type", QString("shiftview"));
            row.setAttr("shiftname", shift.attr("name", QString()));
            gridRows.append(row);
            rowLabels.append(shift.attr("abbreviation", QString()));
        }
    } else if (view == 1) {
        for (const ASAttribute &line : getDB()->permanentSchedules) {
            const QString group = line.attr("groupname", QString());
            // "View One Employee" never sets the group filter, so it keeps only lines without a group.
            if ((person == 1 || person == 2) && group != groupFilter)
                continue;
            const QString shift = line.attr("shiftname", QString());
            ASAttribute row;
            row.setAttr("type", QString("scheduleview"));
            row.setAttr("groupname", group);
            row.setAttr("shiftname", shift);
            addRow(row, getShiftAbbre(shift));
        }
    } else if (view == 0) {
        for (const ASAttribute &staff : getDB()->staffs) {
            const QString id = staff.attr("id", QString());
            const QString group = staff.attr("groupname", QString());
            if ((person == 2 && id != staffFilter) || (person == 1 && group != groupFilter))
                continue;
            ASAttribute row;
            row.setAttr("type", QString("personview"));
            row.setAttr("groupname", group);
            row.setAttr("id", id);
            addRow(row, id);
        }
    }

    ui->tableWidget->setRowCount(rowLabels.size());
    ui->tableWidget->setVerticalHeaderLabels(rowLabels);
}

// Appends a line to one role of a cell; the first line has no line feed before it.
static void appendLine(QTableWidgetItem *item, int role, const QString &line)
{
    const QString text = item->data(role).toString();
    item->setData(role, text.isEmpty() ? line : text + "\n" + line);
}

void RosteraMain::refreshTable()
{
    if (refreshBlocked)
        return;
    QTableWidget *table = ui->tableWidget;
    const int oldCount = table->columnCount();
    static const char *const dayNames[] = {QT_TR_NOOP("Mon"), QT_TR_NOOP("Tue"), QT_TR_NOOP("Wed"),
                                           QT_TR_NOOP("Thu"), QT_TR_NOOP("Fri"), QT_TR_NOOP("Sat"),
                                           QT_TR_NOOP("Sun")};
    const QDate picked = ui->date_current->date();
    QStringList headers;
    for (const QDate &date : cycleDates)
        headers << QString("%1\n%2").arg(date.toString("MM/dd/yyyy"), tr(dayNames[date.dayOfWeek() - 1]));
    const int marked = getDatePos(cycleDates, picked);

    table->setColumnCount(cycleDates.size());
    table->setHorizontalHeaderLabels(headers);
    for (int column = 0; column < cycleDates.size(); ++column)
        table->horizontalHeaderItem(column)->setForeground(column == marked ? QColor(255, 0, 0) : QColor(Qt::black));
    if (oldCount != cycleDates.size() && cycleDates.size() > 7) {
        for (int column = qMax(0, oldCount - 1); column < cycleDates.size(); ++column)
            table->setColumnWidth(column, 100);
    }

    table->clearContents();
    const QString dateFilter = QString("date>='%1' and date<='%2'")
                                   .arg(cycleDates.first().toString("yyyy-MM-dd"), cycleDates.last().toString("yyyy-MM-dd"));
    const int view = toolBar->getViewType();
    // getDatePos's answers: the first column of each date.
    QHash<QDate, int> columnOf;
    for (int column = int(cycleDates.size()) - 1; column >= 0; --column)
        columnOf.insert(cycleDates.at(column), column);
    auto cellAt = [table](int row, int column) {
        if (!table->item(row, column))
            table->setItem(row, column, new QTableWidgetItem);
        return table->item(row, column);
    };

    // The runs' reads by group are served from one read of the span, by schedule with the shift
    // picked out as its condition would: text only, and read itself where an apostrophe in the
    // name changes the condition.
    std::optional<GroupRecords> groupRecords;
    if (!employeeLockSchedule)
        groupRecords = GroupRecords::ofSchedule(QString(view == 1 ? " and typeof(shiftname)='text'" : "") + " and "
                                                + dateFilter);
    // One query serves a run of rows of the same group (and, by schedule, the same shift).
    for (int r = 0; r < gridRows.size();) {
        const QString group = gridRows.at(r).attr("groupname", QString());
        const QString shift = gridRows.at(r).attr("shiftname", QString());
        QVector<ASAttribute> records;
        if (groupRecords && !(view == 1 && shift.contains('\''))) {
            if (!groupRecords->of(group, records))
                return;
            if (view == 1)
                records.removeIf([&shift](const ASAttribute &record) { return record.attr("shiftname", QString()) != shift; });
        } else {
            QString filter = employeeLockSchedule ? dateFilter
                                                  : QString("groupname='%1'").arg(group) + " and " + dateFilter;
            if (view == 1)
                filter = QString("%1 and shiftname='%2'").arg(filter, shift);
            if (!getDB()->schedule(records, filter))
                return;
        }

        for (const ASAttribute &record : records) {
            const int column = columnOf.value(dateOf(record.attr("date", QString())), -1);
            if (column < 0)
                continue;
            const QString staffs = record.attr("staffs", QString());
            const QStringList ids = staffs.isEmpty() ? QStringList() : staffs.split(";");
            if (view == 1) {
                QTableWidgetItem *item = cellAt(r, column);
                item->setData(Qt::EditRole, ids.join("\n"));
                item->setData(Qt::UserRole, ids.join("\n"));
                continue;
            }
            const QString shiftName = record.attr("shiftname", QString());
            for (const QString &id : ids) {
                for (int k = r; k < gridRows.size(); ++k) {
                    if (!employeeLockSchedule && gridRows.at(k).attr("groupname", QString()) != group)
                        break;
                    if (gridRows.at(k).attr("id", QString()) != id)
                        continue;
                    QTableWidgetItem *item = cellAt(k, column);
                    appendLine(item, Qt::EditRole, getShiftAbbre(shiftName));
                    appendLine(item, Qt::UserRole, shiftName);
                }
            }
        }

        // By employee with the option on, the one query had no group and served every row.
        if (view == 0 && employeeLockSchedule)
            break;
        ++r;
        while (r < gridRows.size() && gridRows.at(r).attr("groupname", QString()) == group
               && (view != 1 || gridRows.at(r).attr("shiftname", QString()) == shift))
            ++r;
    }

    for (int row = 0; row < gridRows.size(); ++row)
        updateRowHeight(row);
}

void RosteraMain::updateRowHeight(int row)
{
    qsizetype lines = 1;
    for (int column = 0; column < cycleDates.size(); ++column) {
        if (const QTableWidgetItem *item = ui->tableWidget->item(row, column))
            lines = qMax(lines, item->data(Qt::EditRole).toString().split("\n", Qt::SkipEmptyParts).size());
    }
    ui->tableWidget->setRowHeight(row, int(20 * lines + 10));
}

// The tool strip's refresh, and the common redraw after the dates, rows or data changed.
void RosteraMain::on_refresh_schedule()
{
    calcFromToDay();
    prepareTable();
    refreshTable();
}

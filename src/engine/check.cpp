#include <QHash>
#include <QTableWidget>
#include <QTimer>
#include <QToolTip>

#include "engine/enginecommon.h"
#include "mainwindow/rosteramain.h"
#include "persistence/databasefunc.h"
#include "ui_rosteramain.h"

// Check mode reports at most this many faults.
static const int kMessageLimit = 10;

QStringList RosteraMain::checkSchedule(bool repair)
{
    DatabaseFunc *db = getDB();
    db->holidayInfo(holidays, "valid=1");
    db->vacationInfo(vacations, "valid=1");
    const VacationIndex away(vacations);
    const bool oneGroup = isOneGroupView(this);
    const QString group = viewGroup(this);
    const QString first = cycleDates.value(0).toString("yyyy-MM-dd");
    const QString last = cycleDates.value(cycleDates.size() - 1).toString("yyyy-MM-dd");

    QStringList messages;
    const auto full = [&] { return !repair && messages.size() >= kMessageLimit; };
    // The employees met, with the shift of each date. They live over all rows, so that one
    // employee on two shifts of a date is found; kept by group, as they are looked up by group.
    QHash<QString, QVector<ASAttribute>> staffLists;
    // Each employee is looked up once per group, as an id may turn up in every cell.
    QHash<QString, int> staffAt;
    const auto findStaff = [&](QVector<ASAttribute> &staffList, const QString &groupname, const QString &id) {
        const QString key = groupname + QChar(0) + id;
        auto it = staffAt.constFind(key);
        if (it == staffAt.constEnd())
            it = staffAt.insert(key, checkStaffExist(staffList, groupname, id));
        return *it;
    };
    QVector<bool> holidayAt;
    QStringList dateTexts;
    for (const QDate &date : cycleDates) {
        holidayAt.append(checkHoliday(date));
        dateTexts.append(date.toString("yyyy-MM-dd"));
    }
    const GroupRecords recordsOf = GroupRecords::ofSchedule(QString(" and date>='%1' and date<='%2'").arg(first, last));
    QVector<ASAttribute> records;
    std::optional<ScheduleIndex> recordAt;
    QVector<ASAttribute> updates;
    QString current;
    bool firstRow = true;
    for (const ASAttribute &row : db->permanentSchedules) {
        const QString groupname = row.attr("groupname", QString());
        if (oneGroup && groupname != group)
            continue;
        if (firstRow || groupname != current) {
            firstRow = false;
            current = groupname;
            records.clear();
            recordsOf.of(groupname, records);
            recordAt.emplace(records);
        }
        // A group that was never generated is not reported.
        if (records.isEmpty())
            continue;
        QVector<ASAttribute> &staffList = staffLists[groupname];
        const QString shift = row.attr("shiftname", QString());
        const QString shownGroup = groupname.isEmpty() ? tr("<None>") : groupname;
        for (int p = 0; p < cycleDates.size(); ++p) {
            const QDate date = cycleDates.at(p);
            const QString &dateText = dateTexts.at(p);
            // As getDaySchedule answers: the first record of the cell, else none.
            const int at = recordAt->find(dateText, groupname, shift);
            ASAttribute record = at < 0 ? ASAttribute() : records.at(at);
            QStringList staffs = record.attr("staffs", QString()).split(';', Qt::SkipEmptyParts);
            const bool holiday = holidayAt.at(p);
            const int need = holiday ? 0 : getStaffNum(row.attr("daystaffnum", QString()), date, date.dayOfWeek() - 1);
            bool removed = false;
            // Repair mode removes what check mode reports; it reports only what removal cannot mend.
            const auto fault = [&](int &i, const QString &text) {
                if (repair) {
                    staffs.removeAt(i--);
                    removed = true;
                } else {
                    messages << text.arg(dateText, shownGroup, shift, staffs.at(i));
                }
            };
            for (int i = 0; !holiday && i < staffs.size() && !full(); ++i) {
                const QString id = staffs.at(i);
                const int s = findStaff(staffList, groupname, id);
                const QString key = QString::number(p);
                if (s < 0)
                    fault(i, tr("Date:[%1]Group:[%2]Shift:[%3],Employee [%4] doesn't exist,don't assign the employee"));
                else if (away.covers(date, id))
                    fault(i, tr("Date:[%1]Group:[%2]Shift:[%3],Employee [%4] is during the vacations, can't be assigned"));
                else if (staffList[s].attr(key, QString()).isEmpty())
                    staffList[s].setAttr(key, shift);
                else
                    fault(i, tr("Date:[%1]Group:[%2]Shift:[%3],Employee [%4] can't be assigned to more than one shift"));
            }
            if (full())
                return messages;
            if (need == 0 && !staffs.isEmpty()) {
                if (repair) {
                    staffs.clear();
                    removed = true;
                } else if (holiday) {
                    messages << tr("Date:[%1]Group:[%2]Shift:[%3], that day is during the holidays. Do not require "
                                   "employees,don't assign employees work for that day")
                                    .arg(dateText, shownGroup, shift);
                } else {
                    messages << tr("Date:[%1]Group:[%2]Shift:[%3]. Do not require employees,don't assign employees "
                                   "work for that day")
                                    .arg(dateText, shownGroup, shift);
                }
            } else if (need > 0 && staffs.size() != need) {
                if (repair && staffs.size() > need) {
                    staffs = staffs.mid(0, need);
                    removed = true;
                } else {
                    messages << tr("Date:[%1]Group:[%2]Shift:[%3],Need %4 employees work, %5 employees were assigned "
                                   "work for that day,")
                                        .arg(dateText, shownGroup, shift, QString::number(need),
                                             QString::number(staffs.size()))
                                    + (staffs.size() < need ? tr("less than need") : tr("more than need"));
                }
            }
            if (full())
                return messages;
            // The empty answer of getDaySchedule is no record and is not written.
            if (removed && record.attr("infotype", QString()) == "schedule") {
                record.setAttr("staffs", staffs.join(';'));
                updates.append(record);
            }
        }
    }
    if (repair && !db->updateSchedule(updates))
        messages << tr("Save schedule failed when repair it!");
    return messages;
}

void RosteraMain::show_tip(int row, int col, QString text)
{
    tipRow = row;
    tipCol = col;
    tipText = text;
    QTimer::singleShot(50, this, &RosteraMain::on_showtip);
}

void RosteraMain::on_showtip()
{
    QTableWidget *table = ui->tableWidget;
    const QPoint corner(table->columnViewportPosition(tipCol),
                        table->rowViewportPosition(tipRow) + table->rowHeight(tipRow));
    QToolTip::showText(table->mapToGlobal(corner), tipText);
}

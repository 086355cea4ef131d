#include <QStringList>

#include "mainwindow/rosteramain.h"

int RosteraMain::getStaffNum(const QString &daystaffnum, const QDate &date, int dayIndex)
{
    ASAttribute rule;
    const bool isRule = rule.setXmlAttrs(daystaffnum);
    if (isRule && rule.attr("t", 0) != 0) {
        // A specified-date rule carries no number: a matching date needs exactly one employee.
        const QDate from = QDate::fromString(rule.attr("sdt", QString()), "yyyy-MM-dd");
        const QDate to = QDate::fromString(rule.attr("edt", QString()), "yyyy-MM-dd");
        if (date < from || date > to)
            return 0;
        const int weekOfMonth = (date.day() - 1) / 7 + 1;
        if (!rule.attr("week", QString()).split(';').contains(QString::number(weekOfMonth)))
            return 0;
        if (!rule.attr("dayweek", QString()).split(';').contains(QString::number(dayIndex + 1)))
            return 0;
        return 1;
    }
    const QString list = isRule ? rule.attr("stn", QString()) : daystaffnum;
    // An empty value asks for the day index itself (0 on Monday up to 6 on Sunday); rows
    // created but never edited rely on this.
    if (list.isEmpty())
        return dayIndex;
    const QStringList numbers = list.split(';', Qt::SkipEmptyParts);
    const int number = dayIndex < numbers.size() ? numbers.at(dayIndex).toInt(nullptr, 10) : 0;
    return qMax(number, 0);
}

bool RosteraMain::checkAssNumValid(ASAttribute &staff, const QString &shiftname, bool &over, bool allowOver)
{
    const float assigned = staff.attr(shiftname + "_ass", 0.0f);
    const float share = assignStats.attr(shiftname + "_ave", 0.0f);
    if (share >= assigned + 1)
        return true;
    if (share <= assigned)
        return false;
    // The fractional rest of an uneven share: an extra only once the group has used up the
    // whole shares, or in the later laps while the extras still fit into the demand.
    const float groupAssigned = assignStats.attr(shiftname + "_ass", 0.0f);
    const float wholeShares = assignStats.attr(shiftname + "_int", 0.0f);
    const float demand = assignStats.attr(shiftname + "_num", 0.0f);
    const float extras = assignStats.attr(shiftname + "_ovr", 0.0f);
    if ((allowOver && extras + wholeShares <= demand) || groupAssigned >= wholeShares) {
        over = true;
        return true;
    }
    return false;
}

#include <QHash>
#include <QStringList>

#include "core/textmemo.h"
#include "mainwindow/rosteramain.h"

namespace {

// A "daystaffnum" value as read: a specified-date rule, or the numbers by weekday.
struct Demand
{
    bool byDate = false;
    QDate from, to;
    QStringList weeks, days;
    // An empty list asks for the day index itself.
    bool dayIndex = false;
    QStringList numbers;
};

// Each value is read once: the same few are asked for every row and date of a run.
const Demand &demandOf(const QString &daystaffnum)
{
    static QHash<QString, Demand> read;
    return memoized(read, daystaffnum, [](const QString &text) {
        Demand demand;
        ASAttribute rule;
        const bool isRule = rule.setXmlAttrs(text);
        if (isRule && rule.attr("t", 0) != 0) {
            demand.byDate = true;
            demand.from = QDate::fromString(rule.attr("sdt", QString()), "yyyy-MM-dd");
            demand.to = QDate::fromString(rule.attr("edt", QString()), "yyyy-MM-dd");
            demand.weeks = rule.attr("week", QString()).split(';');
            demand.days = rule.attr("dayweek", QString()).split(';');
        } else {
            const QString list = isRule ? rule.attr("stn", QString()) : text;
            demand.dayIndex = list.isEmpty();
            demand.numbers = list.split(';', Qt::SkipEmptyParts);
        }
        return demand;
    });
}

} // namespace

int RosteraMain::getStaffNum(const QString &daystaffnum, const QDate &date, int dayIndex)
{
    const Demand &demand = demandOf(daystaffnum);
    if (demand.byDate) {
        // A specified-date rule carries no number: a matching date needs exactly one employee.
        if (date < demand.from || date > demand.to)
            return 0;
        const int weekOfMonth = (date.day() - 1) / 7 + 1;
        if (!demand.weeks.contains(QString::number(weekOfMonth)))
            return 0;
        if (!demand.days.contains(QString::number(dayIndex + 1)))
            return 0;
        return 1;
    }
    // An empty value asks for the day index itself (0 on Monday up to 6 on Sunday); rows
    // created but never edited rely on this.
    if (demand.dayIndex)
        return dayIndex;
    const int number = dayIndex < demand.numbers.size() ? demand.numbers.at(dayIndex).toInt(nullptr, 10) : 0;
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

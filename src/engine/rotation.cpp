#include <QStringList>

#include "core/schedulelookup.h"
#include "engine/enginecommon.h"
#include "mainwindow/rosteramain.h"
#include "persistence/databasefunc.h"

static bool isHoliday(const QVector<ASAttribute> &holidays, const QDate &date)
{
    for (const ASAttribute &holiday : holidays) {
        const QDate first = dateOf(holiday.attr("date", QString()));
        const int days = holiday.attr("days", 1);
        if (holiday.attr("repeat", 1) == 0) {
            if (inSpan(date, first, days))
                return true;
            continue;
        }
        // A repeating span is anchored in the tested year, or in the year before so that a
        // span that began in December still covers January.
        const QDate thisYear(date.year(), first.month(), first.day());
        if (thisYear.isValid() && inSpan(date, thisYear, days))
            return true;
        if (!thisYear.isValid() || date < thisYear) {
            const QDate lastYear(date.year() - 1, first.month(), first.day());
            if (lastYear.isValid() && inSpan(date, lastYear, days))
                return true;
        }
    }
    return false;
}

// Both are asked for every date and candidate of a run: each answer is worked out once for the
// list as it stands.
bool RosteraMain::checkHoliday(const QDate &date)
{
    QHash<QDate, bool> &known = holidayAnswers.of(holidays).known;
    auto it = known.constFind(date);
    if (it == known.constEnd())
        it = known.insert(date, isHoliday(holidays, date));
    return *it;
}

bool RosteraMain::checkVacation(const QDate &date, const QString &staffId)
{
    return vacationAnswers.of(vacations).covers(date, staffId);
}

QString RosteraMain::getNextValidStaff(const QDate &date, QVector<ASAttribute *> &staffs, int &index, int dayPos,
                                       const QString &shiftname, int pass)
{
    const int n = staffs.size();
    if (n < 1)
        return QString();
    const int start = index % n;
    const QString dayKey = QString::number(dayPos);
    const QString previousDayKey = QString::number(dayPos - 1);
    int pos = start;
    // Three laps of the ring; the first keeps both fairness limits (no extras, no same shift
    // on consecutive dates), the later two lift them.
    for (int tries = 0;; ++tries) {
        index = pos;
        ASAttribute *candidate = pass > 1 ? staffs[shuffledStaff[pos]] : staffs[pos];
        const QString id = candidate->attr("id", QString());
        const bool firstLap = tries < n;
        bool over = false;
        // The tests only read, so the costly vacation test comes last.
        if (candidate->attr(dayKey, QString()).isEmpty()
            && !(dayPos > 0 && firstLap && candidate->attr(previousDayKey, QString()) == shiftname)
            && checkAssNumValid(*candidate, shiftname, over, !firstLap) && !checkVacation(date, id)) {
            candidate->setAttr(dayKey, shiftname);
            countOne(*candidate, shiftname + "_ass");
            countOne(assignStats, shiftname + "_ass");
            if (over)
                countOne(assignStats, shiftname + "_ovr");
            // One place per success, however many were skipped: a skipped employee comes first
            // next time. The index is reduced by the next call.
            index = start + 1;
            return id;
        }
        if (tries + 1 >= 3 * n) {
            index = start;
            return QString();
        }
        pos = (index + 1) % n;
    }
}

ASAttribute RosteraMain::getDaySchedule(QVector<ASAttribute> &list, const QString &groupname, const QString &shiftname,
                                        const QString &date)
{
    int pos = -1;
    const ASAttribute record = getSchedule(date, groupname, shiftname, list, &pos);
    return pos < 0 ? ASAttribute() : record;
}

static const ASAttribute &recordOf(const ASAttribute &record)
{
    return record;
}

static const ASAttribute &recordOf(const ASAttribute *record)
{
    return *record;
}

template <typename List>
static int findStaff(const List &list, const QString &id)
{
    for (int i = 0; i < list.size(); ++i) {
        if (recordOf(list.at(i)).attr("id", QString()) == id)
            return i;
    }
    return -1;
}

int RosteraMain::getStaff(QVector<ASAttribute> &list, const QString &id)
{
    return findStaff(list, id);
}

int RosteraMain::getStaff(QVector<ASAttribute *> &list, const QString &id)
{
    return findStaff(list, id);
}

// The check builds its list of employees lazily from the cached list of all of them.
int RosteraMain::checkStaffExist(QVector<ASAttribute> &list, const QString &groupname, const QString &id)
{
    const auto matches = [&](const ASAttribute &staff) {
        return staff.attr("id", QString()) == id && staff.attr("groupname", QString()) == groupname;
    };
    for (int i = 0; i < list.size(); ++i) {
        if (matches(list.at(i)))
            return i;
    }
    const QVector<ASAttribute> &staffs = getDB()->staffs;
    const int at = staffPositions.of(staffs).find(groupname, id);
    if (at < 0)
        return -1;
    list.append(staffs.at(at));
    return list.size() - 1;
}

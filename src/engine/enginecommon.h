#pragma once

#include <QDate>
#include <QHash>
#include <QString>
#include <QVector>

#include <functional>
#include <optional>

#include "core/asattribute.h"
#include "core/schedulelookup.h"

class RosteraMain;

// In "View One Group" and "View One Employee" the schedule commands work on the group of
// the group combo box only; "<None>" (index 0) stands for the empty group name.
bool isOneGroupView(RosteraMain *window);
QString viewGroup(RosteraMain *window);
// " and groupname='<group>'" in those views, otherwise empty.
QString viewGroupFilter(RosteraMain *window);

// "date>='<first>' and date<='<last>'"; an invalid date gives an empty text.
QString spanFilter(const QDate &first, const QDate &last);

// Adds 1 to a counter held as text in the float form of the record.
void countOne(ASAttribute &record, const QString &key);

// A "yyyy-MM-dd" text as a date, invalid if it is none. Each text is parsed once: the same
// few are read for every candidate of a run.
QDate dateOf(const QString &text);

// Whether date lies in the span of days days from first on. An invalid first never matches,
// and neither does a span of 0 days.
bool inSpan(const QDate &date, const QDate &first, int days);

// The spans of the vacation records by the employees they name, each a whole item of
// "staffids" ("11;12" does not name "1"): whether a record names the employee and its days
// cover the date.
class VacationIndex
{
public:
    explicit VacationIndex(const QVector<ASAttribute> &vacations);
    bool covers(const QDate &date, const QString &staffId) const;

private:
    struct Span
    {
        QDate first;
        int days;
    };
    QHash<QString, QVector<Span>> m_byId;
};

// The position of the first employee of each group and id in a list of employees.
class StaffPositions
{
public:
    explicit StaffPositions(const QVector<ASAttribute> &staffs);
    int find(const QString &groupname, const QString &id) const;

private:
    QHash<QString, int> m_first;
};

// Answers of checkHoliday by date, worked out as they are asked for.
struct HolidayAnswers
{
    explicit HolidayAnswers(const QVector<ASAttribute> &) {}
    QHash<QDate, bool> known;
};

// Answers worked out from a list of records, kept while the list stays as it is. The cache holds
// a shared copy of the list: any change to the list detaches it from the copy, so the next call
// meets another buffer and works the answers out anew, from the copy it then keeps.
template <typename Answers>
class ListCache
{
public:
    Answers &of(const QVector<ASAttribute> &list)
    {
        if (!m_answers || list.constData() != m_list.constData() || list.size() != m_list.size()) {
            m_list = list;
            m_answers.emplace(m_list);
        }
        return *m_answers;
    }

private:
    QVector<ASAttribute> m_list;
    std::optional<Answers> m_answers;
};

// The records of each group as a read whose filter begins "groupname='<group>'" gives them,
// from one read of all groups, where rows whose group is no text match none, in the same order.
// A name with an apostrophe changes the meaning of that filter, so such a group is read itself.
class GroupRecords
{
public:
    using Read = std::function<bool(QVector<ASAttribute> &, QString)>;
    // rest: what follows the group's condition in the filter, empty or " and ...".
    GroupRecords(const Read &read, const QString &rest);
    // The schedule table's records by group.
    static GroupRecords ofSchedule(const QString &rest);
    // Appends the group's records to out; false where that group's read would fail.
    bool of(const QString &group, QVector<ASAttribute> &out) const;

private:
    Read m_read;
    QString m_rest;
    bool m_readOk = false;
    QHash<QString, QVector<ASAttribute>> m_byGroup;
};

// What one generation run looks up for all its groups: the kept and the written records by
// cell, the employees by group, and the ids of each date's valid locks in the order the table
// gives them.
struct GenerationRun
{
    GenerationRun(QVector<ASAttribute> &keep, QVector<ASAttribute> &out, const GroupRecords::Read &readStaff)
        : keptAt(keep), outAt(out), staffOf(readStaff, QString())
    {
    }
    ScheduleIndex keptAt;
    ScheduleIndex outAt;
    GroupRecords staffOf;
    QHash<QString, QStringList> lockedIds;
};

#pragma once

#include <QDate>
#include <QHash>
#include <QString>
#include <QVector>

class ASAttribute;
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

// Whether the vacation record names the employee, as a whole item of "staffids", on the date.
bool vacationCovers(const ASAttribute &vacation, const QDate &date, const QString &staffId);

// The vacation records by the employees they name, for a run that tests many employees. It
// answers as RosteraMain::checkVacation over the same list, which must not change meanwhile.
class VacationIndex
{
public:
    explicit VacationIndex(const QVector<ASAttribute> &vacations);
    bool covers(const QDate &date, const QString &staffId) const;

private:
    QHash<QString, QVector<const ASAttribute *>> m_byId;
};

#pragma once

#include <QHash>
#include <QString>
#include <QVector>

#include "core/asattribute.h"

// The "schedule" record of a date, group and shift in the list, as a copy; *pos (when given)
// is its position. Without one, *pos is -1 and the answer is newSchedule of those keys.
ASAttribute getSchedule(QString date, QString groupname, QString shiftname, QVector<ASAttribute> &list, int *pos);

// A new "schedule" record of a date, group and shift, with no "staffs".
ASAttribute newSchedule(const QString &date, const QString &groupname, const QString &shiftname);

// Finds schedule records of a list by date, group and shift in constant time, with the answers
// of getSchedule: the first record of a key. The list may change only through append() and by
// replacing a record with one of the same key.
class ScheduleIndex
{
public:
    explicit ScheduleIndex(QVector<ASAttribute> &list);
    // Position of the record, or -1.
    int find(const QString &date, const QString &groupname, const QString &shiftname) const;
    void append(const ASAttribute &record);

private:
    void remember(const ASAttribute &record, int position);
    QVector<ASAttribute> &m_list;
    QHash<QString, int> m_positions;
};

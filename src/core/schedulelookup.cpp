#include "core/schedulelookup.h"

ASAttribute getSchedule(QString date, QString groupname, QString shiftname, QVector<ASAttribute> &list, int *pos)
{
    for (int i = 0; i < list.size(); ++i) {
        const ASAttribute &record = list.at(i);
        if (record.attr("date", QString()) == date && record.attr("groupname", QString()) == groupname
            && record.attr("shiftname", QString()) == shiftname) {
            if (pos)
                *pos = i;
            return record;
        }
    }
    if (pos)
        *pos = -1;
    return newSchedule(date, groupname, shiftname);
}

ASAttribute newSchedule(const QString &date, const QString &groupname, const QString &shiftname)
{
    ASAttribute record;
    record.setAttr("infotype", QString("schedule"));
    record.setAttr("date", date);
    record.setAttr("groupname", groupname);
    record.setAttr("shiftname", shiftname);
    return record;
}

// The three texts joined by a character that no name holds.
static QString keyOf(const QString &date, const QString &groupname, const QString &shiftname)
{
    return date + QChar(0) + groupname + QChar(0) + shiftname;
}

static QString keyOf(const ASAttribute &record)
{
    return keyOf(record.attr("date", QString()), record.attr("groupname", QString()),
                 record.attr("shiftname", QString()));
}

ScheduleIndex::ScheduleIndex(QVector<ASAttribute> &list)
    : m_list(list)
{
    for (int i = 0; i < list.size(); ++i)
        remember(list.at(i), i);
}

int ScheduleIndex::find(const QString &date, const QString &groupname, const QString &shiftname) const
{
    return m_positions.value(keyOf(date, groupname, shiftname), -1);
}

void ScheduleIndex::append(const ASAttribute &record)
{
    remember(record, int(m_list.size()));
    m_list.append(record);
}

void ScheduleIndex::remember(const ASAttribute &record, int position)
{
    // A later duplicate must not hide the first record of a key.
    const QString key = keyOf(record);
    if (!m_positions.contains(key))
        m_positions.insert(key, position);
}

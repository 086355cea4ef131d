#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QHash>
#include <QString>
#include <QVector>

// One event of an employee's calendar: an assignment to a shift on a date.
struct CalendarEvent
{
    QString uid;
    // Local times; an event without valid times covers the whole date of start.
    QDateTime start, end;
    QDate date;
    QString summary;
};

// The assignments of each employee in t_schedule from first to last, in date order, read at
// once for all: a shift from its "starttm" to its "endtm" on the date (to the next day where it
// ends at or before its start), summed up by the shift's and the group's names. In the customer
// mode the shift is called a customer, as everywhere else. Employees without one are left out.
QHash<QString, QVector<CalendarEvent>> scheduledEvents(const QStringList &ids, const QDate &first, const QDate &last,
                                                       bool customers);

// An iCalendar file (RFC 5545) of the events: one VCALENDAR, a VEVENT each, times in UTC
// converted from local time, text escaped, lines folded at 75 octets and ended by CR LF.
QByteArray calendarText(const QVector<CalendarEvent> &events, const QDateTime &stamp);

#include "core/icalendar.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QSet>

#include "core/appinfo.h"
#include "core/helpers.h"
#include "persistence/databasefunc.h"

QHash<QString, QVector<CalendarEvent>> scheduledEvents(const QStringList &ids, const QDate &first, const QDate &last,
                                                       bool customers)
{
    QVector<ASAttribute> records;
    getDB()->schedule(records, QString("date>='%1' and date<='%2' order by date,groupname,shiftname")
                                   .arg(first.toString("yyyy-MM-dd"), last.toString("yyyy-MM-dd")));
    const QSet<QString> chosen(ids.begin(), ids.end());
    QHash<QString, QVector<CalendarEvent>> events;
    for (const ASAttribute &record : records) {
        const QDate date = QDate::fromString(record.attr("date", QString()), "yyyy-MM-dd");
        if (!date.isValid())
            continue;
        const QString group = record.attr("groupname", QString());
        const QString shiftName = record.attr("shiftname", QString());
        ASAttribute shift;
        getShiftByName(shiftName, shift);
        const QTime start = QTime::fromString(shift.attr("starttm", QString()), "hh:mm");
        const QTime end = QTime::fromString(shift.attr("endtm", QString()), "hh:mm");
        CalendarEvent event;
        event.date = date;
        if (start.isValid() && end.isValid()) {
            event.start = QDateTime(date, start);
            event.end = QDateTime(end > start ? date : date.addDays(1), end);
        }
        event.summary = (customers ? QCoreApplication::translate("CalendarExport", "Customer: %1")
                                   : QCoreApplication::translate("CalendarExport", "Shift: %1"))
                            .arg(shiftName)
                        + (group.isEmpty() ? QString() : " (" + group + ")");
        QStringList staffs = record.attr("staffs", QString()).split(';');
        staffs.removeDuplicates();
        for (const QString &id : staffs) {
            if (!chosen.contains(id))
                continue;
            // The same assignment keeps its identity over exports.
            const QByteArray key = QStringList{record.attr("date", QString()), group, shiftName, id}.join(QChar(0)).toUtf8();
            event.uid = date.toString("yyyyMMdd") + "-"
                        + QCryptographicHash::hash(key, QCryptographicHash::Sha1).toHex().left(24) + "@rostera";
            events[id].append(event);
        }
    }
    return events;
}

// Backslash, semicolon, comma and line feed are escaped in text values.
static QString escaped(QString text)
{
    return text.replace('\\', "\\\\").replace(';', "\\;").replace(',', "\\,").replace('\n', "\\n");
}

// Lines longer than 75 octets go on in lines that begin with a blank, never inside a character.
static QByteArray folded(const QString &line)
{
    const QByteArray bytes = line.toUtf8();
    QByteArray out;
    int taken = 0, limit = 75;
    while (bytes.size() - taken > limit) {
        int cut = taken + limit;
        while ((bytes.at(cut) & 0xC0) == 0x80)
            --cut;
        out += bytes.mid(taken, cut - taken) + "\r\n ";
        taken = cut;
        limit = 74;
    }
    return out + bytes.mid(taken) + "\r\n";
}

static QString utc(const QDateTime &time)
{
    return time.toUTC().toString("yyyyMMdd'T'HHmmss'Z'");
}

QByteArray calendarText(const QVector<CalendarEvent> &events, const QDateTime &stamp)
{
    QStringList lines{"BEGIN:VCALENDAR", "VERSION:2.0",
                      QString("PRODID:-//%1//%1 %2//EN").arg(AppInfo::applicationName, AppInfo::applicationVersion),
                      "CALSCALE:GREGORIAN"};
    for (const CalendarEvent &event : events) {
        lines << "BEGIN:VEVENT" << "UID:" + event.uid << "DTSTAMP:" + utc(stamp);
        if (event.start.isValid())
            lines << "DTSTART:" + utc(event.start) << "DTEND:" + utc(event.end);
        else
            lines << "DTSTART;VALUE=DATE:" + event.date.toString("yyyyMMdd")
                  << "DTEND;VALUE=DATE:" + event.date.addDays(1).toString("yyyyMMdd");
        lines << "SUMMARY:" + escaped(event.summary) << "END:VEVENT";
    }
    lines << "END:VCALENDAR";
    QByteArray text;
    for (const QString &line : lines)
        text += folded(line);
    return text;
}

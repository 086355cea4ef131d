#include "core/helpers.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QObject>

#include "core/apppaths.h"
#include "core/asattribute.h"
#include "persistence/databasefunc.h"

// Built before main(), when no translator is installed yet: the names stay English.
QString g_szWeeks[7] = {
    QObject::tr("Monday"), QObject::tr("Tuesday"), QObject::tr("Wednesday"), QObject::tr("Thursday"),
    QObject::tr("Friday"), QObject::tr("Saturday"), QObject::tr("Sunday"),
};

QString getWeekDes(int day)
{
    if (day < 1 || day > 7)
        return QObject::tr("Error");
    return g_szWeeks[day - 1];
}

int getDatePos(const QVector<QDate> &dates, const QDate &d)
{
    return int(dates.indexOf(d));
}

int getStringPos(const QStringList &list, const QString &s)
{
    for (int i = 0; i < list.size(); ++i) {
        if (list.at(i).compare(s, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

// A version with more parts counts as newer whatever the numbers say; that is intended.
bool cmpVersion(const QString &a, const QString &b)
{
    const QStringList pa = a.split('.', Qt::SkipEmptyParts);
    const QStringList pb = b.split('.', Qt::SkipEmptyParts);
    if (pa.size() != pb.size())
        return pa.size() > pb.size();
    for (int i = 0; i < pa.size(); ++i) {
        const int na = pa.at(i).toInt(nullptr, 10);
        const int nb = pb.at(i).toInt(nullptr, 10);
        if (na != nb)
            return na > nb;
    }
    return false;
}

// First record of a cached list with the given "name", case-sensitive.
static const ASAttribute *findByName(const QVector<ASAttribute> &list, const QString &name)
{
    for (const ASAttribute &record : list) {
        if (record.attr("name", QString()) == name)
            return &record;
    }
    return nullptr;
}

bool getShiftByName(QString name, ASAttribute &shift)
{
    const ASAttribute *found = findByName(getDB()->shifts, name);
    if (found)
        shift = *found;
    return found != nullptr;
}

static QString abbreviationOf(const QVector<ASAttribute> &list, const QString &name)
{
    const ASAttribute *found = findByName(list, name);
    const QString abbreviation = found ? found->attr("abbreviation", QString()) : QString();
    return abbreviation.isEmpty() ? name : abbreviation;
}

QString getShiftAbbre(QString name)
{
    return abbreviationOf(getDB()->shifts, name);
}

QString getGroupAbbre(QString name)
{
    return abbreviationOf(getDB()->groups, name);
}

QTime str2Time(const QString &s)
{
    const bool twelveHour = s.contains("AM") || s.contains("PM");
    return QTime::fromString(s, twelveHour ? "hh:mm A" : "hh:mm");
}

// Format strings use the C locale in Qt 6, so "A" is always "AM"/"PM".
QString str2TimeFormat(const QString &s, bool use24)
{
    return str2Time(s).toString(use24 ? "hh:mm" : "hh:mm A");
}

// "hours" holds seconds. Only a strictly earlier end runs over midnight: equal times give 0.
void calcShiftLength()
{
    for (ASAttribute &shift : getDB()->shifts) {
        const QTime start = QTime::fromString(shift.attr("starttm", QString()), "hh:mm");
        const QTime end = QTime::fromString(shift.attr("endtm", QString()), "hh:mm");
        int seconds;
        if (end < start) {
            const QDate today = QDate::currentDate();
            seconds = int(QDateTime(today, start).secsTo(QDateTime(today.addDays(1), end)));
        } else {
            seconds = start.secsTo(end);
        }
        shift.setAttr("hours", seconds);
    }
}

// Diagnostic aid: each name keeps only the last text written under it.
void writeLog(QString name, QString text)
{
    const QString folder = getAppPath() + "/logs";
    QDir().mkpath(folder);
    QFile file(folder + "/" + name + ".txt");
    if (file.open(QIODevice::WriteOnly))
        file.write(text.toLatin1());
}

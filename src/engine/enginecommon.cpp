#include "engine/enginecommon.h"

#include "core/asattribute.h"
#include "core/textmemo.h"
#include "mainwindow/rosteramain.h"
#include "mainwindow/toolbar.h"
#include "persistence/databasefunc.h"
#include "ui_rosteramain.h"

bool isOneGroupView(RosteraMain *window)
{
    const int type = window->toolBar->getPersonType();
    return type == 1 || type == 2;
}

QString viewGroup(RosteraMain *window)
{
    return window->ui->cmb_group->currentIndex() == 0 ? QString() : window->ui->cmb_group->currentText();
}

QString viewGroupFilter(RosteraMain *window)
{
    return isOneGroupView(window) ? QString(" and groupname='%1'").arg(viewGroup(window)) : QString();
}

void countOne(ASAttribute &record, const QString &key)
{
    record.setAttr(key, record.attr(key, 0.0f) + 1);
}

QString spanFilter(const QDate &first, const QDate &last)
{
    return QString("date>='%1' and date<='%2'").arg(first.toString("yyyy-MM-dd"), last.toString("yyyy-MM-dd"));
}

QDate dateOf(const QString &text)
{
    static QHash<QString, QDate> parsed;
    return memoized(parsed, text, [](const QString &t) { return QDate::fromString(t, "yyyy-MM-dd"); });
}

bool inSpan(const QDate &date, const QDate &first, int days)
{
    return first <= date && date <= first.addDays(days - 1);
}

VacationIndex::VacationIndex(const QVector<ASAttribute> &vacations)
{
    for (const ASAttribute &vacation : vacations) {
        const Span span{dateOf(vacation.attr("date", QString())), vacation.attr("days", 1)};
        for (const QString &id : vacation.attr("staffids", QString()).split(';'))
            m_byId[id].append(span);
    }
}

bool VacationIndex::covers(const QDate &date, const QString &staffId) const
{
    const auto spans = m_byId.constFind(staffId);
    if (spans == m_byId.constEnd())
        return false;
    for (const Span &span : *spans) {
        if (inSpan(date, span.first, span.days))
            return true;
    }
    return false;
}

static QString staffKey(const QString &groupname, const QString &id)
{
    return groupname + QChar(0) + id;
}

StaffPositions::StaffPositions(const QVector<ASAttribute> &staffs)
{
    for (int i = staffs.size() - 1; i >= 0; --i)
        m_first.insert(staffKey(staffs.at(i).attr("groupname", QString()), staffs.at(i).attr("id", QString())), i);
}

int StaffPositions::find(const QString &groupname, const QString &id) const
{
    return m_first.value(staffKey(groupname, id), -1);
}

GroupRecords::GroupRecords(const Read &read, const QString &rest)
    : m_read(read), m_rest(rest)
{
    QVector<ASAttribute> all;
    m_readOk = m_read(all, "typeof(groupname)='text'" + rest);
    for (const ASAttribute &record : all)
        m_byGroup[record.attr("groupname", QString())].append(record);
}

GroupRecords GroupRecords::ofSchedule(const QString &rest)
{
    const Read read = [](QVector<ASAttribute> &list, QString filter) { return getDB()->schedule(list, filter); };
    return GroupRecords(read, rest);
}

bool GroupRecords::of(const QString &group, QVector<ASAttribute> &out) const
{
    if (group.contains('\''))
        return m_read(out, QString("groupname='%1'").arg(group) + m_rest);
    out += m_byGroup.value(group);
    return m_readOk;
}

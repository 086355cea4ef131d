#pragma once

// Helpers for the engine's tests: a plan written from scratch, a scripted source of chance,
// the schedule table as text, and the window in a chosen view.

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QPointer>
#include <QSettings>
#include <QSqlQuery>
#include <QTimer>
#include <functional>
#include <memory>

#include "core/apppaths.h"
#include "testhome.h"
#include "mainwindow/rosteramain.h"
#include "mainwindow/toolbar.h"
#include "persistence/databasefunc.h"
// Each test source includes "ui_rosteramain.h" itself, so that the form header is generated.
#include "ui_rosteramain.h"

inline ASAttribute staff(const QString &id, const QString &group)
{
    return record({{"id", id}, {"groupname", group}});
}

inline ASAttribute shift(const QString &name)
{
    return record({{"name", name}, {"abbreviation", name}, {"starttm", "08:00"}, {"endtm", "16:00"}});
}

inline ASAttribute standingRow(const QString &group, const QString &shiftname, const QString &daystaffnum,
                               const QString &employee = QString())
{
    return record({{"groupname", group}, {"shiftname", shiftname}, {"daystaffnum", daystaffnum},
                   {"employee_name", employee}});
}

inline ASAttribute holiday(const QString &date, int days, int repeat)
{
    return record({{"name", "h" + date}, {"date", date}, {"days", QString::number(days)},
                   {"repeat", QString::number(repeat)}, {"valid", "1"}});
}

inline ASAttribute vacation(const QString &ids, const QString &date, int days)
{
    return record({{"staffids", ids}, {"date", date}, {"days", QString::number(days)}, {"valid", "1"}});
}

inline ASAttribute lockOf(const QString &ids, const QString &date)
{
    return record({{"staffids", ids}, {"date", date}, {"valid", "1"}});
}

inline ASAttribute scheduleRecord(const QString &date, const QString &group, const QString &shiftname,
                                  const QString &staffs)
{
    return record({{"date", date}, {"groupname", group}, {"shiftname", shiftname}, {"staffs", staffs}});
}

// The master data of a test plan; what is not set is empty.
struct Plan
{
    QStringList groups;
    QVector<ASAttribute> staffs;
    QStringList shifts;
    QVector<ASAttribute> rows;
    QVector<ASAttribute> holidays;
    QVector<ASAttribute> vacations;
    QVector<ASAttribute> locks;
    QVector<ASAttribute> schedule;
};

// Replaces every table of the open file with the plan.
inline bool writePlan(const Plan &plan)
{
    DatabaseFunc *db = getDB();
    QVector<ASAttribute> groups;
    for (const QString &name : plan.groups)
        groups << record({{"name", name}, {"abbreviation", name}});
    QVector<ASAttribute> shifts;
    for (const QString &name : plan.shifts)
        shifts << shift(name);
    QVector<ASAttribute> staffs = plan.staffs, rows = plan.rows, holidays = plan.holidays,
                         vacations = plan.vacations, locks = plan.locks, schedule = plan.schedule;
    QString error;
    return db->saveGroupInfo(groups, error) && db->saveStaffInfo(staffs) && db->saveShiftInfo(shifts)
           && db->savePermanentSchedule(rows) && db->saveHolidayInfo(holidays) && db->saveVacationInfo(vacations)
           && db->saveLockEmployeeInfo(locks) && db->deleteSchedule("1=1") && db->saveSchedule(schedule);
}

// t_schedule as "date group shift staffs" lines in key order.
inline QStringList scheduleTable()
{
    QSqlQuery query(getDB()->db);
    QStringList lines;
    if (!query.exec("select date,groupname,shiftname,staffs from t_schedule order by date,groupname,shiftname"))
        return {"query failed"};
    while (query.next())
        lines << QString("%1 %2 %3 %4").arg(query.value(0).toString(), query.value(1).toString(),
                                            query.value(2).toString(), query.value(3).toString());
    return lines;
}

// The staffs of one cell of t_schedule; "-" when there is no row.
inline QString cell(const QString &date, const QString &group, const QString &shiftname)
{
    QVector<ASAttribute> list;
    getDB()->schedule(list, QString("date='%1' and groupname='%2' and shiftname='%3'").arg(date, group, shiftname));
    return list.isEmpty() ? QString("-") : list.first().attr("staffs", QString());
}

inline QVector<QDate> daysFrom(const QDate &first, int count)
{
    QVector<QDate> dates;
    for (int i = 0; i < count; ++i)
        dates << first.addDays(i);
    return dates;
}

inline void setOption(const QString &key, const QVariant &value)
{
    QSettings(getAppDataPath(0), QSettings::IniFormat).setValue("Options/" + key, value);
}

// A scripted source for RosteraMain::randomNumber; draws beyond the script give 0.
struct RandomScript
{
    static QVector<int> &values()
    {
        static QVector<int> v;
        return v;
    }
    static int &drawn()
    {
        static int n = 0;
        return n;
    }
    static void set(const QVector<int> &v)
    {
        values() = v;
        drawn() = 0;
    }
    static int next() { return values().value(drawn()++, 0); }
};

// View All (0), View One Group (1) or View One Employee (2), with the group combo box on group
// (index 0 is "<None>").
inline void setView(RosteraMain *window, int personType, const QString &group = QString())
{
    window->toolBar->setPersonType(personType);
    window->refreshGroupCmb();
    const int index = group.isEmpty() ? 0 : window->ui->cmb_group->findText(group);
    window->ui->cmb_group->setCurrentIndex(index);
}

// Runs action once the first dialog of type T is open; the dialog is answered by action.
template <typename T>
inline void whenDialogOpens(const std::function<void(T *)> &action)
{
    auto *timer = new QTimer;
    timer->setInterval(20);
    QObject::connect(timer, &QTimer::timeout, [timer, action] {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *dialog = qobject_cast<T *>(widget); dialog && dialog->isVisible()) {
                timer->stop();
                timer->deleteLater();
                action(dialog);
                return;
            }
        }
    });
    timer->start();
}

// Answers the message boxes that come up, in turn, with the given buttons (Cancel once the list
// is used up) and keeps their texts and default buttons.
class BoxSequence
{
public:
    explicit BoxSequence(const QList<QMessageBox::StandardButton> &answers)
        : m_answers(answers)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { poll(); });
        m_timer.start(20);
    }
    QStringList texts;
    QList<QMessageBox::StandardButton> defaults;

private:
    void poll()
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *box = qobject_cast<QMessageBox *>(widget);
            if (!box || !box->isVisible() || m_seen.contains(box))
                continue;
            m_seen.append(box);
            texts << box->text();
            defaults << (box->defaultButton() ? box->standardButton(box->defaultButton()) : QMessageBox::NoButton);
            const QMessageBox::StandardButton answer = m_answers.value(texts.size() - 1, QMessageBox::Cancel);
            if (QAbstractButton *button = box->button(answer))
                QMetaObject::invokeMethod(button, "click", Qt::QueuedConnection);
            else
                QMetaObject::invokeMethod(box, "reject", Qt::QueuedConnection);
        }
    }
    QList<QMessageBox::StandardButton> m_answers;
    QList<QPointer<QMessageBox>> m_seen;
    QTimer m_timer;
};

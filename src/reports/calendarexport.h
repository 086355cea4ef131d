#pragma once

#include <QDialog>
#include <QStringList>

#include "core/icalendar.h"

class RosteraMain;
class Ui_CalendarExport;

// "Export Calendar...": the assignments of the chosen employees in a span as iCalendar files,
// one per employee into a folder (<id>.ics) or one for one employee.
class CalendarExport : public QDialog
{
    Q_OBJECT
public:
    explicit CalendarExport(RosteraMain *window);
    ~CalendarExport() override;

    Ui_CalendarExport *ui = nullptr;
    // The ids of the employees that the group and person boxes choose, in the order of the list.
    QStringList chosenIds() const;

public slots:
    void accept() override;

private:
    void fillPeople();
    // Writes the file whole or not at all; false with a warning when it cannot be written.
    bool writeCalendar(const QString &path, const QVector<CalendarEvent> &events);
    bool m_customers = false;
};

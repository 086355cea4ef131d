// The calendar reports: the month of the first date as a wall calendar, one band per week.
#include "reports/reports.h"

#include <QPainter>
#include <QPrinter>

#include "core/helpers.h"
#include "persistence/databasefunc.h"
#include "reports/reportdraw.h"
#include "ui_reports.h"

using namespace ReportDraw;

void Reports::drawEmployeeCalendarPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                                       QVector<ASAttribute> &schedule)
{
    const QRect page = pageRect(printer);
    const QDate from = ui->date_from->date();
    const QDate first(from.year(), from.month(), 1);
    const QDate last = first.addDays(from.daysInMonth() - 1);
    const bool single = reportKind == SingleEmployeeCalendar;
    const QString person = ui->cmb_person->currentText();
    drawPage(printer, painter, group, firstPage);

    // Lines a day cell must hold: one for a single employee; otherwise the most the standing rows
    // ask for, or with shifts shown as customers the most employees actually on one day.
    int lines = 1;
    if (!single && !customersMode()) {
        lines = 0;
        for (const ASAttribute &standing : getDB()->permanentSchedules) {
            if (standing.attr("groupname", QString()) != group)
                continue;
            const QStringList parts = standing.attr("daystaffnum", QString()).split(';', Qt::SkipEmptyParts);
            int most = 0;
            for (int p = 0; p < qMin(7, int(parts.size())); ++p)
                most = qMax(most, parts.at(p).toInt());
            lines += most;
        }
    } else if (!single) {
        for (QDate d = first; d <= last; d = d.addDays(1)) {
            if (!colDays.contains(d.dayOfWeek()))
                continue;
            int count = 0;
            for (const ASAttribute &record : schedule)
                if (record.attr("date", QString()) == d.toString("yyyy-MM-dd"))
                    count += int(staffList(record).size());
            lines = qMax(lines, count);
        }
    }
    if (lines <= 0)
        return; // the header alone: no body and no footer

    painter.setFont(bodyFont());
    QFont bold = bodyFont();
    bold.setWeight(QFont::Bold);
    const QSize employeeBox = textBox(painter, tr("Employee"));
    const int h = employeeBox.height();
    // A band's height follows the expected lines, not a day's content: a fuller day overruns its cell.
    const int band = (lines + 1) * h;
    const int cellHeight = band + 24;
    const QDate start = first.addDays(1 - first.dayOfWeek());
    const int weeks = int((start.daysTo(last) + 1 + 6) / 7);
    const int firstWidth = colWidths.value(0);

    int top = yPos;
    QDate monday = start;
    // Weeks that do not fit on the page are dropped: this report has no continuation.
    for (int week = 0; week < weeks; ++week) {
        painter.drawText(QRect(0, yPos, employeeBox.width(), h), Qt::AlignHCenter | Qt::AlignVCenter,
                         QString("%1").arg(monday.weekNumber()));
        painter.drawLine(0, top, 0, yPos + cellHeight);
        painter.drawLine(firstWidth, top, firstWidth, yPos + cellHeight);
        int x = firstWidth;
        int col = 1;
        for (int i = 0; i < 7; ++i) {
            const QDate d = monday.addDays(i);
            if (!colDays.contains(d.dayOfWeek()))
                continue;
            const int width = colWidths.value(col);
            const QRect line(x + 20, yPos, width - 31, h);
            painter.save();
            painter.setFont(bold);
            if (d < first || d > last) {
                QPen grey = painter.pen();
                grey.setColor(QColor(0, 0, 0, 128));
                painter.setPen(grey);
            }
            painter.drawText(line, Qt::AlignRight, QString("%1").arg(d.day()));
            painter.drawLine(x, top, x, yPos + cellHeight);
            painter.restore();
            if (d >= first) {
                int y = yPos + h;
                const QString date = d.toString("yyyy-MM-dd");
                for (int r = 0; r < schedule.size();) {
                    if (schedule[r].attr("date", QString()) != date) {
                        ++r;
                        continue;
                    }
                    const QStringList names = staffList(schedule[r]);
                    const QString abbreviation = getShiftAbbre(schedule[r].attr("shiftname", QString()));
                    for (int n = 0; n < names.size(); ++n) {
                        if (single && names[n] != person)
                            continue;
                        if (n == 0 || single) {
                            painter.setFont(bold);
                            painter.drawText(line.translated(0, y - yPos), Qt::AlignLeft, abbreviation);
                        }
                        painter.setFont(bodyFont());
                        painter.drawText(line.translated(0, y - yPos), Qt::AlignRight, names[n]);
                        y += h;
                        if (single)
                            break;
                    }
                    schedule.remove(r);
                }
            }
            x += width;
            ++col;
            painter.drawLine(x, top, x, yPos + cellHeight);
        }
        yPos += band + 20;
        painter.setPen(rulePen(kLightPen));
        painter.drawLine(0, yPos + 4, page.width(), yPos + 4);
        top = yPos + 10;
        yPos += 30;
        monday = monday.addDays(7);
        if (pageFull(yPos, h, page.height() - footerHeight))
            break;
    }
    drawPageFooter(printer, painter);
}

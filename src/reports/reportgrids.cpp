// The timesheet and the employee-by-date grids (weekly, monthly and by date).
#include "reports/reports.h"

#include <QPainter>
#include <QPrinter>

#include "core/helpers.h"
#include "reports/reportdraw.h"

using namespace ReportDraw;

void Reports::drawEmployeeTimesheetPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                                        QVector<ASAttribute> &schedule)
{
    const QRect page = pageRect(printer);
    drawPage(printer, painter, group, firstPage);
    painter.setFont(bodyFont());
    const int h = textBox(painter, tr("Employee")).height();
    bool full = false;
    for (int i = 0; i < schedule.size() && !full;) {
        ASAttribute &record = schedule[i];
        const QStringList names = staffList(record);
        // "start" is the next employee of the record to print: a record may be split over pages.
        int next = qMax(record.attr("start", 0), 0);
        while (next < names.size() && !full) {
            QString shiftText = record.attr("shiftname", QString());
            QString startText = "00:00";
            QString endText = "00:00";
            ASAttribute shift;
            if (getShiftByName(shiftText, shift)) {
                if (!shift.attr("abbreviation", QString()).isEmpty())
                    shiftText = shift.attr("abbreviation", QString());
                startText = shift.attr("starttm", QString());
                endText = shift.attr("endtm", QString());
                if (!use24h) {
                    startText = str2TimeFormat(startText, false);
                    endText = str2TimeFormat(endText, false);
                }
            }
            const QStringList texts{monthDay(record.attr("date", QString())), names[next], shiftText, startText,
                                    endText};
            for (int c = 0; c < texts.size(); ++c)
                drawCell(painter, colWidths, colFlags, c, yPos, h, texts[c]);
            ruledRow(painter, yPos, h, page.width());
            ++next;
            full = pageFull(yPos, h, page.height() - footerHeight);
        }
        if (next >= names.size())
            schedule.remove(i);
        else
            record.setAttr("start", next);
    }
    drawPageFooter(printer, painter);
    if (checkNeedPrint(schedule))
        drawEmployeeTimesheetPage(printer, painter, group, firstPage, schedule);
}

void Reports::drawEmployeeWeeklyPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                                     QVector<ASAttribute> &employees, QVector<ASAttribute> &schedule)
{
    const QRect page = pageRect(printer);
    drawPage(printer, painter, group, firstPage);
    painter.setFont(bodyFont());
    while (!employees.isEmpty()) {
        const QString id = employees.first().attr("id", QString());
        const int h = drawBoxed(painter, 0, yPos, id).height();
        int x = colWidths.value(0);
        int rowHeight = h;
        for (int c = 1; c <= colDates.size(); ++c) {
            // Several shifts on one date stack in the cell and make the whole row taller.
            int offset = 0;
            const QString date = colDates[c - 1].toString("yyyy-MM-dd");
            for (const ASAttribute &record : schedule) {
                if (record.attr("date", QString()) != date || getStringPos(staffList(record), id) == -1)
                    continue;
                painter.drawText(QRect(x, yPos + offset, colWidths.value(c), h), Qt::AlignHCenter | Qt::AlignVCenter,
                                 getShiftAbbre(record.attr("shiftname", QString())));
                offset += h;
            }
            x += colWidths.value(c);
            rowHeight = qMax(rowHeight, offset);
        }
        ruledRow(painter, yPos, rowHeight, page.width());
        employees.removeFirst();
        // The room test knows only one line's height, so a tall next row may reach the footer.
        if (pageFull(yPos, h, page.height() - footerHeight))
            break;
    }
    drawPageFooter(printer, painter);
    if (!employees.isEmpty())
        drawEmployeeWeeklyPage(printer, painter, group, firstPage, employees, schedule);
}

// The same grid over the month's or the span's columns; the header has laid those out already.
void Reports::drawEmployeeDaysPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                                   QVector<ASAttribute> &employees, QVector<ASAttribute> &schedule)
{
    drawEmployeeWeeklyPage(printer, painter, group, firstPage, employees, schedule);
}

// The work-hour reports, "Schedule Assignment" and "Schedule Assignment Weekly": their data and pages.
#include "reports/reports.h"

#include <algorithm>

#include <QPainter>
#include <QPrinter>

#include "core/helpers.h"
#include "persistence/databasefunc.h"
#include "reports/reportdraw.h"
#include "ui_reports.h"

using namespace ReportDraw;

// Seconds as hours, divided in single precision and shown with up to six significant digits.
static QString hoursText(int seconds)
{
    return QString("%1").arg(double(float(seconds) / 3600));
}

void Reports::prepareWorkHours(const QVector<ASAttribute> &schedule, QVector<ASAttribute> &employees,
                               QVector<ASAttribute> &details)
{
    const bool single = reportKind == SingleEmployeeWorkHours;
    const QString person = ui->cmb_person->currentText();
    for (const ASAttribute &row : schedule) {
        const QStringList names = staffList(row);
        ASAttribute shift;
        if ((single && !names.contains(person)) || !getShiftByName(row.attr("shiftname", QString()), shift))
            continue;
        const int seconds = shift.attr("hours", 0);
        for (const QString &name : names) {
            if (single && name != person)
                continue;
            for (ASAttribute &employee : employees) {
                if (employee.attr("id", QString()) != name)
                    continue;
                employee.setAttr("hours", employee.attr("hours", 0) + seconds);
                ASAttribute detail;
                detail.setAttr("id", name);
                detail.setAttr("shiftname", row.attr("shiftname", QString()));
                detail.setAttr("hours", seconds);
                detail.setAttr("date", row.attr("date", QString()));
                details.append(detail);
            }
        }
    }
}

void Reports::prepareWeeklyLines(const QString &group)
{
    weeklyLabels.clear();
    weeklyRows.clear();
    for (const ASAttribute &standing : getDB()->permanentSchedules) {
        if (standing.attr("groupname", QString()) != group)
            continue;
        const QString shiftName = standing.attr("shiftname", QString());
        ASAttribute line;
        line.setAttr("type", QString("scheduleview"));
        line.setAttr("groupname", group);
        line.setAttr("shiftname", shiftName);
        // Only the plain "n;n;..." form is read; the XML form parses to no line at all.
        const QStringList parts = standing.attr("daystaffnum", QString()).split(';', Qt::SkipEmptyParts);
        int most = 0;
        for (int p = 0; p < qMin(7, int(parts.size())); ++p) {
            const int number = parts.at(p).toInt();
            line.setAttr(QString("staff%1").arg(p), number);
            most = qMax(most, number);
        }
        if (most <= 0)
            continue;
        line.setAttr("staffNum", most);
        const QString abbreviation = getShiftAbbre(shiftName);
        for (int u = 0; u < most; ++u) {
            if (u == 0)
                weeklyLabels << abbreviation + (most != 1 ? "--" + tr("Person %1").arg(1) : QString());
            else
                weeklyLabels << tr("Person %1").arg(u + 1);
            line.setAttr("staffCur", u);
            weeklyRows << line;
        }
    }
}

void Reports::drawEmployeeWorkHoursPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                                        QVector<ASAttribute> &employees, QVector<ASAttribute> &details)
{
    const QRect page = pageRect(printer);
    const int limit = page.height() - footerHeight;
    const bool printDetail = reportSettings.value(reportKind).attr("printDetail", 0) != 0;
    drawPage(printer, painter, group, firstPage);
    painter.setFont(bodyFont());
    while (!employees.isEmpty()) {
        const QString id = employees.first().attr("id", QString());
        const int h = drawBoxed(painter, 0, yPos, id).height();
        const int room = h + 50;
        bool kept = false;
        if (!printDetail) {
            drawCell(painter, colWidths, colFlags, 1, yPos, h, hoursText(employees.first().attr("hours", 0)));
            yPos += h + 20;
        } else {
            bool any = false;
            for (int j = 0; j < details.size();) {
                if (details[j].attr("id", QString()) != id) {
                    ++j;
                    continue;
                }
                drawCell(painter, colWidths, colFlags, 1, yPos, h, details[j].attr("shiftname", QString()));
                drawCell(painter, colWidths, colFlags, 2, yPos, h, hoursText(details[j].attr("hours", 0)));
                drawCell(painter, colWidths, colFlags, 3, yPos, h, details[j].attr("date", QString()));
                details.remove(j);
                yPos += h + 20;
                any = true;
                if (yPos + room + 30 >= limit) {
                    // The rest of this employee's lines go to the next page, under his id once more.
                    kept = std::any_of(details.cbegin() + j, details.cend(),
                                       [&id](const ASAttribute &d) { return d.attr("id", QString()) == id; });
                    break;
                }
            }
            if (!any)
                yPos += h + 20;
        }
        painter.setPen(rulePen(kLightPen));
        painter.drawLine(0, yPos + 4, page.width(), yPos + 4);
        yPos += 30;
        if (kept)
            break;
        employees.removeFirst();
        if (yPos + room >= limit)
            break;
    }
    drawPageFooter(printer, painter);
    if (!employees.isEmpty())
        drawEmployeeWorkHoursPage(printer, painter, group, firstPage, employees, details);
}

void Reports::drawScheduleAssignmentPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                                         QVector<ASAttribute> &schedule)
{
    const QRect page = pageRect(printer);
    drawPage(printer, painter, group, firstPage);
    painter.setFont(bodyFont());
    const int h = textBox(painter, tr("Employee")).height();
    while (!schedule.isEmpty()) {
        const QStringList names = staffList(schedule.first());
        if (!names.isEmpty()) {
            // One line per record: a long list of employees is cut at the page's right edge.
            drawCell(painter, colWidths, colFlags, 0, yPos, h, monthDay(schedule.first().attr("date", QString())));
            drawCell(painter, colWidths, colFlags, 1, yPos, h, schedule.first().attr("shiftname", QString()));
            drawCell(painter, colWidths, colFlags, 2, yPos, h, names.join(" / "));
            ruledRow(painter, yPos, h, page.width());
        }
        schedule.removeFirst();
        if (pageFull(yPos, h, page.height() - footerHeight))
            break;
    }
    drawPageFooter(printer, painter);
    if (checkNeedPrint(schedule))
        drawScheduleAssignmentPage(printer, painter, group, firstPage, schedule);
}

void Reports::drawScheduleAssignmentWeeklyPage(QPrinter &printer, QPainter &painter, QString group,
                                               bool &firstPage, QVector<ASAttribute> &schedule)
{
    const QRect page = pageRect(printer);
    const QDate from = ui->date_from->date();
    drawPage(printer, painter, group, firstPage);
    painter.setFont(bodyFont());
    while (!weeklyLabels.isEmpty() && !weeklyRows.isEmpty()) {
        const QString label = weeklyLabels.first();
        const QString shiftName = weeklyRows.first().attr("shiftname", QString());
        const QSize box = textBox(painter, label);
        // The later lines of a shift end flush with the right end of its first label.
        const bool firstLine = weeklyRows.first().attr("staffCur", 0) == 0;
        if (firstLine)
            firstLabelWidth = box.width();
        drawBoxed(painter, firstLine ? 0 : firstLabelWidth - box.width(), yPos, label);
        // Line n shows the n-th employee of each day: each line takes the first name left. The day's
        // column is taken by its offset from the first date; an offset without a column draws nothing.
        for (int offset = 0; offset < 7; ++offset) {
            const QString date = from.addDays(offset).toString("yyyy-MM-dd");
            const auto found = std::find_if(schedule.begin(), schedule.end(), [&](const ASAttribute &r) {
                return r.attr("date", QString()) == date && r.attr("shiftname", QString()) == shiftName;
            });
            if (found == schedule.end())
                continue;
            QStringList names = staffList(*found);
            if (!names.isEmpty())
                drawCell(painter, colWidths, colFlags, offset + 1, yPos, box.height(), names.takeFirst());
            if (names.isEmpty())
                schedule.erase(found);
            else
                found->setAttr("staffs", names.join(';'));
        }
        ruledRow(painter, yPos, box.height(), page.width());
        weeklyLabels.removeFirst();
        weeklyRows.removeFirst();
        if (pageFull(yPos, box.height(), page.height() - footerHeight))
            break;
    }
    drawPageFooter(printer, painter);
    if (!weeklyLabels.isEmpty() && !weeklyRows.isEmpty())
        drawScheduleAssignmentWeeklyPage(printer, painter, group, firstPage, schedule);
}

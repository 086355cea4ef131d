// The frame of every report page: title and date span, the column headings with the column table
// that the page bodies are laid on, and the footer with the page number.
#include "reports/reports.h"

#include <QPainter>
#include <QPrinter>

#include "core/helpers.h"
#include "reports/reportdraw.h"
#include "ui_reports.h"

using namespace ReportDraw;

static const char *const kDayNames[7] = {
    QT_TRANSLATE_NOOP("Reports", "Monday"),   QT_TRANSLATE_NOOP("Reports", "Tuesday"),
    QT_TRANSLATE_NOOP("Reports", "Wednesday"), QT_TRANSLATE_NOOP("Reports", "Thursday"),
    QT_TRANSLATE_NOOP("Reports", "Friday"),   QT_TRANSLATE_NOOP("Reports", "Saturday"),
    QT_TRANSLATE_NOOP("Reports", "Sunday")};
static const char *const kDayShort[7] = {QT_TRANSLATE_NOOP("Reports", "Mo"), QT_TRANSLATE_NOOP("Reports", "Tu"),
                                         QT_TRANSLATE_NOOP("Reports", "We"), QT_TRANSLATE_NOOP("Reports", "Th"),
                                         QT_TRANSLATE_NOOP("Reports", "Fr"), QT_TRANSLATE_NOOP("Reports", "Sa"),
                                         QT_TRANSLATE_NOOP("Reports", "Su")};

static QString dateSpan(const QDate &from, const QDate &to)
{
    return QString("%1-%2").arg(from.toString("MM/dd/yyyy"), to.toString("MM/dd/yyyy"));
}

void Reports::drawPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage)
{
    if (!firstPage)
        printer.newPage();
    firstPage = false;
    yPos = drawPageHeader(printer, painter, group);
    ++pageNo;
}

int Reports::drawPageHeader(QPrinter &printer, QPainter &painter, QString group)
{
    const int W = pageRect(printer).width();
    const QDate from = ui->date_from->date();
    const QDate monthFirst(from.year(), from.month(), 1);
    const QDate monthLast = monthFirst.addDays(from.daysInMonth() - 1);

    painter.setFont(reportFont(16, QFont::DemiBold));
    QString title = reportSettings.value(reportKind).attr("title", QString());
    if (title.isEmpty())
        title = reportNames.value(reportKind) + tr(" Report");
    if (!group.isEmpty())
        title += "-" + group;
    drawBoxed(painter, 0, 0, title);

    painter.setFont(reportFont(16));
    QString span;
    switch (reportKind) {
    case EmployeeWeekly:
    case SingleEmployeeWeekly:
    case ScheduleAssignmentWeekly:
        span = dateSpan(from, from.addDays(6));
        break;
    case EmployeeMonthly:
    case SingleEmployeeMonthly:
        span = dateSpan(monthFirst, monthLast);
        break;
    case EmployeeCalendar:
    case SingleEmployeeCalendar:
        span = from.toString("MMMM yyyy");
        break;
    case EmployeeByDate:
        span = dateSpan(from, from.addDays(byDateDays() - 1));
        break;
    default:
        span = dateSpan(from, ui->date_to->date());
    }
    const QSize spanBox = textBox(painter, span);
    painter.drawText(QRect(W - spanBox.width(), 0, spanBox.width(), spanBox.height()), Qt::TextSingleLine, span);

    painter.setFont(reportFont(12));
    colWidths.clear();
    colFlags.clear();
    colDays.clear();
    colDates.clear();
    QStringList headings;
    const auto addColumn = [&](const QString &heading, int width, int flags) {
        headings << heading;
        colWidths << width;
        colFlags << flags;
    };
    const int left = Qt::AlignLeft;
    const int leftBottom = Qt::AlignLeft | Qt::AlignBottom;
    const int centre = Qt::AlignHCenter | Qt::AlignVCenter;
    const QSize employeeBox = textBox(painter, tr("Employee"));
    const QSize shiftBox = textBox(painter, tr("Shift"));
    const QSize weekBox = textBox(painter, tr("Week"));
    const QString shiftHeading = customersMode() ? tr("Customer") : tr("Shift");
    const bool detail = reportSettings.value(reportKind).attr("printDetail", 0) != 0;
    int rowHeight = employeeBox.height();

    // A work week of 1 to 6 days filters the day columns. The weekly and by-date rows test the
    // unwrapped number f + i, so a filtering list never keeps a day past the first Sunday.
    const bool filters = workWeek.size() >= 1 && workWeek.size() <= 6;
    const auto kept = [&](int day) { return !filters || getStringPos(workWeek, QString::number(day)) != -1; };
    QStringList dayHeadings;
    int divisor = 0; // 0: the number of days kept
    int first = employeeBox.width() + 200;
    int firstFlags = leftBottom;
    int dayFlags = centre;
    QString firstHeading = tr("Employee");
    switch (reportKind) {
    case EmployeeWeekly:
    case SingleEmployeeWeekly:
    case ScheduleAssignmentWeekly:
        if (reportKind == ScheduleAssignmentWeekly)
            firstHeading = tr("Shift"), dayFlags = left;
        // The width follows the list's size, not the days actually kept.
        divisor = filters ? int(workWeek.size()) : 7;
        for (int i = 0; i < 7; ++i)
            if (kept(from.dayOfWeek() + i)) {
                dayHeadings << tr(kDayNames[(from.dayOfWeek() - 1 + i) % 7]);
                colDates << from.addDays(i);
            }
        break;
    case EmployeeMonthly:
    case SingleEmployeeMonthly:
    case EmployeeByDate: {
        rowHeight = 2 * employeeBox.height();
        dayFlags = centre | Qt::AlignBottom;
        const QDate start = reportKind == EmployeeByDate ? from : monthFirst;
        const int days = reportKind == EmployeeByDate ? byDateDays() : from.daysInMonth();
        for (int i = 0; i < days; ++i)
            if (kept(start.dayOfWeek() + i)) {
                const QDate date = start.addDays(i);
                dayHeadings << QString("%1\n%2").arg(date.day()).arg(tr(kDayShort[(start.dayOfWeek() - 1 + i) % 7]));
                colDates << date;
            }
        break;
    }
    case EmployeeCalendar:
    case SingleEmployeeCalendar:
        rowHeight = weekBox.height();
        first = qMax(weekBox.width() + 20, 150);
        firstHeading = tr("Week");
        firstFlags = centre;
        for (int day = 1; day <= 7; ++day)
            if (kept(day)) {
                dayHeadings << tr(kDayNames[day - 1]);
                colDays << day;
            }
        break;
    case EmployeeTimesheet:
        for (const QString &heading : {tr("Date"), tr("Employee"), shiftHeading, tr("Start Time"), tr("End Time")})
            addColumn(heading, W / 5, headings.size() < 2 ? left : centre);
        break;
    case ScheduleAssignment:
        rowHeight = shiftBox.height();
        addColumn(tr("Date"), textBox(painter, tr("Date")).width() + 800, left);
        addColumn(shiftHeading, shiftBox.width() + 800, left);
        addColumn(tr("Employees"), W - colWidths[0] - colWidths[1], left);
        break;
    case EmployeeWorkHours:
    case SingleEmployeeWorkHours:
        if (detail) {
            for (const QString &heading : {tr("Employee"), shiftHeading, tr("Hours")})
                addColumn(heading, W / 4, left);
            addColumn(tr("Date"), W / 4, centre);
        } else {
            addColumn(tr("Employee"), W / 2, left);
            addColumn(tr("Hours"), W / 2, centre);
        }
        break;
    default:
        break;
    }
    if (reportKind <= EmployeeByDate) {
        addColumn(firstHeading, first, firstFlags);
        // A filter that keeps no day leaves no day columns rather than dividing by zero.
        if (divisor == 0)
            divisor = int(dayHeadings.size());
        for (const QString &heading : dayHeadings)
            addColumn(heading, (W - first) / divisor, dayFlags);
    }

    const int top = spanBox.height() + 100;
    for (int i = 0, x = 0; i < headings.size(); x += colWidths[i], ++i)
        painter.drawText(QRect(x, top, colWidths[i], rowHeight), colFlags[i], headings[i]);

    const bool calendar = reportKind == EmployeeCalendar || reportKind == SingleEmployeeCalendar;
    const int below = top + rowHeight;
    painter.setPen(rulePen(calendar ? kLightPen : kHeavyPen));
    painter.drawLine(0, below + 30, W, below + 30);
    return below + (calendar ? 40 : 60);
}

void Reports::drawPageFooter(QPrinter &printer, QPainter &painter)
{
    const QRect page = pageRect(printer);
    const int top = page.height() - footerHeight;
    painter.setPen(rulePen(kHeavyPen));
    painter.drawLine(0, top + 10, page.width(), top + 10);
    painter.setFont(bodyFont());
    const QString number = QString("%1").arg(pageNo);
    painter.drawText(QRect(0, top + 40, page.width(), textBox(painter, number).height()),
                     Qt::TextSingleLine | Qt::AlignHCenter | Qt::AlignVCenter, number);
}

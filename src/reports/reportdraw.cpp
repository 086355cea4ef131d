#include "reports/reportdraw.h"

#include <QBrush>
#include <QDate>
#include <QPainter>
#include <QPrinter>

#include "core/asattribute.h"
#include "mainwindow/rosteramain.h"

namespace ReportDraw {

QFont reportFont(int pointSize, QFont::Weight weight)
{
    QFont f("Arial", pointSize, weight);
    f.setItalic(false);
    return f;
}

QFont bodyFont()
{
    return reportFont(10);
}

QPen rulePen(qreal width)
{
    return QPen(QBrush(Qt::black, Qt::SolidPattern), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

QRect pageRect(QPrinter &printer)
{
    const QRectF rect = printer.pageRect(QPrinter::DevicePixel);
    return QRect(0, 0, int(rect.width()), int(rect.height()));
}

QSize textBox(QPainter &painter, const QString &text)
{
    return painter.boundingRect(QRect(), Qt::TextSingleLine, text).size();
}

QSize drawBoxed(QPainter &painter, int x, int y, const QString &text)
{
    const QSize box = textBox(painter, text);
    painter.drawText(QRectF(x, y, box.width(), box.height()), Qt::TextSingleLine, text);
    return box;
}

int columnX(const QVector<int> &widths, int column)
{
    int x = 0;
    for (int i = 0; i < column && i < widths.size(); ++i)
        x += widths.at(i);
    return x;
}

void drawCell(QPainter &painter, const QVector<int> &widths, const QVector<int> &flags, int column, int y, int h,
              const QString &text)
{
    if (column < 0 || column >= widths.size())
        return;
    painter.drawText(QRect(columnX(widths, column), y, widths.at(column), h), flags.value(column), text);
}

void ruledRow(QPainter &painter, int &yPos, int rowHeight, int width)
{
    yPos += rowHeight + 20;
    painter.setPen(rulePen(kLightPen));
    painter.drawLine(0, yPos + 4, width, yPos + 4);
    yPos += 30;
}

bool pageFull(int yPos, int h, int limit)
{
    return yPos + h + 50 >= limit;
}

QStringList staffList(const ASAttribute &record)
{
    return record.attr("staffs", QString()).split(';', Qt::SkipEmptyParts);
}

QString monthDay(const QString &date)
{
    return QDate::fromString(date, "yyyy-MM-dd").toString("MM-dd");
}

bool customersMode()
{
    return g_pMain && g_pMain->employeeLockSchedule;
}

} // namespace ReportDraw

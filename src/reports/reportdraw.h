#pragma once

// Drawing pieces shared by the report pages. All lengths are device units of a high-resolution
// printer; the constants were chosen for that mode and are not scaled.

#include <QFont>
#include <QPen>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

class ASAttribute;
class QPainter;
class QPrinter;

namespace ReportDraw {

constexpr qreal kHeavyPen = 20.0;
constexpr qreal kLightPen = 9.0;

// "Arial" of the given size, never italic.
QFont reportFont(int pointSize, QFont::Weight weight = QFont::Normal);
// The text of the page bodies; bold for the day numbers and shift abbreviations of the calendar.
QFont bodyFont();
// A solid black rule of the given width.
QPen rulePen(qreal width);
// The printable rectangle, whose top left is the painter's origin.
QRect pageRect(QPrinter &printer);
// The single-line box of a text in the painter's current font.
QSize textBox(QPainter &painter, const QString &text);
// Draws a text at (x, y) in exactly its box; gives the box.
QSize drawBoxed(QPainter &painter, int x, int y, const QString &text);
// Left edge of a column, the columns laid side by side from x = 0.
int columnX(const QVector<int> &widths, int column);
// Draws a text in one column of the table at height y, h high; a column that is not there draws nothing.
void drawCell(QPainter &painter, const QVector<int> &widths, const QVector<int> &flags, int column, int y, int h,
              const QString &text);
// Closes a body row of the given height at yPos: a light rule under it, yPos moved past it.
void ruledRow(QPainter &painter, int &yPos, int rowHeight, int width);
// Whether a further line of height h no longer fits above the footer strip.
bool pageFull(int yPos, int h, int limit);
// The employees of a "staffs" text, empty parts dropped.
QStringList staffList(const ASAttribute &record);
// "yyyy-MM-dd" shown as "MM-dd".
QString monthDay(const QString &date);
// Whether shifts are shown as customers (the option "employee lock schedule"); off without a window.
bool customersMode();

} // namespace ReportDraw

// Stub: to be written.
#include "reports/reports.h"

void Reports::prepareWorkHours(const QVector<ASAttribute> &, QVector<ASAttribute> &, QVector<ASAttribute> &) {}
void Reports::prepareWeeklyLines(const QString &) {}
void Reports::drawEmployeeWorkHoursPage(QPrinter &, QPainter &, QString, bool &, QVector<ASAttribute> &,
                                        QVector<ASAttribute> &) {}
void Reports::drawScheduleAssignmentPage(QPrinter &, QPainter &, QString, bool &, QVector<ASAttribute> &) {}
void Reports::drawScheduleAssignmentWeeklyPage(QPrinter &, QPainter &, QString, bool &, QVector<ASAttribute> &) {}

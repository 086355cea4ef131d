// Stub: to be written.
#include "reports/reports.h"

void Reports::drawEmployeeTimesheetPage(QPrinter &, QPainter &, QString, bool &, QVector<ASAttribute> &) {}
void Reports::drawEmployeeWeeklyPage(QPrinter &, QPainter &, QString, bool &, QVector<ASAttribute> &,
                                     QVector<ASAttribute> &) {}
void Reports::drawEmployeeDaysPage(QPrinter &, QPainter &, QString, bool &, QVector<ASAttribute> &,
                                   QVector<ASAttribute> &) {}

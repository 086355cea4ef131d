// Stub: to be written.
#include "reports/reports.h"

void Reports::drawEmployeeCalendarPage(QPrinter &, QPainter &, QString, bool &, QVector<ASAttribute> &) {}

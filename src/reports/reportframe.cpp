// Stub: to be written.
#include "reports/reports.h"

void Reports::drawPage(QPrinter &, QPainter &, QString, bool &) {}
int Reports::drawPageHeader(QPrinter &, QPainter &, QString) { return 0; }
void Reports::drawPageFooter(QPrinter &, QPainter &) {}

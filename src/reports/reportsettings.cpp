// Stub: to be written (with its form reportsettings.ui).
#include "reports/reportsettings.h"

ReportSettings::ReportSettings(QWidget *parent) : QDialog(parent) {}
ReportSettings::~ReportSettings() = default;
void ReportSettings::setTypes(const QStringList &, bool) {}
QString ReportSettings::getData() const { return QString(); }
void ReportSettings::setData(const QString &) {}
void ReportSettings::on_comboBox_currentIndexChanged(int) {}

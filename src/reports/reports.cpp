// Stub: to be written. A minimal constructor so that the page routines can be drawn meanwhile.
#include "reports/reports.h"

#include <QDomDocument>
#include <QSettings>

#include "core/apppaths.h"
#include "ui_reports.h"

Reports::Reports(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_Reports)
{
    ui->setupUi(this);
    reportNames = {tr("Employee Weekly"), tr("Single Employee Weekly"), tr("Schedule Assignment Weekly"),
                   tr("Employee Monthly"), tr("Single Employee Monthly"), tr("Employee Calendar"),
                   tr("Single Employee Calendar"), tr("Employee By Date"), tr("Employee Timesheet"),
                   tr("Schedule Assignment"), tr("Employee Work Hours"), tr("Single Employee Work Hours")};
    ui->listWidget->addItems(reportNames);
    QSettings settings(getAppDataPath(0), QSettings::IniFormat);
    readReportSettings(settings.value("print settings/print configure").toString());
    use24h = settings.value("Options/use 24h", false).toBool();
    workWeek = settings.value("Options/work week", "1,2,3,4,5,6,7").toString().split(",");
    ui->date_from->setDate(QDate::currentDate());
    ui->date_to->setDate(QDate::currentDate().addDays(7));
}

Reports::~Reports()
{
    delete ui;
}

void Reports::readReportSettings(const QString &xml)
{
    reportSettings.clear();
    QDomDocument doc;
    const bool parsed = static_cast<bool>(doc.setContent(xml));
    for (int i = 0; i < KindCount; ++i) {
        ASAttribute record;
        if (parsed)
            record.setXmlAttrs(doc.documentElement().firstChildElement(QString("type%1").arg(i)));
        reportSettings.append(record);
    }
}

bool Reports::checkNeedPrint(QVector<ASAttribute> &records)
{
    for (const ASAttribute &record : records)
        if (!record.attr("staffs", QString()).isEmpty())
            return true;
    return false;
}

int Reports::byDateDays() const
{
    return qMin(ui->date_from->date().daysTo(ui->date_to->date()) + 1, qint64(31));
}

bool Reports::checkBeforePrint() { return false; }
void Reports::beginSetting(QPrinter *) {}
void Reports::endSetting(QPrinter *) {}
bool Reports::eventFilter(QObject *watched, QEvent *event) { return QDialog::eventFilter(watched, event); }
void Reports::on_ck_printPdf_clicked() {}
void Reports::on_btn_settings_clicked() {}
void Reports::on_btn_preview_clicked() {}
void Reports::on_listWidget_doubleClicked(const QModelIndex &) {}
void Reports::on_btn_print_clicked() {}
void Reports::on_cmb_group_currentIndexChanged(int) {}
void Reports::printPreview(QPrinter *) {}
void Reports::previewModeChange() {}

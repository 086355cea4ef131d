#include "reports/reports.h"

#include <QAction>
#include <QDomDocument>
#include <QEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QSettings>
#include <QTimer>

#include "core/apppaths.h"
#include "core/helpers.h"
#include "core/sortinfo.h"
#include "persistence/databasefunc.h"
#include "reports/reportsettings.h"
#include "ui_reports.h"

static bool isSingleEmployee(int kind)
{
    return kind == Reports::SingleEmployeeWeekly || kind == Reports::SingleEmployeeMonthly
           || kind == Reports::SingleEmployeeCalendar || kind == Reports::SingleEmployeeWorkHours;
}

static QVariant readSetting(const QString &key, const QVariant &def)
{
    return QSettings(getAppDataPath(0), QSettings::IniFormat).value(key, def);
}

static void writeSetting(const QString &key, const QVariant &value)
{
    QSettings(getAppDataPath(0), QSettings::IniFormat).setValue(key, value);
}

Reports::Reports(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_Reports)
{
    ui->setupUi(this);
    connect(ui->btn_close, &QPushButton::clicked, this, &QDialog::close);

    reportNames = {tr("Employee Weekly"), tr("Single Employee Weekly"), tr("Schedule Assignment Weekly"),
                   tr("Employee Monthly"), tr("Single Employee Monthly"), tr("Employee Calendar"),
                   tr("Single Employee Calendar"), tr("Employee By Date"), tr("Employee Timesheet"),
                   tr("Schedule Assignment"), tr("Employee Work Hours"), tr("Single Employee Work Hours")};
    ui->listWidget->addItems(reportNames);
    ui->listWidget->setCurrentRow(0);

    QSettings settings(getAppDataPath(0), QSettings::IniFormat);
    ui->ck_printPdf->setChecked(settings.value("print settings/print pdf", false).toBool());
    readReportSettings(settings.value("print settings/print configure", QString()).toString());
    settings.beginGroup("Options");
    use24h = settings.value("use 24h", false).toBool();
    // A list written by hand without quotes comes back as a string list: join it to the same text.
    workWeek = settings.value("work week", "1,2,3,4,5,6,7").toStringList().join(",").split(",");

    // The first item fills the person box with every employee.
    ui->cmb_group->addItem(tr("<All>"));
    ui->cmb_group->addItem(tr("<None>"));
    for (const ASAttribute &group : getDB()->groups)
        ui->cmb_group->addItem(group.attr("name", QString()));

    // From the latest start weekday on or before today; the span is "cycle days" + 1 days long.
    const int cycleDays = settings.value("cycle days", 7).toInt();
    const int showFrom = settings.value("show from week", 0).toInt();
    QDate from = QDate::currentDate();
    if (showFrom >= 0)
        from = from.addDays(-((from.dayOfWeek() - 1 - showFrom % 7 + 7) % 7));
    ui->date_from->setDate(from);
    ui->date_to->setDate(from.addDays(cycleDays));
}

Reports::~Reports()
{
    delete ui;
}

bool Reports::checkBeforePrint()
{
    const int row = ui->listWidget->currentRow();
    if (row < 0)
        return false;
    if (ui->date_to->date() < ui->date_from->date()) {
        QMessageBox::warning(this, QString(), tr("The start date can not be earlier than the end date"));
        return false;
    }
    // Only this single-employee report asks; the others print nothing for an empty person.
    if (row == SingleEmployeeWeekly && ui->cmb_person->currentText().isEmpty()) {
        QMessageBox::warning(this, QString(), tr("Please select a person"));
        return false;
    }
    return true;
}

bool Reports::checkNeedPrint(QVector<ASAttribute> &records)
{
    for (const ASAttribute &record : records)
        if (!record.attr("staffs", QString()).isEmpty())
            return true;
    return false;
}

void Reports::beginSetting(QPrinter *printer)
{
    // A value that is no rectangle reads as the null rectangle: zero margins.
    const QRectF margins = readSetting("print settings/page margins", QRectF(0.2, 0.2, 0.2, 0.2)).toRectF();
    printer->setPageMargins(QMarginsF(margins.x(), margins.y(), margins.width(), margins.height()),
                            QPageLayout::Inch);
}

// The margins the user chose in the print or preview dialog become the next print's default.
void Reports::endSetting(QPrinter *printer)
{
    const QMarginsF margins = printer->pageLayout().margins(QPageLayout::Inch);
    writeSetting("print settings/page margins", QRectF(margins.left(), margins.top(), margins.right(), margins.bottom()));
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

int Reports::byDateDays() const
{
    return qMin(ui->date_from->date().daysTo(ui->date_to->date()) + 1, qint64(31));
}

void Reports::on_ck_printPdf_clicked()
{
    writeSetting("print settings/print pdf", ui->ck_printPdf->isChecked());
}

void Reports::on_btn_settings_clicked()
{
    ReportSettings dialog(this);
    dialog.setTypes(reportNames, true);
    dialog.setData(readSetting("print settings/print configure", QString()).toString());
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString xml = dialog.getData();
    writeSetting("print settings/print configure", xml);
    readReportSettings(xml);
}

void Reports::on_btn_preview_clicked()
{
    if (!checkBeforePrint() || ui->listWidget->currentRow() < 0)
        return;
    QPrinter printer(QPrinter::HighResolution);
    beginSetting(&printer);
    if (ui->ck_printPdf->isChecked())
        printer.setOutputFormat(QPrinter::PdfFormat);

    QPrintPreviewDialog dialog(&printer, window(), Qt::Dialog | Qt::WindowMaximizeButtonHint);
    dialog.setWindowState(Qt::WindowMaximized);
    dialog.setWindowTitle(QString("%1 %2:%3").arg(tr("Print"), tr("Preview"), previewName));
    previewWidget = dialog.findChild<QPrintPreviewWidget *>();
    if (previewWidget) {
        previewWidget->installEventFilter(this);
        previewActions = dialog.findChildren<QAction *>();
    }
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this, &Reports::printPreview);
    dialog.exec();
    previewWidget = nullptr;
    previewActions.clear();
    endSetting(&printer);
}

// Once the preview is shown, it is turned to page 1 and fitted to the width.
bool Reports::eventFilter(QObject *watched, QEvent *event)
{
    if (previewWidget && watched == previewWidget && event->type() == QEvent::Show) {
        QTimer::singleShot(100, this, &Reports::previewModeChange);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void Reports::previewModeChange()
{
    // The dialog may have closed before the timer ran out.
    if (!previewWidget)
        return;
    previewWidget->setCurrentPage(1);
    for (QAction *action : std::as_const(previewActions))
        if (action->text().contains("width", Qt::CaseInsensitive))
            action->trigger();
}

void Reports::on_listWidget_doubleClicked(const QModelIndex &)
{
    on_btn_preview_clicked();
}

void Reports::on_btn_print_clicked()
{
    if (!checkBeforePrint())
        return;
    QPrinter printer(QPrinter::HighResolution);
    beginSetting(&printer);
    if (!ui->ck_printPdf->isChecked()) {
        QPrintDialog dialog(&printer, this);
        dialog.setOption(QAbstractPrintDialog::PrintSelection);
        dialog.setWindowTitle(QString("%1:%2").arg(tr("Print"), previewName));
        if (dialog.exec() != QDialog::Accepted)
            return;
    } else {
        // The name is taken as typed: no extension is added.
        const QString name = QFileDialog::getSaveFileName(this, tr("Print PDF File"), QString(), tr("PDF File(*.pdf)"));
        if (name.isEmpty())
            return;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(name);
    }
    printPreview(&printer);
    endSetting(&printer);
}

void Reports::on_cmb_group_currentIndexChanged(int index)
{
    // "<All>" lists everyone, "<None>" the employees without a group, a group its members.
    ui->cmb_person->clear();
    const QString wanted = index >= 2 ? getDB()->groups.value(index - 2).attr("name", QString()) : QString();
    for (const ASAttribute &staff : getDB()->staffs)
        if (index < 1 || staff.attr("groupname", QString()) == wanted)
            ui->cmb_person->addItem(staff.attr("id", QString()));
}

// The groups of a run, in the order they are printed; an empty name is the group of employees
// without one.
static QStringList runGroups(int kind, int groupIndex, const QString &groupText, const QString &person)
{
    if (groupIndex == 1)
        return {QString()};
    if (groupIndex > 1)
        return {groupText};
    if (isSingleEmployee(kind)) {
        for (const ASAttribute &staff : getDB()->staffs)
            if (staff.attr("id", QString()) == person)
                return {staff.attr("groupname", QString())};
        return {};
    }
    QStringList groups{QString()};
    for (const ASAttribute &group : getDB()->groups)
        groups << group.attr("name", QString());
    return groups;
}

void Reports::printPreview(QPrinter *printer)
{
    bool firstPage = true;
    pageNo = 0;
    reportKind = ui->listWidget->currentRow();
    if (reportKind < 0)
        return;
    const QString person = ui->cmb_person->currentText();
    const QStringList groups =
        runGroups(reportKind, ui->cmb_group->currentIndex(), ui->cmb_group->currentText(), person);
    if (groups.isEmpty())
        return;

    footerHeight = int(printer->pageRect(QPrinter::DevicePixel).height() * 0.025);
    QPainter painter;
    if (!painter.begin(printer)) {
        QMessageBox::warning(this, QString(), tr("Print failed"));
        return;
    }
    if (reportKind == EmployeeWorkHours || reportKind == SingleEmployeeWorkHours)
        calcShiftLength();

    // The dates read from the schedule: a week, the month of the start date, or the chosen span;
    // the by-date report reads one day more than it prints.
    const QDate from = ui->date_from->date();
    QDate first = from;
    QDate last = ui->date_to->date();
    if (reportKind <= ScheduleAssignmentWeekly) {
        last = from.addDays(6);
    } else if (reportKind <= SingleEmployeeCalendar) {
        first = QDate(from.year(), from.month(), 1);
        last = first.addDays(from.daysInMonth() - 1);
    } else if (reportKind == EmployeeByDate) {
        last = from.addDays(byDateDays());
    }

    const bool single = isSingleEmployee(reportKind);
    for (const QString &group : groups) {
        QVector<ASAttribute> schedule;
        QVector<ASAttribute> employees;
        getDB()->schedule(schedule, QString("groupname='%1' and date>='%2' and date <= '%3'")
                                        .arg(group, first.toString("yyyy-MM-dd"), last.toString("yyyy-MM-dd")));
        const QString staffFilter =
            single ? QString("groupname='%1' and id='%2'").arg(group, person) : QString("groupname='%1'").arg(group);

        switch (reportKind) {
        case EmployeeWeekly:
        case SingleEmployeeWeekly:
        case EmployeeMonthly:
        case SingleEmployeeMonthly:
        case EmployeeByDate:
            getDB()->staffInfo(employees, staffFilter);
            if (employees.isEmpty())
                break;
            if (reportKind <= SingleEmployeeWeekly)
                drawEmployeeWeeklyPage(*printer, painter, group, firstPage, employees, schedule);
            else
                drawEmployeeDaysPage(*printer, painter, group, firstPage, employees, schedule);
            break;
        case EmployeeCalendar:
        case SingleEmployeeCalendar:
            sortRecords(schedule);
            drawEmployeeCalendarPage(*printer, painter, group, firstPage, schedule);
            break;
        case ScheduleAssignmentWeekly:
            prepareWeeklyLines(group);
            if (weeklyLabels.isEmpty())
                break;
            sortRecords(schedule);
            drawScheduleAssignmentWeeklyPage(*printer, painter, group, firstPage, schedule);
            break;
        case EmployeeTimesheet:
        case ScheduleAssignment:
            sortRecords(schedule);
            if (!checkNeedPrint(schedule))
                break;
            if (reportKind == EmployeeTimesheet)
                drawEmployeeTimesheetPage(*printer, painter, group, firstPage, schedule);
            else
                drawScheduleAssignmentPage(*printer, painter, group, firstPage, schedule);
            break;
        default: { // the two work-hour reports
            getDB()->staffInfo(employees, staffFilter);
            QVector<ASAttribute> details;
            prepareWorkHours(schedule, employees, details);
            if (!employees.isEmpty())
                drawEmployeeWorkHoursPage(*printer, painter, group, firstPage, employees, details);
            break;
        }
        }
        // A single employee belongs to one group only.
        if (single)
            break;
    }
    painter.end();
}

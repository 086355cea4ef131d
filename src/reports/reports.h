#pragma once

#include <QDate>
#include <QDialog>
#include <QList>
#include <QStringList>
#include <QVector>

#include "core/asattribute.h"

class QAction;
class QModelIndex;
class QPainter;
class QPrinter;
class QPrintPreviewWidget;
class Ui_Reports;

// The reports dialog: twelve reports of a span and a group, printed to paper, a PDF file or a
// preview. Each run reads the plan anew and hands it, group by group, to one page routine.
// Page routines consume the vectors they are given and continue on a new page by calling
// themselves with what is left.
class Reports : public QDialog
{
    Q_OBJECT
public:
    // The list rows, which are also the indexes into reportSettings.
    enum Kind {
        EmployeeWeekly, SingleEmployeeWeekly, ScheduleAssignmentWeekly, EmployeeMonthly, SingleEmployeeMonthly,
        EmployeeCalendar, SingleEmployeeCalendar, EmployeeByDate, EmployeeTimesheet, ScheduleAssignment,
        EmployeeWorkHours, SingleEmployeeWorkHours, KindCount
    };

    explicit Reports(QWidget *parent = nullptr);
    ~Reports() override;

    int reportKind = 0;
    int pageNo = 0;
    int yPos = 0;
    int footerHeight = 100;
    QVector<int> colWidths;
    QVector<int> colFlags;
    QVector<int> colDays;
    QVector<QDate> colDates;
    QVector<ASAttribute> reportSettings;
    Ui_Reports *ui = nullptr;
    // Never assigned: the preview and print dialogs' titles end in a bare colon.
    QString previewName;
    QStringList weeklyLabels;
    QVector<ASAttribute> weeklyRows;
    int firstLabelWidth = 0;
    QStringList reportNames;
    bool use24h = false;
    QStringList workWeek;
    QPrintPreviewWidget *previewWidget = nullptr;
    QList<QAction *> previewActions;

    // --- dialog and print pipeline (reports.cpp) ---
    bool checkBeforePrint();
    bool checkNeedPrint(QVector<ASAttribute> &records);
    void beginSetting(QPrinter *printer);
    void endSetting(QPrinter *printer);
    void readReportSettings(const QString &xml);
    bool eventFilter(QObject *watched, QEvent *event) override;
    // Days in the schedule read for a row: 1 to 31 from date_from (row "Employee By Date").
    int byDateDays() const;

    // --- page furniture (reportframe.cpp) ---
    void drawPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage);
    int drawPageHeader(QPrinter &printer, QPainter &painter, QString group);
    void drawPageFooter(QPrinter &printer, QPainter &painter);

    // --- work hours and assignment (reporthours.cpp) ---
    // Adds each schedule row's shift length to its employees' "hours" and lists one detail per
    // employee and row; the single-employee row counts only the chosen person.
    void prepareWorkHours(const QVector<ASAttribute> &schedule, QVector<ASAttribute> &employees,
                          QVector<ASAttribute> &details);
    // Fills weeklyLabels and weeklyRows from the group's standing rows.
    void prepareWeeklyLines(const QString &group);
    void drawEmployeeWorkHoursPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                                   QVector<ASAttribute> &employees, QVector<ASAttribute> &details);
    void drawScheduleAssignmentPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                                    QVector<ASAttribute> &schedule);
    void drawScheduleAssignmentWeeklyPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                                          QVector<ASAttribute> &schedule);

    // --- calendars (reportcalendar.cpp) ---
    void drawEmployeeCalendarPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                                  QVector<ASAttribute> &schedule);

    // --- timesheet and employee grids (reportgrids.cpp) ---
    void drawEmployeeTimesheetPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                                   QVector<ASAttribute> &schedule);
    void drawEmployeeWeeklyPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                                QVector<ASAttribute> &employees, QVector<ASAttribute> &schedule);
    void drawEmployeeDaysPage(QPrinter &printer, QPainter &painter, QString group, bool &firstPage,
                              QVector<ASAttribute> &employees, QVector<ASAttribute> &schedule);

public slots:
    void on_ck_printPdf_clicked();
    void on_btn_settings_clicked();
    void on_btn_preview_clicked();
    void on_listWidget_doubleClicked(const QModelIndex &index);
    void on_btn_print_clicked();
    void on_cmb_group_currentIndexChanged(int index);
    void printPreview(QPrinter *printer);
    void previewModeChange();
};

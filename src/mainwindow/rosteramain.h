#pragma once

#include <QDate>
#include <cstdlib>
#include <QMainWindow>
#include <QMenu>
#include <QStringList>
#include <QVector>

#include "core/asattribute.h"
#include "engine/enginecommon.h"

class Ui_RosteraMain;
class ToolBar;
class ScheduleStatus;

// The main window. It also carries the scheduling engine, whose members are defined
// under engine/; the window's own are under mainwindow/, one file per concern.
class RosteraMain : public QMainWindow
{
    Q_OBJECT
public:
    explicit RosteraMain(QWidget *parent = nullptr);
    ~RosteraMain() override;

    Ui_RosteraMain *ui = nullptr;
    ToolBar *toolBar = nullptr;
    ScheduleStatus *statusPanel = nullptr;
    QMenu contextMenu;

    // While true, prepareTable and refreshTable return at once.
    bool refreshBlocked = true;
    // The option "employee lock schedule".
    bool employeeLockSchedule = false;

    // --- grid (mainwindow/grid.cpp, viewcontrols.cpp, framecommands.cpp) ---
    QVector<QDate> cycleDates;
    QStringList rowLabels;
    QVector<ASAttribute> gridRows;

    void calcFromToDay();
    void prepareTable();
    void refreshTable();
    void updateRowHeight(int row);
    void refreshGroupCmb();
    void refreshStaffCmb();
    void settingsChange();
    void updateTitle();
    // Refills both boxes and the title with the grid held back, makes the given texts current
    // where they exist, then redraws once.
    void refillView(const QString &group, const QString &person);
    // Reads the option "employee lock schedule"; the status bar shows only with it off.
    void readLockOption();

    // --- engine state ---
    QVector<ASAttribute> holidays;
    QVector<ASAttribute> vacations;
    ASAttribute assignStats;
    QVector<int> shuffledStaff;
    int tipRow = -1;
    int tipCol = -1;
    QString tipText;
    int editorHeight = 0;

    // The answers of checkHoliday and checkVacation, kept while those lists stay as they are.
    ListCache<HolidayAnswers> holidayAnswers;
    ListCache<VacationIndex> vacationAnswers;
    // The positions of the database's employees, for checkStaffExist.
    ListCache<StaffPositions> staffPositions;
    // Set by auto_schedule while it runs, for its calls of scheduleGroup.
    GenerationRun *generationRun = nullptr;

    // The generator's only source of chance: the standard rand, never seeded. A test may
    // put a scripted source here to reproduce a run.
    int (*randomNumber)() = std::rand;

    // --- staffing rule (engine/staffingrule.cpp) ---
    int getStaffNum(const QString &daystaffnum, const QDate &date, int dayIndex);
    bool checkAssNumValid(ASAttribute &staff, const QString &shiftname, bool &over, bool allowOver);

    // --- availability and rotation (engine/rotation.cpp) ---
    bool checkVacation(const QDate &date, const QString &staffId);
    bool checkHoliday(const QDate &date);
    QString getNextValidStaff(const QDate &date, QVector<ASAttribute *> &staffs, int &index, int dayPos,
                              const QString &shiftname, int pass);
    ASAttribute getDaySchedule(QVector<ASAttribute> &list, const QString &groupname, const QString &shiftname,
                               const QString &date);
    int getStaff(QVector<ASAttribute> &list, const QString &id);
    int getStaff(QVector<ASAttribute *> &list, const QString &id);
    int checkStaffExist(QVector<ASAttribute> &list, const QString &groupname, const QString &id);

    // --- generation (engine/generation.cpp) ---
    bool auto_schedule(const QVector<QDate> &dates, bool deleteExisting);
    void scheduleGroup(QString groupname, QVector<ASAttribute> &rows, QVector<ASAttribute> &keep,
                       QVector<ASAttribute> &out, const QVector<QDate> &dates);

    // --- check and repair (engine/check.cpp) ---
    QStringList checkSchedule(bool repair);
    void show_tip(int row, int col, QString text);

    // --- manual adjustment (engine/adjustment.cpp) ---
    bool adjustScheduleCommit(int row, int col, QString value, bool commit);

    // --- copy and clear (engine/copyclear.cpp) ---
    void copySchedule(const QDate &from, const QDate &to, int days, bool previousCycle);
    void clearSchedule(const QDate &from, const QDate &to);

    // Commands of the tool strip's menu; connected by pointer, not by name.
    void on_auto_schedule();
    void on_auto_date_schedule();
    void on_copyPreCycle_schedule();
    void on_copySpecifiedCycle_schedule();
    void on_clear_schedule();
    void on_clear_date_schedule();
    void on_refresh_schedule();
    void on_dateOper();
    void on_actionViewType();
    void on_select_language();
    void on_showtip();
    void openSettings(int tab);
    // The reports dialog, modal.
    void on_reports_clicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    // Connected by name from the form.
    void on_actionOpen_Database_triggered();
    void on_actionSave_Database_triggered();
    // The employees' assignments as iCalendar files, through a modal dialog.
    void on_actionExport_Calendar_triggered();
    void on_actionExit_triggered();
    void on_action_Help_triggered();
    void on_action_Website_triggered();
    void on_action_About_triggered();
    // The Settings dialog at one of its tabs; the grid follows once it has closed.
    void on_actionGroup_Settings_triggered();
    void on_actionStaff_Settings_triggered();
    void on_actionShift_Settings_triggered();
    void on_actionPermanentSchedule_Settings_triggered();
    void on_actionHoliday_Settings_triggered();
    void on_actionOptions_Settings_triggered();
    void on_date_current_dateChanged(const QDate &date);
    void on_cmb_person_currentIndexChanged(int index);
    void on_cmb_group_currentIndexChanged(int index);

    // --- software update (update/updatecheck.cpp) ---
public:
    // Asks the update host for the offered version without waiting; the answer goes to ifUpdate.
    void checkUpdate();
public slots:
    void ifUpdate();
    void on_action_Update_triggered();
    // --- end of software update ---
};

extern RosteraMain *g_pMain;

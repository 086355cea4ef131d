#include "mainwindow/rosteramain.h"

#include <QActionGroup>
#include <QEvent>
#include <QHeaderView>
#include <QSettings>

#include "core/apppaths.h"
#include "engine/schedulestatus.h"
#include "mainwindow/scheduledelegate.h"
#include "mainwindow/toolbar.h"
#include "ui_rosteramain.h"

RosteraMain *g_pMain = nullptr;

RosteraMain::RosteraMain(QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui_RosteraMain)
{
    ui->setupUi(this);
    g_pMain = this;
    refreshBlocked = true;

    // Shown only once the update check has found a newer version.
    ui->action_Update->setVisible(false);

    toolBar = new ToolBar(this);
    ui->mainToolBar->addWidget(toolBar);
    statusPanel = new ScheduleStatus(ui->statusBar);
    ui->statusBar->addWidget(statusPanel, 1);

    QSettings settings(getAppDataPath(0), QSettings::IniFormat);
    auto *languages = new QActionGroup(this);
    const QList<QAction *> languageActions = ui->menuLanguage->actions();
    for (QAction *action : languageActions) {
        languages->addAction(action);
        connect(action, &QAction::triggered, this, &RosteraMain::on_select_language);
    }
    if (QAction *current = languageActions.value(settings.value("language", 0).toInt()))
        current->setChecked(true);

    readLockOption();

    for (QToolButton *button : {ui->btn_preyear, ui->btn_premonth, ui->btn_preweek, ui->btn_nextyear,
                                ui->btn_nextmonth, ui->btn_nextweek})
        connect(button, &QToolButton::clicked, this, &RosteraMain::on_dateOper);
    connect(ui->actionReports, &QAction::triggered, this, &RosteraMain::on_reports_clicked);
    for (QAction *action : {ui->actionView_By_Person, ui->actionView_By_Schedule, ui->actionView_All,
                            ui->actionView_One_Group, ui->actionView_One_Person})
        connect(action, &QAction::triggered, this, &RosteraMain::on_actionViewType);

    ui->tableWidget->verticalHeader()->setDefaultAlignment(Qt::AlignRight);
    ui->tableWidget->setItemDelegate(new ScheduleDelegate(this));
    ui->tableWidget->installEventFilter(this);

    // Runs the date handler with the guard still set: it only labels the day and sets the dates.
    ui->date_current->setDate(QDate::currentDate());

    refillView(QString(), QString());

    const QByteArray columns = QByteArray::fromBase64(settings.value("columns", QString()).toString().toLatin1());
    if (!columns.isEmpty())
        ui->tableWidget->horizontalHeader()->restoreState(columns);

    checkUpdate();
}

RosteraMain::~RosteraMain()
{
    QSettings(getAppDataPath(0), QSettings::IniFormat)
        .setValue("columns", QString::fromLatin1(ui->tableWidget->horizontalHeader()->saveState().toBase64()));
    delete ui;
    if (g_pMain == this)
        g_pMain = nullptr;
}

void RosteraMain::readLockOption()
{
    employeeLockSchedule = QSettings(getAppDataPath(0), QSettings::IniFormat)
                               .value("Options/employee lock schedule", false)
                               .toBool();
    // The status panel checks the rules of the normal mode, which don't apply with the option on.
    ui->statusBar->setVisible(!employeeLockSchedule);
}

bool RosteraMain::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->tableWidget) {
        if (event->type() == QEvent::Resize) {
            // Up to a week's columns share the width; wider cycles keep the user's widths.
            const int count = ui->tableWidget->columnCount();
            if (count > 1 && count < 8) {
                const int width =
                    (ui->tableWidget->width() - ui->tableWidget->verticalHeader()->width()) / count;
                for (int column = 0; column < count - 1; ++column)
                    ui->tableWidget->setColumnWidth(column, width);
                ui->tableWidget->setColumnWidth(count - 1, 0);
            }
        } else if (event->type() == QEvent::ContextMenu) {
            contextMenu.clear();
        }
    }
    return false;
}

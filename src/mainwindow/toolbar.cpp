#include "mainwindow/toolbar.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QMenu>

#include "mainwindow/rosteramain.h"
#include "ui_toolbar.h"

static QButtonGroup *makeGroup(QObject *parent, const QList<QAbstractButton *> &buttons)
{
    auto *group = new QButtonGroup(parent);
    for (int id = 0; id < buttons.size(); ++id)
        group->addButton(buttons.at(id), id);
    return group;
}

static void checkButton(QButtonGroup *group, int id)
{
    if (QAbstractButton *button = group->button(id))
        button->setChecked(true);
}

ToolBar::ToolBar(QWidget *parent)
    : QWidget(parent)
    , ui(new Ui_ToolBar)
{
    ui->setupUi(this);

    auto *menu = new QMenu(ui->btn_rostera);
    menu->addAction(tr("Auto Generate Schedule"), g_pMain, &RosteraMain::on_auto_schedule);
    menu->addAction(tr("Auto Generate Specified Date Schedule"), g_pMain, &RosteraMain::on_auto_date_schedule);
    menu->addAction(tr("Copy Previous Cycle Schedule"), g_pMain, &RosteraMain::on_copyPreCycle_schedule);
    menu->addAction(tr("Copy Specified Cycle Schedule"), g_pMain, &RosteraMain::on_copySpecifiedCycle_schedule);
    menu->addSeparator();
    menu->addAction(tr("Clear Schedule"), g_pMain, &RosteraMain::on_clear_schedule);
    menu->addAction(tr("Clear Specified Date Schedule"), g_pMain, &RosteraMain::on_clear_date_schedule);
    ui->btn_rostera->setMenu(menu);

    connect(ui->btn_rostera, &QToolButton::clicked, g_pMain, &RosteraMain::on_auto_schedule);
    connect(ui->btn_refreshSchedule, &QToolButton::clicked, g_pMain, &RosteraMain::on_refresh_schedule);
    connect(ui->btn_help, &QToolButton::clicked, g_pMain, &RosteraMain::on_action_Help_triggered);
    connect(ui->btn_settings, &QToolButton::clicked, g_pMain, &RosteraMain::on_actionGroup_Settings_triggered);
    connect(ui->btn_reports, &QToolButton::clicked, g_pMain, &RosteraMain::on_reports_clicked);

    viewGroup = makeGroup(this, {ui->btn_byPerson, ui->btn_bySchedule});
    personGroup = makeGroup(this, {ui->btn_allGroup, ui->btn_oneGroup, ui->btn_onePerson});
    // idClicked comes from a real click only, never from setChecked.
    connect(viewGroup, &QButtonGroup::idClicked, this, &ToolBar::on_btn_by_clicked);
    connect(personGroup, &QButtonGroup::idClicked, this, &ToolBar::on_btn_by_clicked);
}

ToolBar::~ToolBar()
{
    delete ui;
}

int ToolBar::getViewType() const
{
    return viewGroup->checkedId();
}

int ToolBar::getPersonType() const
{
    return personGroup->checkedId();
}

void ToolBar::setViewType(int type)
{
    checkButton(viewGroup, type);
}

void ToolBar::setPersonType(int type)
{
    checkButton(personGroup, type);
}

void ToolBar::on_btn_by_clicked()
{
    g_pMain->prepareTable();
    g_pMain->refreshTable();
}

#include "mainwindow/rosteramain.h"

#include "core/helpers.h"
#include "mainwindow/toolbar.h"
#include "persistence/databasefunc.h"
#include "ui_rosteramain.h"

void RosteraMain::refreshGroupCmb()
{
    ui->cmb_group->clear();
    // Index 0 stands for employees and lines without a group.
    ui->cmb_group->addItem(tr("<None>"));
    for (const ASAttribute &group : getDB()->groups)
        ui->cmb_group->addItem(group.attr("name", QString()));
}

void RosteraMain::refreshStaffCmb()
{
    if (ui->cmb_group->currentIndex() == -1)
        return;
    ui->cmb_person->clear();
    const QString group = ui->cmb_group->currentIndex() == 0 ? QString() : ui->cmb_group->currentText();
    for (const ASAttribute &staff : getDB()->staffs) {
        if (staff.attr("groupname", QString()) == group)
            ui->cmb_person->addItem(staff.attr("id", QString()));
    }
}

static void selectText(QComboBox *box, const QString &text)
{
    const int index = text.isEmpty() ? -1 : box->findText(text);
    if (index >= 0)
        box->setCurrentIndex(index);
}

void RosteraMain::refillView(const QString &group, const QString &person)
{
    // Without the guard every change of a box would redraw the grid.
    refreshBlocked = true;
    refreshGroupCmb();
    refreshStaffCmb();
    updateTitle();
    selectText(ui->cmb_group, group);
    selectText(ui->cmb_person, person);
    refreshBlocked = false;
    on_refresh_schedule();
}

void RosteraMain::settingsChange()
{
    readLockOption();
    const QString group = ui->cmb_group->currentIndex() > 0 ? ui->cmb_group->currentText() : QString();
    const QString person = ui->cmb_person->currentIndex() > 0 ? ui->cmb_person->currentText() : QString();
    refillView(group, person);
}

void RosteraMain::on_date_current_dateChanged(const QDate &)
{
    ui->label_weekday->setText(getWeekDes(ui->date_current->date().dayOfWeek()));
    on_refresh_schedule();
}

void RosteraMain::on_cmb_person_currentIndexChanged(int)
{
    on_refresh_schedule();
}

void RosteraMain::on_cmb_group_currentIndexChanged(int)
{
    refreshBlocked = true;
    refreshStaffCmb();
    // Cleared whatever it was before: a refill of the boxes may redraw more than once, harmlessly.
    refreshBlocked = false;
    on_refresh_schedule();
}

void RosteraMain::on_dateOper()
{
    const QString name = sender() ? sender()->objectName() : QString();
    QDate date = ui->date_current->date();
    if (name == "btn_preweek")
        date = date.addDays(-7);
    else if (name == "btn_nextweek")
        date = date.addDays(7);
    else if (name == "btn_premonth")
        date = date.addMonths(-1);
    else if (name == "btn_nextmonth")
        date = date.addMonths(1);
    else if (name == "btn_preyear")
        date = date.addYears(-1);
    else if (name == "btn_nextyear")
        date = date.addYears(1);
    // The widget's date signal redraws.
    ui->date_current->setDate(date);
}

void RosteraMain::on_actionViewType()
{
    // Only the check moves: a programmatic check sends no click, so the grid shows the new
    // view at the next refresh. The menu has always behaved so.
    const QObject *action = sender();
    if (action == ui->actionView_By_Person)
        toolBar->setViewType(0);
    else if (action == ui->actionView_By_Schedule)
        toolBar->setViewType(1);
    else if (action == ui->actionView_All)
        toolBar->setPersonType(0);
    else if (action == ui->actionView_One_Group)
        toolBar->setPersonType(1);
    else if (action == ui->actionView_One_Person)
        toolBar->setPersonType(2);
}

#include "reports/calendarexport.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QSaveFile>

#include "core/apppaths.h"
#include "core/icalendar.h"
#include "mainwindow/rosteramain.h"
#include "mainwindow/toolbar.h"
#include "persistence/databasefunc.h"
#include "ui_calendarexport.h"
#include "ui_rosteramain.h"

CalendarExport::CalendarExport(RosteraMain *window)
    : QDialog(window), ui(new Ui_CalendarExport), m_customers(window->employeeLockSchedule)
{
    ui->setupUi(this);
    ui->date_from->setDate(window->cycleDates.value(0, QDate::currentDate()));
    ui->date_to->setDate(window->cycleDates.isEmpty() ? ui->date_from->date() : window->cycleDates.last());
    ui->cmb_group->addItem(tr("<All>"));
    ui->cmb_group->addItem(tr("<None>"));
    for (const ASAttribute &group : getDB()->groups)
        ui->cmb_group->addItem(group.attr("name", QString()));
    // The filters of the main window's view to begin with.
    const int personType = window->toolBar->getPersonType();
    if (personType > 0)
        ui->cmb_group->setCurrentIndex(window->ui->cmb_group->currentIndex() + 1);
    fillPeople();
    if (personType == 2)
        ui->cmb_person->setCurrentIndex(qMax(0, ui->cmb_person->findText(window->ui->cmb_person->currentText())));
    connect(ui->cmb_group, &QComboBox::currentIndexChanged, this, &CalendarExport::fillPeople);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &CalendarExport::accept);
}

CalendarExport::~CalendarExport()
{
    delete ui;
}

void CalendarExport::fillPeople()
{
    ui->cmb_person->clear();
    ui->cmb_person->addItem(tr("<All>"));
    const int group = ui->cmb_group->currentIndex();
    for (const ASAttribute &staff : getDB()->staffs) {
        const QString staffGroup = staff.attr("groupname", QString());
        if (group == 0 || (group == 1 && staffGroup.isEmpty()) || (group > 1 && staffGroup == ui->cmb_group->currentText()))
            ui->cmb_person->addItem(staff.attr("id", QString()));
    }
}

QStringList CalendarExport::chosenIds() const
{
    if (ui->cmb_person->currentIndex() > 0)
        return {ui->cmb_person->currentText()};
    QStringList ids;
    for (int i = 1; i < ui->cmb_person->count(); ++i)
        ids << ui->cmb_person->itemText(i);
    return ids;
}

bool CalendarExport::writeCalendar(const QString &path, const QVector<CalendarEvent> &events)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(calendarText(events, QDateTime::currentDateTimeUtc())) >= 0
        && file.commit())
        return true;
    QMessageBox::warning(this, QString(), tr("The calendar file %1 could not be written.").arg(QDir::toNativeSeparators(path)));
    return false;
}

void CalendarExport::accept()
{
    const bool oneFile = ui->rb_file->isChecked();
    if (oneFile && ui->cmb_person->currentIndex() < 1) {
        QMessageBox::information(this, QString(), tr("Choose one employee for a single file."));
        return;
    }
    const QStringList ids = chosenIds();
    const QHash<QString, QVector<CalendarEvent>> events =
        scheduledEvents(ids, ui->date_from->date(), ui->date_to->date(), m_customers);
    QStringList scheduled;
    for (const QString &id : ids) {
        if (events.contains(id))
            scheduled << id;
    }
    if (scheduled.isEmpty()) {
        QMessageBox::information(this, QString(), tr("Nothing is scheduled for the chosen employees in this span."));
        return;
    }
    const QString start = getAppDataPath(2);
    const QString target = oneFile ? QFileDialog::getSaveFileName(this, tr("Export Calendar"), start + "/" + scheduled.first() + ".ics",
                                                                  tr("iCalendar File(*.ics)"))
                                   : QFileDialog::getExistingDirectory(this, tr("Export Calendar"), start);
    if (target.isEmpty())
        return;
    for (const QString &id : scheduled) {
        if (!writeCalendar(oneFile ? target : target + "/" + id + ".ics", events.value(id)))
            return;
    }
    QMessageBox::information(this, QString(), tr("%n calendar file(s) written.", nullptr, int(scheduled.size())));
    QDialog::accept();
}

#include "engine/schedulestatus.h"

#include <QMessageBox>

#include "mainwindow/rosteramain.h"
#include "ui_schedulestatus.h"

static const char *const kRepairSaveFailed = QT_TRANSLATE_NOOP("RosteraMain", "Save schedule failed when repair it!");

ScheduleStatus::ScheduleStatus(QWidget *parent)
    : QWidget(parent)
    , ui(new Ui_ScheduleStatus)
{
    ui->setupUi(this);
    refreshCheckState(true, QStringList());
}

ScheduleStatus::~ScheduleStatus()
{
    delete ui;
}

void ScheduleStatus::refreshCheckState(bool ok, QStringList messages)
{
    if (ok) {
        ui->schedule_textTip->setText(tr("Current schedule is correct"));
        ui->schedule_textTip->setToolTip(QString());
        ui->schedule_iconTip->setText("<img src=':/res/success.ico'/>");
    } else {
        ui->schedule_textTip->setText(messages.value(0));
        ui->schedule_textTip->setToolTip(messages.join("\r\n"));
        ui->schedule_iconTip->setText("<img src=':/res/error.ico'/>");
    }
    ui->btn_repairSchedule->setEnabled(!ok);
}

void ScheduleStatus::on_btn_checkSchedule_clicked()
{
    const QStringList result = g_pMain->checkSchedule(false);
    refreshCheckState(result.isEmpty(), result);
}

void ScheduleStatus::on_btn_repairSchedule_clicked()
{
    const auto answer = QMessageBox::question(this, QString(), tr("Need to allocate staff automatically?"),
                                              QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                                              QMessageBox::Yes);
    if (answer == QMessageBox::Cancel)
        return;
    QStringList result = g_pMain->checkSchedule(true);
    const QString saveFailed = QCoreApplication::translate("RosteraMain", kRepairSaveFailed);
    if (!result.isEmpty() && result.last() == saveFailed) {
        QMessageBox::warning(this, QString(), saveFailed, QMessageBox::Ok);
        return;
    }
    if (answer == QMessageBox::Yes && !result.isEmpty())
        g_pMain->auto_schedule(g_pMain->cycleDates, false);
    result = g_pMain->checkSchedule(false);
    refreshCheckState(result.isEmpty(), result);
    g_pMain->prepareTable();
    g_pMain->refreshTable();
}

// The Settings dialog's frame: opened from the window at a tab, the options it keeps, and the
// vocabulary of the option "employee lock schedule".
#include "fixture.h"

#include <QSettings>

#include "core/apppaths.h"
#include "mainwindow/rosteramain.h"
#include "mainwindow/toolbar.h"
#include "masterdata/settings.h"
#include "masterdata/workweekselect.h"
#include "ui_rosteramain.h"
#include "ui_settings.h"
#include "ui_toolbar.h"

static QString storedOptions()
{
    QSettings file(getAppDataPath(0), QSettings::IniFormat);
    file.beginGroup("Options");
    QStringList values;
    for (const QString &key : file.childKeys())
        values << key + "=" + file.value(key).toString();
    return values.join(' ');
}

class TestSettings : public QObject
{
    Q_OBJECT
    RosteraMain *window = nullptr;

private slots:
    void initTestCase()
    {
        QVERIFY((window = openWindow()));
        window->ui->date_current->setDate({2026, 3, 4}); // a Wednesday
        QVERIFY(writePlan("staff A/G B/H | row G/S/1;1;1;1;1;1;1 H/T/1;1;1;1;1;1;1"));
    }
    void cleanupTestCase() { delete window; }

    // Each opening shows the options as stored and writes all five back when the dialog closes,
    // whatever it was given.
    void options_data()
    {
        QTest::addColumn<QString>("stored"); // "key=value;..." of the group Options
        // show from (-1 unchecked), enabled, cycle, 24h, work week, lock | the grid's first date and length after
        QTest::addColumn<QString>("shown"), QTest::addColumn<QString>("written");
        QTest::newRow("nothing stored: the defaults") << "" << "0 on 7 0 1,2,3,4,5,6,7 0 | 03-02 7"
            << "cycle days=7 employee lock schedule=false show from week=0 use 24h=false work week=1,2,3,4,5,6,7";
        QTest::newRow("past Sunday wraps around") << "show from week=9;cycle days=3;use 24h=true;work week=2,4"
            << "2 on 5 1 2,4 0 | 03-05 5" << "cycle days=5 employee lock schedule=false show from week=2 use 24h=true work week=2,4";
        QTest::newRow("from the picked date") << "show from week=-1;employee lock schedule=true"
            << "-1 off 7 0 1,2,3,4,5,6,7 1 | 03-04 7" << "cycle days=7 employee lock schedule=true show from week=-1 use 24h=false work week=1,2,3,4,5,6,7";
    }
    void options()
    {
        QFETCH(QString, stored);
        QFile::remove(getAppDataPath(0));
        for (const QString &pair : stored.split(';', Qt::SkipEmptyParts))
            setOption(pair.section('=', 0, 0), pair.section('=', 1));
        QString shown;
        whenDialogOpens<Settings>([&shown](Settings *dialog) {
            Ui_Settings *ui = dialog->ui;
            shown = QString("%1 %2 %3 %4 %5 %6")
                        .arg(ui->ck_showFrom->isChecked() ? ui->cmb_showFrom->currentIndex() : -1)
                        .arg(ui->cmb_showFrom->isEnabled() ? "on" : "off")
                        .arg(ui->ed_cycleDays->value())
                        .arg(ui->ck_use24hour->isChecked())
                        .arg(ui->btn_workWeek->text())
                        .arg(ui->ck_employeeLockSchedule->isChecked());
            dialog->reject();
        });
        window->ui->actionOptions_Settings->trigger();
        shown += QString(" | %1 %2").arg(window->cycleDates.value(0).toString("MM-dd")).arg(window->cycleDates.size());
        QTEST(shown, "shown");
        QTEST(storedOptions(), "written");
    }

    // Every way in opens its tab; the check box of the week start enables its list.
    void tabs()
    {
        QList<int> tabs;
        const QList<QAction *> commands = window->ui->menuSettings->actions().mid(0, 6) << nullptr; // last: the tool strip
        for (QAction *action : commands) {
            whenDialogOpens<Settings>([&tabs](Settings *dialog) {
                tabs << dialog->ui->tabWidget->currentIndex();
                QTest::mouseClick(dialog->ui->ck_showFrom, Qt::LeftButton);
                QVERIFY(dialog->ui->cmb_showFrom->isEnabled() == dialog->ui->ck_showFrom->isChecked());
                QTest::keyClick(dialog, Qt::Key_Escape);
            });
            action ? action->trigger() : QTest::mouseClick(window->toolBar->ui->btn_settings, Qt::LeftButton);
        }
        QCOMPARE(tabs, QList<int>({0, 1, 2, 3, 4, 5, 0}));
        // Stored unchecked by the last case, then clicked in seven dialogs, each starting from the file.
        QVERIFY2(storedOptions().contains("show from week=0 "), qPrintable(storedOptions()));
    }

    // The option makes shifts customers: the dialog's words follow at once, the window once the
    // dialog has closed, without a restart.
    void lockVocabulary()
    {
        QFile::remove(getAppDataPath(0));
        setView(window, 0);
        window->toolBar->setViewType(1);
        window->settingsChange();
        QCOMPARE(window->rowLabels, QStringList({"G--S", "H--T"}));
        QStringList words;
        whenDialogOpens<Settings>([&words](Settings *dialog) {
            Ui_Settings *ui = dialog->ui;
            for (int i = 0; i < 2; ++i) {
                words << ui->tabWidget->tabText(2) + "/" + ui->shiftTable->horizontalHeaderItem(1)->text() + "/"
                             + ui->permanentScheduleTable->horizontalHeaderItem(1)->text() + "/"
                             + (ui->permanentScheduleTable->isColumnHidden(2) ? "hidden" : "shown");
                QTest::mouseClick(ui->ck_employeeLockSchedule, Qt::LeftButton);
            }
            QTest::mouseClick(ui->ck_employeeLockSchedule, Qt::LeftButton);
            for (int column = 0; column < 3; ++column) // widths a translation may change (the last stretches)
                words << QString::number(ui->permanentScheduleTable->columnWidth(column));
            dialog->reject();
        });
        window->ui->actionShift_Settings->trigger();
        QCOMPARE(words, QStringList({"Shifts/Abbreviation/Shift/hidden", "Customers/Cust ID/Customer/shown", "90", "90", "150"}));
        QVERIFY(!window->ui->statusBar->isVisible());
        QCOMPARE(window->rowLabels, QStringList({"S", "T"}));
    }

    // The 24-hour box reads the shifts again, dropping a row not saved; the work-week button takes
    // the picker's days when it is accepted.
    void optionControls()
    {
        QFile::remove(getAppDataPath(0));
        Settings dialog;
        dialog.selSettings(5);
        dialog.show();
        QTest::mouseClick(dialog.ui->btn_shiftAdd, Qt::LeftButton);
        QTest::mouseClick(dialog.ui->ck_use24hour, Qt::LeftButton, {}, QPoint(5, dialog.ui->ck_use24hour->height() / 2));
        QCOMPARE(dialog.ui->shiftTable->rowCount(), 2);
        QCOMPARE(dialog.ui->shiftTable->item(0, 2)->text(), QString("08:00"));
        // With no day ticked the picker refuses and stays open; numbers beyond 1 to 7 are ignored.
        Boxes boxes;
        for (const bool accept : {true, false}) {
            whenDialogOpens<WorkWeekSelect>([accept](WorkWeekSelect *picker) {
                for (QCheckBox *day : picker->findChildren<QCheckBox *>())
                    day->setChecked(false);
                QTest::keyClick(picker, Qt::Key_Return);
                picker->setSel("3,,9,x,1,7,0");
                QTest::keyClick(picker, accept ? Qt::Key_Return : Qt::Key_Escape);
            });
            QTest::mouseClick(dialog.ui->btn_workWeek, Qt::LeftButton);
        }
        QCOMPARE(dialog.ui->btn_workWeek->text(), QString("1,3,7"));
        QCOMPARE(boxes.texts, QStringList(2, "Please select one day at least."));
        QCOMPARE(boxes.icons.value(0), QMessageBox::Information);
    }

    void ruleDescription_data()
    {
        QTest::addColumn<QString>("value"), QTest::addColumn<QString>("description");
        QTest::newRow("plain list as it stands") << "2;2;2;2;2;1;0" << "2;2;2;2;2;1;0";
        QTest::newRow("broken XML is a plain value") << "<dt t='1'" << "<dt t='1'";
        QTest::newRow("weekly rule") << "<dt t='0' stn='1;;3'/>" << "1;;3";
        QTest::newRow("no kind is the weekly rule") << "<dt/>" << "";
        QTest::newRow("range") << "<dt t='1' sdt='2026-03-01' edt='2026-03-31' week='5' dayweek='1;2'/>"
                               << "From:2026-03-01 To:2026-03-31 Week:5 Day of week:1;2";
        QTest::newRow("one day") << "<dt t='1' sdt='2026-03-02' edt='2026-03-02' week='1' dayweek='1'/>"
                                 << "Date:2026-03-02 Week:1 Day of week:1";
        QTest::newRow("nothing but the kind") << "<x t='2'/>" << "Date: Week: Day of week:";
    }
    void ruleDescription()
    {
        QFETCH(QString, value);
        QTEST(Settings::getDateAssignDesc(value), "description");
    }
};

ROSTERA_TEST_MAIN(TestSettings)
#include "test_settings.moc"

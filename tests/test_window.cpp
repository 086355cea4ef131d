// The main window over a real file: program start, the frame's commands, and the grid.
#include "fixture.h"

#include <QActionGroup>
#include <QDesktopServices>
#include <QHeaderView>

#include "core/apppaths.h"
#include "core/helpers.h"
#include "mainwindow/appstart.h"
#include "mainwindow/rosteramain.h"
#include "mainwindow/toolbar.h"
#include "persistence/databasefunc.h"
#include "ui_rosteramain.h"
#include "reports/reports.h"
#include "ui_toolbar.h"

// The grid as text: per row its label ("+" when two lines high) and " column=text" for each
// cell that has an item, a cell's lines joined by "/"; rows joined by "; ".
static QString grid(const QTableWidget *table, int role = Qt::EditRole)
{
    QStringList rows;
    for (int r = 0; r < table->rowCount(); ++r) {
        QString line = table->verticalHeaderItem(r)->text() + (table->rowHeight(r) == 50 ? "+" : "");
        for (int c = 0; c < table->columnCount(); ++c)
            if (const QTableWidgetItem *item = table->item(r, c))
                line += QString(" %1=%2").arg(c).arg(item->data(role).toString().replace('\n', '/'));
        rows << line;
    }
    return rows.join("; ");
}

class TestWindow : public QObject
{
    Q_OBJECT
    RosteraMain *window = nullptr;
    QString defaultDb;
    QList<QUrl> urls;
    void show(int view, int person, const QString &group = {}, const QString &staff = {})
    {
        window->ui->cmb_group->setCurrentText(group);
        window->ui->cmb_person->setCurrentText(staff);
        window->toolBar->setViewType(view);
        window->toolBar->setPersonType(person);
        window->on_refresh_schedule();
    }
    QString table(int role = Qt::EditRole) { return grid(window->ui->tableWidget, role); }
    void click(QAbstractButton *button) { QTest::mouseClick(button, Qt::LeftButton); }
public slots:
    void openUrl(const QUrl &url) { urls << url; }
private slots:
    void initTestCase()
    {
        QVERIFY(getDB()->openDB(QString()));
        defaultDb = getDB()->getDBName();
        QVERIFY(writePlan(
            "group Alpha/AL Beta/BE Gamma/GA | shift Day/D/09:00/17:00 Night/N/22:00/06:00 Late//14:00/22:00"
            " | staff N1/ A1/Alpha A2/Alpha A3/Alpha B1/Beta B2/Beta | row Alpha/Day/1 Alpha/Night/1 Beta/Day/1"
            " Beta/Late/1 /Night/1 | schedule 2025-03-10/Alpha/Day/A1;A2 2025-03-10/Alpha/Night/A1"
            " 2025-03-11/Alpha/Day/A3;X9 2025-03-11/Beta/Day/B1 2025-03-12//Night/N1 2025-03-13/Gone/Day/A1"
            " 2025-03-14/Alpha/Night/ 2025-03-13/Alpha/Night/B2 2025-03-15/Beta/Late/B2 2025-03-20/Alpha/Day/A2"));
        QDesktopServices::setUrlHandler("http", this, "openUrl");
        QDesktopServices::setUrlHandler("file", this, "openUrl");
    }
    void cleanupTestCase()
    {
        QDesktopServices::unsetUrlHandler("http");
        QDesktopServices::unsetUrlHandler("file");
    }
    // A fresh configuration per test (no stored header state, Monday weeks of seven days) and
    // the Wednesday of the plan's week picked.
    void init()
    {
        QFile::remove(getAppDataPath(0));
        urls.clear();
        QVERIFY(getDB()->openDB(defaultDb));
        QVERIFY((window = openWindow()));
        window->ui->date_current->setDate({2025, 3, 12});
    }
    void cleanup() { delete window; }
    // Whatever the file holds, a number comes out, and the menu checks the entry at that place.
    void languageMenu()
    {
        for (const QString &row : {"|0|action_lan_system", "language=10|10|action_lan_tw", "language=11|11|",
                                   "language=-1|-1|", "language=2.5|0|action_lan_system"}) {
            const QStringList f = row.split('|');
            QVERIFY(writeFile(getAppDataPath(0), "[General]\n" + f[0].toUtf8() + "\n"));
            QCOMPARE(::storedLanguage(), f[1].toInt());
            delete window;
            window = new RosteraMain;
            const QActionGroup *group = window->ui->action_lan_de->actionGroup();
            QCOMPARE(group->checkedAction() ? group->checkedAction()->objectName() : "", f[2]);
        }
        Boxes boxes;
        window->ui->action_lan_de->trigger();
        window->ui->action_lan_de->trigger(); // the stored choice again: no message, still checked
        QVERIFY(window->ui->action_lan_de->isChecked());
        window->ui->action_lan_tw->trigger();
        QCOMPARE(window->ui->action_lan_de->actionGroup()->checkedAction(), window->ui->action_lan_tw);
        QCOMPARE(config().value("language").toInt(), 10);
        QCOMPARE(boxes.texts, QStringList(2, "Language change will take effect after the restart of the software."));
        QCOMPARE(boxes.icons.value(0), QMessageBox::Information);
    }
    void databaseFiles()
    {
        const QString second = getAppDataPath(1) + "/second.db";
        QVERIFY(getDB()->openDB(second) && writePlan("group Solo | staff Z1/Solo") && getDB()->openDB(defaultDb));
        Boxes boxes({QMessageBox::Ok, QMessageBox::Yes});
        QStringList dialog;
        answerFileDialog(second, &dialog);
        window->ui->actionOpen_Database->trigger();
        // The dialog starts where the last database lies.
        QCOMPARE(dialog, (QStringList{"Open Database", "DB File(*.db)", getAppDataPath(1)}));
        QCOMPARE(window->windowTitle() + " " + window->rowLabels.join(",") + " " + config().value("lastdb").toString(),
                 "Rostera-second Solo--Z1 " + second);
        // A path longer than the database library takes does not open: the previous file stays.
        const QString folder = TestHome::file(QStringList(3, QString(200, 'a')).join('/'));
        QVERIFY(QDir().mkpath(folder) && QFile::copy(defaultDb, folder + "/plan.db"));
        answerFileDialog(folder + "/plan.db", &dialog);
        window->ui->actionOpen_Database->trigger();
        QCOMPARE(boxes.texts, QStringList{"Open database failed!"});
        QCOMPARE(getDB()->getDBName(), second);
        // Save As copies the file and never overwrites, even after the dialog's own Yes to replace.
        answerFileDialog(defaultDb, &dialog);
        window->ui->actionSave_Database->trigger();
        QCOMPARE(dialog, (QStringList{"Save As Database", "DB File(*.db)", getAppDataPath(1)}));
        QCOMPARE(boxes.texts.last() + boxes.titles.last(), QString("Save as database failed!"));
        QCOMPARE(getDB()->getDBName(), second);
        answerFileDialog(getAppDataPath(1) + "/my.copy.db", &dialog);
        window->ui->actionSave_Database->trigger();
        // The title stops at the first dot.
        QCOMPARE(window->windowTitle() + " " + window->rowLabels.join(",") + " " + config().value("lastdb").toString(),
                 "Rostera-my Solo--Z1 " + getAppDataPath(1) + "/my.copy.db");
        QCOMPARE(boxes.texts.size(), 3);
    }
    void helpAboutExit()
    {
        const QUrl online("http://www.tavrelinsoftware.com/onlinehelp/rtr/index.html");
        // The guide beside the program opens in the browser; without it the online help does.
        const QString guide = getAppPath() + "/help/index.html";
        QVERIFY(QFile::exists(guide) || (QDir().mkpath(getAppPath() + "/help") && writeFile(guide, "")));
        window->ui->action_Help->trigger();
        QVERIFY(QFile::rename(guide, guide + ".away"));
        click(window->toolBar->ui->btn_help);
        QVERIFY(QFile::rename(guide + ".away", guide));
        window->ui->action_Website->trigger();
        QCOMPARE(urls, (QList<QUrl>{QUrl::fromLocalFile(guide), online, QUrl("http://www.tavrelinsoftware.com")}));
        bool reports = false; // the View menu's entry opens the reports dialog
        whenDialogOpens<Reports>([&reports](Reports *r) {
            reports = true;
            r->reject();
        });
        window->ui->actionReports->trigger();
        QVERIFY(!window->ui->action_Update->isVisible() && reports);
        Boxes boxes({}, QMessageBox::Cancel);
        window->ui->action_About->trigger();
        // The strip's button and the first entry of its menu both start a generation, which asks.
        click(window->toolBar->ui->btn_rostera);
        window->toolBar->ui->btn_rostera->menu()->actions().first()->trigger();
        QCOMPARE(boxes.titles.value(0), QString("About Rostera"));
        QCOMPARE(boxes.texts, (QStringList{"<p>Rostera<br><br>Made by TavrelinSoftware, <a href=\""
                                           "http://www.tavrelinsoftware.com\">http://www.tavrelinsoftware.com</a><br><br>"
                                           "\n\nVersion: 2.08.03<br><br></p>",
                                           "Delete existing schedule?", "Delete existing schedule?"}));
        window->ui->actionExit->trigger();
        QVERIFY(!window->isVisible());
    }
    void dateSpan_data()
    {
        QTest::addColumn<QString>("options"); // show from week, cycle days, work week, picked day of March
        QTest::addColumn<QString>("dates"), QTest::addColumn<int>("marked");
        QTest::newRow("monday week") << "0 7 1,2,3,4,5,6,7 12" << "10 11 12 13 14 15 16" << 2;
        QTest::newRow("from picked date") << "-1 7 1,2,3,4,5,6,7 12" << "12 13 14 15 16 17 18" << 0;
        QTest::newRow("friday week goes back five") << "4 7 1,2,3,4,5,6,7 12" << "07 08 09 10 11 12 13" << 5;
        QTest::newRow("thursday week goes back six") << "3 7 1,2,3,4,5,6,7 12" << "06 07 08 09 10 11 12" << 6;
        QTest::newRow("fourteen days") << "0 14 1,2,3,4,5,6,7 12" << "10 11 12 13 14 15 16 17 18 19 20 21 22 23" << 2;
        QTest::newRow("weekdays count work dates") << "0 7 1,2,3,4,5 12" << "10 11 12 13 14 17 18" << 2;
        QTest::newRow("picked day off has no mark") << "0 7 1,2,3,4,5 15" << "10 11 12 13 14 17 18" << -1;
        QTest::newRow("day off, no week start") << "-1 7 1,2,3,4,5 15" << "17 18 19 20 21 24 25" << -1;
        QTest::newRow("start moves to a work day") << "0 3 3,5 12" << "12 14 19" << 0;
        QTest::newRow("week starts on a day off") << "5 7 1,2,3,4,5 16" << "17 18 19 20 21 24 25" << -1;
        // Only a list of one to six items moves the first date; a longer one keeps it.
        QTest::newRow("long list keeps first date") << "0 3 3,5,3,5,3,5,3,5 12" << "10 12 14" << 1;
        // A hand-edited value that names no day must not hang the window.
        QTest::newRow("no day named") << "0 7 8 12" << "10 11 12 13 14 15 16" << 2;
    }
    void dateSpan()
    {
        QFETCH(QString, options);
        QFETCH(int, marked);
        const QStringList f = options.split(' ');
        setOption("show from week", f[0].toInt());
        setOption("cycle days", f[1].toInt());
        setOption("work week", f[2]);
        window->ui->date_current->setDate({2025, 3, f[3].toInt()});
        window->on_refresh_schedule();
        QStringList days;
        QTableWidget *table = window->ui->tableWidget;
        QCOMPARE(table->columnCount(), window->cycleDates.size());
        for (int column = 0; column < table->columnCount(); ++column) {
            const QDate date = window->cycleDates.at(column);
            days << date.toString(date.month() == 3 ? "dd" : "MM-dd");
            QCOMPARE(table->horizontalHeaderItem(column)->text(),
                     date.toString("MM/dd/yyyy\n") + QLocale::c().dayName(date.dayOfWeek(), QLocale::ShortFormat));
            QCOMPARE(table->horizontalHeaderItem(column)->foreground().color(),
                     column == marked ? QColor(255, 0, 0) : QColor(Qt::black));
        }
        QTEST(days.join(" "), "dates");
    }
    void cells_data()
    {
        QTest::addColumn<QString>("choice"); // view, person type, option "employee lock schedule", group, employee
        QTest::addColumn<QString>("cells");
        // The week of 10 March: the record of a removed group, one after the cycle and one of a Beta
        // employee in an Alpha line show nowhere; a shift without abbreviation shows its name.
        QTest::newRow("employees, all") << "0 0 0" << "N1 2=N; AL--A1+ 0=D/N; A2 0=D; A3 1=D; BE--B1 1=D; B2 5=Late";
        QTest::newRow("employees, one group") << "0 1 0 Alpha" << "A1+ 0=D/N; A2 0=D; A3 1=D";
        QTest::newRow("employees, no group") << "0 1 0 <None>" << "N1 2=N";
        QTest::newRow("employees, empty group") << "0 1 0 Gamma" << "";
        QTest::newRow("employees, one") << "0 2 0 Alpha A2" << "A2 0=D";
        // With the option on one query without a group serves every row.
        QTest::newRow("employees, option on") << "0 0 1"
            << "N1 2=N; AL--A1+ 0=D/N 3=D; A2 0=D; A3 1=D; BE--B1 1=D; B2 3=N 5=Late";
        QTest::newRow("employees, one group, option on") << "0 1 1 Beta" << "B1 1=D; B2 3=N 5=Late";
        // Ids are shown as stored, known or not; an empty record is an empty cell.
        QTest::newRow("schedule, all") << "1 0 0"
            << "AL--D+ 0=A1/A2 1=A3/X9; N 0=A1 3=B2 4=; BE--D 1=B1; Late 5=B2; --N 2=N1";
        QTest::newRow("schedule, one group") << "1 1 0 Alpha" << "D+ 0=A1/A2 1=A3/X9; N 0=A1 3=B2 4=";
        QTest::newRow("schedule, no group") << "1 1 0 <None>" << "N 2=N1";
        // One employee by schedule never sets the group: only the line without a group is left.
        QTest::newRow("schedule, one employee") << "1 2 0 Alpha A2" << "N 2=N1";
        // By shift every group's record of a date lands in one cell; the last one read wins.
        QTest::newRow("shifts, option on") << "1 1 1 Alpha" << "D+ 0=A1/A2 1=B1 3=A1; N 0=A1 2=N1 3=B2 4=;  5=B2";
    }
    void cells()
    {
        QFETCH(QString, choice);
        const QStringList f = choice.split(' ');
        const bool lock = f[2] == "1";
        setOption("employee lock schedule", lock);
        window->settingsChange();
        QCOMPARE(window->ui->statusBar->isVisible(), !lock);
        show(f[0].toInt(), f[1].toInt(), f.value(3), f.value(4));
        QTEST(table(), "cells");
        if (choice.startsWith("0 0"))
            QCOMPARE(table(Qt::UserRole).section(';', 1, 1), QString(" AL--A1+ 0=Day/Night") + (lock ? " 3=Day" : ""));
    }
    void viewControls()
    {
        // Each date button moves the picked date; the cycle follows and snaps to the week's Monday.
        for (const auto &[button, date] : QList<QPair<QString, QDate>>{
                 {"btn_preyear", {2024, 3, 12}}, {"btn_premonth", {2024, 2, 12}}, {"btn_preweek", {2024, 2, 5}},
                 {"btn_nextweek", {2024, 2, 12}}, {"btn_nextmonth", {2024, 3, 12}}, {"btn_nextyear", {2025, 3, 12}}}) {
            click(window->findChild<QToolButton *>(button));
            QCOMPARE(window->ui->date_current->date(), date);
            QCOMPARE(window->ui->label_weekday->text(), getWeekDes(date.dayOfWeek()));
            QCOMPARE(window->cycleDates.first(), date.addDays(1 - date.dayOfWeek()));
        }
        // The menu moves only the checks; the refresh button shows the lines of the group in the box.
        show(0, 0);
        window->ui->actionView_By_Schedule->trigger();
        window->ui->actionView_One_Group->trigger();
        QCOMPARE(window->rowLabels.size(), 6);
        click(window->toolBar->ui->btn_refreshSchedule);
        QCOMPARE(window->rowLabels, QStringList{"N"});
        // Values that name no button change nothing; a click on a button redraws at once.
        window->toolBar->setViewType(2);
        window->toolBar->setPersonType(-1);
        click(window->toolBar->ui->btn_allGroup);
        QCOMPARE(window->rowLabels, (QStringList{"AL--D", "N", "BE--D", "Late", "--N"}));
        click(window->toolBar->ui->btn_byPerson);
        QCOMPARE(window->rowLabels.size(), 6);
        // A change of settings keeps the boxes' choice where it still exists, else takes the first
        // entries; the first person of a group counts as no choice, so a new first one is taken.
        const QVector<ASAttribute> groups = getDB()->groups, staffs = getDB()->staffs;
        show(0, 2, "Alpha", "A3");
        window->settingsChange();
        QCOMPARE(window->rowLabels, QStringList{"A3"});
        getDB()->groups.removeFirst();
        window->settingsChange();
        getDB()->groups = groups;
        QCOMPARE(window->ui->cmb_group->currentText() + " " + window->rowLabels.join(","), QString("<None> N1"));
        window->settingsChange();
        show(0, 2, "Alpha", "A1");
        getDB()->staffs.insert(1, record({{"id", "A0"}, {"groupname", "Alpha"}}));
        window->settingsChange();
        getDB()->staffs = staffs;
        QCOMPARE(window->ui->cmb_group->currentText() + " " + window->rowLabels.join(","), QString("Alpha A0"));
    }
    void columnWidths()
    {
        QTableWidget *table = window->ui->tableWidget;
        table->setColumnWidth(0, 33);
        window->on_refresh_schedule();
        QCOMPARE(table->columnWidth(0), 33); // only a resize shares the width, up to seven columns
        table->resize(760, 300);
        for (int column = 0; column < 6; ++column)
            QCOMPARE(table->columnWidth(column), (760 - table->verticalHeader()->width()) / 7);
        setOption("cycle days", 2);
        window->on_refresh_schedule();
        table->resize(500, 300);
        QCOMPARE(table->columnWidth(0), (500 - table->verticalHeader()->width()) / 2);
        // A longer cycle gives the last column of the old count and every new one 100 pixels, and
        // the user's widths stay after that, also over runs of the program.
        const int first = table->columnWidth(0);
        setOption("cycle days", 14);
        window->on_refresh_schedule();
        QCOMPARE(table->columnWidth(0), first);
        for (int column = 1; column < 14; ++column)
            QCOMPARE(table->columnWidth(column), 100);
        table->setColumnWidth(2, 61);
        table->resize(700, 300);
        window->on_refresh_schedule();
        delete window;
        window = new RosteraMain;
        QCOMPARE(window->ui->tableWidget->columnWidth(2), 61);
        QCOMPARE(window->ui->tableWidget->columnWidth(3), 100);
    }
    // Last: the translators stay for the rest of the run.
    void translators()
    {
        for (const QString code : {"de", "es", "fr", "it", "ja", "pl", "ru", "zh_cn", "zh_tw"})
            QVERIFY2(QFile::exists(":/rostera_" + code + ".qm")
                         && QFile::exists(":/qt_" + code + ".qm") == (code != "it"),
                     qPrintable(code));
        installTranslators("");
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Cancel"));
        installTranslators("de");
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Abbrechen"));
        QCOMPARE(QObject::tr("Open Database Failed!"), QString("Die Datenbank konnte nicht geöffnet werden!"));
        // The week-day names were fixed before any translator existed; "Error" is looked up each time.
        QCOMPARE(getWeekDes(7) + getWeekDes(0), QString("SundayFehler"));
    }
};

ROSTERA_TEST_MAIN(TestWindow)
#include "test_window.moc"

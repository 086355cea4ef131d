// Renews the pictures of the user guide. In a temporary home it makes a demo plan (a small
// restaurant: Kitchen, Service and Bar), generates a week with the real engine, opens the real
// windows and dialogs, and saves QWidget::grab() of each as a PNG file into the folder given as
// the only argument. Run it through scripts/screenshots.sh, under a virtual display.
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTableWidget>
#include <QThread>
#include <QToolButton>
#include <QToolTip>
#include <cstdio>
#include <cstdlib>

#include "core/apppaths.h"
#include "core/asattribute.h"
#include "engine/copyschedulesettings.h"
#include "engine/schedulestatus.h"
#include "engine/workdateassign.h"
#include "mainwindow/appstart.h"
#include "mainwindow/rosteramain.h"
#include "mainwindow/toolbar.h"
#include "masterdata/settings.h"
#include "masterdata/staffsselect.h"
#include "masterdata/vacationsettings.h"
#include "persistence/databasefunc.h"
#include "reports/reports.h"
#include "update/softupdate.h"
#include "ui_reports.h"
#include "ui_rosteramain.h"
#include "ui_schedulestatus.h"
#include "ui_settings.h"
#include "ui_toolbar.h"
#include "ui_vacationsettings.h"

namespace {

QString g_out;
int g_failures = 0;

// The week of the pictures: Monday 9 to Sunday 15 March 2026, Wednesday picked.
const QDate kPicked(2026, 3, 11);

// HOME and the XDG folders point into a fresh temporary folder before the application object
// exists, so that the user's own plans and settings are never read or touched.
QString makeHome()
{
    char pattern[] = "/tmp/rostera-shots-XXXXXX";
    const char *made = mkdtemp(pattern);
    if (!made)
        return QString();
    const QByteArray home(made);
    setenv("HOME", home, 1);
    for (const char *name : {"XDG_DATA_HOME=/.local/share", "XDG_CONFIG_HOME=/.config", "XDG_CACHE_HOME=/.cache",
                             "XDG_RUNTIME_DIR=/run"}) {
        const QList<QByteArray> pair = QByteArray(name).split('=');
        QDir().mkpath(home + pair[1]);
        setenv(pair[0], home + pair[1], 1);
    }
    QFile::setPermissions(home + "/run", QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return QString::fromLocal8Bit(home);
}

// Lets the event loop run for a while, so that windows are laid out, painted and timers fire.
void settle(int ms = 200)
{
    QElapsedTimer timer;
    timer.start();
    do {
        QApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(10);
    } while (timer.elapsed() < ms);
}

void save(const QPixmap &pixmap, const QString &name)
{
    const QString path = g_out + "/" + name + ".png";
    if (pixmap.isNull() || !pixmap.save(path, "PNG", 0)) {
        std::fprintf(stderr, "could not write %s\n", qPrintable(path));
        ++g_failures;
        return;
    }
    std::printf("%-28s %4d x %-4d %7lld bytes\n", qPrintable(name + ".png"), pixmap.width(), pixmap.height(),
                QFileInfo(path).size());
}

QRect globalRect(const QWidget *widget)
{
    return QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
}

// A window with the popups open over it (menus, drop-down lists and tips are windows of their
// own), each painted where it stands on the screen. clip, in the window's coordinates, keeps a
// part; it may reach past the window where a popup does.
QPixmap compose(QWidget *base, const QList<QWidget *> &popups, const QRect &clip = QRect())
{
    QRect area = globalRect(base);
    for (const QWidget *popup : popups)
        if (popup)
            area |= globalRect(popup);
    QPixmap canvas(area.size());
    canvas.fill(base->palette().color(QPalette::Window));
    QPainter painter(&canvas);
    painter.drawPixmap(globalRect(base).topLeft() - area.topLeft(), base->grab());
    for (QWidget *popup : popups)
        if (popup)
            painter.drawPixmap(globalRect(popup).topLeft() - area.topLeft(), popup->grab());
    painter.end();
    if (clip.isNull())
        return canvas;
    return canvas.copy(clip.translated(globalRect(base).topLeft() - area.topLeft()).intersected(canvas.rect()));
}

// The visible tip, if one is shown.
QWidget *visibleTip()
{
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && widget->objectName() == "qtooltip_label")
            return widget;
    return nullptr;
}

void showAt(QWidget *window, int x, int y, int width, int height)
{
    window->move(x, y);
    window->resize(width, height);
    window->show();
    window->raise();
    settle(300);
}

ASAttribute record(std::initializer_list<std::pair<const char *, QString>> values)
{
    ASAttribute result;
    for (const auto &value : values)
        result.setAttr(value.first, value.second);
    return result;
}

QString weeklyRule(const QString &numbers)
{
    return record({{"t", "0"}, {"stn", numbers}}).getXmlAttrs("dt");
}

// The demo plan, written over whatever the new file was seeded with.
bool writeDemoPlan()
{
    DatabaseFunc *db = getDB();
    QVector<ASAttribute> groups{
        record({{"infotype", "group"}, {"name", "Bar"}, {"abbreviation", "BAR"}, {"note", "Drinks and late service"}}),
        record({{"infotype", "group"}, {"name", "Kitchen"}, {"abbreviation", "KIT"}, {"note", "Cooks and kitchen help"}}),
        record({{"infotype", "group"}, {"name", "Service"}, {"abbreviation", "SRV"}, {"note", "Floor and tables"}}),
    };
    const char *const staff[][5] = {
        {"Isla", "Isla", "Jensen", "Bar", "555-0131"},     {"Jack", "Jack", "Klein", "Bar", "555-0132"},
        {"Anna", "Anna", "Berg", "Kitchen", "555-0111"},   {"Ben", "Ben", "Carter", "Kitchen", "555-0112"},
        {"Chloe", "Chloe", "Dubois", "Kitchen", "555-0113"}, {"David", "David", "Evans", "Kitchen", "555-0114"},
        {"Emma", "Emma", "Fischer", "Service", "555-0121"}, {"Felix", "Felix", "Garcia", "Service", "555-0122"},
        {"Grace", "Grace", "Hughes", "Service", "555-0123"}, {"Henry", "Henry", "Ito", "Service", "555-0124"},
    };
    QVector<ASAttribute> staffs;
    for (const auto &s : staff)
        staffs << record({{"infotype", "staff"}, {"id", s[0]}, {"fname", s[1]}, {"lname", s[2]}, {"groupname", s[3]},
                          {"phonenum", s[4]}, {"note", QString()}});
    staffs[2].setAttr("note", QString("Head cook"));
    QVector<ASAttribute> shifts{
        record({{"infotype", "shift"}, {"name", "Early"}, {"abbreviation", "E"}, {"starttm", "06:00"}, {"endtm", "14:00"}}),
        record({{"infotype", "shift"}, {"name", "Late"}, {"abbreviation", "L"}, {"starttm", "14:00"}, {"endtm", "22:00"}}),
        record({{"infotype", "shift"}, {"name", "Night"}, {"abbreviation", "N"}, {"starttm", "22:00"}, {"endtm", "06:00"}}),
    };
    // The bar's night shift is a rule of dates: one employee on Fridays and Saturdays of 2026.
    const QString fridaysAndSaturdays = record({{"t", "1"}, {"sdt", "2026-01-01"}, {"edt", "2026-12-31"},
                                               {"week", "1;2;3;4;5"}, {"dayweek", "5;6"}})
                                            .getXmlAttrs("dt");
    QVector<ASAttribute> rows{
        record({{"groupname", "Bar"}, {"shiftname", "Late"}, {"daystaffnum", weeklyRule("1;1;1;1;1;1;1")}}),
        record({{"groupname", "Bar"}, {"shiftname", "Night"}, {"daystaffnum", fridaysAndSaturdays}}),
        record({{"groupname", "Kitchen"}, {"shiftname", "Early"}, {"daystaffnum", weeklyRule("1;1;1;1;1;2;2")}}),
        record({{"groupname", "Kitchen"}, {"shiftname", "Late"}, {"daystaffnum", weeklyRule("1;1;1;1;2;2;1")}}),
        record({{"groupname", "Service"}, {"shiftname", "Early"}, {"daystaffnum", weeklyRule("1;1;1;1;1;2;2")}}),
        record({{"groupname", "Service"}, {"shiftname", "Late"}, {"daystaffnum", weeklyRule("2;2;2;2;2;2;1")}}),
    };
    for (ASAttribute &row : rows) {
        row.setAttr("infotype", QString("permanentschedule"));
        row.setAttr("employee_name", QString());
    }
    QVector<ASAttribute> holidays{
        record({{"name", "New Year's Day"}, {"date", "2026-01-01"}, {"days", "1"}, {"repeat", "1"}, {"valid", "1"}}),
        record({{"name", "Spring closing"}, {"date", "2026-04-06"}, {"days", "3"}, {"repeat", "0"}, {"valid", "1"}}),
        record({{"name", "Christmas"}, {"date", "2025-12-24"}, {"days", "3"}, {"repeat", "1"}, {"valid", "1"}}),
    };
    QVector<ASAttribute> vacations{
        record({{"staffids", "Chloe"}, {"date", "2026-03-09"}, {"days", "5"}, {"note", "Family visit"}, {"valid", "1"}}),
        record({{"staffids", "Felix;Isla"}, {"date", "2026-03-23"}, {"days", "7"}, {"note", "Trade fair"}, {"valid", "1"}}),
    };
    QVector<ASAttribute> locks{
        record({{"staffids", "Grace"}, {"date", "2026-03-14"}, {"note", "Knows the wedding party"}, {"valid", "1"}}),
    };
    QString error;
    return db->saveGroupInfo(groups, error) && db->saveStaffInfo(staffs) && db->saveShiftInfo(shifts)
           && db->savePermanentSchedule(rows) && db->saveHolidayInfo(holidays) && db->saveVacationInfo(vacations)
           && db->saveLockEmployeeInfo(locks) && db->deleteSchedule("1=1");
}

void writeOptions()
{
    QSettings settings(getAppDataPath(0), QSettings::IniFormat);
    settings.setValue("language", 1);
    settings.beginGroup("Options");
    settings.setValue("cycle days", 7);
    settings.setValue("show from week", 0);
    settings.setValue("use 24h", true);
    settings.setValue("work week", "1,2,3,4,5,6,7");
    settings.setValue("employee lock schedule", false);
}

// Demand of a group's shift on a date, and how many the stored schedule has put there.
int needOf(RosteraMain &window, const QString &group, const QString &shift, const QDate &date)
{
    for (const ASAttribute &row : getDB()->permanentSchedules)
        if (row.attr("groupname", QString()) == group && row.attr("shiftname", QString()) == shift)
            return window.getStaffNum(row.attr("daystaffnum", QString()), date, date.dayOfWeek() - 1);
    return 0;
}

QStringList staffedOn(const QString &group, const QString &shift, const QDate &date)
{
    QVector<ASAttribute> records;
    getDB()->schedule(records, QString("date='%1' and groupname='%2' and shiftname='%3'")
                                   .arg(date.toString("yyyy-MM-dd"), group, shift));
    return records.isEmpty() ? QStringList() : records.first().attr("staffs", QString()).split(';', Qt::SkipEmptyParts);
}

void mainWindowShots(RosteraMain &window)
{
    QTableWidget *table = window.ui->tableWidget;
    save(window.grab(), "main-by-employee");

    window.toolBar->ui->btn_bySchedule->click();
    settle();
    save(window.grab(), "main-by-schedule");

    window.toolBar->ui->btn_oneGroup->click();
    window.ui->cmb_group->setCurrentText("Kitchen");
    settle();
    save(window.grab(), "main-one-group");
    window.toolBar->ui->btn_allGroup->click();
    window.toolBar->ui->btn_byPerson->click();
    settle();

    // The tool strip's menu of the generate button.
    QToolButton *generate = window.toolBar->ui->btn_rostera;
    QMenu *menu = generate->menu();
    menu->popup(generate->mapToGlobal(QPoint(0, generate->height())));
    settle();
    const QRect menuRect(QPoint(0, 0), globalRect(menu).bottomRight() - globalRect(&window).topLeft() + QPoint(40, 20));
    save(compose(&window, {menu}, menuRect), "generate-menu");
    menu->hide();

    // The Language menu, opened from the menu bar.
    QMenuBar *bar = window.menuBar();
    bar->setActiveAction(window.ui->menuLanguage->menuAction());
    settle();
    QMenu *languages = window.ui->menuLanguage;
    const QRect languageRect(QPoint(0, 0),
                             globalRect(languages).bottomRight() - globalRect(&window).topLeft() + QPoint(60, 20));
    save(compose(&window, {languages}, languageRect), "language-menu");
    languages->hide();
    bar->setActiveAction(nullptr);
    settle();

    // A cell being edited: an employee without a shift that day is offered a shift of the group
    // that already has its people, so the tip tells that nobody more is needed.
    for (int row = 0; row < window.gridRows.size(); ++row) {
        const QString group = window.gridRows.at(row).attr("groupname", QString());
        const QString id = window.gridRows.at(row).attr("id", QString());
        if (group != "Service")
            continue;
        for (int column = 0; column < window.cycleDates.size(); ++column) {
            const QDate date = window.cycleDates.at(column);
            if (table->item(row, column) && !table->item(row, column)->text().isEmpty())
                continue;
            const QStringList staffed = staffedOn(group, "Early", date);
            if (staffed.contains(id) || staffed.size() < needOf(window, group, "Early", date))
                continue;
            if (!table->item(row, column))
                table->setItem(row, column, new QTableWidgetItem);
            table->setCurrentCell(row, column);
            table->editItem(table->item(row, column));
            settle();
            auto *box = table->findChild<QComboBox *>();
            if (!box)
                return;
            // From the table's corner, with the column headers, to a little past the open list.
            const QRect cell(table->viewport()->mapTo(&window, table->visualItemRect(table->item(row, column)).topLeft()),
                             table->visualItemRect(table->item(row, column)).size());
            const QPoint corner = table->mapTo(&window, QPoint(0, 0));
            const QRect around(corner, QPoint(cell.right() + 2 * cell.width(), cell.bottom() + 110));
            box->showPopup();
            settle();
            save(compose(&window, {box->view()->window()}, around), "cell-editing");
            box->hidePopup();
            settle();
            box->setCurrentIndex(box->findData("Early"));
            settle(400);
            save(compose(&window, {visibleTip()}, around), "cell-tip");
            QToolTip::hideText();
            // Escape leaves the cell as it was: nothing is written.
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QApplication::sendEvent(box, &escape);
            settle();
            return;
        }
    }
    std::fprintf(stderr, "no cell found for the editing picture\n");
    ++g_failures;
}

// Someone who works on Thursday is reported sick after the week was made: the check finds him.
void checkShot(RosteraMain &window)
{
    const QDate thursday = window.cycleDates.value(3);
    const QStringList staffed = staffedOn("Kitchen", "Early", thursday);
    QVector<ASAttribute> vacations;
    getDB()->vacationInfo(vacations);
    vacations << record({{"staffids", staffed.value(0)}, {"date", thursday.toString("yyyy-MM-dd")}, {"days", "2"},
                         {"note", "Sick"}, {"valid", "1"}});
    getDB()->saveVacationInfo(vacations);
    window.statusPanel->ui->btn_checkSchedule->click();
    settle();
    QLabel *text = window.statusPanel->ui->schedule_textTip;
    QToolTip::showText(text->mapToGlobal(QPoint(20, text->height())), text->toolTip(), text);
    settle(300);
    // The status bar across the window, with the tip of all messages under it.
    const QRect bar(window.statusBar()->mapTo(&window, QPoint(0, 0)), window.statusBar()->size());
    QWidget *tip = visibleTip();
    QRect clip = bar.adjusted(0, -6, 0, 4);
    if (tip)
        clip.setBottom(globalRect(tip).bottom() - globalRect(&window).top() + 6);
    save(compose(&window, {tip}, clip), "check-result");
    QToolTip::hideText();
    settle();
}

void settingsShots(RosteraMain &window)
{
    Settings settings(&window);
    showAt(&settings, 40, 40, 780, 440);
    const char *const names[] = {"settings-groups", "settings-employees", "settings-shifts",
                                 "settings-rows",   "settings-holidays",  "settings-options"};
    for (int tab = 0; tab < 6; ++tab) {
        settings.selSettings(tab);
        settle();
        save(settings.grab(), names[tab]);
    }

    // The rule editor, with a row of numbers per weekday and with a rule of dates.
    for (const auto &[rowIndex, name] : {std::pair{2, "rule-weekly"}, std::pair{1, "rule-dates"}}) {
        WorkDateAssign editor(&settings);
        editor.setData(settings.permanentSchedules.value(rowIndex).attr("daystaffnum", QString()));
        showAt(&editor, 80, 80, editor.sizeHint().width(), editor.sizeHint().height());
        save(editor.grab(), name);
    }

    // The vacation editor with its list of employees open.
    VacationSettings vacation(&settings);
    ASAttribute away = record({{"staffids", "Felix;Isla"}, {"date", "2026-03-23"}, {"days", "7"},
                               {"note", "Trade fair"}, {"valid", "1"}});
    vacation.setData(away);
    showAt(&vacation, 80, 80, vacation.sizeHint().width(), vacation.sizeHint().height());
    vacation.on_btn_selStaff_clicked();
    settle();
    save(compose(&vacation, {vacation.picker}), "vacation-editor");
    vacation.picker->hide();
}

void copyShot(RosteraMain &window)
{
    CopyScheduleSettings copy(window.cycleDates, &window);
    showAt(&copy, 80, 80, copy.sizeHint().width(), copy.sizeHint().height());
    save(copy.grab(), "copy-dialog");
}

void reportShots(RosteraMain &window)
{
    Reports reports(&window);
    reports.ui->listWidget->setCurrentRow(Reports::EmployeeWeekly);
    reports.ui->date_from->setDate(window.cycleDates.value(0));
    reports.ui->date_to->setDate(window.cycleDates.value(0).addDays(6));
    showAt(&reports, 60, 60, reports.sizeHint().width(), reports.sizeHint().height());
    save(reports.grab(), "reports");

    // The preview as the dialog's Preview shows it, fitted to the width.
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog preview(&printer, &window);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &reports, &Reports::printPreview);
    showAt(&preview, 0, 0, 980, 720);
    auto *pages = preview.findChild<QPrintPreviewWidget *>();
    if (!pages || pages->pageCount() < 1) {
        std::printf("%-28s skipped: the report drew no page\n", "reports-preview.png");
        return;
    }
    pages->fitToWidth();
    settle(400);
    save(preview.grab(), "reports-preview");
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s <folder for the PNG files>\n", argv[0]);
        return 2;
    }
    const QString home = makeHome();
    if (home.isEmpty())
        return 1;
    setApplicationIdentity();
    // The window asks its update host at start: a closed port on this machine, never the network.
    SoftUpdate::server = "http://127.0.0.1:1";
    int code = 0;
    {
        QApplication app(argc, argv);
        Q_INIT_RESOURCE(rostera);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        for (Qt::UIEffect effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo, Qt::UI_AnimateTooltip,
                                    Qt::UI_FadeTooltip})
            QApplication::setEffectEnabled(effect, false);
        g_out = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
        QDir().mkpath(g_out);

        writeOptions();
        if (!getDB()->openDB(getAppDataPath(1) + "/bistro.db") || !writeDemoPlan()) {
            std::fprintf(stderr, "could not write the demo plan\n");
            code = 1;
        } else {
            RosteraMain window;
            window.ui->date_current->setDate(kPicked);
            showAt(&window, 0, 0, 1000, 600);
            window.auto_schedule(window.cycleDates, true);
            window.on_refresh_schedule();
            settle();

            mainWindowShots(window);
            settingsShots(window);
            copyShot(window);
            reportShots(window);
            checkShot(window);
            code = g_failures ? 1 : 0;
        }
        getDB()->closeDB();
    }
    QDir(home).removeRecursively();
    return code;
}

// The window frame: menus, tool strip, the file commands, language, help and About.
#include "testhome.h"

#include <QActionGroup>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QMenuBar>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>

#include "core/apppaths.h"
#include "core/helpers.h"
#include "engine/schedulestatus.h"
#include "mainwindow/rosteramain.h"
#include "mainwindow/scheduledelegate.h"
#include "mainwindow/toolbar.h"
#include "persistence/databasefunc.h"
#include "ui_rosteramain.h"
#include "ui_toolbar.h"

// Answers the next file dialog with a file and keeps the dialog's words.
class FileDialogAnswer : public QObject
{
    Q_OBJECT
public:
    explicit FileDialogAnswer(const QString &file)
        : m_file(file)
    {
        connect(&m_timer, &QTimer::timeout, this, &FileDialogAnswer::poll);
        m_timer.start(20);
    }
    QString title;
    QStringList filters;
    QString directory;

private:
    void poll()
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *dialog = qobject_cast<QFileDialog *>(widget);
            if (!dialog || !dialog->isVisible())
                continue;
            m_timer.stop();
            title = dialog->windowTitle();
            filters = dialog->nameFilters();
            directory = dialog->directory().absolutePath();
            // The file name is not replaced while its editor has the focus.
            if (QWidget *focus = dialog->focusWidget())
                focus->clearFocus();
            dialog->selectFile(m_file);
            QMetaObject::invokeMethod(dialog, "accept");
            // A file the dialog refused must fail the test, not hang it.
            if (dialog->isVisible())
                dialog->reject();
            return;
        }
    }
    QString m_file;
    QTimer m_timer;
};

// Receives what would have gone to the browser.
class UrlCatcher : public QObject
{
    Q_OBJECT
public:
    QList<QUrl> urls;
public slots:
    void openUrl(const QUrl &url) { urls << url; }
};

// An icon draws the same as the resource file, which must exist and draw.
static bool isIcon(const QIcon &icon, const QString &path)
{
    const QImage image = QIcon(path).pixmap(QSize(16, 16)).toImage();
    return QFile::exists(path) && !image.isNull() && icon.pixmap(QSize(16, 16)).toImage() == image;
}

static QSettings config()
{
    return {getAppDataPath(0), QSettings::IniFormat};
}

class TestFrame : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void windowForm();
    void menus_data();
    void menus();
    void toolStrip();
    void resourceIconsDraw();
    void rosteraButtonStartsGeneration();
    void storedLanguageIsChecked_data();
    void storedLanguageIsChecked();
    void lockOptionHidesStatusBar();
    void selectLanguage();
    void openDatabase();
    void openDatabaseFails();
    void saveDatabaseNeverOverwrites();
    void saveDatabaseSwitchesToCopy();
    void titleStopsAtFirstDot();
    void helpOpensOnlineHelp();
    void websiteAndAbout();
    void columnsKeptOverRuns();
    void exitCloses();

private:
    RosteraMain *window = nullptr;
    UrlCatcher urls;
    QString defaultDb;
};

void TestFrame::initTestCase()
{
    QVERIFY(getDB()->openDB(QString()));
    defaultDb = getDB()->getDBName();
    QDesktopServices::setUrlHandler("http", &urls, "openUrl");
    QDesktopServices::setUrlHandler("https", &urls, "openUrl");
}

void TestFrame::init()
{
    QVERIFY(getDB()->openDB(defaultDb));
    urls.urls.clear();
    window = new RosteraMain;
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
}

void TestFrame::cleanup()
{
    delete window;
    window = nullptr;
}

void TestFrame::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler("http");
    QDesktopServices::unsetUrlHandler("https");
}

void TestFrame::windowForm()
{
    QCOMPARE(window->size(), QSize(879, 517));
    QCOMPARE(window->windowTitle(), QString("Rostera-default"));
    QVERIFY(isIcon(window->windowIcon(), ":/res/app.ico"));
    QCOMPARE(window->ui->mainToolBar->widgetForAction(window->ui->mainToolBar->actions().value(0)), window->toolBar);
    QCOMPARE(window->statusPanel->parentWidget(), window->ui->statusBar);

    Ui_RosteraMain *ui = window->ui;
    QCOMPARE(ui->date_current->date(), QDate::currentDate());
    QCOMPARE(ui->date_current->displayFormat(), QString("M/d/yyyy"));
    QVERIFY(ui->date_current->calendarPopup());
    QCOMPARE(ui->label_weekday->text(), getWeekDes(QDate::currentDate().dayOfWeek()));
    QCOMPARE(ui->tableWidget->editTriggers(), QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                                                  | QAbstractItemView::AnyKeyPressed);
    QVERIFY(ui->tableWidget->horizontalHeader()->stretchLastSection());
    QCOMPARE(ui->tableWidget->verticalHeader()->defaultAlignment(), Qt::AlignRight);
    // Cell edits go through the program's own delegate, owned by the window.
    const auto *delegate = qobject_cast<ScheduleDelegate *>(ui->tableWidget->itemDelegate());
    QVERIFY(delegate);
    QCOMPARE(delegate->parent(), window);

    const QList<QStringList> buttons = {
        {"btn_preyear", "Y", "The previous year", ":/res/year_pre.ico"},
        {"btn_premonth", "M", "The previous month", ":/res/month_pre.ico"},
        {"btn_preweek", "W", "The previous week", ":/res/week_pre.ico"},
        {"btn_nextweek", "W", "The next week", ":/res/week_next.ico"},
        {"btn_nextmonth", "M", "The next month", ":/res/month_next.ico"},
        {"btn_nextyear", "Y", "The next year", ":/res/year_next.ico"},
    };
    for (const QStringList &b : buttons) {
        auto *button = window->findChild<QAbstractButton *>(b[0]);
        QVERIFY2(button, qPrintable(b[0]));
        QCOMPARE(button->text(), b[1]);
        QCOMPARE(button->toolTip(), b[2]);
        QVERIFY2(isIcon(button->icon(), b[3]), qPrintable(b[3]));
        QCOMPARE(button->iconSize(), QSize(14, 24));
    }
}

void TestFrame::menus_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QList<QStringList>>("entries");

    QTest::newRow("file") << "&File" << QList<QStringList>{
        {"actionOpen_Database", "Open Database", ":/res/opendb.ico"},
        {"actionSave_Database", "Save Database", ":/res/savedb.ico"},
        {"-"},
        {"actionExit", "Exit", ":/res/exit.ico"}};
    QTest::newRow("view") << "&View" << QList<QStringList>{
        {"actionReports", "Reports", ":/res/reports.ico"},
        {"-"},
        {"actionView_By_Person", "View By Employee", ":/res/view_person.ico"},
        {"actionView_By_Schedule", "View By Schedule", ":/res/view_schedulel.ico"},
        {"-"},
        {"actionView_All", "View All", ":/res/group_all.ico"},
        {"actionView_One_Group", "View One Group", ":/res/group_one.ico"},
        {"actionView_One_Person", "View One Employee", ":/res/person_one.ico"}};
    QTest::newRow("settings") << "&Settings" << QList<QStringList>{
        {"actionGroup_Settings", "Group", ":/res/group.ico"},
        {"actionStaff_Settings", "Employee", ":/res/person_one.ico"},
        {"actionShift_Settings", "Shift", ":/res/shift.ico"},
        {"actionPermanentSchedule_Settings", "Permanent Schedule", ":/res/permanentschedulel.ico"},
        {"actionHoliday_Settings", "Holidays", ":/res/holidays.ico"},
        {"actionOptions_Settings", "Options", ":/res/options.ico"},
        {"-"}};
    QTest::newRow("language") << "&Language" << QList<QStringList>{
        {"action_lan_system", "<System Language>"}, {"action_lan_en", "English"},
        {"action_lan_de", "Deutsch"}, {"action_lan_fr", "Français"}, {"action_lan_ja", "日本語"},
        {"action_lan_pl", "Polski"}, {"action_lan_ru", "Pусский"}, {"action_lan_es", "Español"},
        {"action_lan_it", "Italiano"}, {"action_lan_cn", "中文简体"}, {"action_lan_tw", "中文繁体"}};
    QTest::newRow("help") << "&Help" << QList<QStringList>{
        {"action_Help", "User Guide", ":/res/help.ico"},
        {"action_Update", "Update", ":/res/softupdate.ico"},
        {"action_Website", "Website", ":/res/website.ico"},
        {"action_About", "About", ":/res/about.ico"}};
}

void TestFrame::menus()
{
    QFETCH(QString, menu);
    QFETCH(QList<QStringList>, entries);

    QStringList titles;
    for (QAction *action : window->menuBar()->actions())
        titles << action->text();
    QCOMPARE(titles, (QStringList{"&File", "&View", "&Settings", "&Language", "&Help"}));

    const QList<QAction *> actions = window->menuBar()->actions().at(int(titles.indexOf(menu)))->menu()->actions();
    QCOMPARE(actions.size(), entries.size());
    for (int i = 0; i < entries.size(); ++i) {
        QAction *action = actions.at(i);
        const QStringList &entry = entries.at(i);
        if (entry.first() == "-") {
            QVERIFY(action->isSeparator());
            continue;
        }
        QCOMPARE(action->objectName(), entry.at(0));
        QCOMPARE(action->text(), entry.at(1));
        if (entry.size() > 2) {
            QVERIFY2(isIcon(action->icon(), entry.at(2)), qPrintable(entry.at(2)));
        } else {
            // Language entries: checkable, one at a time.
            QVERIFY(action->isCheckable());
            QVERIFY(action->actionGroup() && action->actionGroup()->isExclusive());
        }
    }
    QCOMPARE(window->ui->action_Help->shortcut(), QKeySequence(Qt::Key_F1));
    QVERIFY(!window->ui->action_Update->isVisible());
}

void TestFrame::toolStrip()
{
    Ui_ToolBar *ui = window->toolBar->ui;
    const QList<QStringList> buttons = {
        {"btn_rostera", "Auto create schedule", ":/res/table_new.ico"},
        {"btn_refreshSchedule", "Refresh schedule", ":/res/table_refresh.ico"},
        {"line"},
        {"btn_byPerson", "View By Employee", ":/res/view_person.ico"},
        {"btn_bySchedule", "View By Schedule", ":/res/view_schedulel.ico"},
        {"line_4"},
        {"btn_allGroup", "View All", ":/res/group_all.ico"},
        {"btn_oneGroup", "View One Group", ":/res/group_one.ico"},
        {"btn_onePerson", "View One Employee", ":/res/person_one.ico"},
        {"line_2"},
        {"btn_reports", "Reports", ":/res/reports.ico"},
        {"btn_settings", "Settings", ":/res/settings.ico"},
        {"line_3"},
        {"btn_help", "User Guide", ":/res/help.ico"},
    };
    for (int i = 0; i < buttons.size(); ++i) {
        const QStringList &b = buttons.at(i);
        QWidget *widget = window->toolBar->layout()->itemAt(i)->widget();
        QCOMPARE(widget->objectName(), b.at(0));
        if (b.size() == 1) {
            auto *line = qobject_cast<QFrame *>(widget);
            QCOMPARE(line->frameShape(), QFrame::VLine);
            QCOMPARE(line->frameShadow(), QFrame::Sunken);
            continue;
        }
        auto *button = qobject_cast<QToolButton *>(widget);
        QCOMPARE(button->toolTip(), b.at(1));
        QVERIFY(button->text().isEmpty());
        QCOMPARE(button->iconSize(), QSize(32, 32));
        QVERIFY2(isIcon(button->icon(), b.at(2)), qPrintable(b.at(2)));
    }

    // The first button of each set is checked at start.
    QVERIFY(ui->btn_byPerson->isChecked());
    QVERIFY(ui->btn_allGroup->isChecked());
    QCOMPARE(window->toolBar->getViewType(), 0);
    QCOMPARE(window->toolBar->getPersonType(), 0);

    QCOMPARE(ui->btn_rostera->popupMode(), QToolButton::MenuButtonPopup);
    QStringList entries;
    for (QAction *action : ui->btn_rostera->menu()->actions())
        entries << (action->isSeparator() ? QString("-") : action->text());
    QCOMPARE(entries, (QStringList{"Auto Generate Schedule", "Auto Generate Specified Date Schedule",
                                   "Copy Previous Cycle Schedule", "Copy Specified Cycle Schedule", "-",
                                   "Clear Schedule", "Clear Specified Date Schedule"}));
}

void TestFrame::resourceIconsDraw()
{
    // Every icon of the program, also those of the dialogs: each size of the file, visible.
    const QStringList files = QDir(":/res").entryList(QDir::Files);
    QVERIFY(files.size() >= 34);
    for (const QString &file : files) {
        QVERIFY2(file.endsWith(".ico"), qPrintable(file));
        const QIcon icon(":/res/" + file);
        QCOMPARE(icon.availableSizes(), (QList<QSize>{{16, 16}, {24, 24}, {32, 32}, {48, 48}}));
        for (int size : {16, 48}) {
            const QImage image = icon.pixmap(QSize(size, size)).toImage();
            int opaque = 0;
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x)
                    opaque += qAlpha(image.pixel(x, y)) > 128;
            QVERIFY2(opaque > size * size / 10, qPrintable(file));
        }
    }
}

void TestFrame::rosteraButtonStartsGeneration()
{
    // The button and the first menu entry both start a generation, which asks first.
    BoxAnswer answer(QMessageBox::Cancel);
    QTest::mouseClick(window->toolBar->ui->btn_rostera, Qt::LeftButton);
    window->toolBar->ui->btn_rostera->menu()->actions().first()->trigger();
    QCOMPARE(answer.texts(), (QStringList{"Delete existing schedule?", "Delete existing schedule?"}));
}

void TestFrame::storedLanguageIsChecked_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("checked");
    QTest::newRow("system") << 0 << "action_lan_system";
    QTest::newRow("japanese") << 4 << "action_lan_ja";
    QTest::newRow("last") << 10 << "action_lan_tw";
    QTest::newRow("beyond the list") << 11 << "";
    QTest::newRow("negative") << -1 << "";
}

void TestFrame::storedLanguageIsChecked()
{
    QFETCH(int, language);
    QFETCH(QString, checked);
    config().setValue("language", language);
    delete window;
    window = new RosteraMain;
    QStringList checkedNames;
    for (QAction *action : window->ui->menuLanguage->actions()) {
        if (action->isChecked())
            checkedNames << action->objectName();
    }
    QCOMPARE(checkedNames, checked.isEmpty() ? QStringList() : QStringList{checked});
    config().remove("language");
}

void TestFrame::lockOptionHidesStatusBar()
{
    QVERIFY(window->ui->statusBar->isVisible());
    config().setValue("Options/employee lock schedule", true);
    delete window;
    window = new RosteraMain;
    window->show();
    config().remove("Options/employee lock schedule");
    QVERIFY(window->employeeLockSchedule);
    QVERIFY(!window->ui->statusBar->isVisible());
}

void TestFrame::selectLanguage()
{
    config().setValue("language", 0);
    {
        BoxAnswer answer;
        window->ui->action_lan_de->trigger();
        QCOMPARE(answer.texts(), QStringList{"Language change will take effect after the restart of the software."});
        QCOMPARE(answer.titles(), QStringList{""});
        QCOMPARE(answer.buttons(), QMessageBox::Ok);
        QCOMPARE(answer.icon(), QMessageBox::Information);
    }
    QCOMPARE(config().value("language").toInt(), 2);
    QVERIFY(window->ui->action_lan_de->isChecked());

    // The stored choice again: no message.
    BoxAnswer answer;
    window->ui->action_lan_de->trigger();
    QTest::qWait(100);
    QCOMPARE(answer.shown(), 0);
    window->ui->action_lan_tw->trigger();
    QCOMPARE(answer.shown(), 1);
    QCOMPARE(config().value("language").toInt(), 10);
    config().remove("language");
}

void TestFrame::openDatabase()
{
    // A second plan with a group and an employee of its own.
    const QString second = getAppDataPath(1) + "/second.db";
    QVERIFY(getDB()->openDB(second));
    QString error;
    QVector<ASAttribute> records(1);
    records[0].setAttr("name", QString("Only Here"));
    QVERIFY(getDB()->saveGroupInfo(records, error));
    records[0].clear();
    records[0].setAttr("id", QString("Z1"));
    records[0].setAttr("groupname", QString("Only Here"));
    QVERIFY(getDB()->saveStaffInfo(records));
    QVERIFY(getDB()->openDB(defaultDb));
    QVERIFY(window->ui->cmb_group->findText("Only Here") < 0);

    FileDialogAnswer dialog(second);
    window->ui->actionOpen_Database->trigger();
    QCOMPARE(dialog.title, QString("Open Database"));
    QCOMPARE(dialog.filters, QStringList{"DB File(*.db)"});
    // The dialog starts where the last database lies.
    QCOMPARE(dialog.directory, getAppDataPath(1));

    QCOMPARE(getDB()->getDBName(), second);
    QCOMPARE(window->windowTitle(), QString("Rostera-second"));
    QCOMPARE(window->ui->cmb_group->itemText(1), QString("Only Here"));
    QCOMPARE(window->ui->cmb_group->count(), 2);
    QCOMPARE(window->rowLabels, QStringList{"Only Here--Z1"});
    QVERIFY(!window->refreshBlocked);
    QCOMPARE(config().value("lastdb").toString(), second);
}

void TestFrame::openDatabaseFails()
{
    // A path longer than the database library accepts: the file is there but cannot be opened.
    QString folder = TestHome::path();
    for (int i = 0; i < 3; ++i)
        folder += "/" + QString(200, QChar('a' + i));
    QVERIFY(QDir().mkpath(folder));
    const QString unreachable = folder + "/plan.db";
    QVERIFY(QFile::copy(defaultDb, unreachable));
    const QString title = window->windowTitle();
    const int groups = window->ui->cmb_group->count();

    BoxAnswer answer;
    FileDialogAnswer dialog(unreachable);
    window->ui->actionOpen_Database->trigger();
    QCOMPARE(answer.texts(), QStringList{"Open database failed!"});
    QCOMPARE(answer.titles(), QStringList{""});
    QCOMPARE(answer.icon(), QMessageBox::Warning);
    QCOMPARE(answer.buttons(), QMessageBox::Ok);
    QCOMPARE(getDB()->getDBName(), defaultDb);
    QVERIFY(getDB()->isOpen());
    QCOMPARE(window->windowTitle(), title);
    QCOMPARE(window->ui->cmb_group->count(), groups);
}

void TestFrame::saveDatabaseNeverOverwrites()
{
    const QString existing = getAppDataPath(1) + "/existing.db";
    {
        QFile file(existing);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("keep me");
    }
    // Yes to the dialog's own question about replacing; the copy still refuses.
    BoxAnswer answer(QMessageBox::Yes);
    FileDialogAnswer dialog(existing);
    window->ui->actionSave_Database->trigger();
    QCOMPARE(dialog.title, QString("Save As Database"));
    QCOMPARE(dialog.filters, QStringList{"DB File(*.db)"});
    QCOMPARE(dialog.directory, getAppDataPath(1));
    QCOMPARE(answer.texts().last(), QString("Save as database failed!"));
    QCOMPARE(answer.titles().last(), QString(""));

    QFile file(existing);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("keep me"));
    QCOMPARE(getDB()->getDBName(), defaultDb);
    QCOMPARE(window->windowTitle(), QString("Rostera-default"));
}

void TestFrame::saveDatabaseSwitchesToCopy()
{
    const QString copy = getAppDataPath(1) + "/copy.db";
    QFile::remove(copy);
    const int rows = window->ui->tableWidget->rowCount();
    BoxAnswer answer;
    FileDialogAnswer dialog(copy);
    window->ui->actionSave_Database->trigger();
    QCOMPARE(answer.shown(), 0);
    QVERIFY(QFile::exists(copy));
    QCOMPARE(getDB()->getDBName(), copy);
    QCOMPARE(config().value("lastdb").toString(), copy);
    QCOMPARE(window->windowTitle(), QString("Rostera-copy"));
    QCOMPARE(window->ui->tableWidget->rowCount(), rows);
}

void TestFrame::titleStopsAtFirstDot()
{
    QVERIFY(getDB()->openDB(getAppDataPath(1) + "/my.plan.db"));
    window->updateTitle();
    QCOMPARE(window->windowTitle(), QString("Rostera-my"));
}

void TestFrame::helpOpensOnlineHelp()
{
    const QUrl online("http://www.tavrelinsoftware.com/onlinehelp/rtr/index.html");
    window->ui->action_Help->trigger();
    QCOMPARE(urls.urls, QList<QUrl>{online});

    // With the help file present the viewer is tried; where it doesn't exist the online help stands in.
    QVERIFY(QDir().mkpath(getAppPath()));
    QFile help(getAppPath() + "/Rostera.chm");
    QVERIFY(help.open(QIODevice::WriteOnly));
    help.close();
    QTest::mouseClick(window->toolBar->ui->btn_help, Qt::LeftButton);
    help.remove();
    QCOMPARE(urls.urls, (QList<QUrl>{online, online}));
}

void TestFrame::websiteAndAbout()
{
    window->ui->action_Website->trigger();
    QCOMPARE(urls.urls, QList<QUrl>{QUrl("http://www.tavrelinsoftware.com")});

    BoxAnswer answer;
    window->ui->action_About->trigger();
    QCOMPARE(answer.titles(), QStringList{"About Rostera"});
    QCOMPARE(answer.text(), QString("<p>Rostera<br><br>Made by TavrelinSoftware, <a href=\"http://www.tavrelinsoftware.com\">"
                                    "http://www.tavrelinsoftware.com</a><br><br>\n\nVersion: 2.08.03<br><br></p>"));
}

void TestFrame::columnsKeptOverRuns()
{
    delete window;
    config().remove("columns");
    config().setValue("Options/cycle days", 14);
    window = new RosteraMain;
    QHeaderView *header = window->ui->tableWidget->horizontalHeader();
    // Without a stored state the header keeps what the first fill gave it.
    QCOMPARE(header->sectionSize(3), 100);
    header->resizeSection(3, 77);
    delete window;
    QVERIFY(!config().value("columns").toString().isEmpty());

    window = new RosteraMain;
    config().remove("Options/cycle days");
    QCOMPARE(window->ui->tableWidget->horizontalHeader()->sectionSize(3), 77);
    QCOMPARE(window->ui->tableWidget->horizontalHeader()->sectionSize(4), 100);
}

void TestFrame::exitCloses()
{
    window->ui->actionExit->trigger();
    QVERIFY(!window->isVisible());
}

ROSTERA_TEST_MAIN(TestFrame)
#include "test_frame.moc"

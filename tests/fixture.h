#pragma once

// The one fixture of every test program: a temporary home, plans written from a short text, the schedule table as
// text, scripted chance, message boxes and dialogs answered by timer, and the main window over the default database.

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <initializer_list>
#include <utility>

#include "core/apppaths.h"
#include "core/asattribute.h"
#include "mainwindow/rosteramain.h"
#include "mainwindow/toolbar.h"
#include "persistence/databasefunc.h"
#include "ui_rosteramain.h"

// HOME and the XDG folders point into a fresh temporary folder (file() names one in it) before the application object
// exists, so no real user data is touched; removed again at exit.
class TestHome
{
public:
    TestHome();
    ~TestHome();
    static QString file(const QString &name) { return QDir::homePath() + "/" + name; }
};

// The plan's tables in the order of writePlan's kinds: group, staff, shift, row, holiday, vacation, lock, schedule.
extern const QStringList kTables;

ASAttribute record(std::initializer_list<std::pair<QString, QString>> values);

// Replaces every table of the open file with a plan given as text: sections split by "|",
// each a kind and its records split by blanks, the fields of a record split by "/", e.g.
//   "staff A/G B/G N/ | row G/S/1;1;1;1;1;1;1 | schedule 2026-03-02/G/S/A;B"
// Fields per kind (left out at the end: the default in brackets):
//   group name/abbreviation(name)      shift name/abbreviation(name)/starttm(08:00)/endtm(16:00)
//   staff id/groupname/fname/lname     row groupname/shiftname/daystaffnum/employee_name
//   holiday date/days(1)/repeat(0)/valid(1)/name(h+date)   vacation staffids/date/days/valid(1)
//   lock staffids/date/valid(1)/shiftname                 schedule date/groupname/shiftname/staffs
// Without a group or shift section the groups are G and H, the shifts S and T.
bool writePlan(const QString &plan);
// The records of a kind as writePlan reads them (for saving such records by other ways).
QVector<ASAttribute> planRecords(const QString &kind, const QString &items);
// Saves the records of a kind of writePlan but the schedule, replacing its table, as the Settings dialog does.
bool saveRecords(const QString &kind, QVector<ASAttribute> records);

// Records as "key=value key=value | key=value ..." in key order.
QString show(const QVector<ASAttribute> &records);
// t_schedule as "date group shift staffs" lines in key order.
QStringList scheduleTable();
// Rows of a statement on the open file, each value as text; a failing statement gives one row that names it.
QList<QStringList> rows(const QString &sql);
QString rowsText(const QString &sql, const QString &fieldSep = ",", const QString &rowSep = " | ");
bool writeFile(const QString &path, const QByteArray &content);
QSettings config();
// A PDF's text as pdftotext lays it out, runs of blanks squeezed to one; pages end in form feeds.
QString pdfText(const QString &path);
void setOption(const QString &key, const QVariant &value);
QVector<QDate> daysFrom(const QDate &first, int count);

// The draws of RosteraMain::randomNumber (of every window openWindow opens) and how many were taken; beyond them 0.
extern QVector<int> scriptedDraws;
extern int drawsTaken;

// While it lives, answers each message box in turn with the next of the given buttons, then with `rest` (or the
// box's default button where it has no such button), and keeps its words.
class Boxes : public QObject
{
public:
    explicit Boxes(QList<QMessageBox::StandardButton> answers = {},
                   QMessageBox::StandardButton rest = QMessageBox::Ok);
    QStringList texts, titles;
    QList<QMessageBox::StandardButton> defaults;
    QList<QMessageBox::Icon> icons;
    QList<QMessageBox::StandardButtons> buttons;

private:
    void poll();
    QList<QMessageBox::StandardButton> m_answers;
    QMessageBox::StandardButton m_rest;
    QList<QPointer<QMessageBox>> m_seen;
    QTimer m_timer;
};

// Columns of one type for a _data() function, and the current row's value of a column, for values used once.
template <typename T = QString>
void addColumns(std::initializer_list<const char *> names)
{
    for (const char *name : names)
        QTest::addColumn<T>(name);
}
template <typename T = QString>
T field(const char *name)
{
    return *static_cast<T *>(QTest::qData(name, QMetaType::fromType<T>().id()));
}

// Runs action on the first visible dialog of type T once it is open (for modal dialogs).
template <typename T>
void whenDialogOpens(const std::function<void(T *)> &action)
{
    auto *timer = new QTimer;
    QObject::connect(timer, &QTimer::timeout, [timer, action] {
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (auto *dialog = qobject_cast<T *>(widget); dialog && dialog->isVisible()) {
                timer->deleteLater();
                timer->stop();
                action(dialog);
                return;
            }
    });
    timer->start(20);
}

// Answers the next file dialog with a file, keeps its caption, filters and folder in *seen, then runs after.
void answerFileDialog(const QString &file, QStringList *seen = nullptr,
                      const std::function<void()> &after = {});

// The main window over the default database, shown, with scripted chance.
RosteraMain *openWindow();
// View All (0), One Group (1) or One Employee (2), the group box on group ("" is "<None>").
void setView(RosteraMain *window, int personType, const QString &group = QString());

#define ROSTERA_TEST_MAIN(TestObject)         \
    int main(int argc, char **argv)           \
    {                                         \
        TestHome home;                        \
        QApplication app(argc, argv);         \
        TestObject tc;                        \
        QTEST_SET_MAIN_SOURCE_PATH            \
        return QTest::qExec(&tc, argc, argv); \
    }

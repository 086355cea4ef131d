// The Settings dialog: how it opens, its options and what they change, and the exception lists.
#include "fixture.h"
#include "ui_rosteramain.h"

#include <QListWidget>
#include <QPushButton>

#include "masterdata/recordeditor.h"
#include "masterdata/settings.h"
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
// A table's rows in stored order, fields joined by "/".
static QString table(const QString &name)
{
    return rowsText("select * from " + name, "/", " ");
}
// Item texts, each followed by "+" when ticked.
static QString items(QListWidget *list)
{
    QStringList texts;
    for (int i = 0; i < list->count(); ++i)
        texts << list->item(i)->text() + (list->item(i)->checkState() == Qt::Checked ? "+" : "");
    return texts.join(',');
}
// Answers the next editor: *seen gets what it shows; OK on an empty record, then input and OK, or Cancel.
static void answerEditor(QString *seen, ASAttribute input)
{
    whenDialogOpens<RecordEditor>([seen, input](RecordEditor *editor) mutable {
        ASAttribute shown, empty;
        editor->getData(shown);
        *seen = show({shown}).replace(QDate::currentDate().toString("yyyy-MM-dd"), "today");
        editor->setData(empty);
        QTest::keyClick(editor, Qt::Key_Return);
        editor->setData(input);
        QTest::keyClick(editor, input.values().isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        if (editor->isVisible())
            editor->reject();
    });
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
    // Every way in opens its tab. Each opening shows the options as stored and writes all five back
    // when the dialog closes, whatever it was given; the grid follows them at once.
    void options_data()
    {
        QTest::addColumn<int>("command"); // of the Settings menu; 6 is the tool strip's button
        QTest::addColumn<QString>("stored"); // "key=value;..." of the group Options
        QTest::addColumn<QString>("result"); // tab, week start's list enabled, grid's first date and length | written
        const QString defaults = " on 03-02 7 | cycle days=7 employee lock schedule=false show from week=0 "
                                 "use 24h=false work week=1,2,3,4,5,6,7";
        for (int command : {0, 1, 2, 3, 6})
            QTest::addRow("nothing stored, command %d", command) << command << ""
                << QString::number(command % 6) + defaults;
        QTest::newRow("past Sunday wraps around") << 4 << "show from week=9;cycle days=3;use 24h=true;work week=2,4"
            << "4 on 03-05 5 | cycle days=5 employee lock schedule=false show from week=2 use 24h=true work week=2,4";
        QTest::newRow("from the picked date") << 5 << "show from week=-1;employee lock schedule=true"
            << "5 off 03-04 7 | "
            "cycle days=7 employee lock schedule=true show from week=-1 use 24h=false work week=1,2,3,4,5,6,7";
    }
    void options()
    {
        QFETCH(int, command);
        QFile::remove(getAppDataPath(0));
        for (const QString &pair : field("stored").split(';', Qt::SkipEmptyParts))
            setOption(pair.section('=', 0, 0), pair.section('=', 1));
        QString shown;
        whenDialogOpens<Settings>([&shown](Settings *dialog) {
            shown = QString::number(dialog->ui->tabWidget->currentIndex())
                    + (dialog->ui->cmb_showFrom->isEnabled() ? " on" : " off");
            dialog->reject();
        });
        if (command < 6)
            window->ui->menuSettings->actions().at(command)->trigger();
        else
            window->toolBar->ui->btn_settings->click();
        QTEST(QString("%1 %2 %3 | %4").arg(shown, window->cycleDates.value(0).toString("MM-dd"))
                  .arg(window->cycleDates.size()).arg(storedOptions()), "result");
    }
    // Per list: Edit without a current item opens nothing; Add shows the defaults and refuses OK on
    // an empty record; Save is refused for a duplicate key; Remove, Edit by a double click and a tick
    // wait for Save. An import replaces the list: "valid" not a number unticks, no "valid" ticks.
    void lists_data()
    {
        // Records added as a plan writes them (the last a duplicate key), the first item edited to, the file imported.
        QTest::addColumn<QStringList>("input");
        // The editor for a new record and on Edit | the table after the refused Save, after Remove and Save, after
        // Edit, a tick and Save | the items | the boxes | the exported header | the items and the table after import
        // and Save.
        QTest::addColumn<QString>("result");
        QTest::newRow("holiday")
            << QStringList{"2026-04-05/2/0/1/Easter 2026-12-25/1/1/1/h2026-12-25", "2027-01-01/3/1/0/NewYear",
                                                "name,date,repeat,valid\r\nX,2026-05-01,1,yes\r\nY,2026-06-01,0,1\r\n"}
            << "date=today days=1 infotype=holiday name= repeat=1 valid=1 date=2026-12-25 days=1 infotype=holiday "
               "name=h2026-12-25 repeat=1 valid=1 | h2026-12-25/2026-12-25/1/1/1 h2026-12-25/2026-12-25/1/1/1 "
               "Easter/2026-04-05/2/1/0 NewYear/2027-01-01/3/0/1 Easter/2026-04-05/2/0/0 | 01-01 NewYear,2026-04-05 Easter "
               "| Please input a name. Save failed! | "
               "name,date,days,repeat,valid | 05-01 X,2026-06-01 Y+ X/2026-05-01/1/0/1 Y/2026-06-01/1/1/0";
        // The same employees in another order are another key.
        QTest::newRow("vacation") << QStringList{"A;B/2026-03-05 B;A/2026-03-05 A;B/2026-03-05", "B/2026-03-09/2/0",
                                                 "date,staffids\r\n2026-05-01,A;B\r\n"}
            << "date=today days=1 infotype=vacation note= staffids= valid=1 date=2026-03-02 days=3 infotype=vacation "
               "note= staffids=A valid=1 | A/2026-03-02/3//1 A/2026-03-02/3//1 A;B/2026-03-05/1//1 B;A/2026-03-05/1//1 "
               "B/2026-03-09/2//0 A;B/2026-03-05/1//0 B;A/2026-03-05/1//1 | 2026-03-09 B,2026-03-05 A;B,2026-03-05 B;A+ "
               "| Please select a employee. "
               "Save failed! | staffids,date,days,valid,note | 2026-05-01 A;B+ A;B/2026-05-01/1//1";
        QTest::newRow("lock")
            << QStringList{"A/2026-03-04 B/2026-03-04", "A/2026-03-06/0", "note,staffids,date,valid\nn,A,2026-05-01,0\n"}
            << "date=today infotype=lock note= staffids= valid=1 date=2026-03-04 infotype=lock note= staffids=B "
               "valid=1 | B/2026-03-04///1 B/2026-03-04///1 A/2026-03-04///1 A/2026-03-06///0 A/2026-03-04///0 | "
               "2026-03-06 A,2026-03-04 A | "
               "Please select a employee. Save failed! | staffids,date,valid,note | 2026-05-01 A A/2026-05-01//n/0";
    }
    void lists()
    {
        const QString kind = QTest::currentDataTag();
        QFETCH(QStringList, input);
        QVERIFY(writePlan("staff A/G B/G | holiday 2026-12-25/1/1 | vacation A/2026-03-02/3 | lock B/2026-03-04"));
        const int k = QStringList{"holiday", "vacation", "lock"}.indexOf(kind);
        const QString name = QStringList{"t_holidayinfo", "t_vacationinfo", "t_lock_employee"}.value(k);
        Settings dialog;
        auto *list = dialog.findChild<QListWidget *>(QStringList{"lst_holidays", "lst_vacations", "lst_lock"}.value(k));
        const auto press = [&](const QString &button) {
            dialog.findChild<QPushButton *>("btn_" + button + "_" + kind)->click();
        };
        Boxes boxes;
        list->setCurrentRow(-1);
        press("edit");
        QString added, edited;
        QVector<ASAttribute> records = planRecords(kind, input[0]);
        for (const ASAttribute &record : records << ASAttribute()) { // the last one cancelled
            answerEditor(&added, record);
            press("add");
        }
        press("save");
        QStringList result{table(name)};
        list->setCurrentRow(list->count() - 1);
        press("remove");
        press("save");
        result << table(name);
        answerEditor(&edited, planRecords(kind, input[1]).value(0));
        list->setCurrentRow(0);
        emit list->itemDoubleClicked(list->item(0));
        list->item(1)->setCheckState(Qt::Unchecked);
        QCOMPARE(table(name), result.last());
        press("save");
        boxes.texts.removeDuplicates();
        result = QStringList{added, edited, "|"} + result;
        result << table(name) << "|" << items(list) << "|" << boxes.texts.join(' ') << "|";
        QVERIFY(boxes.titles.join("").isEmpty() && boxes.icons.count(QMessageBox::Warning) == boxes.icons.size());
        const QString path = TestHome::file(kind + ".csv");
        answerFileDialog(path);
        press("export");
        QFile exported(path);
        result << (exported.open(QIODevice::ReadOnly) ? QString(exported.readLine()).trimmed() : "no file") << "|";
        QVERIFY(writeFile(path, input[2].toUtf8()));
        answerFileDialog(path);
        press("import");
        press("save");
        QTEST((result << items(list) << table(name)).join(' '), "result");
    }
};

ROSTERA_TEST_MAIN(TestSettings)
#include "test_settings.moc"
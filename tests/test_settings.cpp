// The Settings dialog: how it opens, its options and what they change, the exception lists, and the four tables
// (Save, export and import, the cell editors, the standing rows' rules).
#include "fixture.h"

#include "engine/workdateassign.h"
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

static const QStringList kKinds{"group", "staff", "shift", "permanentSchedule"};

// Rows joined by "|", their values by ",": of a table widget, or (stored()) of a table of the file in stored order.
static QString cells(const QTableWidget *table)
{
    QStringList lines;
    for (int r = 0; r < table->rowCount(); ++r) {
        QStringList line;
        for (int c = 0; c < table->columnCount(); ++c)
            line << table->model()->index(r, c).data().toString();
        lines << line.join(',');
    }
    return lines.join('|');
}
static QString stored(const QString &table, const QString &separator = ",", const QString &rowSeparator = "|")
{
    return rowsText("select * from " + table + " order by rowid", separator, rowSeparator);
}

class TestSettings : public QObject
{
    Q_OBJECT
    RosteraMain *window = nullptr;
    Settings *dialog = nullptr;
    QTableWidget *table(int tab) { return dialog->findChild<QTableWidget *>(kKinds.at(tab) + "Table"); }
    void click(int tab, const QString &button)
    {
        dialog->findChild<QAbstractButton *>("btn_" + kKinds[tab] + button)->click();
    }
    void addRow(int tab, const QString &texts)
    {
        click(tab, "Add");
        for (int c = 0; c < texts.split('/').size(); ++c)
            table(tab)->item(table(tab)->rowCount() - 1, c)->setText(texts.split('/')[c]);
    }
private slots:
    void initTestCase()
    {
        QVERIFY((window = openWindow()));
        window->ui->date_current->setDate({2026, 3, 4}); // a Wednesday
    }
    void cleanupTestCase() { delete window; }
    // A dialog over a plan of its own and the options unset for each test.
    void init()
    {
        QFile::remove(getAppDataPath(0));
        QVERIFY(writePlan("staff B/ A/G | shift S/S/08:00/16:00 T/T/22:00/23:00 | row G/S/1;1;1;1;1;1;1 "
                          "/T/2;2;2;2;2;2;2 | holiday 2026-01-01 | schedule 2026-03-02/G/S/A"));
        dialog = new Settings;
    }
    void cleanup() { delete dialog; }
    // Every way in opens its tab. Each opening shows the options as stored and writes all five back when the dialog
    // closes, whatever it was given; the grid follows them at once.
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
    // Per list: Edit without a current item opens nothing; Add shows the defaults and refuses OK on an empty record;
    // Save is refused for a duplicate key; Remove, Edit by a double click and a tick wait for Save. An import replaces
    // the list: "valid" not a number unticks, no "valid" ticks.
    void lists_data()
    {
        // Records added as a plan writes them (the last a duplicate key), the first item edited to, the file imported.
        QTest::addColumn<QStringList>("input");
        // The editor for a new record and on Edit | the table after the refused Save, after Remove and Save, after Edit,
        // a tick and Save | the items | the boxes | the exported header | the items and the table after import, Save.
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
        const auto rows = [&name] { return stored(name, "/", " "); };
        delete dialog; // one over this plan
        dialog = new Settings;
        auto *list = dialog->findChild<QListWidget *>(QStringList{"lst_holidays", "lst_vacations", "lst_lock"}.value(k));
        const auto press = [&](const QString &button) {
            dialog->findChild<QPushButton *>("btn_" + button + "_" + kind)->click();
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
        QStringList result{rows()};
        list->setCurrentRow(list->count() - 1);
        press("remove");
        press("save");
        result << rows();
        answerEditor(&edited, planRecords(kind, input[1]).value(0));
        list->setCurrentRow(0);
        emit list->itemDoubleClicked(list->item(0));
        list->item(1)->setCheckState(Qt::Unchecked);
        QCOMPARE(rows(), result.last());
        press("save");
        boxes.texts.removeDuplicates();
        result = QStringList{added, edited, "|"} + result;
        result << rows() << "|" << items(list) << "|" << boxes.texts.join(' ') << "|";
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
        QTEST((result << items(list) << rows()).join(' '), "result");
    }
    // Save is refused for a key twice and keeps the rows typed, and writes only its own table. An export read back
    // gives the same rows, but for the designated employee, which has no column in the file. A file that turns into a
    // folder before it is written, is gone, holds a header only or names no field, changes nothing.
    void saveAndExchange_data()
    {
        QTest::addColumn<int>("tab");
        // A new row repeating a key, the message on Save and the row as it stays; then the row as it is changed to, the
        // database table after Save, the header of its file, an option on.
        QTest::addColumn<QStringList>("f");
        QTest::newRow("groups") << 0
            << QStringList{"G", "Save failed!\nUNIQUE constraint failed: t_groupinfo.name Unable to "
            "fetch row", "G,,", "A/a/n", "A,a,n|G,G,|H,H,", "name,abbreviation,note"};
        QTest::newRow("employees, <None> stored empty") << 1 << QStringList{"//A", "Save failed!", ",,A,<None>,,",
            "F/L/C/<None>/5/x", "B,,,,,|C,F,L,,5,x|A,,,G,,", "fname,lname,id,groupname,phonenum,note"};
        const QStringList shifts{"S", "Save failed!", "S,,08:00 AM,12:00 PM,04:00", "N/n/09:00 PM/11:30 PM",
                                 "S,S,08:00,16:00|N,n,21:00,23:30|T,T,22:00,23:00", "name,abbreviation,starttm,endtm"};
        QTest::newRow("shifts, times stored on 24 hours") << 2 << shifts;
        QTest::newRow("standing rows, hidden employee kept") << 3
            << QStringList{"G/S", "Save failed!", "G,S,,", "G/T/B",
            ",T,2;2;2;2;2;2;2,|G,S,1;1;1;1;1;1;1,|G,T,,B", "groupname,shiftname,daystaffnum"};
        QTest::newRow("customers, sorted by ID")
            << 2
            << (shifts.mid(0, 4) << "S,S,08:00,16:00|T,T,22:00,23:00|N,n,21:00,23:30" << shifts[5]
                                 << "ck_employeeLockSchedule");
    }
    void saveAndExchange()
    {
        QFETCH(int, tab);
        QFETCH(QStringList, f);
        const auto database = [] {
            QStringList text;
            for (const QString &name : kTables)
                text << stored(name);
            return text;
        };
        QStringList expected = database();
        if (f.size() > 6)
            dialog->findChild<QAbstractButton *>(f[6])->click();
        const QString shown = cells(table(tab));
        Boxes boxes;
        addRow(tab, f[0]);
        click(tab, "Save");
        QCOMPARE(boxes.texts.value(0) + "|" + cells(table(tab)), f[1] + "|" + shown + "|" + f[2]);
        QCOMPARE(database(), expected);
        table(tab)->selectRow(table(tab)->rowCount() - 1); // removed, and a row added afresh
        click(tab, "Delete");
        addRow(tab, f[3]);
        click(tab, "Save");
        expected[tab] = f[4];
        QCOMPARE(database(), expected);
        const QString saved = cells(table(tab));
        const QString file = TestHome::file(QTest::currentDataTag() + QString(".csv"));
        QStringList exported, imported; // caption, filter and folder of each dialog
        answerFileDialog(file, &exported);
        click(tab, "Export");
        click(tab, "Add");
        answerFileDialog(file);
        click(tab, "Import");
        QFile written(file);
        QCOMPARE((written.open(QIODevice::ReadOnly) ? written.readLine() : "no file") + cells(table(tab)),
                 f[5] + "\r\n" + QString(saved).replace("G,T,B,", "G,T,<None>,"));
        const QString before = cells(table(tab));
        QVERIFY(QFile::remove(file));
        answerFileDialog(file, &exported, [file] { QDir().mkdir(file); });
        click(tab, "Export");
        QVERIFY(QDir().rmdir(file));
        for (const QByteArray &content : {QByteArray(), QByteArray("name,note\r\n"), QByteArray("a,b\r\n1,2\r\n")}) {
            QVERIFY(writeFile(file, content));
            answerFileDialog(file, &imported, [file, content] { content.isEmpty() && QFile::remove(file); });
            click(tab, "Import");
        }
        // cancelled: kept
        whenDialogOpens<QFileDialog>([](QFileDialog *dialog) { dialog->reject(); });
        click(tab, "Import");
        QCOMPARE(boxes.texts.mid(1).join(" ") + "|" + cells(table(tab)),
                 "Export failed! Import failed! The content is empty! The content is empty!|" + before);
        QCOMPARE(exported + imported, QStringList({"Export", "CSV File(*.csv)", getAppDataPath(2), "Import",
                                                   "CSV File(*.csv)", getAppDataPath(2)}));
    }
    // Only saved groups and shifts are offered, and a line's employee is one of its group, "<None>" being the
    // empty group. Times follow the option; start, end and length move together, wrapping at midnight.
    void editors_data()
    {
        QTest::addColumn<int>("tab");
        // Row, column, value, the items offered or the value before, the row after, an option on.
        QTest::addColumn<QStringList>("f");
        QTest::newRow("group of an employee") << 1 << QStringList{"1", "3", "<None>", "<None>,G,H", ",,A,<None>,,"};
        QTest::newRow("group of a line") << 3 << QStringList{"1", "0", "H", "<None>,G,H", "H,T,<None>,2;2;2;2;2;2;2"};
        QTest::newRow("shift of a line") << 3 << QStringList{"1", "1", "S", "S,T", "<None>,S,<None>,2;2;2;2;2;2;2"};
        QTest::newRow("employee of the group") << 3
            << QStringList{"0", "2", "A", "<None>,A", "G,S,A,1;1;1;1;1;1;1", "ck_employeeLockSchedule"};
        QTest::newRow("length") << 2 << QStringList{"1", "4", "08:00", "01:00", "T,T,10:00 PM,06:00 AM,08:00"};
        QTest::newRow("end, 24 hours") << 2
            << QStringList{"1", "3", "03:00", "23:00", "T,T,22:00,03:00,05:00", "ck_use24hour"};
    }
    void editors()
    {
        QFETCH(int, tab);
        QFETCH(QStringList, f);
        if (f.size() > 5)
            dialog->findChild<QAbstractButton *>(f[5])->click();
        const int row = f[0].toInt();
        const QModelIndex index = table(tab)->model()->index(row, f[1].toInt());
        table(tab)->edit(index);
        QWidget *editor = table(tab)->indexWidget(index);
        QVERIFY(editor);
        auto *box = qobject_cast<QComboBox *>(editor);
        QStringList items;
        for (int i = 0; box && i < box->count(); ++i)
            items << box->itemText(i);
        const QMetaProperty property = editor->metaObject()->userProperty();
        const QString old = property.read(editor).toString().left(5); // a time as "hh:mm"
        property.write(editor, f[2]);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents(); // the commit is queued
        QCOMPARE(box ? items.join(',') : old, f[3]);
        QCOMPARE(cells(table(tab)).section('|', row, row), f[4]);
    }
    // The rules live in a vector beside the rows. An export sorts the vector but not the table, so that later
    // rules pair with other rows; an import shows the file's rules while the vector keeps the old ones by index,
    // and Save stores as many rows as it has.
    void permanentRules()
    {
        // A rule opens its own dialog, no editor in the cell: Monday's number set and accepted, or cancelled when
        // empty. Gives the rule loaded.
        const auto rule = [this](int row, const QString &monday) {
            QString loaded = "none";
            whenDialogOpens<WorkDateAssign>([&loaded, monday](WorkDateAssign *editor) {
                loaded = editor->getStuffNum();
                editor->staffNumBoxes[0]->setValue(monday.toInt());
                monday.isEmpty() ? editor->reject() : editor->accept();
            });
            table(3)->edit(table(3)->model()->index(row, 3));
            return table(3)->indexWidget(table(3)->model()->index(row, 3)) ? "an editor" : loaded;
        };
        QCOMPARE(rule(0, ""), "1;1;1;1;1;1;1");
        QCOMPARE(rule(0, "3"), "1;1;1;1;1;1;1");
        QCOMPARE(cells(table(3)), "G,S,<None>,3;1;1;1;1;1;1|<None>,T,<None>,2;2;2;2;2;2;2");
        const QString file = TestHome::file("lines.csv");
        answerFileDialog(file);
        click(3, "Export");
        click(3, "Add");
        table(3)->setCurrentCell(0, 0);
        click(3, "Delete");
        table(3)->item(1, 1)->setText("S");
        QCOMPARE(rule(1, "5"), "0;0;0;0;0;0;0");
        QCOMPARE(cells(table(3)), "<None>,T,<None>,2;2;2;2;2;2;2|<None>,S,,5;0;0;0;0;0;0");
        click(3, "Save");
        QCOMPARE(cells(table(3)), "<None>,S,<None>,5;0;0;0;0;0;0|<None>,T,<None>,3;1;1;1;1;1;1"); // as stored
        QVERIFY(writeFile(file, "groupname,shiftname,daystaffnum\r\n"
                                "X,S,<dt t='1' sdt='2026-03-01' edt='2026-03-31' week='5' dayweek='1;2'/>\r\n"
                                "Y,T,<dt t='1' sdt='2026-03-02' edt='2026-03-02' week='1' dayweek='1'/>\r\n"
                                "Z,S,<dt stn='1;;3'/>\r\n"));
        answerFileDialog(file);
        click(3, "Import");
        QCOMPARE(cells(table(3)), "X,S,<None>,From:2026-03-01 To:2026-03-31 Week:5 Day of week:1;2|"
                                  "Y,T,<None>,Date:2026-03-02 Week:1 Day of week:1|Z,S,<None>,1;;3");
        // The third row has no element: its rule reads as empty and an accepted one is not kept.
        QCOMPARE(rule(2, "4"), "0;0;0;0;0;0;0");
        QCOMPARE(cells(table(3)).right(5), ",1;;3");
        click(3, "Save");
        QCOMPARE(cells(table(3)), "X,S,<None>,5;0;0;0;0;0;0|Y,T,<None>,3;1;1;1;1;1;1");
    }
};

ROSTERA_TEST_MAIN(TestSettings)
#include "test_settings.moc"

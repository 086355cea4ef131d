// The four tables of the Settings dialog against a real file: Save, the cell editors with
// "<None>" and times both ways, the standing rows' rules, and CSV export and import.
#include "fixture.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QSpinBox>
#include <QTableWidget>

#include "core/apppaths.h"
#include "engine/workdateassign.h"
#include "masterdata/settings.h"
#include "persistence/databasefunc.h"

static const QStringList kKinds{"group", "staff", "shift", "permanentSchedule"};
static const QStringList kTables{"t_groupinfo", "t_staffinfo", "t_shiftinfo", "t_permanentschedule", "t_holidayinfo",
                                 "t_vacationinfo", "t_lock_employee", "t_schedule"};

// Rows joined by "|", their values by ",": of a table widget, or of a table of the file.
static QString cells(const QTableWidget *table)
{
    QStringList lines;
    for (int r = 0; r < table->rowCount(); ++r) {
        QStringList line;
        for (int c = 0; c < table->columnCount(); ++c)
            line << (table->item(r, c) ? table->item(r, c)->text() : "");
        lines << line.join(',');
    }
    return lines.join('|');
}
static QString stored(const QString &table, const QString &columns = "*")
{
    QStringList lines;
    for (const QStringList &row : rows(QString("select %1 from %2 order by rowid").arg(columns, table)))
        lines << row.join(',');
    return lines.join('|');
}

class TestSettingsTables : public QObject
{
    Q_OBJECT
    Settings *dialog = nullptr;
    QTableWidget *table(int tab) { return dialog->findChild<QTableWidget *>(kKinds.at(tab) + "Table"); }
    void click(int tab, const QString &button)
    {
        QTest::mouseClick(dialog->findChild<QAbstractButton *>("btn_" + kKinds[tab] + button), Qt::LeftButton);
    }
    // Double-clicks a cell as a user does, sets the editor's text (a time as "hh:mm") and commits;
    // a combo box's items, or the editor's value before. The rule of a standing row takes value
    // as Monday's number and is accepted, or cancelled without a value; the answer ends in the
    // rule loaded.
    QString edit(int tab, int row, int column, const QString &value)
    {
        QString loaded;
        if (tab == 3 && column == 3)
            whenDialogOpens<WorkDateAssign>([&loaded, value](WorkDateAssign *editor) {
                loaded = " " + editor->getStuffNum();
                editor->staffNumBoxes[0]->setValue(value.toInt());
                value.isEmpty() ? editor->reject() : editor->accept();
            });
        const QModelIndex index = table(tab)->model()->index(row, column);
        QTest::mouseClick(table(tab)->viewport(), Qt::LeftButton, {}, table(tab)->visualRect(index).center());
        QTest::mouseDClick(table(tab)->viewport(), Qt::LeftButton, {}, table(tab)->visualRect(index).center());
        QWidget *editor = table(tab)->indexWidget(index);
        if (!editor)
            return "no editor" + loaded;
        auto *box = qobject_cast<QComboBox *>(editor);
        QStringList items;
        for (int i = 0; box && i < box->count(); ++i)
            items << box->itemText(i);
        const bool time = editor->inherits("QTimeEdit");
        const QVariant old = editor->property(box ? "currentText" : time ? "time" : "text");
        editor->setProperty(box ? "currentText" : time ? "time" : "text",
                            time ? QVariant(QTime::fromString(value, "hh:mm")) : QVariant(value));
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents(); // the commit is queued
        return box ? items.join(',') : time ? old.toTime().toString("hh:mm") : old.toString();
    }
    // A check box of the options tab, clicked near the left edge, on its indicator.
    void tick(const QString &name)
    {
        dialog->selSettings(5);
        auto *box = dialog->findChild<QAbstractButton *>(name);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(5, box->height() / 2));
    }
    void typeRow(int tab, const QString &texts)
    {
        for (int c = 0; c < texts.split('/').size(); ++c)
            table(tab)->item(table(tab)->rowCount() - 1, c)->setText(texts.split('/')[c]);
    }

private slots:
    void initTestCase() { QVERIFY(getDB()->openDB(QString())); }
    void init()
    {
        QVERIFY(writePlan("staff B/ A/G | shift S/S/08:00/16:00 T/T/22:00/23:00 | row G/S/1;1;1;1;1;1;1 "
                          "/T/2;2;2;2;2;2;2 | holiday 2026-01-01 | schedule 2026-03-02/G/S/A"));
        dialog = new Settings;
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
    }
    void cleanup() { delete dialog; }

    void save_data()
    {
        QTest::addColumn<int>("tab");
        // A new row repeating a key, the message on Save and the row as it stays; then the
        // row as it is changed to, the database table after Save, the header of its file, and an
        // option switched on.
        QTest::addColumn<QStringList>("f");
        QTest::newRow("groups") << 0 << QStringList{
            "G", "Save failed!\nUNIQUE constraint failed: t_groupinfo.name Unable to fetch row", "G,,",
            "A/a/n", "A,a,n|G,G,|H,H,", "name,abbreviation,note"};
        QTest::newRow("employees, <None> stored empty") << 1 << QStringList{
            "//A", "Save failed!", ",,A,<None>,,",
            "F/L/C/<None>/5/x", "B,,,,,|C,F,L,,5,x|A,,,G,,", "fname,lname,id,groupname,phonenum,note"};
        QTest::newRow("shifts, times stored on 24 hours") << 2 << QStringList{
            "S", "Save failed!", "S,,08:00 AM,12:00 PM,04:00",
            "N/n/09:00 PM/11:30 PM", "S,S,08:00,16:00|N,n,21:00,23:30|T,T,22:00,23:00",
            "name,abbreviation,starttm,endtm"};
        QTest::newRow("standing rows, hidden employee kept") << 3 << QStringList{
            "G/S", "Save failed!", "G,S,,",
            "G/T/B", ",T,2;2;2;2;2;2;2,|G,S,1;1;1;1;1;1;1,|G,T,,B", "groupname,shiftname,daystaffnum"};
        QTest::newRow("customers, sorted by ID") << 2 << QStringList{
            "S", "Save failed!", "S,,08:00 AM,12:00 PM,04:00", "N/n/09:00 PM/11:30 PM",
            "S,S,08:00,16:00|T,T,22:00,23:00|N,n,21:00,23:30", "name,abbreviation,starttm,endtm",
            "ck_employeeLockSchedule"};
    }
    void save()
    {
        QFETCH(int, tab); QFETCH(QStringList, f);
        // The tab's table, the size of its cached list, the other tables.
        const auto database = [tab] {
            const QVector<ASAttribute> *cache[] = {&getDB()->groups, &getDB()->staffs, &getDB()->shifts,
                                                   &getDB()->permanentSchedules};
            QStringList text{stored(kTables[tab]), QString::number(cache[tab]->size())};
            for (const QString &name : kTables)
                text << (name == kTables[tab] ? "" : stored(name));
            return text;
        };
        QStringList expected = database();
        if (f.size() > 6)
            tick(f[6]);
        dialog->selSettings(tab);
        const QString shown = cells(table(tab));
        Boxes boxes;
        click(tab, "Add");
        typeRow(tab, f[0]);
        click(tab, "Save");
        QCOMPARE(boxes.texts.value(0) + "|" + cells(table(tab)), f[1] + "|" + shown + "|" + f[2]);
        QCOMPARE(database(), expected);
        table(tab)->selectRow(table(tab)->rowCount() - 1); // removed, and a row added afresh
        click(tab, "Delete");
        click(tab, "Add");
        typeRow(tab, f[3]);
        click(tab, "Save");
        expected[0] = f[4];
        expected[1] = QString::number(f[4].count('|') + 1);
        QCOMPARE(database(), expected);

        // An export read back gives the same rows, but for the designated employee, which has no
        // column in the file.
        const QString saved = cells(table(tab));
        const QString file = TestHome::path() + "/" + kKinds[tab] + ".csv";
        QFile::remove(file); // else the file dialog asks before replacing it
        answerFileDialog(file);
        click(tab, "Export");
        click(tab, "Add");
        answerFileDialog(file);
        click(tab, "Import");
        QCOMPARE(cells(table(tab)), QString(saved).replace("G,T,B,", "G,T,<None>,"));
        QFile written(file);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readLine(), f[5].toLatin1() + "\r\n");
    }

    // Only saved groups and shifts are offered, and a line's designated employee is one of its
    // group, "<None>" being the empty group. Times show in the option's form, and start, end and
    // length move together, wrapping at midnight; the length never carries AM or PM.
    void editors_data()
    {
        QTest::addColumn<int>("tab");
        // Row, column, value, the items offered, the row after, an option switched on.
        QTest::addColumn<QStringList>("f");
        QTest::newRow("group of an employee") << 1 << QStringList{"1", "3", "<None>", "<None>,G,H", ",,A,<None>,,"};
        QTest::newRow("group of a line") << 3 << QStringList{"1", "0", "H", "<None>,G,H", "H,T,<None>,2;2;2;2;2;2;2"};
        QTest::newRow("shift of a line") << 3 << QStringList{"1", "1", "S", "S,T", "<None>,S,<None>,2;2;2;2;2;2;2"};
        QTest::newRow("employee of the group") << 3 << QStringList{"0", "2", "A", "<None>,A", "G,S,A,1;1;1;1;1;1;1",
                                                                  "ck_employeeLockSchedule"};
        QTest::newRow("employee of no group") << 3 << QStringList{"1", "2", "B", "<None>,B", "<None>,T,B,2;2;2;2;2;2;2",
                                                                 "ck_employeeLockSchedule"};
        QTest::newRow("name of a shift") << 2 << QStringList{"0", "0", "Early", "S", "Early,S,08:00 AM,04:00 PM,08:00"};
        QTest::newRow("length") << 2 << QStringList{"1", "4", "08:00", "01:00", "T,T,10:00 PM,06:00 AM,08:00"};
        QTest::newRow("start") << 2 << QStringList{"1", "2", "04:00", "22:00", "T,T,04:00 AM,11:00 PM,19:00"};
        QTest::newRow("end, 24 hours") << 2 << QStringList{"1", "3", "03:00", "23:00", "T,T,22:00,03:00,05:00",
                                                           "ck_use24hour"};
    }
    void editors()
    {
        QFETCH(int, tab); QFETCH(QStringList, f);
        if (f.size() > 5)
            tick(f[5]);
        dialog->selSettings(tab);
        QCOMPARE(edit(tab, f[0].toInt(), f[1].toInt(), f[2]), f[3]);
        QCOMPARE(cells(table(tab)).section('|', f[0].toInt(), f[0].toInt()), f[4]);
    }

    // The rules live in the working vector beside the rows. An export sorts the vector but not
    // the table, so that later rules pair with other rows; after an import the table shows the
    // file while the vector keeps the old rules by index, and Save stores as many rows as it has.
    void permanentRules()
    {
        dialog->selSettings(3);
        // The weekly numbers of each stored rule, plain or in rule form.
        const QString rules = "groupname,shiftname,iif(instr(daystaffnum,'stn='),"
                              "substr(daystaffnum,instr(daystaffnum,'stn=')+5,13),daystaffnum)";
        QCOMPARE(edit(3, 0, 3, ""), "no editor 1;1;1;1;1;1;1");
        QCOMPARE(edit(3, 0, 3, "3"), "no editor 1;1;1;1;1;1;1");
        QCOMPARE(cells(table(3)), "G,S,<None>,3;1;1;1;1;1;1|<None>,T,<None>,2;2;2;2;2;2;2");
        const QString file = TestHome::path() + "/lines.csv";
        answerFileDialog(file);
        click(3, "Export");
        click(3, "Add");
        table(3)->setCurrentCell(0, 0);
        click(3, "Delete");
        table(3)->item(1, 1)->setText("S");
        QCOMPARE(edit(3, 1, 3, "5"), "no editor 0;0;0;0;0;0;0");
        QCOMPARE(cells(table(3)), "<None>,T,<None>,2;2;2;2;2;2;2|<None>,S,,5;0;0;0;0;0;0");
        click(3, "Save");
        QCOMPARE(stored("t_permanentschedule", rules), ",S,5;0;0;0;0;0;0|,T,3;1;1;1;1;1;1");

        QVERIFY(writeFile(file, "groupname,shiftname,daystaffnum\r\nX,S,1\r\nY,T,2\r\nZ,S,3\r\n"));
        answerFileDialog(file);
        click(3, "Import");
        QCOMPARE(cells(table(3)), "X,S,<None>,1|Y,T,<None>,2|Z,S,<None>,3");
        // The third row has no element: its rule reads as empty and an accepted one is not kept.
        QCOMPARE(edit(3, 2, 3, "4") + cells(table(3)).right(2), "no editor 0;0;0;0;0;0;0,3");
        click(3, "Save");
        QCOMPARE(stored("t_permanentschedule", rules), "X,S,5;0;0;0;0;0;0|Y,T,3;1;1;1;1;1;1");
        QCOMPARE(table(3)->rowCount(), 2);
    }

    // A file that turns into a folder before it is written; one that is gone before it is read,
    // holds a header only, or a header that names no field: each leaves the tab as it was.
    void badFiles()
    {
        dialog->selSettings(0);
        const QString before = cells(table(0));
        const QString file = TestHome::path() + "/bad.csv";
        Boxes boxes;
        QStringList exported, imported; // caption, filter and folder of each dialog
        answerFileDialog(file, &exported, [file] { QDir().mkdir(file); });
        click(0, "Export");
        QVERIFY(QDir().rmdir(file));
        for (const QByteArray &content : {QByteArray(), QByteArray("name,note\r\n"), QByteArray("a,b\r\n1,2\r\n")}) {
            QVERIFY(writeFile(file, content));
            answerFileDialog(file, &imported, [file, content] { content.isEmpty() && QFile::remove(file); });
            click(0, "Import");
        }
        QCOMPARE(boxes.texts.join(" "), "Export failed! Import failed! The content is empty! The content is empty!");
        QCOMPARE(cells(table(0)), before);
        QCOMPARE(exported + imported, QStringList({"Export", "CSV File(*.csv)", getAppDataPath(2), "Import", "CSV File(*.csv)",
                                                   getAppDataPath(2)}));
    }
};

ROSTERA_TEST_MAIN(TestSettingsTables)
#include "test_settingstables.moc"

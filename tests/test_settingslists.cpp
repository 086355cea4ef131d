// The holidays, vacations and locks lists of the Settings dialog with their editors and the
// employee picker, and the work-week picker.
#include "fixture.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "masterdata/lockemployee.h"
#include "masterdata/settings.h"
#include "masterdata/staffsselect.h"
#include "masterdata/vacationsettings.h"
#include "persistence/databasefunc.h"

// A table's rows in stored order, fields joined by "/".
static QString table(const QString &name)
{
    QStringList lines;
    for (const QStringList &row : rows("select * from " + name))
        lines << row.join('/');
    return lines.join(' ');
}

// Item texts, each followed by "+" when ticked.
static QString items(QListWidget *list)
{
    QStringList texts;
    for (int i = 0; i < list->count(); ++i)
        texts << list->item(i)->text() + (list->item(i)->checkState() == Qt::Checked ? "+" : "");
    return texts.join(',');
}

// A click on the check box at the left of an item, or on its middle.
static void click(QListWidget *list, int row, bool box = true)
{
    const QRect rect = list->visualItemRect(list->item(row));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      box ? QPoint(rect.left() + rect.height() / 2, rect.center().y()) : rect.center());
}

// Answers the next editor: *seen gets what it shows, and " closed" if OK on an empty record
// closed it; then the editor takes the input and is accepted, or cancelled without one.
static void answerEditor(QString *seen, ASAttribute input)
{
    whenDialogOpens<RecordEditor>([seen, input](RecordEditor *editor) mutable {
        ASAttribute shown, empty;
        editor->getData(shown);
        editor->setData(empty);
        QTest::keyClick(editor, Qt::Key_Return);
        *seen = show({shown}).replace(QDate::currentDate().toString("yyyy-MM-dd"), "today")
                + (editor->isVisible() ? "" : " closed");
        editor->setData(input);
        QTest::keyClick(editor, input.values().isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        if (editor->isVisible())
            editor->reject();
    });
}

class TestSettingsLists : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(getDB()->openDB(QString())); }

    void lists_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("adds"); // records added as a plan writes them, the last a duplicate key
        QTest::addColumn<QString>("edit"); // what the first item is edited to
        // The editor for a new record and on Edit of the first item | the table after Save without the
        // duplicate, then after Edit and a tick | the items | the boxes shown.
        QTest::addColumn<QString>("result");
        QTest::newRow("holiday")
            << "holiday" << "2026-04-05/2/0/1/Easter 2026-12-25/1/1/1/h2026-12-25" << "2027-01-01/3/1/0/NewYear"
            << "date=today days=1 infotype=holiday name= repeat=1 valid=1 date=2026-12-25 days=1 infotype=holiday "
               "name=h2026-12-25 repeat=1 valid=1 | h2026-12-25/2026-12-25/1/1/1 Easter/2026-04-05/2/1/0 "
               "NewYear/2027-01-01/3/0/1 Easter/2026-04-05/2/0/0 | 01-01 NewYear,2026-04-05 Easter | "
               "Please input a name. Save failed!";
        // The same employees in another order are another key.
        QTest::newRow("vacation")
            << "vacation" << "A;B/2026-03-05 B;A/2026-03-05 A;B/2026-03-05" << "B/2026-03-09/2/0"
            << "date=today days=1 infotype=vacation note= staffids= valid=1 date=2026-03-02 days=3 infotype=vacation "
               "note= staffids=A valid=1 | A/2026-03-02/3//1 A;B/2026-03-05/1//1 B;A/2026-03-05/1//1 B/2026-03-09/2//0 "
               "A;B/2026-03-05/1//0 B;A/2026-03-05/1//1 | 2026-03-09 B,2026-03-05 A;B,2026-03-05 B;A+ | "
               "Please select a employee. Save failed!";
        QTest::newRow("lock")
            << "lock" << "A/2026-03-04 B/2026-03-04" << "A/2026-03-06/0"
            << "date=today infotype=lock note= staffids= valid=1 date=2026-03-04 infotype=lock note= staffids=B "
               "valid=1 | B/2026-03-04///1 A/2026-03-04///1 A/2026-03-06///0 A/2026-03-04///0 | "
               "2026-03-06 A,2026-03-04 A | Please select a employee. Save failed!";
    }
    void lists()
    {
        QFETCH(QString, kind);
        QVERIFY(writePlan("staff A/G B/G | holiday 2026-12-25/1/1 | vacation A/2026-03-02/3 | lock B/2026-03-04"));
        const QString name = kind == "holiday"    ? "t_holidayinfo"
                             : kind == "vacation" ? "t_vacationinfo"
                                                  : "t_lock_employee";
        const QString listName = kind == "holiday" ? "lst_holidays" : kind == "vacation" ? "lst_vacations" : "lst_lock";
        const QString before = table(name);
        {
            Settings unsaved; // a tick waits for Save
            unsaved.show();
            click(unsaved.findChild<QListWidget *>(listName), 0);
        }
        QCOMPARE(table(name), before);
        Settings dialog;
        dialog.selSettings(4);
        dialog.show();
        QListWidget *list = dialog.findChild<QListWidget *>(listName);
        const auto press = [&](const QString &button) {
            QTest::mouseClick(dialog.findChild<QPushButton *>("btn_" + button + "_" + kind), Qt::LeftButton);
        };
        Boxes boxes;
        list->setCurrentRow(-1);
        press("edit"); // nothing to edit: no editor
        QString added, edited;
        QFETCH(QString, adds);
        for (const ASAttribute &input : planRecords(kind, adds)) {
            answerEditor(&added, input);
            press("add");
        }
        answerEditor(&added, {});
        press("add");
        // Refused for the duplicate: the table and the list stay as they were.
        const QString shown = items(list);
        press("save");
        QCOMPARE(table(name) + items(list), before + shown);
        list->setCurrentRow(list->count() - 1);
        press("remove");
        press("save");
        const QString saved = table(name);
        // A double click edits; Valid unticked in the editor unticks the item.
        QFETCH(QString, edit);
        answerEditor(&edited, planRecords(kind, edit).value(0));
        click(list, 0, false);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
        click(list, 1);
        press("save");
        const QString refusal = boxes.texts.value(0);
        boxes.texts.removeAll(refusal);
        const QStringList result{added, edited, "|", saved, table(name), "|", items(list), "|", refusal};
        QTEST(result.join(' ') + " " + boxes.texts.join(','), "result");
        QVERIFY(boxes.titles.join("").isEmpty() && boxes.icons.count(QMessageBox::Warning) == boxes.icons.size());
    }

    // Each list to a file of its columns and back: an import replaces the list; "valid" that is no
    // number unticks, and without the column an item is ticked and stored in force.
    void exchange_data()
    {
        QTest::addColumn<QString>("kind"), QTest::addColumn<QString>("header"), QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("after"); // the items, then the table after Save
        QTest::newRow("holiday") << "holiday" << "name,date,days,repeat,valid" << "name,date,repeat,valid\r\nX,2026-05-01,1,yes\r\nY,2026-06-01,0,1\r\n"
                                 << "05-01 X,2026-06-01 Y+ X/2026-05-01/1/0/1 Y/2026-06-01/1/1/0";
        QTest::newRow("vacation") << "vacation" << "staffids,date,days,valid,note" << "date,staffids\r\n2026-05-01,A;B\r\n"
                                  << "2026-05-01 A;B+ A;B/2026-05-01/1//1";
        QTest::newRow("lock") << "lock" << "staffids,date,valid,note" << "note,staffids,date,valid\nn,A,2026-05-01,0\n"
                              << "2026-05-01 A A/2026-05-01//n/0";
    }
    void exchange()
    {
        QFETCH(QString, kind);
        QVERIFY(writePlan("staff A/G | holiday 2026-12-25/1/1 | vacation A/2026-03-02/3 | lock A/2026-03-04"));
        Settings dialog;
        dialog.show();
        const auto press = [&](const QString &button) {
            QTest::mouseClick(dialog.findChild<QPushButton *>("btn_" + button + "_" + kind), Qt::LeftButton);
        };
        const QString path = TestHome::path() + "/" + kind + ".csv";
        QFile::remove(path);
        answerFileDialog(path);
        press("export");
        QFile exported(path);
        QVERIFY(exported.open(QIODevice::ReadOnly));
        QTEST(QString(exported.readLine()).trimmed(), "header");
        QFETCH(QString, file);
        QVERIFY(writeFile(path, file.toUtf8()));
        answerFileDialog(path);
        press("import");
        press("save");
        const QString name = kind == "holiday" ? "t_holidayinfo" : kind == "vacation" ? "t_vacationinfo" : "t_lock_employee";
        QTEST(items(dialog.findChild<QListWidget *>(kind == "holiday" ? "lst_holidays" : kind == "vacation" ? "lst_vacations" : "lst_lock"))
                  + " " + table(name), "after");
    }

    // The picker drops down under its button and is made and loaded once; the vacation's ticks
    // add and drop names, the lock's choice replaces the name.
    void picker()
    {
        QVERIFY(writePlan("staff A/G B/G"));
        VacationSettings vacation;
        LockEmployee lock;
        QStringList seen; // per opening: the items and the current row, then the field after each click
        for (RecordEditor *editor : std::initializer_list<RecordEditor *>{&vacation, &lock}) {
            ASAttribute chosen = record({{"staffids", "B"}});
            editor->setData(chosen);
            editor->show();
            auto *button = editor->findChild<QPushButton *>("btn_selStaff");
            auto *field = editor->findChild<QLineEdit *>("ed_staffids");
            for (int opening : {1, 2}) {
                QTest::mouseClick(button, Qt::LeftButton);
                // Within the 2 pixels of frame that the test platform adds.
                const QPoint corner = button->mapToGlobal(QPoint(0, button->height()));
                QVERIFY((editor->picker->pos() - corner).manhattanLength() <= 4);
                auto *names = editor->picker->findChild<QListWidget *>();
                seen << QString("%1:%2/%3").arg(opening).arg(items(names)).arg(names->currentRow());
                for (int row : {0, 1}) {
                    click(names, row, editor == &vacation);
                    seen << field->text();
                }
                editor->picker->close();
                field->setText("A;B"); // what a new load would show
            }
            QCOMPARE(editor->findChildren<StaffsSelect *>().size(), 1);
        }
        QCOMPARE(seen.join(' '), "1:A,B+/-1 A;B A 2:A+,B/-1  B 1:A,B/1 A B 2:A,B/1 A B");
    }
};

ROSTERA_TEST_MAIN(TestSettingsLists)
#include "test_settingslists.moc"

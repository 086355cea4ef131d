// Saves killed at random moments. A child process (this program with the arguments "child",
// a kind and the plan file) saves one kind over and over; the parent kills it with SIGKILL after
// a random delay and opens the file. SQLite's journal keeps each transaction whole, so a table
// saved in one transaction holds its old or its new content, never a mixture. Generation and copy
// delete their span before they save, in two transactions as the program does it: their span may
// also be found empty, but never part filled. A cell commit that moves an employee to another
// shift removes before it adds, so the employee may be found in neither shift, never in both.

#include "fixture.h"

static const QDate kMonday(2026, 3, 2);
static const QStringList kKinds = {"group",    "staff", "shift",      "row", "holiday",
                                   "vacation", "lock",  "generation", "copy", "clear", "cell"};

// count records of a kind, keys from the prefix on ("A0", "A1", ... or dates from 2026-01-01 on).
static QVector<ASAttribute> records(const QString &kind, const QString &prefix, int count)
{
    QStringList items;
    for (int i = 0; i < count; ++i) {
        const QString key =
            kind == "holiday" ? QDate(2026, 1, 1).addDays(i).toString(Qt::ISODate) : prefix + QString::number(i);
        items << (kind == "vacation" || kind == "lock" ? key + "/2026-03-02" : key);
    }
    return planRecords(kind, items.join(' '));
}

static const QString kPlan =
    "staff A/G B/G C/G D/G E/H F/H | row G/S/2;2;2;2;2;2;2 G/T/1;1;1;1;1;1;1 H/S/1;1;1;1;1;1;1";

// The child's endless saves, alternating 200 records of "A" and 300 of "B" (a generation or copy of 31 days).
// Sets A's cell to the shift it holds now and gives the other one.
static QString shiftOfA(RosteraMain &window, const QString &now)
{
    QAbstractItemModel *model = window.ui->tableWidget->model();
    model->setData(model->index(0, 0), now, Qt::UserRole);
    return now == "S" ? "T" : "S";
}

// The shifts that hold A on the first date, as "S", "T", "S T" or "".
static QString shiftsOfA()
{
    return rowsText("select shiftname from t_schedule where date='2026-03-02' and ';'||staffs||';' like '%;A;%' "
                    "order by 1",
                    "", " ");
}

static int child(const QString &kind, const QString &file)
{
    if (!getDB()->openDB(file))
        return 1;
    RosteraMain window;
    window.cycleDates = daysFrom(kMonday, 31);
    Boxes boxes({}, QMessageBox::Yes); // the copy's and the clear's questions
    // Employee A's cell on the first date, by employee.
    window.toolBar->setViewType(0);
    window.gridRows = {record({{"id", "A"}, {"groupname", "G"}})};
    window.ui->tableWidget->setRowCount(1);
    window.ui->tableWidget->setColumnCount(1);
    // The parent's clock starts here, whatever the start-up took.
    fputs("saving\n", stdout);
    fflush(stdout);
    for (int round = 0;; ++round) {
        if (kind == "clear" && round % 2) {
            window.clearSchedule(kMonday, kMonday.addDays(30));
            window.cycleDates = daysFrom(kMonday, 31); // which the clear set back to the displayed cycle
        } else if (kind == "generation" || kind == "clear")
            window.auto_schedule(window.cycleDates, true);
        else if (kind == "copy")
            window.copySchedule(kMonday, kMonday.addDays(31), 31, false);
        else if (kind == "cell")
            window.adjustScheduleCommit(0, 0, shiftOfA(window, round % 2 ? "T" : "S"), true);
        else
            saveRecords(kind, round % 2 ? records(kind, "B", 300) : records(kind, "A", 200));
    }
}

static QString tableOf(const QString &kind)
{
    return QStringList{"t_groupinfo", "t_staffinfo", "t_shiftinfo", "t_permanentschedule", "t_holidayinfo",
                       "t_vacationinfo", "t_lock_employee"}
        .value(kKinds.indexOf(kind), "t_schedule");
}

class TestCrashSafety : public QObject
{
    Q_OBJECT
private slots:
    void killedSaves_data()
    {
        QTest::addColumn<QString>("kind");
        for (const QString &kind : kKinds)
            QTest::newRow(qPrintable(kind)) << kind;
    }
    void killedSaves()
    {
        QFETCH(QString, kind);
        const QString file = TestHome::file(kind + ".db");
        QVERIFY(getDB()->openDB(file) && writePlan(kPlan));
        RosteraMain window;
        window.cycleDates = daysFrom(kMonday, 31);
        const bool schedule = kind == "generation" || kind == "copy" || kind == "clear";
        QElapsedTimer saving;
        saving.start();
        if (kind == "cell")
            QVERIFY(rows("insert into t_schedule values ('2026-03-02','G','S','A')").isEmpty());
        else
            QVERIFY(schedule ? window.auto_schedule(window.cycleDates, true)
                             : saveRecords(kind, records(kind, "A", 200)));
        // Kills spread over a few saves' time as this build and machine take it (sanitizers and load slow them).
        const int spread = qMax(150, 5 * int(saving.elapsed()));
        // Whole contents: 200 or 300 records of the kind; of the schedule, a full span of generated cells, or none.
        const int span = rows("select count(*) from t_schedule").value(0).value(0).toInt();
        const QString full = QString::number(span);
        const QStringList whole = kind == "cell"   ? QStringList{"S", "T", ""}
                                  : kind == "copy" ? QStringList{full, QString::number(2 * span)}
                                  : schedule       ? QStringList{"0", full}
                                                   : QStringList{"200", "300"};
        getDB()->closeDB();
        QStringList seen;
        for (int kill = 0; kill < 25; ++kill) {
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(), {"child", kind, file});
            QVERIFY(process.waitForStarted() && process.waitForReadyRead(20000));
            QThread::msleep(QRandomGenerator::global()->bounded(1, spread));
            process.kill();
            QVERIFY(process.waitForFinished());
            QVERIFY(getDB()->openDB(file));
            QCOMPARE(rows("PRAGMA integrity_check"), QList<QStringList>{{"ok"}});
            const QString count = kind == "cell" ? shiftsOfA() : rowsText("select count(*) from " + tableOf(kind));
            QVERIFY2(whole.contains(count), qPrintable(kind + " holds " + count));
            seen << count;
            getDB()->closeDB();
        }
        // The kills met both contents, so they fell inside the saves' runs and not before them. (Generation and copy
        // write the same content each round: only a kill between their delete and their save, rare on a fast disk,
        // shows another.)
        QVERIFY2(kind == "generation" || kind == "copy" || (seen.removeDuplicates() < 24 && seen.size() >= 2),
                 qPrintable(seen.join(' ')));
    }
};

int main(int argc, char **argv)
{
    // A child works in the home of the test that started it.
    if (argc == 4 && QByteArray(argv[1]) == "child") {
        QApplication app(argc, argv);
        return child(argv[2], argv[3]);
    }
    TestHome home;
    QApplication app(argc, argv);
    TestCrashSafety tc;
    return QTest::qExec(&tc, argc, argv);
}
#include "test_crashsafety.moc"

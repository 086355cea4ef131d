// Replays the small random plans of tests/replay/plans.txt (made by scripts/replay_plans.py)
// through generation, check and repair, and compares each answer with the one recorded from an
// earlier engine: a faster lookup must not change any answer, nor the order of any draw.
// ROSTERA_REPLAY_RECORD=1 records the answers anew; ROSTERA_REPLAY_DUMP=<folder> writes each
// case's whole answer there as well, to compare two engines with diff.
#include <QCryptographicHash>

#include "engine/enginecommon.h"
#include "fixture.h"
#include "mainwindow/rosteramain.h"
#include "persistence/databasefunc.h"

// "w:<list>" is the weekly rule form, "d:<from>:<to>:<weeks>:<days>" the specified-date one.
static QString demand(const QString &code)
{
    const QStringList p = code.split(':');
    if (p[0] == "w")
        return record({{"t", "0"}, {"stn", p.value(1)}}).getXmlAttrs("dt");
    if (p[0] == "d")
        return record({{"t", "1"}, {"sdt", p[1]}, {"edt", p[2]}, {"week", p[3]}, {"dayweek", p[4]}}).getXmlAttrs("dt");
    return code;
}

// Fields: start, calendar days, work week, flags, view, draws, plan, standing rows, cells written before the check.
static QString answer(RosteraMain *window, const QStringList &f)
{
    QVector<ASAttribute> standing = planRecords("row", f[7]);
    for (ASAttribute &row : standing)
        row.setAttr("daystaffnum", demand(row.attr("daystaffnum", QString())));
    if (!writePlan(f[6]) || !getDB()->savePermanentSchedule(standing))
        return "plan not written";
    window->employeeLockSchedule = f[3].contains("lock");
    setView(window, f[4].left(1).toInt(), f[4].mid(1));
    QVector<int> draws;
    for (const QString &draw : f[5].split(' '))
        draws << draw.toInt();
    scriptDraws(draws);
    window->cycleDates.clear();
    for (const QDate &date : daysFrom(QDate::fromString(f[0], Qt::ISODate), f[1].toInt()))
        if (f[2].split(',').contains(QString::number(date.dayOfWeek())))
            window->cycleDates << date;
    window->holidays.clear();
    window->vacations.clear();
    const bool generated = window->auto_schedule(window->cycleDates, !f[3].contains("keep"));
    QStringList out{QVariant(generated).toString(), QString::number(drawsTaken()), show({window->assignStats})};
    out << scheduleTable() << "check";
    for (const QString &cell : f[8].split(' ', Qt::SkipEmptyParts))
        rows("insert or replace into t_schedule values ('" + cell.split('/').join("','") + "')");
    out << window->checkSchedule(false) << "repair" << window->checkSchedule(true) << "after" << scheduleTable();
    return out.join('\n');
}

class TestReplay : public QObject
{
    Q_OBJECT
private slots:
    void replay()
    {
        RosteraMain *window = openWindow();
        const QString folder = ROSTERA_SOURCE_DIR "/../tests/replay/";
        const QString dump = qEnvironmentVariable("ROSTERA_REPLAY_DUMP");
        QFile plans(folder + "plans.txt"), answers(folder + "answers.txt");
        const bool recording = qEnvironmentVariableIsSet("ROSTERA_REPLAY_RECORD");
        QVERIFY(window && plans.open(QIODevice::ReadOnly) && (recording || answers.open(QIODevice::ReadOnly)));
        const QStringList recorded = QString::fromUtf8(answers.readAll()).split('\n');
        QStringList lines, differing;
        for (int n = 0; !plans.atEnd(); ++n) {
            const QString text = answer(window, QString::fromUtf8(plans.readLine()).remove('\n').split(" || "));
            const QByteArray hash = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex();
            lines << QString("%1 %2").arg(n).arg(hash.left(16));
            if (!dump.isEmpty())
                writeFile(QString("%1/%2.txt").arg(dump).arg(n), text.toUtf8());
            if (lines.last() != recorded.value(n))
                differing << QString::number(n);
        }
        delete window;
        QVERIFY(!recording || writeFile(answers.fileName(), lines.join('\n').toUtf8() + '\n'));
        QCOMPARE(recording ? QString() : differing.join(' '), QString());
        QCOMPARE(lines.size(), 300);
    }
    // One read of all groups answers for each group as that group's own read: rows of no text group match none, and
    // names with an apostrophe (which break or change the condition) are read as they stand.
    void groupReads()
    {
        QVERIFY(getDB()->isOpen() || getDB()->openDB(QString()));
        QCOMPARE(rows("delete from t_schedule"), QList<QStringList>());
        for (const char *values : {"'2026-03-02','G','S','A'", "'2026-03-03','','S','B'", "'2026-03-04',NULL,'S','C'",
                                   "'2026-03-05',x'47','S','D'", "'2026-03-06','O''N','S','E'",
                                   "'2026-09-06','G','S','F'"})
            QCOMPARE(rows(QString("insert into t_schedule values (%1)").arg(values)), QList<QStringList>());
        const GroupRecords groups = GroupRecords::ofSchedule(" and date<='2026-03-31'");
        for (const QString group : {"G", "", "O'N", "x' or '1'='1", "H"}) {
            QVector<ASAttribute> served, own;
            const bool ok = groups.of(group, served);
            QCOMPARE(ok, getDB()->schedule(own, QString("groupname='%1'").arg(group) + " and date<='2026-03-31'"));
            QCOMPARE(show(served), show(own));
        }
    }
};

ROSTERA_TEST_MAIN(TestReplay)
#include "test_replay.moc"

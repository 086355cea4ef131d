// Availability and the rotation: holidays, vacations, the choice of the next employee, and
// the lookups of records in lists.
#include "testhome.h"

#include <random>

#include "core/schedulelookup.h"
#include "engine/enginecommon.h"
#include "enginefixture.h"
#include "ui_rosteramain.h"

class TestRotation : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void holidays_data();
    void holidays();
    void vacations_data();
    void vacations();
    void secondLapLiftsConsecutiveRule();
    void vacationCostsNoRotationPlace();
    void usedUpShareLeavesIndex();
    void laterPassesFollowShuffle();
    void extrasAreCounted();
    void vacationAfterShareTestIsNoExtra();
    void scheduleLookups();
    void lookupsAnswerAsLinearScans();
    void staffLookups();

private:
    RosteraMain *window = nullptr;
    QVector<ASAttribute> copies;
    QVector<ASAttribute *> ring;
    void makeRing(const QStringList &ids, float share);
};

void TestRotation::initTestCase()
{
    QVERIFY(getDB()->openDB(QString()));
    window = new RosteraMain;
}

void TestRotation::cleanupTestCase()
{
    delete window;
    getDB()->closeDB();
}

void TestRotation::init()
{
    window->holidays.clear();
    window->vacations.clear();
    window->assignStats.clear();
}

// A ring of working copies and a share of "S" for each of them, over a demand that is
// share times the head count.
void TestRotation::makeRing(const QStringList &ids, float share)
{
    copies.clear();
    ring.clear();
    for (const QString &id : ids)
        copies << staff(id, "G");
    for (ASAttribute &copy : copies)
        ring << &copy;
    window->assignStats.setAttr("S_ave", share);
    window->assignStats.setAttr("S_num", share * ids.size());
    window->assignStats.setAttr("S_int", float(ids.size() * int(share)));
    window->shuffledStaff.clear();
    for (int i = 0; i < ids.size(); ++i)
        window->shuffledStaff << i;
}

void TestRotation::holidays_data()
{
    QTest::addColumn<QVector<ASAttribute>>("records");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<bool>("holiday");

    const QVector<ASAttribute> newYear{holiday("2001-12-30", 5, 1)};
    QTest::newRow("repeating, by last year's anchor") << newYear << QDate(2026, 1, 3) << true;
    QTest::newRow("repeating, past its end") << newYear << QDate(2026, 1, 4) << false;
    QTest::newRow("repeating, by this year's anchor") << newYear << QDate(2026, 12, 31) << true;
    QTest::newRow("repeating, before its start") << newYear << QDate(2026, 12, 29) << false;
    const QVector<ASAttribute> once{holiday("2026-03-02", 3, 0)};
    QTest::newRow("once, first day") << once << QDate(2026, 3, 2) << true;
    QTest::newRow("once, last day") << once << QDate(2026, 3, 4) << true;
    QTest::newRow("once, day after") << once << QDate(2026, 3, 5) << false;
    QTest::newRow("once, day before") << once << QDate(2026, 3, 1) << false;
    QTest::newRow("once, a year later") << once << QDate(2027, 3, 2) << false;
    QTest::newRow("no days covers nothing") << QVector<ASAttribute>{holiday("2026-03-02", 0, 0)} << QDate(2026, 3, 2)
                                            << false;
    const QVector<ASAttribute> leap{holiday("2024-02-29", 2, 1)};
    QTest::newRow("29 February, leap year") << leap << QDate(2028, 2, 29) << true;
    QTest::newRow("29 February, its second day") << leap << QDate(2028, 3, 1) << true;
    QTest::newRow("29 February, common year, 28th") << leap << QDate(2026, 2, 28) << false;
    QTest::newRow("29 February, common year, 1 March") << leap << QDate(2026, 3, 1) << false;
    QTest::newRow("29 February, the year after a leap year") << leap << QDate(2025, 3, 1) << false;
    // Without the date this year, last year's span still counts.
    QTest::newRow("29 February, long span into a common year")
        << QVector<ASAttribute>{holiday("2024-02-29", 400, 1)} << QDate(2025, 3, 1) << true;
    ASAttribute oneDay = holiday("2026-05-01", 1, 1);
    oneDay.remove("days");
    QTest::newRow("days default to one") << QVector<ASAttribute>{oneDay} << QDate(2030, 5, 1) << true;
    QTest::newRow("days default to one, next day") << QVector<ASAttribute>{oneDay} << QDate(2030, 5, 2) << false;
    QTest::newRow("unreadable date") << QVector<ASAttribute>{holiday("soon", 400, 0)} << QDate(2026, 3, 2) << false;
    QTest::newRow("second record matches") << QVector<ASAttribute>{holiday("2026-01-01", 1, 0), oneDay}
                                           << QDate(2026, 5, 1) << true;
}

void TestRotation::holidays()
{
    QFETCH(QVector<ASAttribute>, records);
    QFETCH(QDate, date);
    QFETCH(bool, holiday);
    window->holidays = records;
    QCOMPARE(window->checkHoliday(date), holiday);
}

void TestRotation::vacations_data()
{
    QTest::addColumn<QString>("staffids");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<bool>("away");

    const QDate first(2026, 3, 2);
    QTest::newRow("listed, first day") << "11;1" << "1" << first << true;
    QTest::newRow("listed, last day") << "11;1" << "1" << first.addDays(2) << true;
    QTest::newRow("listed, day after") << "11;1" << "1" << first.addDays(3) << false;
    QTest::newRow("listed, day before") << "11;1" << "1" << first.addDays(-1) << false;
    QTest::newRow("only inside other ids") << "11;21" << "1" << first << false;
    QTest::newRow("not listed") << "2;3" << "1" << first << false;
}

void TestRotation::vacations()
{
    QFETCH(QString, staffids);
    QFETCH(QString, id);
    QFETCH(QDate, date);
    QFETCH(bool, away);
    window->vacations = {vacation("9", "2026-03-02", 10), vacation(staffids, "2026-03-02", 3)};
    QCOMPARE(window->checkVacation(date, id), away);
    // The index that the check uses answers the same.
    QCOMPARE(VacationIndex(window->vacations).covers(date, id), away);
}

// Two employees, one a day over four dates: the share is 2. After the first pick the other one
// comes next; the first cannot take the next date in the first lap, but can in the second.
void TestRotation::secondLapLiftsConsecutiveRule()
{
    makeRing({"A", "B"}, 2);
    const QDate monday(2026, 3, 2);
    int index = 0;
    QCOMPARE(window->getNextValidStaff(monday, ring, index, 0, "S", 2), QString("A"));
    QCOMPARE(index, 1);
    index = 0;
    QCOMPARE(window->getNextValidStaff(monday.addDays(1), ring, index, 1, "S", 2), QString("B"));
    QCOMPARE(index, 1);
    // B has the date already, A worked the same shift the day before: only the second lap takes A.
    QCOMPARE(window->getNextValidStaff(monday.addDays(1), ring, index, 1, "S", 2), QString("A"));
    QCOMPARE(index, 2); // unreduced
    QCOMPARE(copies[0].attr("0", QString()), QString("S"));
    QCOMPARE(copies[0].attr("1", QString()), QString("S"));
    QCOMPARE(copies[0].attr("S_ass", QString()), QString("2"));
    QCOMPARE(window->assignStats.attr("S_ass", QString()), QString("3"));
    // One shift per date, in every lap.
    QCOMPARE(window->getNextValidStaff(monday.addDays(1), ring, index, 1, "S", 2), QString());
    QCOMPARE(index, 0);
}

void TestRotation::vacationCostsNoRotationPlace()
{
    makeRing({"A", "B", "C"}, 5);
    window->vacations = {vacation("A", "2026-03-02", 7)};
    const QDate monday(2026, 3, 2);
    int index = 0;
    QCOMPARE(window->getNextValidStaff(monday, ring, index, 0, "S", 2), QString("B"));
    QCOMPARE(index, 1);
    QCOMPARE(window->getNextValidStaff(monday, ring, index, 0, "S", 2), QString("C"));
    QCOMPARE(index, 2);
    // Next date: C and B worked the shift the day before, A is away; the second lap takes C.
    QCOMPARE(window->getNextValidStaff(monday.addDays(1), ring, index, 1, "S", 2), QString("C"));
    QCOMPARE(index, 3);
    QVERIFY(copies[0].attr("0", QString()).isEmpty());
    QVERIFY(copies[0].attr("S_ass", QString()).isEmpty());
}

void TestRotation::usedUpShareLeavesIndex()
{
    makeRing({"A", "B"}, 1);
    for (ASAttribute &copy : copies)
        copy.setAttr("S_ass", 1.0f);
    int index = 3;
    QCOMPARE(window->getNextValidStaff(QDate(2026, 3, 2), ring, index, 0, "S", 2), QString());
    QCOMPARE(index, 1);
    QVector<ASAttribute *> nobody;
    QCOMPARE(window->getNextValidStaff(QDate(2026, 3, 2), nobody, index, 0, "S", 0), QString());
    QCOMPARE(index, 1);
}

// Passes 0 and 1 take the list as it is, pass 2 through the shuffle.
void TestRotation::laterPassesFollowShuffle()
{
    makeRing({"A", "B", "C"}, 5);
    window->shuffledStaff = {2, 0, 1};
    int index = 1;
    QCOMPARE(window->getNextValidStaff(QDate(2026, 3, 2), ring, index, 0, "S", 2), QString("A"));
    QCOMPARE(window->getNextValidStaff(QDate(2026, 3, 2), ring, index, 0, "S", 0), QString("C"));
    // The next date starts at A, who worked the shift the day before.
    QCOMPARE(window->getNextValidStaff(QDate(2026, 3, 3), ring, index, 1, "S", 0), QString("B"));
    QCOMPARE(index, 1);
}

// Share 1.5 for two employees: once the whole shares are used up each may take one extra,
// and every extra is counted.
void TestRotation::extrasAreCounted()
{
    makeRing({"A", "B"}, 1.5f);
    const QDate monday(2026, 3, 2);
    int index = 0;
    QStringList picks;
    for (int day = 0; day < 5; ++day)
        picks << window->getNextValidStaff(monday.addDays(day), ring, index, day, "S", 2);
    QCOMPARE(picks, QStringList({"A", "B", "A", "B", ""}));
    QCOMPARE(window->assignStats.attr("S_ovr", QString()), QString("2"));
    QCOMPARE(window->assignStats.attr("S_ass", QString()), QString("4"));
}

// The share test runs before the vacation test; an extra granted to a candidate who then
// turns out to be away must not be counted for the next one.
void TestRotation::vacationAfterShareTestIsNoExtra()
{
    makeRing({"A", "B"}, 1.5f);
    copies[0].setAttr("S_ass", 1.0f);
    window->assignStats.setAttr("S_ass", 2.0f);
    window->vacations = {vacation("A", "2026-03-02", 1)};
    int index = 0;
    QCOMPARE(window->getNextValidStaff(QDate(2026, 3, 2), ring, index, 0, "S", 2), QString("B"));
    QVERIFY(window->assignStats.attr("S_ovr", QString()).isEmpty());
    QCOMPARE(window->getNextValidStaff(QDate(2026, 3, 3), ring, index, 1, "S", 2), QString("A"));
    QCOMPARE(window->assignStats.attr("S_ovr", QString()), QString("1"));
}

void TestRotation::scheduleLookups()
{
    QVector<ASAttribute> list{scheduleRecord("2026-03-02", "G", "S", "1"), scheduleRecord("2026-03-02", "G", "T", "2"),
                              scheduleRecord("2026-03-02", "G", "T", "3")};
    int pos = 7;
    QCOMPARE(getSchedule("2026-03-02", "G", "T", list, &pos).attr("staffs", QString()), QString("2"));
    QCOMPARE(pos, 1);
    const ASAttribute missing = getSchedule("2026-03-03", "G", "T", list, &pos);
    QCOMPARE(pos, -1);
    QCOMPARE(missing.values(), record({{"infotype", "schedule"}, {"date", "2026-03-03"}, {"groupname", "G"},
                                       {"shiftname", "T"}})
                                   .values());
    QCOMPARE(getSchedule("2026-03-02", "", "S", list, nullptr).attr("staffs", QString("none")), QString("none"));

    // The index that generation uses finds the same first record of a key.
    ScheduleIndex index(list);
    QCOMPARE(index.find("2026-03-02", "G", "T"), 1);
    QCOMPARE(index.find("2026-03-02", "G", "U"), -1);
    index.append(newSchedule("2026-03-02", "G", "U"));
    QCOMPARE(index.find("2026-03-02", "G", "U"), 3);
    QCOMPARE(list.size(), 4);
    QCOMPARE(list.last().attr("shiftname", QString()), QString("U"));
    QCOMPARE(window->getDaySchedule(list, "G", "S", "2026-03-02").attr("staffs", QString()), QString("1"));
    QVERIFY(window->getDaySchedule(list, "H", "S", "2026-03-02").values().isEmpty());
}

void TestRotation::staffLookups()
{
    Plan plan;
    plan.groups = {"G", "H"};
    plan.staffs = {staff("1", "G"), staff("2", "H")};
    QVERIFY(writePlan(plan));
    QVector<ASAttribute> list{staff("5", "G"), staff("1", "G"), staff("1", "H")};
    QCOMPARE(window->getStaff(list, "1"), 1);
    QCOMPARE(window->getStaff(list, "7"), -1);
    QVector<ASAttribute *> pointers{&list[2], &list[0]};
    QCOMPARE(window->getStaff(pointers, "5"), 1);
    QCOMPARE(window->getStaff(pointers, "2"), -1);

    // The check's list grows from the cached employees, by group and id.
    QVector<ASAttribute> known;
    QCOMPARE(window->checkStaffExist(known, "G", "1"), 0);
    QCOMPARE(window->checkStaffExist(known, "H", "2"), 1);
    QCOMPARE(window->checkStaffExist(known, "G", "1"), 0);
    QCOMPARE(known.size(), 2);
    QCOMPARE(window->checkStaffExist(known, "H", "1"), -1);
    QCOMPARE(window->checkStaffExist(known, "G", "9"), -1);
    QCOMPARE(known.size(), 2);
}

// Generation and the check find records, vacations and dates through lookups made for speed;
// over drawn data with repeated keys, odd ids and unreadable dates they must answer exactly as
// the plain scans over the lists.
void TestRotation::lookupsAnswerAsLinearScans()
{
    std::mt19937 draw(20260302);
    const auto pick = [&draw](const QStringList &from) {
        return from.at(std::uniform_int_distribution<int>(0, int(from.size()) - 1)(draw));
    };
    const QStringList ids{"1", "11", "21", "2", "", "A"};
    const QStringList dateTexts{"2026-03-02", "2026-03-05", "2026-02-27", "2026-3-4", "soon", ""};
    const QStringList dayCounts{"-1", "0", "1", "3", "9", "x", "missing"};

    // A missing "days" is one day; an unreadable date covers nothing.
    window->vacations = {vacation("1", "2026-03-02", 1), vacation("1", "soon", 9)};
    window->vacations[0].remove("days");
    QVERIFY(window->checkVacation(QDate(2026, 3, 2), "1"));
    QVERIFY(!window->checkVacation(QDate(2026, 3, 3), "1"));

    for (int round = 0; round < 20; ++round) {
        window->vacations.clear();
        for (int v = 0; v < 8; ++v) {
            QStringList named;
            for (int k = std::uniform_int_distribution<int>(1, 3)(draw); k > 0; --k)
                named << pick(ids);
            ASAttribute away = vacation(named.join(';'), pick(dateTexts), 1);
            const QString days = pick(dayCounts);
            if (days == "missing")
                away.remove("days");
            else
                away.setAttr("days", days);
            window->vacations << away;
        }
        const VacationIndex index(window->vacations);
        for (const QString &id : ids + QStringList{"12", "1;1"}) {
            for (const QDate &date : daysFrom(QDate(2026, 2, 25), 14))
                QCOMPARE(index.covers(date, id), window->checkVacation(date, id));
        }
    }

    for (const QString &text : dateTexts + QStringList{"2026-02-29", "2024-02-29"}) {
        QCOMPARE(dateOf(text), QDate::fromString(text, "yyyy-MM-dd"));
        QCOMPARE(dateOf(text), QDate::fromString(text, "yyyy-MM-dd"));
    }

    // The schedule index as generation uses it: look up, append what is missing, replace what
    // is found by a record of the same key. The list starts with repeated keys.
    const QStringList dates{"2026-03-02", "2026-03-03"}, groups{"G", "", "H"}, shifts{"S", "T"};
    QVector<ASAttribute> list;
    for (int i = 0; i < 6; ++i)
        list << scheduleRecord(pick(dates), pick(groups), pick(shifts), QString::number(i));
    ScheduleIndex index(list);
    for (int step = 0; step < 200; ++step) {
        const QString date = pick(dates), group = pick(groups), shiftname = pick(shifts);
        int pos = -2;
        getSchedule(date, group, shiftname, list, &pos);
        QCOMPARE(index.find(date, group, shiftname), pos);
        if (pos < 0)
            index.append(newSchedule(date, group, shiftname));
        else
            list[pos].setAttr("staffs", QString::number(step));
    }
}

ROSTERA_TEST_MAIN(TestRotation)
#include "test_rotation.moc"

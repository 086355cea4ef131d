#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRandomGenerator>

#include "core/apppaths.h"
#include "core/asattribute.h"
#include "core/helpers.h"
#include "core/sortinfo.h"
#include "persistence/databasefunc.h"
#include "testhome.h"

class TestHelpers : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void weekNames();
    void positions();
    void versionComparison_data();
    void versionComparison();
    void lookupsInCache();
    void timeForms();
    void shiftLengths();
    void writeLogReplacesFile();
    void sortGroupsAndShifts();
    void sortStaffAndStandingRows();
    void sortSchedule();
    void comparatorOnItself();
    void sortManyEqualKeys();
};

static QStringList column(const QVector<ASAttribute> &records, const QString &key)
{
    QStringList out;
    for (const ASAttribute &r : records)
        out.append(r.attr(key, QString()));
    return out;
}

static ASAttribute shift(const QString &name, const QString &start, const QString &end, const QString &abbr = QString())
{
    return record({{"infotype", "shift"}, {"name", name}, {"starttm", start}, {"endtm", end}, {"abbreviation", abbr}});
}

void TestHelpers::init()
{
    getDB()->shifts = {shift("Night", "22:00", "06:00", "N"), shift("Day", "08:00", "16:00"),
                       shift("Same", "08:00", "08:00", "S"), shift("Night", "23:00", "07:00", "N2")};
    getDB()->groups = {record({{"name", "Kitchen"}, {"abbreviation", "K"}}), record({{"name", "Bar"}})};
}

void TestHelpers::weekNames()
{
    QCOMPARE(getWeekDes(1), QString("Monday"));
    QCOMPARE(getWeekDes(7), QString("Sunday"));
    QCOMPARE(getWeekDes(0), QString("Error"));
    QCOMPARE(getWeekDes(8), QString("Error"));
}

void TestHelpers::positions()
{
    const QVector<QDate> dates = {QDate(2012, 1, 2), QDate(2012, 1, 3), QDate(2012, 1, 2)};
    QCOMPARE(getDatePos(dates, QDate(2012, 1, 2)), 0);
    QCOMPARE(getDatePos(dates, QDate(2012, 1, 3)), 1);
    QCOMPARE(getDatePos(dates, QDate(2012, 1, 4)), -1);
    const QStringList list = {"x", "ABC", "abc"};
    QCOMPARE(getStringPos(list, "abc"), 1);
    QCOMPARE(getStringPos(list, "ab"), -1);
}

void TestHelpers::versionComparison_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("newer");
    QTest::newRow("equal") << "2.08.03" << "2.08.03" << false;
    QTest::newRow("later part") << "2.08.10" << "2.08.03" << true;
    QTest::newRow("earlier part") << "2.08.03" << "2.08.10" << false;
    QTest::newRow("numbers not text") << "2.10" << "2.9" << true;
    QTest::newRow("fewer parts lose") << "2.9" << "2.08.03" << false;
    QTest::newRow("more parts win") << "2.08.03" << "3.0" << true;
    QTest::newRow("empty parts skipped") << "2.9" << "2..8" << true;
    QTest::newRow("trailing dot skipped") << "2.8." << "2.9" << false;
    QTest::newRow("non-number is 0") << "2.x" << "2.0" << false;
}

void TestHelpers::versionComparison()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(bool, newer);
    QCOMPARE(cmpVersion(a, b), newer);
}

void TestHelpers::lookupsInCache()
{
    ASAttribute found;
    QVERIFY(getShiftByName("Night", found));
    QCOMPARE(found.attr("abbreviation", QString()), QString("N")); // the first of two with the name
    ASAttribute untouched = record({{"keep", "1"}});
    QVERIFY(!getShiftByName("night", untouched));
    QCOMPARE(untouched, record({{"keep", "1"}}));

    QCOMPARE(getShiftAbbre("Night"), QString("N"));
    QCOMPARE(getShiftAbbre("Day"), QString("Day"));
    QCOMPARE(getShiftAbbre("Unknown"), QString("Unknown"));
    QCOMPARE(getGroupAbbre("Kitchen"), QString("K"));
    QCOMPARE(getGroupAbbre("Bar"), QString("Bar"));
    QCOMPARE(getGroupAbbre("kitchen"), QString("kitchen"));
}

void TestHelpers::timeForms()
{
    // The 12-hour form must not depend on the locale in use.
    QLocale::setDefault(QLocale(QLocale::Japanese, QLocale::Japan));
    QCOMPARE(str2TimeFormat("13:05", false), QString("01:05 PM"));
    QCOMPARE(str2TimeFormat("00:30", false), QString("12:30 AM"));
    QLocale::setDefault(QLocale::c());
    QCOMPARE(str2TimeFormat("01:05 PM", true), QString("13:05"));
    QCOMPARE(str2TimeFormat("12:30 AM", true), QString("00:30"));
    QCOMPARE(str2TimeFormat("9:05", true), QString());
    QCOMPARE(str2Time("13:05"), QTime(13, 5));
    QVERIFY(!str2Time("01:05 pm").isValid()); // only upper-case markers switch the format
    QVERIFY(!str2Time("25:00").isValid());
}

void TestHelpers::shiftLengths()
{
    calcShiftLength();
    const QVector<ASAttribute> &shifts = getDB()->shifts;
    QCOMPARE(shifts.at(0).attr("hours", -1), 8 * 3600);
    QCOMPARE(shifts.at(1).attr("hours", -1), 8 * 3600);
    QCOMPARE(shifts.at(2).attr("hours", -1), 0);
    QCOMPARE(shifts.at(3).attr("hours", QString()), QString("28800"));
}

void TestHelpers::writeLogReplacesFile()
{
    const QString file = getAppPath() + "/logs/probe.txt";
    QFile::remove(file);
    writeLog("probe", "first text that is longer");
    writeLog("probe", "second");
    QFile log(file);
    QVERIFY(log.open(QIODevice::ReadOnly));
    QCOMPARE(log.readAll(), QByteArray("second"));
    log.close();
    QDir(getAppPath() + "/logs").removeRecursively();
}

void TestHelpers::sortGroupsAndShifts()
{
    QVector<ASAttribute> groups = {record({{"infotype", "group"}, {"name", "b"}}),
                                   record({{"infotype", "group"}, {"name", "a"}}),
                                   record({{"infotype", "group"}, {"name", "B"}})};
    sortRecords(groups);
    QCOMPARE(column(groups, "name"), QStringList({"B", "a", "b"}));

    QVector<ASAttribute> shifts = {shift("Late", "22:00", "06:00", "A"), shift("Early", "08:00", "16:00", "Z")};
    sortRecords(shifts);
    QCOMPARE(column(shifts, "name"), QStringList({"Early", "Late"}));
    for (ASAttribute &s : shifts)
        s.setAttr("infosubtype", QString("cus"));
    sortRecords(shifts);
    QCOMPARE(column(shifts, "name"), QStringList({"Late", "Early"}));
}

void TestHelpers::sortStaffAndStandingRows()
{
    auto staff = [](const QString &group, const QString &id) {
        return record({{"infotype", "staff"}, {"groupname", group}, {"id", id}});
    };
    QVector<ASAttribute> staffs = {staff("y", "1"), staff("x", "9"), staff("x", "10"), staff("y", "0")};
    sortRecords(staffs);
    // Text order: "10" before "9".
    QCOMPARE(column(staffs, "id"), QStringList({"10", "9", "0", "1"}));

    auto row = [](const QString &group, const QString &shiftName) {
        return record({{"infotype", "permanentschedule"}, {"groupname", group}, {"shiftname", shiftName}});
    };
    QVector<ASAttribute> rows = {row("b", "Day"), row("a", "Night"), row("a", "Gone"), row("a", "Day")};
    sortRecords(rows);
    // Unknown shifts have no start time and come first in their group.
    QCOMPARE(column(rows, "shiftname"), QStringList({"Gone", "Day", "Night", "Day"}));
    QCOMPARE(column(rows, "groupname"), QStringList({"a", "a", "a", "b"}));
}

void TestHelpers::sortSchedule()
{
    auto cell = [](const QString &date, const QString &group, const QString &shiftName) {
        return record({{"infotype", "schedule"}, {"date", date}, {"groupname", group}, {"shiftname", shiftName}});
    };
    QVector<ASAttribute> cells = {cell("2012-01-03", "a", "Day"), cell("2012-01-02", "z", "Night"),
                                  cell("2012-01-02", "z", "Day"), cell("2012-01-02", "b", "Night")};
    sortRecords(cells);
    QCOMPARE(column(cells, "date"), QStringList({"2012-01-02", "2012-01-02", "2012-01-02", "2012-01-03"}));
    QCOMPARE(column(cells, "groupname"), QStringList({"b", "z", "z", "a"}));
    QCOMPARE(column(cells, "shiftname"), QStringList({"Night", "Day", "Night", "Day"}));
}

void TestHelpers::comparatorOnItself()
{
    for (const char *type : {"group", "shift", "staff", "permanentschedule", "schedule"}) {
        ASAttribute r = record({{"infotype", type}, {"name", "n"}, {"shiftname", "Day"}, {"date", "2012-01-02"}});
        QVERIFY2(sortInfo(r, r), type);
    }
    for (const char *type : {"holiday", "vacation", "lock", ""}) {
        ASAttribute r = record({{"infotype", type}, {"name", "n"}});
        QVERIFY2(!sortInfo(r, r), type);
    }
    ASAttribute none;
    QVERIFY(!sortInfo(none, none));
}

// The comparator answers true for equal keys; the sort must still stay within the list
// (checked under AddressSanitizer) and give an ordered permutation of its input.
void TestHelpers::sortManyEqualKeys()
{
    QRandomGenerator random(7);
    const QStringList shiftNames = {"Day", "Night", "Same", "Gone"};
    for (int size : {2, 3, 17, 1000, 4099}) {
        QVector<ASAttribute> cells;
        for (int i = 0; i < size; ++i) {
            cells.append(record({{"infotype", "schedule"},
                                 {"date", QString("2012-01-0%1").arg(random.bounded(1, 3))},
                                 {"groupname", random.bounded(2) ? "a" : "b"},
                                 {"shiftname", shiftNames.at(random.bounded(4))},
                                 {"staffs", QString::number(i)}}));
        }
        sortRecords(cells);
        QCOMPARE(cells.size(), size);
        for (int i = 0; i + 1 < size; ++i)
            QVERIFY2(sortInfo(cells[i], cells[i + 1]), qPrintable(QString("size %1 at %2").arg(size).arg(i)));
        QStringList tags = column(cells, "staffs");
        tags.removeDuplicates();
        QCOMPARE(tags.size(), size);
    }
}

ROSTERA_TEST_MAIN(TestHelpers)
#include "test_helpers.moc"

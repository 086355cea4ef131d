#include <QDomNode>

#include "core/helpers.h"
#include "core/sortinfo.h"
#include "fixture.h"

class TestCore : public QObject
{
    Q_OBJECT
private slots:
    // The 12-hour marker must not depend on the locale.
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::Japanese, QLocale::Japan)); }
    void attributeRecord()
    {
        ASAttribute r = record({{"empty", ""}, {"word", "abc"}, {"lead", "010"}, {"hex", "0x1A"}});
        r.setAttr("neg", -42);
        r.setAttr("half", 1.5f);
        r.setAttr("big", 1234567.0f);
        r.remove("hex");
        // A present key beats the default, even when empty or no number.
        QCOMPARE(r.attr("empty", QString("d")) + "|" + r.attr("none", QString("d")), QString("|d"));
        QCOMPARE(QList<int>({r.attr("empty", 5), r.attr("word", 5), r.attr("none", 5), r.attr("lead", 5),
                             r.attr("neg", 5)}),
                 QList<int>({0, 0, 5, 10, -42}));
        QCOMPARE(QList<float>({r.attr("word", 2.5f), r.attr("none", 2.5f), r.attr("half", 2.5f)}),
                 QList<float>({0.0f, 2.5f, 1.5f}));
        // and reading added nothing
        QCOMPARE(show({r}), QString("big=1.23457e+06 empty= half=1.5 lead=010 neg=-42 word=abc"));
        // Whole numbers take a short way to the same float, and are written as the general form writes them.
        for (const char *text : {"0", "7", "007", "999999", "1000000", "-0", "+5", " 5", "2.5", "1e3", "", "x"}) {
            const float read = record({{"n", text}}).attr("n", 9.0f);
            const float general = QString(text).toFloat();
            QVERIFY2(std::signbit(read) == std::signbit(general) && read == general, text);
        }
        for (const float value : {0.0f, -0.0f, 3.0f, 999999.0f, 1e6f, 2.5f, 123456.7f, -4.0f}) {
            r.setAttr("f", value);
            QCOMPARE(r.attr("f", QString()), QString("%1").arg(double(value)));
        }
        r.clear();
        const QString rule = record({{"t", "0"}, {"stn", "2;2;2;2;2;1;0"}}).getXmlAttrs("dt");
        QVERIFY2(r.values().isEmpty() && rule.startsWith("<dt ") && rule.endsWith("/>\n") && rule.count('\n') == 1
                     && rule.contains(" t=\"0\"") && rule.contains(" stn=\"2;2;2;2;2;1;0\""),
                 qPrintable(rule));
        const ASAttribute odd = record({{"title", "Say \"hi\" & <bye> 'now'"}, {"empty", ""}, {"n", "3"}});
        QVERIFY(r.setXmlAttrs(odd.getXmlAttrs("report")) && r == odd);
        // Merges the root's attributes; a plain staffing list is no XML.
        QVERIFY(r.setXmlAttrs(QString("<any title=\"new\" u=\"1\"><child v=\"2\"/></any>"))
                && r.setXmlAttrs(QString("<dt/>")));
        QVERIFY(!r.setXmlAttrs(QString("2;2;2;2;2;1;0")) && !r.setXmlAttrs(QString("<dt a=\"2\""))
                && !r.setXmlAttrs(QDomNode()));
        QCOMPARE(show({r}), QString("empty= n=3 title=new u=1"));
    }
    // Each row calls a helper on each of its inputs ("a" or "a/b") and lists the answers.
    void helpers_data()
    {
        addColumns({"call", "inputs", "answers"});
        QTest::newRow("week days, Error outside 1 to 7") << "getWeekDes" << "0,1,7,8" << "Error,Monday,Sunday,Error";
        QTest::newRow("text positions: any case, first, none") << "getStringPos" << "ABC,X,ab" << "0,2,-1";
        QTest::newRow("versions: more parts win, else part by part as numbers")
            << "cmpVersion"
            << "2.08.03/3.0,2.9/2.08.03,2.08.03/2.08.03,2.08.10/2.08.03,2.08.03/2.08.10,2.10/2.9,2.9/2..8,3.0/2.9,"
               "2.a/2.0,2.1/2.a"
            << "1,0,0,1,0,1,1,1,0,1";
        QTest::newRow("shift by name: first, case-sensitive") << "getShiftByName" << "Night,night" << "1N,0kept";
        QTest::newRow("shift/group abbreviation, or else the name")
            << "abbreviations" << "Night,Day,Gone,Kitchen" << "N/Night,Day/Day,Gone/Gone,Kitchen/K";
        QTest::newRow("times to 12 and 24 hours, marker upper-case")
            << "str2TimeFormat" << "13:05/12,00:30/12,01:05 PM/24,12:30 AM/24,01:05 pm/24"
            << "01:05 PM,12:30 AM,13:05,00:30,";
        QTest::newRow("shift lengths in seconds, over midnight only if the end is earlier")
            << "calcShiftLength" << "0,1,2,3" << "28800,28800,0,2700";
    }
    void helpers()
    {
        QFETCH(QString, call);
        getDB()->shifts =
            planRecords("shift", "Night/N/22:00/06:00 Day//08:00/16:00 Same/S/08:00/08:00 Night/N2/23:30/00:15");
        getDB()->groups = planRecords("group", "Kitchen/K");
        calcShiftLength();
        QStringList got;
        for (const QString &input : field("inputs").split(',')) {
            const QString a = input.section('/', 0, 0), b = input.section('/', 1);
            ASAttribute shift = record({{"abbreviation", "kept"}});
            const bool found = call == "getShiftByName" && getShiftByName(a, shift);
            got << (call == "getWeekDes"       ? getWeekDes(a.toInt())
                    : call == "getStringPos"   ? QString::number(getStringPos({"abc", "ABC", "x"}, a))
                    : call == "cmpVersion"     ? QString::number(cmpVersion(a, b))
                    : call == "getShiftByName" ? QString::number(found) + shift.attr("abbreviation", QString())
                    : call == "abbreviations"  ? getShiftAbbre(a) + "/" + getGroupAbbre(a)
                    : call == "str2TimeFormat" ? str2TimeFormat(a, b == "24")
                                               : getDB()->shifts.value(a.toInt()).attr("hours", QString()));
        }
        QTEST(got.join(','), "answers");
    }
    // The comparator says true for equal keys; the sort must still give an ordered permutation.
    void orderingWithEqualKeys()
    {
        QRandomGenerator random(7);
        QVector<ASAttribute> cells;
        for (int i = 0; i < 1000; ++i)
            cells << record({{"infotype", "schedule"}, {"date", QString::number(random.bounded(2))},
                             {"groupname", QString::number(random.bounded(2))},
                             {"shiftname", random.bounded(2) ? "Day" : "Gone"}, {"staffs", QString::number(i)}});
        sortRecords(cells);
        QStringList tags;
        for (int i = 0; i < cells.size(); ++i) {
            QVERIFY2(i == 0 || sortInfo(cells[i - 1], cells[i]), qPrintable(QString::number(i)));
            tags << cells[i].attr("staffs", QString());
        }
        QVERIFY(tags.removeDuplicates() == 0 && tags.size() == 1000);
    }
};

ROSTERA_TEST_MAIN(TestCore)
#include "test_core.moc"

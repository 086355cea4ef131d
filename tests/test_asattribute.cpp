#include <QDomDocument>
#include <QDomElement>

#include "core/asattribute.h"
#include "testhome.h"

class TestASAttribute : public QObject
{
    Q_OBJECT

private slots:
    void presentKeyBeatsDefault();
    void readsNeverInsert();
    void numberForms();
    void removeAndClear();
    void xmlForm();
    void xmlRoundTripKeepsSpecialCharacters();
    void xmlReadingMerges();
    void xmlFailuresLeaveRecordAlone();
};

// An empty or non-numeric stored value is returned as it is (or as 0), never as the default.
void TestASAttribute::presentKeyBeatsDefault()
{
    ASAttribute r;
    r.setAttr("x", QString());
    r.setAttr("y", QString("abc"));
    QVERIFY(r.exist("x"));
    QCOMPARE(r.attr("x", QString("d")), QString());
    QCOMPARE(r.attr("x", 5), 0);
    QCOMPARE(r.attr("y", 5), 0);
    QCOMPARE(r.attr("y", 2.5f), 0.0f);
    QCOMPARE(r.attr("missing", QString("d")), QString("d"));
    QCOMPARE(r.attr("missing", 5), 5);
    QCOMPARE(r.attr("missing", 2.5f), 2.5f);
}

void TestASAttribute::readsNeverInsert()
{
    ASAttribute r;
    r.attr("a", QString("d"));
    r.attr("b", 1);
    r.attr("c", 1.0f);
    QVERIFY(!r.exist("a") && !r.exist("b") && !r.exist("c"));
    QVERIFY(r.values().isEmpty());
}

void TestASAttribute::numberForms()
{
    ASAttribute r;
    r.setAttr("i", -42);
    r.setAttr("f", 1.5f);
    r.setAttr("big", 1234567.0f);
    r.setAttr("x", QString("old"));
    r.setAttr("x", 7);
    QCOMPARE(r.attr("i", QString()), QString("-42"));
    QCOMPARE(r.attr("f", QString()), QString("1.5"));
    QCOMPARE(r.attr("big", QString()), QString("1.23457e+06"));
    QCOMPARE(r.attr("x", QString()), QString("7"));
    QCOMPARE(r.attr("i", 0), -42);
    QCOMPARE(r.attr("f", 0.0f), 1.5f);
    // Base 10 only: no octal or hexadecimal reading of stored text.
    r.setAttr("lead", QString("010"));
    r.setAttr("hex", QString("0x1A"));
    QCOMPARE(r.attr("lead", -1), 10);
    QCOMPARE(r.attr("hex", -1), 0);
}

void TestASAttribute::removeAndClear()
{
    ASAttribute r;
    r.setAttr("a", 1);
    r.setAttr("b", 2);
    r.remove("a");
    r.remove("none");
    QVERIFY(!r.exist("a"));
    QVERIFY(r.exist("b"));
    ASAttribute copy = r;
    r.clear();
    QVERIFY(r.values().isEmpty());
    QCOMPARE(copy.attr("b", 0), 2);
}

void TestASAttribute::xmlForm()
{
    ASAttribute r;
    r.setAttr("t", 0);
    r.setAttr("stn", QString("2;2;2;2;2;1;0"));
    const QString xml = r.getXmlAttrs(QString("dt"));
    QVERIFY(xml.startsWith("<dt "));
    QVERIFY(xml.endsWith("/>\n"));
    QCOMPARE(xml.count('\n'), 1);
    QVERIFY(xml.contains("t=\"0\""));
    QVERIFY(xml.contains("stn=\"2;2;2;2;2;1;0\""));

    QDomDocument doc;
    QDomElement e = doc.createElement("e");
    r.getXmlAttrs(e);
    QCOMPARE(e.attributes().count(), 2);
    QCOMPARE(e.attribute("stn"), QString("2;2;2;2;2;1;0"));
}

void TestASAttribute::xmlRoundTripKeepsSpecialCharacters()
{
    ASAttribute r;
    r.setAttr("title", QString("Say \"hi\" & <bye> 'now'"));
    r.setAttr("empty", QString());
    r.setAttr("n", 3);
    ASAttribute back;
    QVERIFY(back.setXmlAttrs(r.getXmlAttrs(QString("report"))));
    QCOMPARE(back, r);
}

void TestASAttribute::xmlReadingMerges()
{
    ASAttribute r;
    r.setAttr("keep", QString("k"));
    r.setAttr("t", QString("old"));
    // Only the root's attributes count; its name and children are not looked at.
    QVERIFY(r.setXmlAttrs(QString("<any t=\"new\" u=\"1\"><child v=\"2\"/></any>")));
    QCOMPARE(r.attr("keep", QString()), QString("k"));
    QCOMPARE(r.attr("t", QString()), QString("new"));
    QCOMPARE(r.attr("u", QString()), QString("1"));
    QVERIFY(!r.exist("v"));

    const ASAttribute before = r;
    QVERIFY(r.setXmlAttrs(QString("<dt/>")));
    QCOMPARE(r, before);
}

void TestASAttribute::xmlFailuresLeaveRecordAlone()
{
    ASAttribute empty;
    QVERIFY(!empty.setXmlAttrs(QString("2;2;2;2;2;1;0")));
    QVERIFY(empty.values().isEmpty());

    ASAttribute r;
    r.setAttr("a", QString("1"));
    const ASAttribute before = r;
    QVERIFY(!r.setXmlAttrs(QString("<dt a=\"2\" b=\"3\"")));
    QVERIFY(!r.setXmlAttrs(QString()));
    QVERIFY(!r.setXmlAttrs(QDomNode()));
    QCOMPARE(r, before);
}

ROSTERA_TEST_MAIN(TestASAttribute)
#include "test_asattribute.moc"

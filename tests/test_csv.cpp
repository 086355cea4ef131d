#include <QFile>

#include "core/asattribute.h"
#include "core/csvfile.h"
#include "testhome.h"

class TestCsv : public QObject
{
    Q_OBJECT

private slots:
    void exportFormat();
    void roundTrip();
    void headerMatching();
    void irregularLines();
    void commaInValueSplits();
    void emptyAndMissingFiles();
    void commasOnly();
    void bytesOutsideTheEncoding();

private:
    QString path(const QString &name) const { return TestHome::path() + "/" + name; }
    void writeRaw(const QString &name, const QByteArray &bytes) const;
    QVector<ASAttribute> load(const QString &name, QStringList fields) const;
};

void TestCsv::writeRaw(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QVector<ASAttribute> TestCsv::load(const QString &name, QStringList fields) const
{
    QVector<ASAttribute> records;
    if (!infoImport(records, fields, path(name)))
        qWarning("cannot read %s", qPrintable(name));
    return records;
}

void TestCsv::exportFormat()
{
    QVector<ASAttribute> records = {record({{"name", "Early"}, {"starttm", "06:00"}}),
                                    record({{"name", "Late, or not"}})};
    QStringList fields = {"name", "starttm", "endtm"};
    QVERIFY(infoExport(records, fields, path("format.csv")));
    QFile file(path("format.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("name,starttm,endtm\r\nEarly,06:00,\r\nLate, or not,,\r\n"));

    QVERIFY(!infoExport(records, fields, path("no/such/folder/x.csv")));
}

void TestCsv::roundTrip()
{
    QVector<ASAttribute> records = {
        record({{"id", "10"}, {"fname", "Zoë"}, {"lname", "Müller"}, {"note", ""}}),
        record({{"id", "9"}, {"fname", "Ann \"A\""}, {"lname", "O'Neil"}, {"note", "x;y"}}),
    };
    QStringList fields = {"id", "fname", "lname", "note"};
    QVERIFY(infoExport(records, fields, path("staff.csv")));
    QVector<ASAttribute> back = {record({{"id", "existing"}})};
    QVERIFY(infoImport(back, fields, path("staff.csv")));
    QCOMPARE(back.size(), 3);
    QCOMPARE(back.at(1), records.at(0));
    QCOMPARE(back.at(2), records.at(1));
}

// Columns go by header name, ignoring case; unwanted columns are ignored, the leftmost duplicate wins.
void TestCsv::headerMatching()
{
    writeRaw("order.csv", "EXTRA,StartTm,NAME,name\r\nx,08:00,Day,ignored\r\n");
    const QVector<ASAttribute> records = load("order.csv", {"name", "starttm", "endtm"});
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.at(0), record({{"name", "Day"}, {"starttm", "08:00"}}));
}

void TestCsv::irregularLines()
{
    writeRaw("lines.csv", "\r\n\nname,date,days\r\n\r\n,,\r\nNewYear,2012-01-01\r\n\nXmas,2012-12-25,2\n\r\n");
    const QVector<ASAttribute> records = load("lines.csv", {"name", "date", "days"});
    QCOMPARE(records.size(), 3);
    // A row of commas only still sets every bound field, to the empty text.
    QCOMPARE(records.at(0), record({{"name", ""}, {"date", ""}, {"days", ""}}));
    // A short line lacks the attributes of the missing columns.
    QCOMPARE(records.at(1), record({{"name", "NewYear"}, {"date", "2012-01-01"}}));
    QCOMPARE(records.at(2), record({{"name", "Xmas"}, {"date", "2012-12-25"}, {"days", "2"}}));

    // No field bound: no line sets anything, so every line is dropped.
    QVERIFY(load("lines.csv", {"other"}).isEmpty());
}

void TestCsv::commaInValueSplits()
{
    QVector<ASAttribute> records = {record({{"name", "A,B"}, {"note", "n"}, {"abbreviation", "ab"}})};
    QStringList fields = {"name", "note", "abbreviation"};
    QVERIFY(infoExport(records, fields, path("comma.csv")));
    const QVector<ASAttribute> back = load("comma.csv", fields);
    QCOMPARE(back.size(), 1);
    QCOMPARE(back.at(0), record({{"name", "A"}, {"note", "B"}, {"abbreviation", "n"}}));
}

void TestCsv::emptyAndMissingFiles()
{
    writeRaw("empty.csv", QByteArray());
    QStringList fields = {"name"};
    QVector<ASAttribute> records;
    QVERIFY(infoImport(records, fields, path("empty.csv")));
    QVERIFY(records.isEmpty());
    QVERIFY(!infoImport(records, fields, path("missing.csv")));
    QVERIFY(records.isEmpty());

    // A header alone gives no records.
    QVERIFY(infoExport(records, fields, path("header.csv")));
    QVERIFY(infoImport(records, fields, path("header.csv")));
    QVERIFY(records.isEmpty());
}

// Without a header that names a wanted field nothing is bound, however many columns there are.
void TestCsv::commasOnly()
{
    writeRaw("commas.csv", ",,,,,,\r\n,,,,,,,,,,,,\r\n,\r\n" + QByteArray(5000, ',') + "\r\n");
    QVERIFY(load("commas.csv", {"name", "note"}).isEmpty());

    writeRaw("wide.csv", "note,name\r\n" + QByteArray(5000, ',') + "\r\n");
    const QVector<ASAttribute> records = load("wide.csv", {"name", "note"});
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.at(0), record({{"name", ""}, {"note", ""}}));
}

// A file from a machine with another encoding still loads: each byte that is not valid in
// the locale's encoding becomes a replacement character, the rest stays as it is.
void TestCsv::bytesOutsideTheEncoding()
{
    const QByteArray latin1 = QString("name,note\r\nM\u00fcller,caf\u00e9 ok\r\nPlain,x\r\n").toLatin1();
    QVERIFY(latin1 != QString::fromLatin1(latin1).toLocal8Bit()); // the locale is not Latin-1
    writeRaw("latin1.csv", latin1);
    const QVector<ASAttribute> records = load("latin1.csv", {"name", "note"});
    QCOMPARE(records.size(), 2);
    QCOMPARE(records.at(0).attr("name", QString()), QString::fromLocal8Bit("M\xfcller"));
    QVERIFY(records.at(0).attr("note", QString()).endsWith(" ok"));
    QCOMPARE(records.at(1), record({{"name", "Plain"}, {"note", "x"}}));
}

ROSTERA_TEST_MAIN(TestCsv)
#include "test_csv.moc"

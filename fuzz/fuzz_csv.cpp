// CSV reading: the input is a file read with each kind's column list in turn.
#include "core/asattribute.h"
#include "core/csvfile.h"
#include "fuzzhome.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzzApplication();
    static const QList<QStringList> kinds = {
        {"name", "abbreviation", "note"},
        {"id", "fname", "lname", "groupname", "phonenum", "note"},
        {"name", "abbreviation", "starttm", "endtm"},
        {"groupname", "shiftname", "daystaffnum", "employee_name"},
        {"name", "date", "days", "valid", "repeat"},
        {"staffids", "date", "days", "note", "valid"},
        {"staffids", "date", "shiftname", "note", "valid"},
    };
    const QString path = inputFile(data, size, "input.csv");
    for (QStringList fields : kinds) {
        QVector<ASAttribute> records;
        infoImport(records, fields, path);
    }
    return 0;
}

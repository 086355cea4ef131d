// The staffing value: a "daystaffnum" text asked for on a date, and its description. The first
// two bytes choose the date (from 2024-01-01 on), the rest is the text.
#include "fuzzhome.h"
#include "masterdata/settings.h"
#include "mainwindow/rosteramain.h"
#include "persistence/databasefunc.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzzApplication();
    static RosteraMain *window = [] {
        getDB()->openDB(QString());
        return new RosteraMain;
    }();
    if (size < 2)
        return 0;
    const QDate date = QDate(2024, 1, 1).addDays(data[0] * 256 + data[1]);
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data + 2), qsizetype(size - 2));
    const int need = window->getStaffNum(text, date, date.dayOfWeek() - 1);
    if (need < 0)
        abort(); // a demand is never negative
    Settings::getDateAssignDesc(text);
    return 0;
}

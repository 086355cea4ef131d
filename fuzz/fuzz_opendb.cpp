// Any file opened as the plan, then every table read.
#include "core/asattribute.h"
#include "fuzzhome.h"
#include "persistence/databasefunc.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzzApplication();
    const QString path = inputFile(data, size, "input.db");
    QFile::remove(path + "-journal");
    DatabaseFunc *db = getDB();
    // The opening itself reads groups, employees, shifts and standing rows into the caches.
    if (db->openDB(path)) {
        QVector<ASAttribute> holidays, vacations, locks, schedule;
        db->holidayInfo(holidays);
        db->vacationInfo(vacations);
        db->lockEmployeeInfo(locks);
        db->schedule(schedule, "1=1");
    }
    db->closeDB();
    return 0;
}

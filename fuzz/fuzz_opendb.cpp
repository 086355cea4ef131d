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
    if (db->openDB(path)) {
        QVector<ASAttribute> groups, staffs, shifts, rows, holidays, vacations, locks, schedule;
        db->groupInfo(groups);
        db->staffInfo(staffs);
        db->shiftInfo(shifts);
        db->permanentSchedule(rows);
        db->holidayInfo(holidays);
        db->vacationInfo(vacations);
        db->lockEmployeeInfo(locks);
        db->schedule(schedule, "1=1");
    }
    db->closeDB();
    return 0;
}

#include "core/schedulelookup.h"

ASAttribute getSchedule(QString date, QString groupname, QString shiftname, QVector<ASAttribute> &list, int *pos)
{
    for (int i = 0; i < list.size(); ++i) {
        const ASAttribute &record = list.at(i);
        if (record.attr("date", QString()) == date && record.attr("groupname", QString()) == groupname
            && record.attr("shiftname", QString()) == shiftname) {
            if (pos)
                *pos = i;
            return record;
        }
    }
    if (pos)
        *pos = -1;
    ASAttribute record;
    record.setAttr("infotype", QString("schedule"));
    record.setAttr("date", date);
    record.setAttr("groupname", groupname);
    record.setAttr("shiftname", shiftname);
    return record;
}

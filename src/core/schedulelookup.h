#pragma once

#include <QString>
#include <QVector>

#include "core/asattribute.h"

// The "schedule" record of a date, group and shift in the list, as a copy; *pos (when given)
// is its position. Without one, *pos is -1 and the answer is a new record of those three keys
// with no "staffs".
ASAttribute getSchedule(QString date, QString groupname, QString shiftname, QVector<ASAttribute> &list, int *pos);

#pragma once

#include <QVector>

class ASAttribute;

// Non-strict ordering of records of one kind ("a may stand before b").
bool sortInfo(ASAttribute &a, ASAttribute &b);

// Sorts a list with sortInfo; safe although the comparator is not a strict weak order.
void sortRecords(QVector<ASAttribute> &records);

#pragma once

#include <QDate>
#include <QString>

class ASAttribute;
class RosteraMain;

// In "View One Group" and "View One Employee" the schedule commands work on the group of
// the group combo box only; "<None>" (index 0) stands for the empty group name.
bool isOneGroupView(RosteraMain *window);
QString viewGroup(RosteraMain *window);
// " and groupname='<group>'" in those views, otherwise empty.
QString viewGroupFilter(RosteraMain *window);

// "date>='<first>' and date<='<last>'"; an invalid date gives an empty text.
QString spanFilter(const QDate &first, const QDate &last);

// Adds 1 to a counter held as text in the float form of the record.
void countOne(ASAttribute &record, const QString &key);

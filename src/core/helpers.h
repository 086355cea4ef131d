#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <QTime>
#include <QVector>

class ASAttribute;

// English week-day names, Monday first; filled before main(), so never translated.
extern QString g_szWeeks[7];

QString getWeekDes(int day);
int getDatePos(const QVector<QDate> &dates, const QDate &d);
int getStringPos(const QStringList &list, const QString &s);
bool cmpVersion(const QString &a, const QString &b);
bool getShiftByName(QString name, ASAttribute &shift);
QString getShiftAbbre(QString name);
QString getGroupAbbre(QString name);
QTime str2Time(const QString &s);
QString str2TimeFormat(const QString &s, bool use24);
void calcShiftLength();
void writeLog(QString name, QString text);

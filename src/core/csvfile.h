#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class ASAttribute;

bool infoExport(QVector<ASAttribute> &records, QStringList &fields, const QString &path);
bool infoImport(QVector<ASAttribute> &records, QStringList &fields, const QString &path);

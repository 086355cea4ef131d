#include "core/csvfile.h"

#include <QFile>
#include <QMap>
#include <QTextStream>

#include "core/asattribute.h"

// No quoting at all: a comma in a value makes an extra column, as the file format has always done.
bool infoExport(QVector<ASAttribute> &records, QStringList &fields, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    file.write(QString("%1\r\n").arg(fields.join(",")).toLocal8Bit());
    for (const ASAttribute &record : records) {
        QStringList values;
        for (const QString &field : fields)
            values.append(record.attr(field, QString()));
        file.write(QString("%1\r\n").arg(values.join(",")).toLocal8Bit());
    }
    file.close();
    return true;
}

bool infoImport(QVector<ASAttribute> &records, QStringList &fields, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QTextStream in(&file);
    in.setEncoding(QStringConverter::System);

    // Field name -> column; a QMap, so fields are set in sorted order of their names.
    QMap<QString, int> columns;
    bool haveHeader = false;
    for (QString line = in.readLine(); !line.isNull(); line = in.readLine()) {
        if (line.isEmpty())
            continue;
        const QStringList parts = line.split(',', Qt::KeepEmptyParts);
        if (!haveHeader) {
            haveHeader = true;
            for (const QString &field : fields) {
                for (int col = 0; col < parts.size(); ++col) {
                    if (parts.at(col).compare(field, Qt::CaseInsensitive) == 0) {
                        columns.insert(field, col);
                        break;
                    }
                }
            }
            continue;
        }
        ASAttribute record;
        for (auto it = columns.constBegin(); it != columns.constEnd(); ++it) {
            if (it.value() < parts.size())
                record.setAttr(it.key(), parts.at(it.value()));
        }
        if (!record.values().isEmpty())
            records.append(record);
    }
    file.close();
    return true;
}

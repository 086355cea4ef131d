#pragma once

#include <QMap>
#include <QString>

class QDomElement;
class QDomNode;

// The one record type of the program: text keys mapped to text values.
// Every number, flag and date is kept as text; the key "infotype" names the kind.
class ASAttribute
{
public:
    ASAttribute() = default;

    void clear();
    void remove(const QString &key);
    bool exist(const QString &key) const;

    QString attr(const QString &key, const QString &def) const;
    int attr(const QString &key, int def) const;
    float attr(const QString &key, float def) const;

    void setAttr(const QString &key, const QString &value);
    void setAttr(const QString &key, int value);
    void setAttr(const QString &key, float value);

    void getXmlAttrs(QDomElement &e) const;
    QString getXmlAttrs(const QString &name) const;
    bool setXmlAttrs(const QDomNode &n);
    bool setXmlAttrs(const QString &xml);

    const QMap<QString, QString> &values() const { return m_values; }
    bool operator==(const ASAttribute &other) const { return m_values == other.m_values; }

private:
    QMap<QString, QString> m_values;
};

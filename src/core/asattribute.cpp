#include "core/asattribute.h"

#include <QDomDocument>
#include <QDomElement>
#include <QDomNamedNodeMap>

void ASAttribute::clear()
{
    m_values.clear();
}

void ASAttribute::remove(const QString &key)
{
    m_values.remove(key);
}

bool ASAttribute::exist(const QString &key) const
{
    return m_values.contains(key);
}

QString ASAttribute::attr(const QString &key, const QString &def) const
{
    const auto it = m_values.constFind(key);
    return it == m_values.constEnd() ? def : it.value();
}

// A present value that is not a number reads as 0: the default only stands in for a missing key.
int ASAttribute::attr(const QString &key, int def) const
{
    const auto it = m_values.constFind(key);
    return it == m_values.constEnd() ? def : it.value().toInt(nullptr, 10);
}

float ASAttribute::attr(const QString &key, float def) const
{
    const auto it = m_values.constFind(key);
    return it == m_values.constEnd() ? def : it.value().toFloat();
}

void ASAttribute::setAttr(const QString &key, const QString &value)
{
    m_values.insert(key, value);
}

void ASAttribute::setAttr(const QString &key, int value)
{
    m_values.insert(key, QString::number(value));
}

// 'g' with the default precision: at most 6 significant digits.
void ASAttribute::setAttr(const QString &key, float value)
{
    m_values.insert(key, QString("%1").arg(double(value)));
}

void ASAttribute::getXmlAttrs(QDomElement &e) const
{
    for (auto it = m_values.constBegin(); it != m_values.constEnd(); ++it)
        e.setAttribute(it.key(), it.value());
}

QString ASAttribute::getXmlAttrs(const QString &name) const
{
    QDomDocument doc;
    QDomElement e = doc.createElement(name);
    doc.appendChild(e);
    getXmlAttrs(e);
    return doc.toString(1);
}

// Merges: keys that the node does not carry are kept.
bool ASAttribute::setXmlAttrs(const QDomNode &n)
{
    if (n.isNull())
        return false;
    const QDomNamedNodeMap attrs = n.attributes();
    for (int i = 0; i < attrs.count(); ++i) {
        const QDomNode a = attrs.item(i);
        setAttr(a.nodeName(), a.nodeValue());
    }
    return true;
}

// The result also tells whether the text is XML at all; callers rely on that.
bool ASAttribute::setXmlAttrs(const QString &xml)
{
    QDomDocument doc;
    if (!doc.setContent(xml))
        return false;
    return setXmlAttrs(doc.documentElement());
}

#include "core/asattribute.h"
#include "core/textmemo.h"

#include <QDomDocument>
#include <QDomElement>
#include <QDomNamedNodeMap>

#include <cmath>

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

// The general conversion of a text, made once for each of the few texts a run reads again and
// again (the shares of a generation).
static float converted(const QString &text)
{
    static QHash<QString, float> known;
    return memoized(known, text, [](const QString &t) { return t.toFloat(); });
}

// Counters are read for every candidate of a generation, and they are small whole numbers: those
// are read digit by digit, to the float that the general conversion would give.
float ASAttribute::attr(const QString &key, float def) const
{
    const auto it = m_values.constFind(key);
    if (it == m_values.constEnd())
        return def;
    const QString &text = it.value();
    if (text.isEmpty() || text.size() > 6)
        return converted(text);
    int number = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return converted(text);
        number = number * 10 + (c.unicode() - u'0');
    }
    return float(number);
}

void ASAttribute::setAttr(const QString &key, const QString &value)
{
    m_values.insert(key, value);
}

void ASAttribute::setAttr(const QString &key, int value)
{
    m_values.insert(key, QString::number(value));
}

// 'g' with the default precision: at most 6 significant digits. Below a million a whole number
// has no exponent there, and is written directly, as it is for every counter.
void ASAttribute::setAttr(const QString &key, float value)
{
    const bool small = value >= 0 && value < 1e6f && !std::signbit(value) && value == float(int(value));
    m_values.insert(key, small ? QString::number(int(value)) : QString("%1").arg(double(value)));
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

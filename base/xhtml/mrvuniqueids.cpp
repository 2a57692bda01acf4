#include "xhtml/mrvuniqueids.h"

namespace {

bool isNameStart(QChar c)
{
    const ushort u = c.unicode();
    return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || u == '_'
        || (u >= 0xC0 && u <= 0xFF && u != 0xD7 && u != 0xF7);
}

bool isNameCharacter(QChar c)
{
    return isNameStart(c) || (c >= u'0' && c <= u'9') || c == u'-' || c == u'.';
}

} // namespace

QString MRVUniqueIds::idFor(const QString &name)
{
    QString base;
    for (const QChar c : name) {
        base += isNameCharacter(c) ? c : QChar(u'_');
    }
    if (!isNameStart(base.at(0))) {
        base.prepend(u'_');
    }
    QString id = base;
    int &number = m_numbers[base];
    while (m_used.contains(id)) {
        id = base + u'-' + QString::number(++number);
    }
    m_used.insert(id);
    return id;
}

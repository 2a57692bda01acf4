#include "markdown/mrvheadingids.h"

#include <QVector>

QString MRVHeadingIds::next(const QString &heading)
{
    QString id;
    const QVector<uint> characters = heading.toLower().toUcs4();
    for (const uint c : characters) {
        if (c == u' ' || c == u'-' || c == u'_' || QChar::isLetterOrNumber(c) || QChar::isMark(c)) {
            id += c == u' ' ? QStringLiteral("-") : QString::fromUcs4(&c, 1);
        }
    }
    QString result = id;
    while (!id.isEmpty() && m_used.contains(result)) {
        result = id + u'-' + QString::number(++m_used[id]);
    }
    m_used.insert(result, 0);
    return result;
}

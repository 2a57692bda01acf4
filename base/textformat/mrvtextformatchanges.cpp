#include "textformat/mrvtextformatchanges.h"

#include "textformat/mrvtextformat_p.h"

#include <QTextCursor>
#include <QTextDocument>

bool mrvIsSameFormat(const QTextFormat &a, const QTextFormat &b)
{
    mrvRegisterTextTypes();
    const QMap<int, QVariant> propertiesA = a.properties();
    const QMap<int, QVariant> propertiesB = b.properties();
    if (propertiesA != propertiesB) {
        return false;
    }
    for (auto it = propertiesA.cbegin(), other = propertiesB.cbegin(); it != propertiesA.cend();
         ++it, ++other) {
        if (it.value().userType() != other.value().userType()) {
            return false;
        }
    }
    return true;
}

void MrvFormatChanges::apply(QTextDocument *document) const
{
    if (m_blockChars.empty() && m_blocks.empty() && m_runs.empty()) {
        return;
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (const auto &change : m_blockChars) {
        cursor.setPosition(change.start);
        cursor.setBlockCharFormat(change.format);
    }
    for (const auto &change : m_blocks) {
        cursor.setPosition(change.start);
        cursor.setBlockFormat(change.format);
    }
    for (const auto &change : m_runs) {
        cursor.setPosition(change.start);
        cursor.setPosition(change.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(change.format);
    }
    cursor.endEditBlock();
}

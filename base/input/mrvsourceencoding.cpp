#include "input/mrvsourceencoding.h"

#include <QTextCodec>
#include <QVector>

MRVSourceEncoding::MRVSourceEncoding()
    : m_codec(QTextCodec::codecForName("UTF-8"))
{
}

bool MRVSourceEncoding::find(const QByteArray &bytes, MRVTextDecoder::Declaration declaration,
                             const QString &text)
{
    *this = MRVSourceEncoding();
    MRVSourceEncoding found;
    const QTextCodec *named =
        QTextCodec::codecForName(MRVTextDecoder::encodingOf(bytes, declaration));
    found.m_codec = named ? named : found.m_codec;
    // A mark of the byte order is not part of the text.
    constexpr int LongestMark = 4;
    const QByteArray again = found.encode(text);
    const int markLength = bytes.size() - again.size();
    if (markLength < 0 || markLength > LongestMark || !bytes.endsWith(again)) {
        return false;
    }
    found.m_mark = bytes.left(markLength);
    *this = found;
    return true;
}

QByteArray MRVSourceEncoding::encode(const QString &text) const
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return m_mark + m_codec->fromUnicode(text.constData(), text.size(), &state);
}

QString MRVSourceEncoding::withReferences(const QString &text) const
{
    if (m_codec->canEncode(text)) {
        return text;
    }
    QString result;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters) {
        const QString one = QString::fromUcs4(&character, 1);
        result += m_codec->canEncode(one) ? one : QStringLiteral("&#x%1;").arg(character, 0, 16);
    }
    return result;
}

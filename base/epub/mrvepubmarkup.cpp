#include "epub/mrvepubmarkup_p.h"

#include "core/mrvxmltext.h"

#include <cstring>

namespace {

constexpr int LongestCharacter = 8; // "<br />" and the like; what XML escapes is shorter

char *put(char *to, QLatin1String text)
{
    std::memcpy(to, text.data(), size_t(text.size()));
    return to + text.size();
}

char *putCodePoint(char *to, uint point)
{
    if (point < 0x800) {
        *to++ = char(0xc0 | (point >> 6));
    } else {
        if (point < 0x10000) {
            *to++ = char(0xe0 | (point >> 12));
        } else {
            *to++ = char(0xf0 | (point >> 18));
            *to++ = char(0x80 | ((point >> 12) & 0x3f));
        }
        *to++ = char(0x80 | ((point >> 6) & 0x3f));
    }
    *to++ = char(0x80 | (point & 0x3f));
    return to;
}

} // namespace

char *MRVEPubMarkup::reserve(int length)
{
    if (m_bytes.size() - m_size < length) {
        m_bytes.resize(qMax(2 * m_bytes.size(), m_size + length));
    }
    return m_bytes.data() + m_size;
}

void MRVEPubMarkup::append(const char *text, int length)
{
    std::memcpy(reserve(length), text, size_t(length));
    m_size += length;
}

bool MRVEPubMarkup::appendText(QStringView text, QLatin1String lineEnd, bool isAfterBlank)
{
    char *const begin = reserve(int(text.size()) * LongestCharacter);
    char *to = begin;
    bool isSpaced = false;
    bool wasBlank = isAfterBlank;
    for (int i = 0; i < text.size(); ++i) {
        const ushort unit = text[i].unicode();
        if (unit > ' ' && unit < 0x7f && unit != '&' && unit != '<' && unit != '>') {
            *to++ = char(unit);
            wasBlank = false;
        } else if (unit == ' ' || unit == '\t' || unit == '\n') {
            isSpaced = isSpaced || wasBlank || unit == '\t';
            wasBlank = true;
            *to++ = char(unit);
        } else if (unit == '&') {
            to = put(to, QLatin1String("&amp;"));
            wasBlank = false;
        } else if (unit == '<') {
            to = put(to, QLatin1String("&lt;"));
            wasBlank = false;
        } else if (unit == '>') {
            to = put(to, QLatin1String("&gt;"));
            wasBlank = false;
        } else if (unit == QChar::LineSeparator) {
            to = put(to, lineEnd);
            wasBlank = true;
        } else if (QChar::isHighSurrogate(unit) && i + 1 < text.size()
                   && text[i + 1].isLowSurrogate()) {
            to = putCodePoint(to, QChar::surrogateToUcs4(unit, text[++i].unicode()));
            wasBlank = false;
        } else if (unit >= 0x7f && !QChar::isSurrogate(unit) && unit < 0xfffe
                   && unit != QChar::ObjectReplacementCharacter) {
            to = unit == 0x7f ? (*to = 0x7f, to + 1) : putCodePoint(to, unit);
            wasBlank = false;
        }
    }
    m_size += int(to - begin);
    return isSpaced;
}

void MRVEPubMarkup::appendValue(const QString &value)
{
    append(mrvEPubValue(value));
}

QByteArray MRVEPubMarkup::take()
{
    m_bytes.truncate(m_size);
    m_bytes.squeeze();
    m_size = 0;
    return std::exchange(m_bytes, QByteArray());
}

QByteArray mrvEPubValue(const QString &value)
{
    return mrvXmlText(value).toHtmlEscaped().toUtf8();
}

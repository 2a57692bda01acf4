#include "core/mrvxmltext.h"

#include <algorithm>

namespace {

bool isForbidden(ushort c)
{
    return (c < 0x20 && c != '\t' && c != '\n' && c != '\r') || c == 0xFFFE || c == 0xFFFF;
}

bool isSuspicious(ushort c)
{
    return isForbidden(c) || QChar::isSurrogate(c);
}

// True when each character is surely allowed on its own.
bool isPlain(QStringView text)
{
    // Without a branch the compiler vectorizes the loop, which sees every character of every page.
    // Between a blank and the first surrogate nothing is forbidden; the few texts with other
    // characters are examined one by one.
    unsigned short others = 0;
    const char16_t *const characters = text.utf16();
    for (int i = 0, size = int(text.size()); i < size; ++i) {
        others |= static_cast<unsigned short>(characters[i] - 0x20) > 0xD7DF;
    }
    return !others || std::none_of(characters, characters + text.size(), isSuspicious);
}

// The index of the first character from "start" on that no document can hold; without one, the
// size.
int nextForbidden(QStringView text, int start)
{
    int i = start;
    while (i < text.size()) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            // U+1FFFE, U+2FFFF and their like are allowed: only the basic plane's pair is not.
            ++i;
        } else if (isSuspicious(c.unicode())) {
            break;
        }
        ++i;
    }
    return i;
}

} // namespace

int mrvFirstNonXml(QStringView text)
{
    const int found = isPlain(text) ? int(text.size()) : nextForbidden(text, 0);
    return found < text.size() ? found : -1;
}

QString mrvXmlText(const QString &text)
{
    if (isPlain(text)) {
        return text;
    }
    QString result;
    result.reserve(text.size());
    mrvAppendXmlText(&result, text);
    return result;
}

void mrvAppendXmlText(QString *result, QStringView text)
{
    if (isPlain(text)) {
        result->append(text.data(), int(text.size()));
        return;
    }
    for (int start = 0; start < text.size();) {
        const int end = nextForbidden(text, start);
        result->append(text.data() + start, end - start);
        start = end + 1;
    }
}

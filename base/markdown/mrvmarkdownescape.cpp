#include "markdown/mrvmarkdownescape.h"

#include <QRegularExpression>

namespace {

bool isLetterOrNumber(QStringView text, int i)
{
    return i >= 0 && i < text.size() && text[i].isLetterOrNumber();
}

bool isMarkup(QStringView text, int i)
{
    const QChar next = i + 1 < text.size() ? text[i + 1] : QChar();
    switch (text[i].unicode()) {
    case '\\':
    case '`':
    case '*':
    case '[':
    case ']':
    case '|':
        return true;
    case '_':
        return !isLetterOrNumber(text, i - 1) || !isLetterOrNumber(text, i + 1);
    case '~':
        return next.isNull() || next == u'~' || i == 0 || text[i - 1] == u'~';
    case '<':
        return next.isNull() || next.isLetter() || next == u'/' || next == u'!' || next == u'?';
    case '&':
        return next.isNull() || next.isLetter() || next == u'#';
    default:
        return false;
    }
}

// What is markup only for some readers, and what depends on what follows the text.
bool isMarkupElsewhere(QStringView text, int i)
{
    const QChar next = i + 1 < text.size() ? text[i + 1] : QChar();
    switch (text[i].unicode()) {
    case '~':
    case '^':
        return true;
    case '!':
        return next.isNull();
    case '{':
        return next == u'#';
    case ':': // of "http://"
        return isLetterOrNumber(text, i - 1) && next == u'/';
    case '.':
        return text.left(i).endsWith(QLatin1String("www"), Qt::CaseInsensitive)
            && !isLetterOrNumber(text, i - 4);
    default:
        return false;
    }
}

// Readers look for addresses in text whose escapes are gone.
bool isAddressMark(QStringView text, int i)
{
    return text[i] == u'@' && i > 0 && !text[i - 1].isSpace();
}

} // namespace

QString MRVMarkdownEscape::escaped(const QString &text, Options options)
{
    const bool isPortable = options.testFlag(Portable);
    const int mark = options.testFlag(LineStart) ? blockMark(text) : -1;
    QString markdown;
    markdown.reserve(text.size() + text.size() / 8);
    for (int i = 0; i < text.size(); ++i) {
        if (isPortable && isAddressMark(text, i)) {
            markdown += QLatin1String("<!-- -->");
        } else if (i == mark || isMarkup(text, i) || (isPortable && isMarkupElsewhere(text, i))) {
            markdown += u'\\';
        }
        markdown += text.at(i);
    }
    return markdown;
}

QString MRVMarkdownEscape::fullyEscaped(const QString &text)
{
    QString escaped;
    for (const QChar c : text) {
        if (c.unicode() > ' ' && c.unicode() < 0x7f && !c.isLetterOrNumber()) {
            escaped += u'\\';
        }
        escaped += c;
    }
    return escaped;
}

int MRVMarkdownEscape::blockMark(const QString &line)
{
    static const QRegularExpression mark(
        QStringLiteral("^[ \\t]*(?:[0-9]{1,9}(?=[.)])|(?=[-#>+=~:]))"));
    const QRegularExpressionMatch match = mark.match(line);
    return match.hasMatch() ? match.capturedEnd() : -1;
}

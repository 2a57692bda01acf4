#include "download/mrvservertext.h"

#include <QUrl>

namespace {

constexpr int Shortest = 3; // a character, the ellipsis and another one
constexpr int LineEnds = 10;
constexpr int LongestWord = 60;
// A DNS name has at most 253 characters.
constexpr int LongestHost = 260;
constexpr int LongestUser = 20;
constexpr int ShortestRest = 40;

constexpr ushort ZeroWidthSpace = 0x200b;
// Both are part of words in some scripts.
constexpr uint ZeroWidthNonJoiner = 0x200c;
constexpr uint ZeroWidthJoiner = 0x200d;

bool isInvisible(uint c)
{
    return QChar::category(c) == QChar::Other_Format && c != ZeroWidthNonJoiner
        && c != ZeroWidthJoiner;
}

bool isBlank(uint c)
{
    const QChar::Category category = QChar::category(c);
    return category == QChar::Other_Control || category == QChar::Separator_Line
        || category == QChar::Separator_Paragraph;
}

QString cleaned(const QString &text)
{
    QString result;
    result.reserve(text.size());
    int lineEnds = 0;
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        const uint c =
            isPair ? QChar::surrogateToUcs4(text.at(i), text.at(i + 1)) : text.at(i).unicode();
        if (!isPair && text.at(i).isSurrogate()) {
            result += QChar(QChar::ReplacementCharacter);
        } else if (c == '\n' && lineEnds < LineEnds) {
            ++lineEnds;
            result += u'\n';
        } else if (isBlank(c)) {
            result += u' ';
        } else if (!isInvisible(c)) {
            result += text.midRef(i, isPair ? 2 : 1);
        }
        i += isPair;
    }
    return result;
}

// The first two thirds of what is kept stand before the ellipsis.
QString withoutMiddle(const QString &text, int longest)
{
    if (text.size() <= longest) {
        return text;
    }
    int head = (longest - 1) * 2 / 3;
    int tail = text.size() - (longest - 1 - head);
    head -= text.at(head).isLowSurrogate();
    tail += text.at(tail).isLowSurrogate();
    return text.left(head) + QChar(0x2026) + text.mid(tail);
}

} // namespace

QString MRVServerText::shortened(const QString &text, int longest)
{
    return withoutMiddle(cleaned(text), qMax(longest, Shortest));
}

QString MRVServerText::address(const QUrl &url)
{
    QUrl site = url;
    site.setUserName(withoutMiddle(url.userName(), LongestUser));
    const QString whole = site.toDisplayString();
    const QString start =
        site.toDisplayString(QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment);
    const QString rest =
        shortened(whole.mid(start.size()), qMax(ShortestRest, Longest - start.size()));
    return shortened(start, LongestHost) + rest;
}

QString MRVServerText::breakable(const QString &text)
{
    QString result;
    int length = 0;
    for (const QChar c : text) {
        length = c.isSpace() ? 0 : length + 1;
        if (length > LongestWord && !c.isLowSurrogate()) {
            result += QChar(ZeroWidthSpace);
            length = 1;
        }
        result += c;
    }
    return result;
}

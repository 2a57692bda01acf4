#include "screenplay/mrvfountainsyntax_p.h"

#include "core/mrvxmltext.h"
#include "screenplay/mrvtitlepage_p.h"

#include <cstring>

namespace MrvFountain {

namespace {

constexpr QChar ObjectSign(u'\uFFFC');

// In upper or lower case, followed by a dot or a blank. Longer ones come first.
constexpr const char *headingStarts[] = {"INT./EXT", "INT/EXT", "INT", "EXT", "EST", "I/E"};

// Whether all letters that have a case are capitals, and there is at least one.
bool isUpper(const QStringRef &text)
{
    bool any = false;
    for (const QChar c : text) {
        if (c.isLower()) {
            return false;
        }
        any = any || c.isUpper();
    }
    return any;
}

bool isMark(QChar c)
{
    return c == u'*' || c == u'_';
}

bool isHeading(const QStringRef &line)
{
    const QStringRef text = bare(line);
    for (const char *start : headingStarts) {
        const int length = int(std::strlen(start));
        if (text.size() > length && (text.at(length) == u'.' || text.at(length) == u' ')
            && text.startsWith(QLatin1String(start), Qt::CaseInsensitive)) {
            return true;
        }
    }
    return false;
}

bool isTransition(const QStringRef &line)
{
    const QStringRef text = bare(line);
    return text.endsWith(QLatin1String("TO:")) && isUpper(text);
}

bool isCue(const QStringRef &line)
{
    QStringRef text = bare(line);
    if (text.endsWith(u'^')) {
        text = bare(text.left(text.size() - 1));
    }
    return isUpper(text.left(extensionStart(text)));
}

// What forces a heading: a period and a letter or digit, but no ellipsis. Marks and objects may
// stand between; a backslash may, too, so that a heading can begin with anything.
bool isForcedHeading(const QStringRef &text)
{
    if (text.size() < 2) {
        return false;
    }
    const QChar c = text.at(1);
    const bool isPair = c.isHighSurrogate() && text.size() > 2 && text.at(2).isLowSurrogate();
    return isMark(c) || c == ObjectSign || c == u'\\'
        || QChar::isLetterOrNumber(isPair ? QChar::surrogateToUcs4(c, text.at(2)) : c.unicode());
}

LineKind markedKind(const QStringRef &text)
{
    switch (text.at(0).unicode()) {
    case u'!':
        return ForcedActionLine;
    case u'#':
        return SectionLine;
    case u'=':
        return text.size() >= 3 && text.count(u'=') == text.size() ? PageBreakLine : SynopsisLine;
    case u'~':
        return LyricsLine;
    case u'>':
        return text.size() > 1 && text.endsWith(u'<') && !isEscaped(text, text.size() - 1)
            ? CenteredLine
            : ForcedTransitionLine;
    case u'@':
        return ForcedCueLine;
    case u'.':
        return isForcedHeading(text) ? ForcedHeadingLine : ActionLine;
    default:
        return ActionLine;
    }
}

} // namespace

bool isEscapable(QChar c)
{
    return c.unicode() < 0x80 && c != u'\0' && std::strchr(Escapable, c.toLatin1());
}

bool isBlankLine(const QStringRef &line)
{
    return trimmed(line).isEmpty();
}

QStringRef trimmed(const QStringRef &line)
{
    int start = 0;
    int end = line.size();
    while (start < end && isBlank(line.at(start))) {
        ++start;
    }
    while (end > start && isBlank(line.at(end - 1))) {
        --end;
    }
    return line.mid(start, end - start);
}

QStringRef bare(const QStringRef &line)
{
    const auto isIgnored = [](QChar c) { return isBlank(c) || isMark(c) || c == ObjectSign; };
    int start = 0;
    int end = line.size();
    while (start < end && isIgnored(line.at(start))) {
        ++start;
    }
    while (end > start && isIgnored(line.at(end - 1))) {
        --end;
    }
    return line.mid(start, end - start);
}

bool isEscaped(const QStringRef &line, int position)
{
    int start = position;
    while (start > 0 && line.at(start - 1) == u'\\') {
        --start;
    }
    return (position - start) % 2 != 0;
}

LineKind lineKind(const QStringRef &line, bool nextBlank)
{
    const QStringRef text = trimmed(line);
    if (text.isEmpty()) {
        return ActionLine;
    }
    const LineKind marked = markedKind(text);
    if (marked != ActionLine) {
        return marked;
    }
    if (isHeading(text)) {
        return HeadingLine;
    }
    if (nextBlank) {
        // A blank at its end is how a writer keeps action from being a transition.
        const bool isPlain = isBlank(line.at(line.size() - 1));
        return isTransition(text) && !isPlain ? TransitionLine : ActionLine;
    }
    return isCue(text) ? CueLine : ActionLine;
}

bool interruptsAction(LineKind kind)
{
    return kind == LyricsLine || kind == CenteredLine || interruptsSpeech(kind);
}

bool interruptsSpeech(LineKind kind)
{
    return kind == SectionLine || kind == SynopsisLine || kind == PageBreakLine;
}

bool isParenthetical(const QStringRef &line)
{
    const QStringRef text = bare(line);
    return text.size() > 1 && text.startsWith(u'(') && text.endsWith(u')');
}

int extensionStart(const QStringRef &cue)
{
    int end = cue.size();
    for (int from = end;;) {
        while (from > 0 && isBlank(cue.at(from - 1))) {
            --from;
        }
        if (from == 0 || cue.at(from - 1) != u')') {
            return end;
        }
        // Searched by hand: QStringRef would examine the whole text after it for each.
        int open = from - 1;
        while (open > 0 && cue.at(open) != u'(') {
            --open;
        }
        if (open == 0) {
            return end;
        }
        end = from = open;
    }
}

bool isInSceneNumber(QChar c)
{
    return c.isLetterOrNumber() || c == u'-' || c == u'.';
}

Range sceneNumber(const QStringRef &line)
{
    int end = line.size();
    while (end > 0
           && (isBlank(line.at(end - 1)) || isMark(line.at(end - 1))
               || line.at(end - 1) == ObjectSign)) {
        --end;
    }
    if (end < 3 || line.at(end - 1) != u'#') {
        return Range();
    }
    int start = end - 1;
    while (start > 0 && isInSceneNumber(line.at(start - 1))) {
        --start;
    }
    const bool found =
        start < end - 1 && start > 0 && line.at(start - 1) == u'#' && !isEscaped(line, start - 1);
    return found ? Range{start - 1, end} : Range();
}

int titleKeyLength(const QStringRef &line)
{
    if (line.isEmpty() || isBlank(line.at(0)) || markedKind(line) != ActionLine
        || line.at(0) == u'.' || isHeading(line)) {
        return 0;
    }
    for (int i = 0; i < line.size() && line.at(i) != ObjectSign; ++i) {
        if (line.at(i) == u':') {
            return isBlankLine(line.left(i)) ? 0 : i;
        }
    }
    return 0;
}

bool beginsTitlePage(const QStringRef &line, const QStringRef &next)
{
    const int key = titleKeyLength(line);
    if (key == 0) {
        return false;
    }
    // Many scripts without a title page begin with "FADE IN:" and an empty line.
    return !isBlankLine(line.mid(key + 1))
        || (!isBlankLine(next)
            && (isTitleIndented(next) || titleKeyLength(next) > 0
                || (isTitleText(next) && mrvIsTitleKeyPrinted(line.left(key).toString()))));
}

bool isTitleIndented(const QStringRef &line)
{
    return line.startsWith(u'\t') || line.startsWith(QLatin1String("   "));
}

bool isTitleText(const QStringRef &line)
{
    const LineKind kind = lineKind(line, true);
    return kind == ActionLine || kind == TransitionLine;
}

bool isAddressKey(const QString &key)
{
    return key.compare(QLatin1String("Contact"), Qt::CaseInsensitive) == 0;
}

QString plainText(const QString &text)
{
    return withPlainLineEnds(text.startsWith(QChar(QChar::ByteOrderMark)) ? text.mid(1) : text);
}

QString withPlainLineEnds(const QString &text)
{
    QString plain = text;
    plain.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar &c : plain) {
        switch (c.unicode()) {
        case u'\r':
        case u'\v':
        case u'\f':
        case 0x85:
        case 0x2028:
        case 0x2029:
            c = u'\n';
            break;
        case 0xFDD0: // would begin or end a frame of a document
        case 0xFDD1:
            c = QChar::ReplacementCharacter;
            break;
        }
    }
    return mrvXmlText(plain); // characters that a page or an e-book cannot hold
}

} // namespace MrvFountain

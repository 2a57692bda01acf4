#include "manuscript/mrvsourcewriter_p.h"

#include "manuscript/mrvmanuscript.h"

#include <QFont>
#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>

namespace {

bool isLetterOrNumber(QStringView text, int i)
{
    return i >= 0 && i < text.size() && text[i].isLetterOrNumber();
}

// Whether a character needs a backslash, as what it would mean without one can be seen from the
// text alone. At the end of the text anything may follow.
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

} // namespace

MRVSourceWriter::MRVSourceWriter(const MRVManuscript &manuscript, const QString &source)
    : m_source(source)
    , m_codec(QTextCodec::codecForName(manuscript.encoding))
    , m_lineEnd(source.contains(QLatin1String("\r\n")) ? QStringLiteral("\r\n")
                                                       : QStringLiteral("\n"))
{
}

bool MRVSourceWriter::write(const QString &text, const MRVSourcePlace &place,
                            QString *written) const
{
    const bool isPlain = place.syntax == MRVSourcePlace::Plain;
    QString result = text;
    if (isPlain) {
        result.replace(u'\n', m_lineEnd).replace(QChar::ParagraphSeparator, m_lineEnd);
    } else if (place.syntax == MRVSourcePlace::Page) {
        result = asPage(text);
    } else {
        result = asMarkdown(text, isAtLineStart(place.start));
    }
    *written = result;
    return encode(place.syntax, written);
}

bool MRVSourceWriter::writeEscaped(const QString &text, const MRVSourcePlace &place,
                                   QString *written) const
{
    if (place.syntax == MRVSourcePlace::Page) {
        return write(text, place, written);
    }
    const bool isCode = place.syntax == MRVSourcePlace::Plain; // a table ends cells within it
    QString escaped;
    for (const QChar c : text) {
        const bool isPunctuation = c.unicode() > ' ' && c.unicode() < 0x7f && !c.isLetterOrNumber();
        if (isCode ? c == u'|' : isPunctuation) {
            escaped += u'\\';
        }
        escaped += c;
    }
    *written = escaped;
    return encode(place.syntax, written);
}

int MRVSourceWriter::escapeAfter(const QString &text, int start, int after) const
{
    constexpr int Longest = 20;
    static const QRegularExpression beginning(
        QStringLiteral("^[ \\t]*([0-9]{1,9}(?=[.)])|(?=[-#>+=~]))"));
    const QRegularExpressionMatch match = beginning.match(text + m_source.midRef(after, Longest));
    const int place = match.capturedEnd() - text.size();
    return match.hasMatch() && place >= 0 && isAtLineStart(start) ? after + place : -1;
}

bool MRVSourceWriter::encode(MRVSourcePlace::Syntax syntax, QString *text) const
{
    if (m_codec->canEncode(*text)) {
        return true;
    }
    if (syntax == MRVSourcePlace::Plain) {
        return false;
    }
    const QVector<uint> characters = text->toUcs4();
    text->clear();
    for (const uint character : characters) {
        const QString one = QString::fromUcs4(&character, 1);
        *text += m_codec->canEncode(one) ? one : QStringLiteral("&#%1;").arg(character);
    }
    return true;
}

bool MRVSourceWriter::mark(const QTextCharFormat &format, MRVSourcePlace::Syntax syntax,
                           bool prefersElements, QString *written)
{
    const bool isMarkdown = syntax == MRVSourcePlace::Markdown && !prefersElements;
    QString before;
    QString after;
    const auto add = [&](const QString &element, const QString &attributes = QString()) {
        before += u'<' + element + attributes + u'>';
        after.prepend(QLatin1String("</") + element + u'>');
    };
    const QMap<int, QVariant> properties = format.properties();
    for (auto it = properties.begin(); it != properties.end(); ++it) {
        if (it.key() == QTextFormat::BackgroundBrush) {
            add(QStringLiteral("span"),
                QStringLiteral(" style=\"background-color:%1\"")
                    .arg(format.background().color().name()));
        } else if (it.key() == QTextFormat::FontWeight && format.fontWeight() >= QFont::Bold) {
            if (isMarkdown) {
                before += QLatin1String("**");
                after.prepend(QLatin1String("**"));
            } else {
                add(QStringLiteral("b"));
            }
        } else if (it.key() == QTextFormat::FontItalic && format.fontItalic()) {
            add(QStringLiteral("i"));
        } else {
            return false;
        }
    }
    *written = before + *written + after;
    return properties.isEmpty() || syntax != MRVSourcePlace::Plain;
}

QString MRVSourceWriter::asPage(const QString &text) const
{
    QString page = text;
    page.replace(u'&', QLatin1String("&amp;"));
    page.replace(u'<', QLatin1String("&lt;"));
    return page.replace(u'>', QLatin1String("&gt;"));
}

QString MRVSourceWriter::asMarkdown(const QString &text, bool isAtLineStart) const
{
    QString markdown;
    int i = 0;
    if (isAtLineStart) {
        // A heading, a list or a quotation would begin there.
        static const QRegularExpression number(QStringLiteral("^[0-9]{1,9}(?=[.)])"));
        markdown = number.match(text).captured();
        i = markdown.size();
        if (i > 0 || (!text.isEmpty() && QStringView(u"#>-+=~").contains(text.at(0)))) {
            markdown += u'\\';
            markdown += text.at(i++);
        }
    }
    for (; i < text.size(); ++i) {
        if (isMarkup(text, i)) {
            markdown += u'\\';
        }
        markdown += text.at(i);
    }
    return markdown;
}

// Whether only markers of lists and quotations stand before a place in its line.
bool MRVSourceWriter::isAtLineStart(int at) const
{
    static const QRegularExpression markers(
        QStringLiteral("(?:^|\\n)[ \\t>]*(?:(?:[-+*]|[0-9]{1,9}[.)])[ \\t]+)*$"));
    constexpr int LongestMarkers = 100;
    const int begin = qMax(0, at - LongestMarkers);
    const QString before = m_source.mid(begin, at - begin);
    const int line = before.lastIndexOf(u'\n');
    return (line >= 0 || begin == 0) && markers.match(before.mid(qMax(0, line))).hasMatch();
}

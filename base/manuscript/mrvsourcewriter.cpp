#include "manuscript/mrvsourcewriter_p.h"

#include "manuscript/mrvmanuscript.h"
#include "markdown/mrvmarkdownescape.h"

#include <QFont>
#include <QRegularExpression>
#include <QTextCodec>

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
        result = MRVMarkdownEscape::escaped(
            text,
            isAtLineStart(place.start) ? MRVMarkdownEscape::LineStart : MRVMarkdownEscape::Inline);
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
    QString escaped = text;
    if (place.syntax == MRVSourcePlace::Plain) {
        escaped.replace(u'|', QLatin1String("\\|")); // code, in which a table ends cells
    } else {
        escaped = MRVMarkdownEscape::fullyEscaped(text);
    }
    *written = escaped;
    return encode(place.syntax, written);
}

int MRVSourceWriter::escapeAfter(const QString &text, int start, int after) const
{
    constexpr int Longest = 20;
    const int mark = MRVMarkdownEscape::blockMark(text + m_source.midRef(after, Longest));
    return mark >= text.size() && isAtLineStart(start) ? after + mark - text.size() : -1;
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

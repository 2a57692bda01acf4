#include "update/mrvreleasenotes_p.h"

#include "download/mrvservertext.h"
#include "html/mrvhtmldocument.h"
#include "input/mrvtextdecoder.h"
#include "markdown/mrvmarkdown.h"
#include "util/mrvfailure.h"

#include <QTextCodec>

#include <algorithm>

namespace {

// Reading, copying and laying out a page with so many takes half a second.
constexpr int MostElements = 6000;
constexpr int MostLines = 20000;
// A line of the page's source may be one that it shows.
constexpr int LinesPerElement = 12;
// Characters that have to be shaped take a web engine some microseconds each.
constexpr int MostShaped = 150000;
// A layout takes words of other directions apart.
constexpr int MostTurns = 50000;
// Each makes a table wider by up to a thousand columns.
constexpr int MostSpans = 200;

enum class Kind { Html, Markdown, Plain, Other };

Kind kindOf(const QString &contentType, const QUrl &page)
{
    const QString type = contentType.section(u';', 0, 0).trimmed().toLower();
    const bool isText = type.startsWith(QLatin1String("text/"));
    const bool isHtml =
        type == QLatin1String("text/html") || type == QLatin1String("application/xhtml+xml");
    const bool isNamed = page.path().endsWith(QLatin1String(".md"), Qt::CaseInsensitive);
    if (type == QLatin1String("text/markdown") || (isNamed && !isHtml)) {
        return Kind::Markdown;
    }
    if (type.isEmpty() || isHtml) {
        return Kind::Html;
    }
    return isText ? Kind::Plain : Kind::Other;
}

// The server's encoding has already been turned into UTF-8; pages that name one only themselves
// have not.
QString decoded(const QByteArray &bytes)
{
    QString text;
    if (!MRVTextDecoder::decode(bytes, QByteArrayLiteral("UTF-8"), &text)) {
        const QTextCodec *codec = QTextCodec::codecForName(
            MRVTextDecoder::encodingOf(bytes, MRVTextDecoder::HtmlDeclaration));
        text = (codec ? codec : QTextCodec::codecForName("UTF-8"))->toUnicode(bytes);
    }
    return text;
}

QString htmlOf(const QString &text, Kind kind)
{
    if (kind == Kind::Markdown) {
        return MRVMarkdown::toHtml(text);
    }
    if (kind == Kind::Plain) {
        return QLatin1String("<div style=\"white-space:pre-wrap\">") + text.toHtmlEscaped()
            + QLatin1String("</div>");
    }
    return text;
}

// How often text from left to right and from right to left follow each other.
int turnsIn(const QString &text)
{
    int turns = 0;
    bool isLeftToRight = true;
    for (const QChar c : text) {
        const QChar::Direction direction = c.direction();
        const bool isRight = direction == QChar::DirR || direction == QChar::DirAL;
        if (isRight ? isLeftToRight : !isLeftToRight && direction == QChar::DirL) {
            isLeftToRight = !isLeftToRight;
            ++turns;
        }
    }
    return turns;
}

// Marks, characters of scripts that join or stack them, and those beyond 16 bits, such as emoji.
bool isShaped(QChar c)
{
    const ushort code = c.unicode();
    return c.isMark() || c.isHighSurrogate() || (code >= 0x590 && code < 0x10a0)
        || (code >= 0x1700 && code < 0x1e00);
}

bool isTooMuch(const QString &html)
{
    int elements = html.count(u'\n') / LinesPerElement;
    for (int at = html.indexOf(u'<'); at >= 0; at = html.indexOf(u'<', at + 1)) {
        elements += at + 1 < html.size() && html.at(at + 1) != u'/';
    }
    return elements > MostElements || turnsIn(html) > MostTurns
        || std::count_if(html.cbegin(), html.cend(), isShaped) > MostShaped
        || html.count(QLatin1String("colspan"), Qt::CaseInsensitive) > MostSpans;
}

int lineCount(const QTextDocument &page)
{
    int count = 0;
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        count += 1 + block.text().count(QChar(QChar::LineSeparator));
    }
    return count;
}

} // namespace

bool MRVReleaseNotes::read(const QByteArray &bytes, const QString &contentType, const QUrl &page,
                           MRVErrorSink error)
{
    const Kind kind = kindOf(contentType, page);
    if (kind == Kind::Other) {
        return MRV::fail(error, MRVErrorKind::Unsupported,
                         tr("The server has sent %1, which is not a text")
                             .arg(MRVServerText::shortened(contentType)));
    }
    const QString text = decoded(bytes);
    const QString html = isTooMuch(text) ? QString() : htmlOf(text, kind);
    if ((html.isNull() && !text.isEmpty()) || isTooMuch(html)) {
        return tooMuch(error);
    }
    if (MRVHtmlDocument::read(html, QString(), &m_page, nullptr, error)) {
        return lineCount(m_page) <= MostLines || tooMuch(error);
    }
    return false;
}

bool MRVReleaseNotes::tooMuch(MRVErrorSink error)
{
    return MRV::fail(error, MRVErrorKind::TooLarge, tr("The page has too many parts"));
}

void MRVReleaseNotes::setMessage(const QString &message)
{
    m_page.setPlainText(message);
}

void MRVReleaseNotes::write(const MRVNotesLook &look, QTextDocument *document) const
{
    document->clear();
    document->setUndoRedoEnabled(false);
    document->setDefaultFont(look.font);
    MRVNotesCopy(look, document).copy(m_page);
}

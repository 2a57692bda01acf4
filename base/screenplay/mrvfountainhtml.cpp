#include "screenplay/mrvfountainhtml.h"

#include "core/mrvxmltext.h"
#include "screenplay/mrvscriptxml_p.h"
#include "screenplay/mrvtitlepage_p.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;

constexpr char BodyClass[] = "script"; // distinguishes the page of an empty script from any other

struct KindRow
{
    Element::Kind kind;
    const char *tag;
    const char *className;
};

// clang-format off
constexpr KindRow kinds[] = {
    {Element::Action,        "p",  "action"},
    {Element::SceneHeading,  "h2", "scene-heading"},
    {Element::Character,     "p",  "character"},
    {Element::Parenthetical, "p",  "parenthetical"},
    {Element::Dialogue,      "p",  "dialogue"},
    {Element::Lyrics,        "p",  "lyrics"},
    {Element::Transition,    "p",  "transition"},
    {Element::Centered,      "p",  "centered"},
    {Element::Note,          "p",  "note"},
    {Element::Boneyard,      "p",  "boneyard"},
    {Element::Section,       "p",  "section"},
    {Element::Synopsis,      "p",  "synopsis"},
    {Element::PageBreak,     "hr", "page-break"},
};
// clang-format on
static_assert(sizeof kinds / sizeof *kinds == Element::KindCount);

constexpr struct
{
    const char *tag;
    Run::Style style;
} styles[] = {{"em", Run::Italic}, {"strong", Run::Bold}, {"u", Run::Underline}};

// The layout of the built-in mode. Without quotation marks and angle brackets: XML requires escapes
// for them, which browsers do not resolve in style sheets.
constexpr char StyleSheet[] = R"(
body { max-width: 6in; margin: 1in auto; font: 12pt/1 'Courier Prime', 'Courier New', Courier, monospace; }
p, h2 { margin: 12pt 0 0; font-size: 12pt; font-weight: normal; white-space: pre-wrap; min-height: 1em; }
.scene-heading { margin-top: 24pt; text-transform: uppercase; break-after: avoid; }
.scene-heading[data-number]::before { content: attr(data-number); float: left; margin-left: -0.75in; }
.character { margin-left: 2.2in; break-after: avoid; }
.parenthetical { margin: 0 2.4in 0 1.6in; text-indent: -0.1in; break-after: avoid; }
.dialogue { margin: 0 1.5in 0 1in; }
.lyrics { margin: 12pt 1.5in 0 1.25in; font-style: italic; }
.character + .lyrics, .parenthetical + .lyrics, .dialogue + .lyrics { margin-top: 0; }
.lyrics[data-apart] { margin-top: 12pt; }
.transition { text-align: right; text-transform: uppercase; }
.centered { text-align: center; }
.dual { display: flex; gap: 0.25in; }
.dual div { flex: 1; }
.dual .character { margin-left: 1in; }
.dual .parenthetical { margin: 0 0.25in 0 0.5in; }
.dual .dialogue, .dual .lyrics { margin: 0; }
.title-page { min-height: 9in; text-align: center; break-after: page; }
.title-page [data-key='Title'] { margin-top: 3in; }
.title[data-label]::before { content: attr(data-label); }
.page-break { break-after: page; border: 0; margin: 24pt 0 0; }
.note, .boneyard, .section, .synopsis, [hidden] { display: none; }
@media print { body { margin: 0; } }
)";

class HtmlWriter
{
public:
    explicit HtmlWriter(QByteArray *bytes)
        : m_xml(bytes)
    {
    }

    void write(const MRVFountainScript &script, const QString &language);

private:
    void writeHead(const QString &title);
    void writeTitles(const QVector<MRVFountainTitle> &titles);
    void writePart(const QVector<Element> &elements, const MrvSpeeches &part);
    void writeElement(const Element &element);
    void writeRuns(const MRVFountainRuns &runs);
    void writeText(const QString &text);
    void start(const char *tag, const QString &className);
    void breakLine() { m_xml.writeCharacters(QStringLiteral("\n")); }

    QXmlStreamWriter m_xml;
};

void HtmlWriter::start(const char *tag, const QString &className)
{
    m_xml.writeStartElement(QLatin1String(tag));
    m_xml.writeAttribute(QStringLiteral("class"), className);
}

void HtmlWriter::writeHead(const QString &title)
{
    m_xml.writeStartElement(QStringLiteral("head"));
    m_xml.writeEmptyElement(QStringLiteral("meta"));
    m_xml.writeAttribute(QStringLiteral("charset"), QStringLiteral("utf-8"));
    m_xml.writeTextElement(QStringLiteral("title"),
                           title.isEmpty() ? QStringLiteral("Script") : mrvXmlText(title));
    m_xml.writeStartElement(QStringLiteral("style"));
    m_xml.writeCharacters(QLatin1String(StyleSheet));
    m_xml.writeEndElement();
    m_xml.writeEndElement();
    breakLine();
}

void HtmlWriter::write(const MRVFountainScript &script, const QString &language)
{
    m_xml.writeDTD(QStringLiteral("<!DOCTYPE html>"));
    breakLine();
    m_xml.writeStartElement(QStringLiteral("html"));
    m_xml.writeDefaultNamespace(QStringLiteral("http://www.w3.org/1999/xhtml"));
    if (!language.isEmpty()) {
        m_xml.writeAttribute(QStringLiteral("lang"), mrvXmlText(language));
    }
    breakLine();
    writeHead(script.title(QStringLiteral("Title")).simplified());
    start("body", QLatin1String(BodyClass));
    breakLine();
    writeTitles(script.titles);
    const QVector<MrvSpeeches> parts = mrvSpeeches(script.elements);
    for (const MrvSpeeches &part : parts) {
        writePart(script.elements, part);
    }
    m_xml.writeEndElement();
    m_xml.writeEndElement();
    breakLine();
}

void HtmlWriter::writeTitles(const QVector<MRVFountainTitle> &titles)
{
    if (titles.isEmpty()) {
        return;
    }
    start("header", QStringLiteral("title-page"));
    for (const MRVFountainTitle &title : titles) {
        breakLine();
        start("p", QStringLiteral("title"));
        m_xml.writeAttribute(QStringLiteral("data-key"), mrvXmlText(title.key));
        if (mrvIsTitleKeyShown(title.key)) {
            m_xml.writeAttribute(QStringLiteral("data-label"),
                                 mrvXmlText(mrvTitleLabel(title.key)));
        }
        if (!mrvIsTitleKeyPrinted(title.key)) {
            m_xml.writeAttribute(QStringLiteral("hidden"), QStringLiteral("hidden"));
        }
        writeRuns(title.value);
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
    breakLine();
}

// Each of two speeches side by side is in a box of its own.
void HtmlWriter::writePart(const QVector<Element> &elements, const MrvSpeeches &part)
{
    if (part.isDual()) {
        start("div", QStringLiteral("dual"));
        m_xml.writeStartElement(QStringLiteral("div"));
    }
    for (int i = part.start; i < part.end; ++i) {
        if (part.isDual() && i == part.second) {
            m_xml.writeEndElement();
            m_xml.writeStartElement(QStringLiteral("div"));
        }
        writeElement(elements.at(i));
    }
    if (part.isDual()) {
        m_xml.writeEndElement();
        m_xml.writeEndElement();
        breakLine();
    }
}

void HtmlWriter::writeElement(const Element &element)
{
    const KindRow &row = kinds[element.kind];
    const QString className = QLatin1String(row.className);
    if (element.kind == Element::PageBreak) {
        m_xml.writeEmptyElement(QLatin1String(row.tag));
        m_xml.writeAttribute(QStringLiteral("class"), className);
        breakLine();
        return;
    }
    start(row.tag, className);
    if (!element.sceneNumber.isEmpty()) {
        m_xml.writeAttribute(QStringLiteral("data-number"), mrvXmlText(element.sceneNumber));
    }
    if (element.dual) {
        m_xml.writeAttribute(QStringLiteral("data-dual"), QStringLiteral("dual"));
    }
    if (element.apart) {
        m_xml.writeAttribute(QStringLiteral("data-apart"), QStringLiteral("apart"));
    }
    if (element.kind == Element::Section) {
        m_xml.writeAttribute(QStringLiteral("data-level"), QString::number(element.level));
    }
    if (element.kind == Element::Parenthetical) {
        writeRuns(mrvWithBrackets(element.runs));
    } else {
        writeRuns(element.runs);
    }
    m_xml.writeEndElement();
    breakLine();
}

void HtmlWriter::writeText(const QString &text)
{
    const QStringList lines = mrvXmlText(text).split(u'\n');
    for (int i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            m_xml.writeEmptyElement(QStringLiteral("br"));
        }
        m_xml.writeCharacters(lines.at(i));
    }
}

void HtmlWriter::writeRuns(const MRVFountainRuns &runs)
{
    m_xml.writeCharacters(QString()); // HTML knows no <p/>
    for (const Run &run : runs) {
        int open = 0;
        for (const auto &row : styles) {
            if (run.emphasis.testFlag(row.style)) {
                m_xml.writeStartElement(QLatin1String(row.tag));
                ++open;
            }
        }
        if (run.kind != Run::Text) {
            start("span", QLatin1String(run.kind == Run::Note ? "note" : "boneyard"));
            ++open;
        }
        writeText(run.text);
        for (; open > 0; --open) {
            m_xml.writeEndElement();
        }
    }
}

class HtmlReader
{
public:
    explicit HtmlReader(const QString &html)
        : m_xml(html)
    {
    }

    bool read(MRVFountainScript *script, MRVErrorSink error);
    const QString &language() const { return m_language; }

private:
    struct Level
    {
        Run::Emphasis emphasis;
        Run::Kind kind = Run::Text;
        bool isParagraph = false;
        bool isObject = false; // a note or a boneyard begins here
    };

    void startElement();
    bool startParagraph(const QString &className);
    void endParagraph();
    void addText(const QString &text);

    QXmlStreamReader m_xml;
    QVector<Level> m_levels{Level()};
    MRVFountainScript m_script;
    Element m_element;
    MRVFountainTitle m_title;
    QString m_language;
    bool m_isScript = false;
    bool m_isTitle = false;
    bool m_inParagraph = false;
    bool m_isNewRun = false;
};

bool HtmlReader::startParagraph(const QString &className)
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    m_isTitle = className == QLatin1String("title");
    if (m_isTitle) {
        m_title = {attributes.value(QLatin1String("data-key")).toString(), {}};
        return true;
    }
    for (const KindRow &row : kinds) {
        if (className == QLatin1String(row.className)) {
            m_element = Element();
            m_element.kind = row.kind;
            m_element.sceneNumber = attributes.value(QLatin1String("data-number")).toString();
            m_element.dual = attributes.hasAttribute(QLatin1String("data-dual"));
            m_element.apart = attributes.hasAttribute(QLatin1String("data-apart"));
            m_element.level = qMax(1, attributes.value(QLatin1String("data-level")).toInt());
            return true;
        }
    }
    return false;
}

void HtmlReader::startElement()
{
    Level level = m_levels.constLast();
    level.isParagraph = level.isObject = false;
    const QStringRef tag = m_xml.name();
    if (tag == QLatin1String("html")) {
        m_language = m_xml.attributes().value(QLatin1String("lang")).toString();
    }
    const QString className = m_xml.attributes().value(QLatin1String("class")).toString();
    m_isScript =
        m_isScript || (tag == QLatin1String("body") && className == QLatin1String(BodyClass));
    if (!m_inParagraph) {
        level.isParagraph = m_inParagraph = startParagraph(className);
    } else if (tag == QLatin1String("br")) {
        addText(QStringLiteral("\n"));
    } else if (className == QLatin1String("note") || className == QLatin1String("boneyard")) {
        level.kind = className == QLatin1String("note") ? Run::Note : Run::Boneyard;
        level.isObject = true;
        m_isNewRun = true;
    }
    for (const auto &row : styles) {
        level.emphasis.setFlag(row.style,
                               level.emphasis.testFlag(row.style) || tag == QLatin1String(row.tag));
    }
    m_levels.append(level);
}

void HtmlReader::addText(const QString &text)
{
    MRVFountainRuns &runs = m_isTitle ? m_title.value : m_element.runs;
    const Level &level = m_levels.constLast();
    if (!m_isNewRun && !runs.isEmpty() && runs.constLast().kind == level.kind
        && runs.constLast().emphasis == level.emphasis) {
        runs.last().text += text;
    } else {
        runs.append({text, level.emphasis, level.kind});
    }
    m_isNewRun = false;
}

void HtmlReader::endParagraph()
{
    m_inParagraph = false;
    if (m_isTitle) {
        m_script.titles.append(m_title);
        return;
    }
    if (m_element.kind == Element::Parenthetical) {
        mrvRemoveBrackets(&m_element.runs);
    }
    m_script.elements.append(m_element);
}

bool HtmlReader::read(MRVFountainScript *script, MRVErrorSink error)
{
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            if (m_levels.constLast().isParagraph) {
                endParagraph();
            }
            m_isNewRun = m_isNewRun || m_levels.constLast().isObject;
            m_levels.removeLast();
            break;
        case QXmlStreamReader::Characters:
            if (m_inParagraph) {
                addText(m_xml.text().toString());
            }
            break;
        default:
            break;
        }
    }
    if (!m_xml.hasError() && !m_isScript && m_script.titles.isEmpty()
        && m_script.elements.isEmpty()) {
        m_xml.raiseError(MRVFountainHtml::tr("the page has no paragraph of a script"));
    }
    if (!MRVXmlReader::isRead(m_xml, error)) {
        return false;
    }
    *script = m_script.normalized();
    return true;
}

} // namespace

QString MRVFountainHtml::className(MRVFountainElement::Kind kind)
{
    return QLatin1String(kinds[kind].className);
}

QByteArray MRVFountainHtml::toHtml(const MRVFountainScript &script, const QString &language)
{
    QByteArray bytes;
    HtmlWriter(&bytes).write(script.normalized(), language);
    return bytes;
}

bool MRVFountainHtml::fromHtml(const QByteArray &html, MRVFountainScript *script,
                               MRVErrorSink error, QString *language)
{
    QString text;
    if (!MRVXmlReader::read(html, MrvScriptLimits, &text, error)) {
        return false;
    }
    HtmlReader reader(text);
    const bool ok = reader.read(script, error);
    if (ok && language) {
        *language = reader.language();
    }
    return ok;
}

#include "screenplay/mrvfinaldraft.h"

#include "core/mrvxmltext.h"
#include "screenplay/mrvfinaldraftparts_p.h"
#include "screenplay/mrvfountainsyntax_p.h"
#include "screenplay/mrvscriptxml_p.h"
#include "screenplay/mrvtitlepage_p.h"

#include <QXmlStreamWriter>

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;

// clang-format off
constexpr const char *types[] = {
    "Action", "Scene Heading", "Character", "Parenthetical", "Dialogue", "Lyrics", "Transition",
    "Action", "Action", "Action", "Outline 1", "Outline Body", "Action",
};
// clang-format on
static_assert(sizeof types / sizeof *types == Element::KindCount);

constexpr int OutlineLevels = 4;

// What the elements look like on Letter paper: lengths in inches from the edge of the page, and
// points. "HiddenText" is not printed.
struct SettingsRow
{
    const char *type;
    const char *style;
    const char *alignment;
    double firstIndent;
    double left;
    double right;
    int spaceBefore;
    const char *paginateAs;
    const char *next;
};

// clang-format off
constexpr SettingsRow settings[] = {
    {"General",       "",                  "Left",   0.0,  1.5, 7.5, 0,  "General",       "General"},
    {"Scene Heading", "AllCaps",           "Left",   0.0,  1.5, 7.5, 24, "Scene Heading", "Action"},
    {"Action",        "",                  "Left",   0.0,  1.5, 7.5, 12, "Action",        "Action"},
    {"Character",     "AllCaps",           "Left",   0.0,  3.7, 7.5, 12, "Character",     "Dialogue"},
    {"Parenthetical", "",                  "Left",   -0.1, 3.1, 5.6, 0,  "Parenthetical", "Dialogue"},
    {"Dialogue",      "",                  "Left",   0.0,  2.5, 6.0, 0,  "Dialogue",      "Action"},
    {"Lyrics",        "Italic",            "Left",   0.0,  2.5, 6.0, 0,  "Dialogue",      "Lyrics"},
    {"Transition",    "AllCaps",           "Right",  0.0,  4.0, 7.5, 12, "Transition",    "Scene Heading"},
    {"Shot",          "AllCaps",           "Left",   0.0,  1.5, 7.5, 24, "Scene Heading", "Action"},
    {"Outline 1",     "Italic+HiddenText", "Left",   0.0,  1.5, 7.5, 12, "General",       "Outline Body"},
    {"Outline 2",     "Italic+HiddenText", "Left",   0.0,  1.5, 7.5, 12, "General",       "Outline Body"},
    {"Outline 3",     "Italic+HiddenText", "Left",   0.0,  1.5, 7.5, 12, "General",       "Outline Body"},
    {"Outline 4",     "Italic+HiddenText", "Left",   0.0,  1.5, 7.5, 12, "General",       "Outline Body"},
    {"Outline Body",  "Italic+HiddenText", "Left",   0.0,  1.5, 7.5, 0,  "General",       "Outline Body"},
};
// clang-format on

// In points, as title pages are laid out.
constexpr double PointsPerInch = 72;
constexpr int PageHeight = 11 * 72;
constexpr int VerticalMargin = 72;
constexpr int LineHeight = 12;
constexpr int TitleTop = 216; // a third of the way down the page

bool isInCapitals(const char *type)
{
    for (const SettingsRow &row : settings) {
        if (qstrcmp(row.type, type) == 0) {
            return QByteArray(row.style).contains("AllCaps");
        }
    }
    return false;
}

int linesOf(const MRVFountainTitle &title)
{
    return MrvFountain::linesOf(title.value).size();
}

// The first of the entries that end the title page and do not stand in its middle: those are at
// its foot.
int footOf(const QVector<MRVFountainTitle> &titles)
{
    int foot = titles.size();
    while (foot > 0 && mrvTitleAlignment(titles.at(foot - 1).key) != Qt::AlignHCenter) {
        --foot;
    }
    return foot;
}

int spaceAboveFoot(const QVector<MRVFountainTitle> &titles, int foot)
{
    int height = foot > 0 ? TitleTop - 2 * LineHeight : -LineHeight;
    for (const MRVFountainTitle &title : titles) {
        height += LineHeight * (1 + linesOf(title));
    }
    return qMax(LineHeight, PageHeight - 2 * VerticalMargin - height);
}

constexpr struct
{
    const char *name;
    Run::Style style;
} styles[] = {{"Bold", Run::Bold}, {"Italic", Run::Italic}, {"Underline", Run::Underline}};

class FinalDraftWriter
{
public:
    explicit FinalDraftWriter(QByteArray *bytes)
        : m_xml(bytes)
    {
        m_xml.setAutoFormatting(true);
        m_xml.setAutoFormattingIndent(2);
    }

    void write(const MRVFountainScript &script);

private:
    void start(const char *tag) { m_xml.writeStartElement(QLatin1String(tag)); }
    void end() { m_xml.writeEndElement(); }
    void attribute(const char *name, const QString &value)
    {
        m_xml.writeAttribute(QLatin1String(name), mrvXmlText(value));
    }
    void writeElement(const Element &element);
    void writeRuns(const MRVFountainRuns &runs, bool inCapitals);
    void writeText(const QString &text, Run::Emphasis emphasis, bool inCapitals = false);
    void writeNote(const Run &run);
    void writeSettings();
    void writeTitles(const QVector<MRVFountainTitle> &titles);
    void writeTitleLine(const MRVFountainRuns &line, Qt::AlignmentFlag alignment, int space);

    QXmlStreamWriter m_xml;
    int m_notes = 0;
    bool m_breakPending = false;
};

void FinalDraftWriter::write(const MRVFountainScript &script)
{
    m_xml.writeStartDocument(QStringLiteral("1.0"), false);
    start("FinalDraft");
    attribute("DocumentType", QStringLiteral("Script"));
    attribute("Template", QStringLiteral("No"));
    attribute("Version", QStringLiteral("1"));
    start("Content");
    const QVector<MrvSpeeches> parts = mrvSpeeches(script.elements);
    for (const MrvSpeeches &part : parts) {
        const bool isDual = part.isDual() || script.elements.at(part.start).dual;
        if (isDual) {
            start("Paragraph");
            if (m_breakPending) {
                attribute("StartsNewPage", QStringLiteral("Yes"));
                m_breakPending = false;
            }
            start("DualDialogue");
        }
        for (int i = part.start; i < part.end; ++i) {
            writeElement(script.elements.at(i));
        }
        if (isDual) {
            end();
            end();
        }
    }
    if (m_breakPending) {
        writeElement(Element());
    }
    end();
    writeSettings();
    writeTitles(script.titles);
    m_xml.writeEndDocument();
}

void FinalDraftWriter::writeElement(const Element &element)
{
    if (element.kind == Element::PageBreak) {
        if (m_breakPending) {
            writeElement(Element());
        }
        m_breakPending = true;
        return;
    }
    start("Paragraph");
    if (element.kind == Element::Section) {
        attribute("Type", QStringLiteral("Outline %1").arg(qMin(element.level, OutlineLevels)));
    } else {
        attribute("Type", QLatin1String(types[element.kind]));
    }
    if (!element.sceneNumber.isEmpty()) {
        attribute("Number", element.sceneNumber);
    }
    if (element.kind == Element::Centered) {
        attribute("Alignment", QStringLiteral("Center"));
    }
    if (m_breakPending) {
        attribute("StartsNewPage", QStringLiteral("Yes"));
        m_breakPending = false;
    }
    MRVFountainRuns runs = element.runs;
    if (element.kind == Element::Parenthetical) {
        runs = mrvWithBrackets(runs);
    } else if (element.kind == Element::Note || element.kind == Element::Boneyard) {
        runs = {{element.text(), {}, element.kind == Element::Note ? Run::Note : Run::Boneyard}};
    }
    writeRuns(runs, isInCapitals(types[element.kind]));
    end();
}

void FinalDraftWriter::writeRuns(const MRVFountainRuns &runs, bool inCapitals)
{
    for (const Run &run : runs) {
        if (run.kind == Run::Text) {
            writeText(run.text, run.emphasis, inCapitals);
        } else {
            writeNote(run);
        }
    }
    if (runs.isEmpty()) {
        writeText(QString(), {});
    }
}

// The style of a text replaces that of its element; what is typed in small letters shows them.
void FinalDraftWriter::writeText(const QString &text, Run::Emphasis emphasis, bool inCapitals)
{
    start("Text");
    QStringList names;
    const bool hasSmall = inCapitals && text != text.toUpper();
    for (const auto &row : styles) {
        if (emphasis.testFlag(row.style)) {
            names.append(QLatin1String(row.name));
        }
    }
    if (inCapitals && !hasSmall && !names.isEmpty()) {
        names.append(QStringLiteral("AllCaps"));
    }
    if (hasSmall || !names.isEmpty()) {
        attribute("Style", names.join(u'+'));
    }
    m_xml.writeCharacters(mrvXmlText(text));
    end();
}

void FinalDraftWriter::writeNote(const Run &run)
{
    start("ScriptNote");
    attribute("ID", QString::number(++m_notes));
    attribute("Name", run.kind == Run::Boneyard ? QStringLiteral("Omitted") : QString());
    const QStringList lines = run.text.split(u'\n');
    for (const QString &line : lines) {
        start("Paragraph");
        writeText(line, {});
        end();
    }
    end();
}

void FinalDraftWriter::writeSettings()
{
    start("PageLayout");
    attribute("TopMargin", QString::number(VerticalMargin));
    attribute("BottomMargin", QString::number(VerticalMargin));
    attribute("HeaderMargin", QString::number(VerticalMargin / 2));
    attribute("FooterMargin", QString::number(VerticalMargin / 2));
    start("PageSize");
    attribute("Height", QString::number(PageHeight / PointsPerInch, 'f', 2));
    attribute("Width", QStringLiteral("8.50"));
    end();
    end();
    for (const SettingsRow &row : settings) {
        start("ElementSettings");
        attribute("Type", QLatin1String(row.type));
        start("FontSpec");
        attribute("Font", QStringLiteral("Courier"));
        attribute("Size", QStringLiteral("12"));
        attribute("Style", QLatin1String(row.style));
        end();
        start("ParagraphSpec");
        attribute("Alignment", QLatin1String(row.alignment));
        attribute("FirstIndent", QString::number(row.firstIndent, 'f', 2));
        attribute("LeftIndent", QString::number(row.left, 'f', 2));
        attribute("RightIndent", QString::number(row.right, 'f', 2));
        attribute("SpaceBefore", QString::number(row.spaceBefore));
        attribute("Spacing", QStringLiteral("1"));
        end();
        start("Behavior");
        attribute("PaginateAs", QLatin1String(row.paginateAs));
        attribute("ReturnKey", QLatin1String(row.next));
        end();
        end();
    }
}

// Keys are written where position and words alone would not identify them.
void FinalDraftWriter::writeTitles(const QVector<MRVFountainTitle> &titles)
{
    if (titles.isEmpty()) {
        return;
    }
    start("TitlePage");
    start("Content");
    MrvTitleKeys before;
    const int foot = footOf(titles);
    for (int i = 0; i < titles.size(); ++i) {
        const MRVFountainTitle &title = titles.at(i);
        const Qt::AlignmentFlag alignment = mrvTitleAlignment(title.key);
        const QString text = title.text();
        const QString guessed = mrvGuessedTitleKey(alignment, text, before);
        const bool isGuessed = !text.trimmed().isEmpty()
            && guessed.compare(title.key, Qt::CaseInsensitive) == 0
            && mrvShownTitleKeyLength(alignment, text) == 0 && before.indexOf(guessed) < 0;
        QVector<MRVFountainRuns> lines = MrvFountain::linesOf(title.value);
        if (!isGuessed) {
            lines.first().prepend({title.key + QLatin1String(": "), {}, Run::Text});
        }
        int space = i == foot ? spaceAboveFoot(titles, foot) : i == 0 ? TitleTop : LineHeight;
        for (const MRVFountainRuns &line : qAsConst(lines)) {
            writeTitleLine(line, alignment, space);
            space = 0;
        }
        before.append(title.key);
    }
    end();
    end();
}

void FinalDraftWriter::writeTitleLine(const MRVFountainRuns &line, Qt::AlignmentFlag alignment,
                                      int space)
{
    start("Paragraph");
    attribute("Type", QStringLiteral("General"));
    attribute("Alignment",
              alignment == Qt::AlignHCenter     ? QStringLiteral("Center")
                  : alignment == Qt::AlignRight ? QStringLiteral("Right")
                                                : QStringLiteral("Left"));
    attribute("SpaceBefore", QString::number(space));
    writeRuns(line, false);
    end();
}

} // namespace

QByteArray MRVFinalDraft::toXml(const MRVFountainScript &script)
{
    QByteArray bytes;
    FinalDraftWriter(&bytes).write(script.normalized());
    return bytes;
}

bool MRVFinalDraft::fromXml(const QByteArray &xml, MRVFountainScript *script, MRVErrorSink error,
                            QStringList *losses)
{
    QString text;
    MrvFinalDraftParts parts;
    if (!mrvReadFinalDraft(xml, &text, &parts, error)) {
        return false;
    }
    *script = parts.script().normalized();
    if (losses) {
        *losses = parts.losses.lines();
    }
    return true;
}

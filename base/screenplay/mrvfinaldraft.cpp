#include "screenplay/mrvfinaldraft.h"

#include "core/mrvxmltext.h"
#include "screenplay/mrvfinaldraftparts_p.h"
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
    void writeRuns(const MRVFountainRuns &runs);
    void writeText(const QString &text, Run::Emphasis emphasis);
    void writeNote(const Run &run);
    void writeTitles(const QVector<MRVFountainTitle> &titles);

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
    writeRuns(runs);
    end();
}

void FinalDraftWriter::writeRuns(const MRVFountainRuns &runs)
{
    for (const Run &run : runs) {
        if (run.kind == Run::Text) {
            writeText(run.text, run.emphasis);
        } else {
            writeNote(run);
        }
    }
    if (runs.isEmpty()) {
        writeText(QString(), {});
    }
}

void FinalDraftWriter::writeText(const QString &text, Run::Emphasis emphasis)
{
    start("Text");
    QStringList names;
    for (const auto &row : styles) {
        if (emphasis.testFlag(row.style)) {
            names.append(QLatin1String(row.name));
        }
    }
    if (!names.isEmpty()) {
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

// Keys are written where position and words alone would not identify them.
void FinalDraftWriter::writeTitles(const QVector<MRVFountainTitle> &titles)
{
    if (titles.isEmpty()) {
        return;
    }
    start("TitlePage");
    start("Content");
    MrvTitleKeys before;
    bool isFirst = true;
    for (const MRVFountainTitle &title : titles) {
        const Qt::AlignmentFlag alignment = mrvTitleAlignment(title.key);
        const QString text = title.text();
        const QString guessed = mrvGuessedTitleKey(alignment, text, before);
        const bool isGuessed = !text.trimmed().isEmpty()
            && guessed.compare(title.key, Qt::CaseInsensitive) == 0
            && mrvShownTitleKeyLength(alignment, text) == 0 && before.indexOf(guessed) < 0;
        start("Paragraph");
        attribute("Type", QStringLiteral("General"));
        attribute("Alignment",
                  alignment == Qt::AlignHCenter     ? QStringLiteral("Center")
                      : alignment == Qt::AlignRight ? QStringLiteral("Right")
                                                    : QStringLiteral("Left"));
        // Points: a third of the way down the page.
        attribute("SpaceBefore", QString::number(isFirst ? 216 : 12));
        MRVFountainRuns value = title.value;
        if (!isGuessed) {
            value.prepend({title.key + QLatin1String(": "), {}, Run::Text});
        }
        writeRuns(value);
        end();
        before.append(title.key);
        isFirst = false;
    }
    end();
    end();
}

} // namespace

QByteArray MRVFinalDraft::toXml(const MRVFountainScript &script)
{
    QByteArray bytes;
    FinalDraftWriter(&bytes).write(script.normalized());
    return bytes;
}

bool MRVFinalDraft::fromXml(const QByteArray &xml, MRVFountainScript *script, QString *error,
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

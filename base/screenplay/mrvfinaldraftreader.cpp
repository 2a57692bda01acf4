#include "screenplay/mrvfinaldraft.h"

#include "screenplay/mrvscriptxml_p.h"
#include "screenplay/mrvtitlepage_p.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <iterator>

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;

constexpr struct
{
    const char *type;
    Element::Kind kind;
    int level;
} types[] = {
    {"Scene Heading", Element::SceneHeading, 1},
    {"Action", Element::Action, 1},
    {"Character", Element::Character, 1},
    {"Parenthetical", Element::Parenthetical, 1},
    {"Dialogue", Element::Dialogue, 1},
    {"Lyrics", Element::Lyrics, 1},
    {"Singing", Element::Lyrics, 1},
    {"Transition", Element::Transition, 1},
    {"New Act", Element::Centered, 1},
    {"End of Act", Element::Centered, 1},
    {"Outline 1", Element::Section, 1},
    {"Outline 2", Element::Section, 2},
    {"Outline 3", Element::Section, 3},
    {"Outline 4", Element::Section, 4},
    {"Outline Body", Element::Synopsis, 1},
};

// A note or a boneyard as a paragraph of its own.
Element alone(const Run &run)
{
    return Element(run.kind == Run::Note ? Element::Note : Element::Boneyard, run.text);
}

class FinalDraftReader
{
public:
    explicit FinalDraftReader(const QString &xml)
        : m_xml(xml)
    {
    }

    bool read(MRVFountainScript *script, QString *error);
    /** The sections of the document that hold text and were not read. */
    const QStringList &leftOut() const { return m_leftOut; }

private:
    struct Place
    {
        int start; // in the text of the document
        int element;
    };
    struct PlacedNote
    {
        int position;
        QString text;
    };

    QString attribute(const char *name) const
    {
        return m_xml.attributes().value(QLatin1String(name)).toString();
    }
    QStringList readParagraphs();
    void readNotes();
    void placeNotes();
    bool readForeign();
    void readSummary();
    void startElement();
    void endElement();
    void beginParagraph();
    void leaveParagraph();
    void startParagraph();
    void startNote();
    void endNote();
    void endParagraph();
    void startText();
    void addText(const QStringRef &text);
    void addSummary();
    void addTitle();

    QXmlStreamReader m_xml;
    QVector<bool> m_isText; // of each element that is open
    MRVFountainScript m_script;
    MrvTitleKeys m_titleKeys; // of the script's titles
    Element m_element;
    QString m_alignment;
    bool m_inTitles = false;
    bool m_hasParagraph = false; // one with content is open
    int m_dualCues = -1; // cues so far in speeches side by side; -1 outside of them
    int m_firstDualCue = -1;
    Run::Kind m_runKind = Run::Text;
    Run::Emphasis m_emphasis;
    int m_noteDepth = 0;
    bool m_isNewNote = false;
    bool m_isNoteAlone = false; // without a paragraph around it
    bool m_breakPending = false;
    QStringList m_summary; // of the scene whose heading is open
    int m_textLength = 0;
    QVector<Place> m_paragraphs;
    QVector<PlacedNote> m_notes;
    QStringList m_leftOut;
};

void FinalDraftReader::beginParagraph()
{
    m_element = Element();
    m_alignment.clear();
    m_hasParagraph = true;
}

// The part of a paragraph before a nested one is a paragraph by itself.
void FinalDraftReader::leaveParagraph()
{
    if (m_hasParagraph && !m_element.runs.isEmpty()) {
        endParagraph();
    }
    m_hasParagraph = false;
}

void FinalDraftReader::startParagraph()
{
    if (m_runKind != Run::Text) {
        if (!m_isNewNote) {
            m_element.runs.last().text += u'\n'; // a further paragraph of a note
        }
        return;
    }
    leaveParagraph();
    m_breakPending =
        m_breakPending || (!m_inTitles && attribute("StartsNewPage") == QLatin1String("Yes"));
    beginParagraph();
    m_alignment = attribute("Alignment");
    m_element.sceneNumber = attribute("Number");
    const QString type = attribute("Type");
    for (const auto &row : types) {
        if (type == QLatin1String(row.type)) {
            m_element.kind = row.kind;
            m_element.level = row.level;
        }
    }
    if (m_element.kind == Element::Action && m_alignment == QLatin1String("Center")) {
        m_element.kind = Element::Centered;
    }
}

void FinalDraftReader::startText()
{
    if (m_runKind != Run::Text) {
        if (m_isNewNote) {
            m_element.runs.append({QString(), {}, m_runKind});
        }
        m_isNewNote = false;
        return;
    }
    if (!m_hasParagraph) {
        beginParagraph();
    }
    const QStringList names = attribute("Style").split(u'+');
    m_emphasis.setFlag(Run::Bold, names.contains(QLatin1String("Bold")));
    m_emphasis.setFlag(Run::Italic, names.contains(QLatin1String("Italic")));
    m_emphasis.setFlag(Run::Underline, names.contains(QLatin1String("Underline")));
    m_element.runs.append({QString(), m_emphasis, Run::Text});
}

void FinalDraftReader::addText(const QStringRef &text)
{
    if (m_isText.isEmpty() || !m_isText.constLast()) {
        return;
    }
    if (!m_hasParagraph) {
        // After a paragraph nested in a text; blanks of the layout do not continue that text.
        if (text.trimmed().isEmpty()) {
            return;
        }
        beginParagraph();
        m_element.runs.append({QString(), m_emphasis, Run::Text});
    }
    m_element.runs.last().text += text;
}

void FinalDraftReader::startNote()
{
    if (m_noteDepth++ > 0) {
        return;
    }
    m_isNoteAlone = !m_hasParagraph;
    if (m_isNoteAlone) {
        beginParagraph();
    }
    m_runKind = attribute("Name") == QLatin1String("Omitted") ? Run::Boneyard : Run::Note;
    m_isNewNote = true;
}

void FinalDraftReader::endNote()
{
    if (--m_noteDepth > 0) {
        return;
    }
    m_runKind = Run::Text;
    if (m_isNoteAlone && m_element.runs.isEmpty()) {
        m_hasParagraph = false;
    } else if (m_isNoteAlone) {
        endParagraph();
    } else if (!m_isText.isEmpty() && m_isText.constLast()) {
        m_element.runs.append({QString(), m_emphasis, Run::Text}); // the text goes on
    }
}

// The paragraphs of the current element, up to its end; a character's arc begins with the name.
QStringList FinalDraftReader::readParagraphs()
{
    QStringList paragraphs;
    QString name;
    int textDepth = 0; // of the outermost text that is open
    for (int depth = 1; depth > 0 && !m_xml.atEnd();) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            ++depth;
            if (m_xml.name() == QLatin1String("Text") && textDepth == 0) {
                textDepth = depth;
            }
            if (m_xml.name() == QLatin1String("Paragraph")) {
                paragraphs.append(QString());
            } else if (m_xml.name() == QLatin1String("CharacterArcBeat")) {
                name = attribute("Name") + QLatin1String(": ");
            }
        } else if (token == QXmlStreamReader::EndElement) {
            textDepth = depth == textDepth ? 0 : textDepth;
            --depth;
            if (m_xml.name() == QLatin1String("CharacterArcBeat")) {
                name.clear();
            }
        } else if (token == QXmlStreamReader::Characters && textDepth > 0) {
            if (paragraphs.isEmpty()) {
                paragraphs.append(QString());
            }
            QString &last = paragraphs.last();
            last += last.isEmpty() ? name + m_xml.text() : m_xml.text().toString();
        }
    }
    paragraphs.removeAll(QString());
    return paragraphs;
}

// Notes that follow the script, with the range of its text that each is about: "12,20".
void FinalDraftReader::readNotes()
{
    while (m_xml.readNextStartElement()) {
        const int position = attribute("Range").section(u',', 0, 0).toInt();
        const QString text = readParagraphs().join(u'\n');
        if (!text.isEmpty()) {
            m_notes.append({position, text});
        }
    }
}

// Placed in the paragraphs that they are about, so that they separate no cue from its dialogue.
void FinalDraftReader::placeNotes()
{
    for (const PlacedNote &note : qAsConst(m_notes)) {
        const auto after = std::upper_bound(
            m_paragraphs.cbegin(), m_paragraphs.cend(), note.position,
            [](int position, const Place &place) { return position < place.start; });
        if (after == m_paragraphs.cbegin()) {
            m_script.elements.append(Element(Element::Note, note.text));
        } else {
            Element &element = m_script.elements[std::prev(after)->element];
            const bool isObject =
                element.kind == Element::Note || element.kind == Element::Boneyard;
            element.runs.append({isObject ? u'\n' + note.text : note.text, {}, Run::Note});
        }
    }
}

// Headers, footers, lists of names and the like hold paragraphs, too, which are not part of the
// script.
bool FinalDraftReader::readForeign()
{
    constexpr int BelowRoot = 2;
    const QString tag = m_xml.name().toString();
    const bool isForeign = m_isText.size() == BelowRoot
        ? tag != QLatin1String("Content") && tag != QLatin1String("TitlePage")
        : m_inTitles && m_isText.size() == BelowRoot + 1 && tag != QLatin1String("Content");
    if (!isForeign) {
        return false;
    }
    if (tag == QLatin1String("ScriptNotes")) {
        readNotes();
    } else {
        const QString text = readParagraphs().join(QString());
        // Each header has the page number and its dot.
        if (std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isLetterOrNumber(); })) {
            m_leftOut.append(tag);
        }
    }
    m_isText.removeLast();
    return true;
}

// The summary of a scene stands in its heading, in paragraphs of its own.
void FinalDraftReader::readSummary()
{
    const QString title = attribute("Title");
    if (!title.isEmpty()) {
        m_summary.append(title);
    }
    m_summary += readParagraphs();
    m_isText.removeLast();
}

void FinalDraftReader::startElement()
{
    if (readForeign()) {
        return;
    }
    const QStringRef tag = m_xml.name();
    if (tag == QLatin1String("TitlePage")) {
        m_inTitles = true;
    } else if (tag == QLatin1String("DualDialogue") && m_noteDepth == 0) {
        leaveParagraph();
        m_dualCues = 0;
    } else if (tag == QLatin1String("ScriptNote")) {
        startNote();
    } else if (tag == QLatin1String("SceneProperties")) {
        readSummary();
    } else if (tag == QLatin1String("Paragraph")) {
        startParagraph();
    } else if (tag == QLatin1String("Text")) {
        m_isText.last() = true;
        startText();
    } else if (m_isText.size() > 1) {
        m_isText.last() = m_isText.at(m_isText.size() - 2); // marks words of the text
    }
}

void FinalDraftReader::addSummary()
{
    for (const QString &line : qAsConst(m_summary)) {
        m_script.elements.append(Element(Element::Synopsis, line));
    }
    m_summary.clear();
}

// The format does not tell what the lines of a title page mean.
void FinalDraftReader::addTitle()
{
    if (m_element.text().trimmed().isEmpty()) {
        for (const Run &run : qAsConst(m_element.runs)) {
            if (run.kind != Run::Text) {
                m_script.elements.append(alone(run));
            }
        }
        return;
    }
    const Qt::AlignmentFlag alignment = m_alignment == QLatin1String("Center") ? Qt::AlignHCenter
        : m_alignment == QLatin1String("Right")                                ? Qt::AlignRight
                                                                               : Qt::AlignLeft;
    Run &first = m_element.runs.first();
    const int length = first.kind == Run::Text ? mrvShownTitleKeyLength(alignment, first.text) : 0;
    if (length > 0) {
        const QString key = first.text.left(length);
        first.text.remove(0, length + 2);
        m_script.titles.append({key, m_element.runs});
        m_titleKeys.append(key);
        return;
    }
    // A value that continues in a further paragraph.
    const QString key = mrvGuessedTitleKey(alignment, m_element.text(), m_titleKeys);
    const int earlier = m_titleKeys.indexOf(key);
    if (earlier >= 0) {
        MRVFountainTitle &title = m_script.titles[earlier];
        title.value.append({QStringLiteral("\n"), {}, Run::Text});
        title.value += m_element.runs;
    } else {
        m_script.titles.append({key, m_element.runs});
        m_titleKeys.append(key);
    }
}

void FinalDraftReader::endParagraph()
{
    m_hasParagraph = false;
    if (m_inTitles) {
        addTitle();
        return;
    }
    if (m_breakPending) {
        m_script.elements.append(Element(Element::PageBreak, QString()));
        m_breakPending = false;
    }
    m_paragraphs.append({m_textLength, m_script.elements.size()});
    m_textLength += m_element.text().size() + 1;
    if (m_element.kind == Element::Parenthetical) {
        mrvRemoveBrackets(&m_element.runs);
    }
    if (m_element.kind == Element::Action && m_element.runs.size() == 1
        && m_element.runs.constFirst().kind != Run::Text) {
        m_element = alone(m_element.runs.constFirst());
    }
    if (m_element.kind == Element::Character && m_dualCues >= 0) {
        m_firstDualCue = m_dualCues == 0 ? m_script.elements.size() : m_firstDualCue;
        m_element.dual = m_dualCues++ > 0;
    }
    m_script.elements.append(m_element);
    addSummary();
}

void FinalDraftReader::endElement()
{
    const QStringRef tag = m_xml.name();
    if (tag == QLatin1String("ScriptNote")) {
        endNote();
    } else if ((tag == QLatin1String("Paragraph") || tag == QLatin1String("Content"))
               && m_noteDepth == 0 && m_hasParagraph) {
        endParagraph();
    } else if (tag == QLatin1String("DualDialogue") && m_noteDepth == 0) {
        if (m_dualCues == 1) {
            m_script.elements[m_firstDualCue].dual = true; // beside one that is elsewhere
        }
        m_dualCues = -1;
    } else if (tag == QLatin1String("TitlePage")) {
        m_inTitles = false;
    }
}

bool FinalDraftReader::read(MRVFountainScript *script, QString *error)
{
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (m_isText.isEmpty() && m_xml.name() != QLatin1String("FinalDraft")) {
                m_xml.raiseError(MRVFinalDraft::tr("this is not a Final Draft document"));
            } else {
                m_isText.append(false);
                startElement();
            }
            break;
        case QXmlStreamReader::EndElement:
            m_isText.removeLast();
            endElement();
            break;
        case QXmlStreamReader::Characters:
            addText(m_xml.text());
            break;
        default:
            break;
        }
    }
    if (!MRVXmlReader::isRead(m_xml, error)) {
        return false;
    }
    addSummary();
    placeNotes();
    *script = m_script.normalized();
    return true;
}

} // namespace

bool MRVFinalDraft::fromXml(const QByteArray &xml, MRVFountainScript *script, QString *error,
                            QStringList *leftOut)
{
    QString text;
    if (!MRVXmlReader::read(xml, MrvScriptLimits, &text, error)) {
        return false;
    }
    FinalDraftReader reader(text);
    const bool ok = reader.read(script, error);
    if (ok && leftOut) {
        *leftOut = reader.leftOut();
        leftOut->removeDuplicates();
    }
    return ok;
}

#include "screenplay/mrvfinaldraftparts_p.h"
#include "screenplay/mrvfinaldrafttitles_p.h"
#include "screenplay/mrvfinaldrafttokens_p.h"
#include "screenplay/mrvscriptxml_p.h"

#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;
using Piece = MrvFinalDraftPiece;
using Pieces = MrvFinalDraftPieces;
using Paragraph = MrvFinalDraftParagraph;

// Types that have a kind of their own; others are action.
constexpr struct
{
    const char *type;
    Element::Kind kind;
    int level;
    bool isKept; // the kind says as much as the type
} types[] = {
    {"Scene Heading", Element::SceneHeading, 1, true},
    {"Action", Element::Action, 1, true},
    {"Character", Element::Character, 1, true},
    {"Parenthetical", Element::Parenthetical, 1, true},
    {"Dialogue", Element::Dialogue, 1, true},
    {"Lyrics", Element::Lyrics, 1, true},
    {"Singing", Element::Lyrics, 1, false},
    {"Transition", Element::Transition, 1, true},
    {"New Act", Element::Centered, 1, false},
    {"End of Act", Element::Centered, 1, false},
    {"Outline 1", Element::Section, 1, true},
    {"Outline 2", Element::Section, 2, true},
    {"Outline 3", Element::Section, 3, true},
    {"Outline 4", Element::Section, 4, true},
    {"Outline Body", Element::Synopsis, 1, true},
};

// What the names in a style mean.
constexpr struct
{
    const char *name;
    Run::Style emphasis;
    bool isCapitals;
    bool isCut;
} styles[] = {
    {"Bold", Run::Bold, false, false},
    {"Italic", Run::Italic, false, false},
    {"Underline", Run::Underline, false, false},
    {"AllCaps", Run::Style(0), true, false},
    {"Strikeout", Run::Style(0), false, true},
    {"Strikethrough", Run::Style(0), false, true}, // as some programs call it
};

Pieces asNote(Pieces pieces)
{
    for (Piece &piece : pieces) {
        piece.kind = Run::Note;
        piece.begins = &piece == pieces.begin();
    }
    return pieces;
}

// Whether no text is left beside what was cut out.
bool isCut(const Pieces &pieces)
{
    return std::all_of(pieces.cbegin(), pieces.cend(), [](const Piece &piece) {
        return piece.kind == Run::Boneyard
            || (piece.kind == Run::Text && piece.text.trimmed().isEmpty());
    });
}

bool isSpeech(Element::Kind kind)
{
    return kind == Element::Character || kind == Element::Parenthetical || kind == Element::Dialogue
        || kind == Element::Lyrics;
}

// Adds a name that is not known yet.
void tell(const QString &name, QSet<QString> *known, QStringList *names)
{
    if (!known->contains(name)) {
        known->insert(name);
        names->append(name);
    }
}

class FinalDraftReader
{
    Q_DECLARE_TR_FUNCTIONS(MRVFinalDraft)

public:
    FinalDraftReader(const QString &text, MrvFinalDraftParts *parts)
        : m_tokens(text)
        , m_parts(parts)
        , m_out(&parts->elements)
        , m_titles(parts)
    {
    }

    bool read(MRVErrorSink error);

private:
    /** What is open: one state for the script, and one for the omitted scene in it. */
    struct State
    {
        Paragraph paragraph;
        QString alignment;
        double space = 0; // before the paragraph, in points
        bool isOpen = false; // a paragraph
        bool hasContent = false; // that paragraph
        bool hasStruck = false; // text that is struck out
        int length = 0; // of its text
        bool breakPending = false;
        int dualCues = -1; // cues so far in speeches side by side; -1 outside of them
        int firstDualCue = -1;
        std::vector<Paragraph> after; // what follows the heading: its summary, omitted scenes
    };
    struct Place
    {
        int start; // in the text of the document, as Final Draft counts it
        int element;
    };
    struct PlacedNote
    {
        int position;
        Pieces pieces;
    };

    QString attribute(const char *name) const { return m_tokens.attribute(name); }
    void readNotes();
    void placeNotes();
    bool readForeign();
    void readSettings();
    void readSummary();
    void readAlternatives();
    void startElement();
    void endElement();
    void beginParagraph();
    void leaveParagraph();
    void startParagraph();
    void startNote();
    void endNote();
    void endParagraph();
    void startText();
    void readLook();
    void addText();
    void addPiece(Piece piece);
    bool countsText() const { return m_omittedDepth == 0 && !m_inTitles && m_at.dualCues < 0; }
    void addPlace(int length, int element);
    void addAfter();
    bool continueSpeech();
    void settleKind(Paragraph *paragraph) const;
    void countType(const QString &type);
    void startDual();
    void endDual();
    void startOmitted();
    void endOmitted();
    void omitHeading();
    void settleCapitals(std::vector<Paragraph> *paragraphs) const;

    MrvFinalDraftTokens m_tokens;
    QVector<bool> m_isText; // of each element that is open
    MrvFinalDraftParts *m_parts;
    std::vector<Paragraph> *m_out; // the script's, or the omitted scene's
    State m_at;
    State m_outer; // around an omitted scene
    std::vector<Paragraph> m_omitted;
    int m_omittedDepth = 0;
    bool m_inTitles = false;
    MrvFinalDraftTitles m_titles;
    Piece m_look; // of the text that is open
    Run::Kind m_noteKind = Run::Note;
    int m_noteDepth = 0;
    bool m_isNewNote = false;
    bool m_noteBegins = false;
    bool m_isNoteAlone = false; // without a paragraph around it
    int m_textLength = 0;
    QVector<Place> m_places;
    QVector<PlacedNote> m_notes;
    QSet<QString> m_capitalTypes;
    QHash<QString, int> m_typeIndex; // in the losses
    QSet<QString> m_knownStyles; // in the losses, as the next
    QSet<QString> m_knownSections;
};

void FinalDraftReader::addPiece(Piece piece)
{
    Pieces &pieces = m_at.paragraph.pieces;
    if (m_noteDepth > 0) {
        piece.kind = m_noteKind;
        piece.begins = m_noteBegins;
        m_noteBegins = false;
    } else {
        piece.kind = m_look.kind;
        m_at.hasStruck = m_at.hasStruck || piece.kind == Run::Boneyard;
        piece.emphasis = m_look.emphasis;
        piece.capitals = m_look.capitals;
        piece.begins = piece.kind == Run::Boneyard
            && (pieces.isEmpty() || pieces.constLast().kind != Run::Boneyard);
        piece.position = countsText() ? m_textLength + m_at.length : -1;
        m_at.length += piece.text.size();
    }
    pieces.append(piece);
}

void FinalDraftReader::beginParagraph()
{
    m_at.paragraph = Paragraph();
    m_at.alignment.clear();
    m_at.space = 0;
    m_at.isOpen = true;
    m_at.hasContent = false;
    m_at.hasStruck = false;
    m_at.length = 0;
}

// The part of a paragraph before a nested one is a paragraph by itself.
void FinalDraftReader::leaveParagraph()
{
    if (m_at.isOpen && m_at.hasContent) {
        endParagraph();
    }
    m_at.isOpen = false;
}

void FinalDraftReader::startParagraph()
{
    if (m_noteDepth > 0) {
        if (!m_isNewNote) {
            addPiece(mrvAddedPiece(QStringLiteral("\n"))); // a further paragraph of a note
        }
        return;
    }
    leaveParagraph();
    m_at.breakPending =
        m_at.breakPending || (!m_inTitles && attribute("StartsNewPage") == QLatin1String("Yes"));
    beginParagraph();
    Paragraph &paragraph = m_at.paragraph;
    paragraph.tagStart = m_tokens.start();
    paragraph.tagEnd = m_tokens.end();
    paragraph.type = attribute("Type");
    paragraph.element.sceneNumber = attribute("Number");
    m_at.alignment = attribute("Alignment");
    for (const auto &row : types) {
        if (paragraph.type == QLatin1String(row.type)) {
            paragraph.element.kind = row.kind;
            paragraph.element.level = row.level;
        }
    }
    if (paragraph.element.kind == Element::Action && m_at.alignment == QLatin1String("Center")) {
        paragraph.element.kind = Element::Centered;
    }
    m_at.space = attribute("SpaceBefore").toDouble();
}

void FinalDraftReader::startText()
{
    if (m_noteDepth > 0) {
        m_at.hasContent = true;
        if (m_isNewNote) {
            addPiece(Piece());
        }
        m_isNewNote = false;
        return;
    }
    if (!m_at.isOpen) {
        beginParagraph();
    }
    m_at.hasContent = true;
    readLook();
    const QString revision = attribute("RevisionID");
    m_parts->losses.revisions += !revision.isEmpty() && revision != QLatin1String("0");
}

void FinalDraftReader::readLook()
{
    m_look = Piece();
    m_look.capitals = m_tokens.has("Style") || m_inTitles ? Piece::AsTyped : Piece::OfType;
    const QStringList names = attribute("Style").split(u'+', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        const auto row =
            std::find_if(std::begin(styles), std::end(styles),
                         [&name](const auto &known) { return name == QLatin1String(known.name); });
        if (row != std::end(styles)) {
            m_look.emphasis |= row->emphasis;
            m_look.capitals = row->isCapitals ? Piece::Shown : m_look.capitals;
            m_look.kind = row->isCut ? Run::Boneyard : m_look.kind;
        } else {
            tell(name, &m_knownStyles, &m_parts->losses.styles);
        }
    }
    if (m_look.kind == Run::Boneyard) {
        m_look.emphasis = {};
    }
}

void FinalDraftReader::addText()
{
    if (m_isText.isEmpty() || !m_isText.constLast()) {
        return;
    }
    if (!m_at.isOpen) {
        // After a paragraph nested in a text; blanks of the layout do not continue that text.
        if (m_tokens.xml().text().trimmed().isEmpty()) {
            return;
        }
        beginParagraph();
        m_at.hasContent = true;
    }
    addPiece(m_tokens.characters());
}

void FinalDraftReader::startNote()
{
    if (m_noteDepth++ > 0) {
        return;
    }
    m_isNoteAlone = !m_at.isOpen;
    if (m_isNoteAlone) {
        beginParagraph();
    }
    m_noteKind = attribute("Name") == QLatin1String("Omitted") ? Run::Boneyard : Run::Note;
    m_isNewNote = true;
    m_noteBegins = true;
}

void FinalDraftReader::endNote()
{
    if (--m_noteDepth > 0) {
        return;
    }
    if (m_isNoteAlone && !m_at.hasContent) {
        m_at.isOpen = false;
    } else if (m_isNoteAlone) {
        endParagraph();
    }
}

// Notes that follow the script, with the range of its text that each is about: "12,20".
void FinalDraftReader::readNotes()
{
    while (m_tokens.nextChild()) {
        const Piece range = m_tokens.attributePiece("Range");
        const int position = range.text.section(u',', 0, 0).toInt();
        const int end = range.text.section(u',', 1, 1).toInt();
        m_parts->ranges.append({position, end, range.start, range.end});
        Pieces note;
        const QVector<Pieces> paragraphs = m_tokens.readParagraphs();
        for (const Pieces &paragraph : paragraphs) {
            if (!note.isEmpty()) {
                note.append(mrvAddedPiece(QStringLiteral("\n")));
            }
            note += paragraph;
        }
        if (!note.isEmpty()) {
            m_notes.append({position, asNote(note)});
        }
    }
}

// Placed in the paragraphs that they are about, so that they separate no cue from its dialogue.
void FinalDraftReader::placeNotes()
{
    for (const PlacedNote &note : qAsConst(m_notes)) {
        const auto after = std::upper_bound(
            m_places.cbegin(), m_places.cend(), note.position,
            [](int position, const Place &place) { return position < place.start; });
        const int index = after == m_places.cbegin() ? -1 : std::prev(after)->element;
        if (index < 0 || index >= int(m_parts->elements.size())) {
            Paragraph alone;
            alone.element.kind = Element::Note;
            alone.pieces = note.pieces;
            m_parts->elements.push_back(alone);
            continue;
        }
        Paragraph &paragraph = m_parts->elements[size_t(index)];
        if (paragraph.element.kind == Element::Note
            || paragraph.element.kind == Element::Boneyard) {
            paragraph.pieces.append(mrvAddedPiece(QStringLiteral("\n")));
        }
        paragraph.pieces += note.pieces;
    }
}

// Headers, footers, lists of names and the like hold paragraphs, too, which are not part of the
// script.
bool FinalDraftReader::readForeign()
{
    constexpr int BelowRoot = 2;
    const QString tag = m_tokens.xml().name().toString();
    const bool isForeign = m_isText.size() == BelowRoot
        ? tag != QLatin1String("Content") && tag != QLatin1String("TitlePage")
        : m_inTitles && m_isText.size() == BelowRoot + 1 && tag != QLatin1String("Content");
    if (!isForeign) {
        return false;
    }
    if (tag == QLatin1String("ScriptNotes")) {
        readNotes();
    } else if (tag == QLatin1String("ElementSettings")) {
        readSettings();
    } else {
        QString text;
        const QVector<Pieces> paragraphs = m_tokens.readParagraphs();
        for (const Pieces &paragraph : paragraphs) {
            text += mrvTextOf(paragraph);
        }
        // Each header has the page number and its dot.
        const bool saysSomething =
            std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isLetterOrNumber(); });
        if (saysSomething) {
            tell(tag, &m_knownSections, &m_parts->losses.sections);
        }
    }
    m_isText.removeLast();
    return true;
}

// Which types are shown in capitals.
void FinalDraftReader::readSettings()
{
    const QString type = attribute("Type");
    for (int depth = 1; depth > 0 && !m_tokens.atEnd();) {
        const QXmlStreamReader::TokenType token = m_tokens.next();
        depth += token == QXmlStreamReader::StartElement;
        depth -= token == QXmlStreamReader::EndElement;
        if (token == QXmlStreamReader::StartElement && m_tokens.is("FontSpec")
            && attribute("Style").split(u'+').contains(QLatin1String("AllCaps"))) {
            m_capitalTypes.insert(type);
        }
    }
}

// The summary of a scene stands in its heading, in paragraphs of its own.
void FinalDraftReader::readSummary()
{
    QVector<Pieces> lines{{m_tokens.attributePiece("Title")}};
    lines += m_tokens.readParagraphs();
    for (const Pieces &line : qAsConst(lines)) {
        Paragraph synopsis;
        synopsis.element.kind = Element::Synopsis;
        synopsis.pieces = line;
        if (!mrvTextOf(line).isEmpty()) {
            m_at.after.push_back(synopsis);
        }
    }
    m_isText.removeLast();
}

// What else might be said, of which one paragraph is shown.
void FinalDraftReader::readAlternatives()
{
    const bool isAlone = !m_at.isOpen;
    if (isAlone) {
        beginParagraph();
    }
    const QVector<Pieces> alternatives = m_tokens.readParagraphs();
    for (const Pieces &alternative : alternatives) {
        m_at.paragraph.pieces += asNote(alternative);
        m_at.hasContent = true;
        ++m_parts->losses.alternatives;
    }
    if (isAlone) {
        leaveParagraph();
    }
    m_isText.removeLast();
}

void FinalDraftReader::startElement()
{
    if (readForeign()) {
        return;
    }
    const QStringRef tag = m_tokens.xml().name();
    const bool isInScript = m_noteDepth == 0 && !m_inTitles;
    if (tag == QLatin1String("TitlePage")) {
        m_inTitles = true;
    } else if (tag == QLatin1String("DualDialogue") && m_noteDepth == 0) {
        startDual();
    } else if (tag == QLatin1String("OmittedScene") && isInScript) {
        startOmitted();
    } else if (tag.startsWith(QLatin1String("Alt")) && isInScript) {
        readAlternatives();
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

// Two speeches side by side are two characters of the text, as an omitted scene is.
void FinalDraftReader::startDual()
{
    leaveParagraph();
    addPlace(2, int(m_out->size()));
    m_at.dualCues = 0;
}

void FinalDraftReader::endDual()
{
    if (m_at.dualCues == 1) {
        (*m_out)[size_t(m_at.firstDualCue)].element.dual = true; // beside one that is elsewhere
    }
    m_at.dualCues = -1;
}

void FinalDraftReader::startOmitted()
{
    if (m_omittedDepth++ > 0) {
        return;
    }
    m_outer = m_at;
    m_at = State();
    m_omitted.clear();
    m_out = &m_omitted;
}

void FinalDraftReader::endOmitted()
{
    if (--m_omittedDepth > 0) {
        return;
    }
    leaveParagraph();
    addAfter();
    m_at = m_outer;
    m_out = &m_parts->elements;
    if (m_omitted.empty()) {
        return;
    }
    Paragraph cut;
    cut.element.kind = Element::Boneyard;
    cut.omitted.swap(m_omitted);
    m_at.after.push_back(cut);
    if (!m_at.isOpen) {
        addPlace(2, int(m_out->size()));
        addAfter();
    }
}

// A heading with nothing but the scene that was cut there.
void FinalDraftReader::omitHeading()
{
    std::vector<Paragraph> &scene = m_at.after.back().omitted;
    Element &heading = scene.front().element;
    if (heading.sceneNumber.isEmpty()) {
        heading.sceneNumber = m_at.paragraph.element.sceneNumber;
    }
    scene.insert(scene.begin() + 1, m_at.after.begin(), m_at.after.end() - 1);
    m_at.after.erase(m_at.after.begin(), m_at.after.end() - 1);
    m_at.isOpen = false;
    addPlace(2, int(m_out->size()));
    addAfter();
}

// Notes after the script count its text without the lines of omitted scenes and double speeches.
void FinalDraftReader::addPlace(int length, int element)
{
    if (countsText()) {
        m_places.append({m_textLength, element});
        m_textLength += length;
    }
}

void FinalDraftReader::addAfter()
{
    m_out->insert(m_out->end(), m_at.after.begin(), m_at.after.end());
    m_at.after.clear();
}

// What is nothing but a note is a paragraph of that kind, and so is cut text.
void FinalDraftReader::settleKind(Paragraph *paragraph) const
{
    Element &element = paragraph->element;
    const Pieces &pieces = paragraph->pieces;
    const auto isOneNote = [&pieces](const Piece &piece) {
        return piece.kind != Run::Text && piece.begins == (&piece == &pieces.constFirst());
    };
    if (m_at.hasStruck && isCut(pieces) && m_omittedDepth == 0) {
        element.kind = Element::Boneyard;
    } else if (element.kind == Element::Action && !pieces.isEmpty()
               && std::all_of(pieces.cbegin(), pieces.cend(), isOneNote)) {
        element.kind = pieces.constFirst().kind == Run::Note ? Element::Note : Element::Boneyard;
    }
}

// What was cut out of a speech would separate it as a paragraph of its own.
bool FinalDraftReader::continueSpeech()
{
    const Paragraph &paragraph = m_at.paragraph;
    const bool continues = m_omittedDepth == 0 && isSpeech(paragraph.element.kind) && m_at.hasStruck
        && isCut(paragraph.pieces) && paragraph.element.kind != Element::Character
        && !m_out->empty() && isSpeech(m_out->back().element.kind);
    if (continues) {
        m_out->back().pieces += paragraph.pieces;
        addPlace(m_at.length + 1, int(m_out->size()) - 1);
    }
    return continues;
}

void FinalDraftReader::countType(const QString &type)
{
    const auto row = std::find_if(std::begin(types), std::end(types), [&type](const auto &known) {
        return type == QLatin1String(known.type);
    });
    if (type.isEmpty() || (row != std::end(types) && row->isKept)) {
        return;
    }
    QVector<QPair<QString, int>> &counts = m_parts->losses.types;
    const auto known = m_typeIndex.constFind(type);
    if (known != m_typeIndex.cend()) {
        ++counts[*known].second;
    } else {
        m_typeIndex.insert(type, counts.size());
        counts.append({type, 1});
    }
}

void FinalDraftReader::endParagraph()
{
    if (!m_at.hasContent && !m_at.after.empty() && !m_at.after.back().omitted.empty()) {
        omitHeading();
        return;
    }
    m_at.isOpen = false;
    if (m_inTitles) {
        m_titles.addLine(&m_at.paragraph, m_at.alignment, m_at.space);
        return;
    }
    if (!m_at.breakPending && continueSpeech()) {
        return;
    }
    if (m_at.breakPending) {
        Paragraph pageBreak;
        pageBreak.element.kind = Element::PageBreak;
        m_out->push_back(pageBreak);
        m_at.breakPending = false;
    }
    Paragraph &paragraph = m_at.paragraph;
    const bool hasOmitted = !m_at.after.empty() && !m_at.after.back().omitted.empty();
    addPlace(m_at.length + 1 + hasOmitted, int(m_out->size()));
    countType(paragraph.type);
    settleKind(&paragraph);
    if (paragraph.element.kind == Element::Character && m_at.dualCues >= 0) {
        m_at.firstDualCue = m_at.dualCues == 0 ? int(m_out->size()) : m_at.firstDualCue;
        paragraph.element.dual = m_at.dualCues++ > 0;
    }
    m_out->push_back(paragraph);
    addAfter();
}

void FinalDraftReader::endElement()
{
    const QStringRef tag = m_tokens.xml().name();
    if (tag == QLatin1String("ScriptNote")) {
        endNote();
    } else if ((tag == QLatin1String("Paragraph") || tag == QLatin1String("Content"))
               && m_noteDepth == 0 && m_at.isOpen) {
        endParagraph();
    } else if (tag == QLatin1String("DualDialogue") && m_noteDepth == 0) {
        endDual();
    } else if (tag == QLatin1String("OmittedScene") && m_omittedDepth > 0 && m_noteDepth == 0) {
        endOmitted();
    } else if (tag == QLatin1String("TitlePage")) {
        m_inTitles = false;
    }
}

void FinalDraftReader::settleCapitals(std::vector<Paragraph> *paragraphs) const
{
    for (Paragraph &paragraph : *paragraphs) {
        const auto capitals =
            m_capitalTypes.contains(paragraph.type) ? Piece::Shown : Piece::AsTyped;
        for (Piece &piece : paragraph.pieces) {
            piece.capitals = piece.capitals == Piece::OfType ? capitals : piece.capitals;
        }
        settleCapitals(&paragraph.omitted);
    }
}

bool FinalDraftReader::read(MRVErrorSink error)
{
    while (!m_tokens.atEnd()) {
        switch (m_tokens.next()) {
        case QXmlStreamReader::StartElement:
            if (m_isText.isEmpty() && !m_tokens.is("FinalDraft")) {
                m_tokens.fail(tr("this is not a Final Draft document"));
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
            addText();
            break;
        default:
            break;
        }
    }
    if (!MRVXmlReader::isRead(m_tokens.xml(), error)) {
        return false;
    }
    addAfter();
    placeNotes();
    settleCapitals(&m_parts->elements);
    return true;
}

} // namespace

bool mrvReadFinalDraft(const QByteArray &xml, QString *text, MrvFinalDraftParts *parts,
                       MRVErrorSink error)
{
    QString decoded;
    MrvFinalDraftParts read;
    if (!MRVXmlReader::read(xml, MrvScriptLimits, &decoded, error)
        || !FinalDraftReader(decoded, &read).read(error)) {
        return false;
    }
    *text = decoded;
    *parts = std::move(read);
    return true;
}

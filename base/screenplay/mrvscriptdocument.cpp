#include "screenplay/mrvscriptdocument.h"

#include "screenplay/mrvscriptroles_p.h"
#include "screenplay/mrvscriptxml_p.h"
#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;
using Document = MRVScriptDocument;
using Role = MrvScriptRole;

static_assert(Document::RoleProperty == MrvScriptRoleProperty);

QTextCharFormat emphasized(QTextCharFormat format, Run::Emphasis emphasis)
{
    const Run::Emphasis same = emphasis & mrvEmphasisOf(format);
    if (emphasis.testFlag(Run::Italic)) {
        format.setFontItalic(true);
    }
    if (emphasis.testFlag(Run::Bold) && !same.testFlag(Run::Bold)) {
        format.setFontWeight(QFont::Bold);
    }
    if (emphasis.testFlag(Run::Underline)) {
        format.setFontUnderline(true);
    }
    if (same) {
        format.setProperty(Document::EmphasisProperty, int(same));
    }
    return format;
}

// Writes a script into an empty document.
class DocumentWriter
{
public:
    DocumentWriter(QTextDocument *document, const MRVScriptMode &mode)
        : m_cursor(document)
        , m_roles(mode)
    {
    }

    void add(const MRVFountainScript &script);

private:
    void addElement(const Element &element);
    Role roleOf(const Element &element);
    void addParagraph(Role role, const MRVFountainRuns &runs, int detail, const QVariant &value);
    void addBlock(const QTextBlockFormat &format, const QTextCharFormat &base);
    void addPendingBreak();

    QTextCursor m_cursor;
    MrvScriptRoles m_roles;
    bool m_isFirst = true;
    bool m_breakPending = false;
    bool m_isDual = false;
};

void DocumentWriter::add(const MRVFountainScript &script)
{
    m_cursor.beginEditBlock();
    for (const MRVFountainTitle &title : script.titles) {
        addParagraph(Role::TitlePage, title.value, Document::TitleKeyProperty, title.key);
    }
    if (!script.titles.isEmpty()) {
        QTextBlockFormat end;
        end.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysAfter);
        m_cursor.mergeBlockFormat(end);
    }
    for (const Element &element : script.elements) {
        addElement(element);
    }
    addPendingBreak();
    m_cursor.endEditBlock();
}

void DocumentWriter::addBlock(const QTextBlockFormat &format, const QTextCharFormat &base)
{
    QTextBlockFormat own = format;
    if (m_breakPending) {
        own.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        m_breakPending = false;
    }
    if (m_isFirst) {
        m_cursor.setBlockFormat(own);
        m_cursor.setBlockCharFormat(base);
        m_cursor.setCharFormat(base);
    } else {
        m_cursor.insertBlock(own, base);
    }
    m_isFirst = false;
}

// A page break with no paragraph after it that could carry it.
void DocumentWriter::addPendingBreak()
{
    if (!m_breakPending) {
        return;
    }
    m_breakPending = false;
    QTextBlockFormat format;
    format.setProperty(Document::RoleProperty, int(Element::PageBreak));
    addBlock(format, QTextCharFormat());
}

void DocumentWriter::addParagraph(Role role, const MRVFountainRuns &runs, int detail,
                                  const QVariant &value)
{
    const MRVScriptElement look = m_roles.element(role);
    QTextBlockFormat format = look.blockFormat();
    QTextCharFormat base = look.charFormat();
    if (detail != 0 && runs.isEmpty()) {
        // The paragraph then no longer looks like the mode's element.
        format.setProperty(Document::RoleProperty, int(role));
        format.setProperty(detail, value);
    } else if (detail != 0) {
        base.setProperty(detail, value);
    }
    addBlock(format, base);
    bool wasNote = false;
    bool wasBorder = false;
    for (const Run &run : runs) {
        QTextCharFormat own = emphasized(base, run.emphasis);
        const bool isNote = run.kind == Run::Note;
        const bool isBorder = run.kind != Run::Text && wasNote && !wasBorder;
        if (isNote) {
            own.setProperty(MRVTextFormat::InlineAnnotationProperty, true);
        } else if (run.kind == Run::Boneyard) {
            own.setProperty(Document::BoneyardProperty, true);
            own.setForeground(QColor(Qt::gray));
        }
        if (isBorder) {
            own.setProperty(Document::NoteBorderProperty, true);
        }
        wasNote = run.kind != Run::Text;
        wasBorder = isBorder;
        m_cursor.insertText(QString(run.text).replace(u'\n', QChar(QChar::LineSeparator)), own);
    }
}

Role DocumentWriter::roleOf(const Element &element)
{
    m_isDual = element.kind == Element::Character ? element.dual : m_isDual && element.isSpoken();
    const Role role = mrvScriptRole(element.kind);
    const Role dual = element.kind == Element::Character ? Role::DualCharacter
        : element.kind == Element::Parenthetical         ? Role::DualParenthetical
        : element.kind == Element::Dialogue              ? Role::DualDialogue
                                                         : role;
    return m_isDual && m_roles.has(dual) ? dual : role;
}

void DocumentWriter::addElement(const Element &element)
{
    if (element.kind == Element::PageBreak) {
        addPendingBreak();
        m_breakPending = true;
        return;
    }
    const MRVFountainRuns runs =
        element.kind == Element::Parenthetical ? mrvWithBrackets(element.runs) : element.runs;
    int detail = 0;
    QVariant value;
    const Role role = roleOf(element);
    if (!element.sceneNumber.isEmpty()) {
        detail = Document::SceneNumberProperty;
        value = element.sceneNumber;
    } else if (element.level > 1) {
        detail = Document::SectionLevelProperty;
        value = element.level;
    } else if (element.dual && role == mrvScriptRole(Element::Character)) {
        detail = Document::DualProperty;
        value = true;
    } else if (element.apart) {
        detail = Document::ApartProperty;
        value = true;
    }
    addParagraph(role, runs, detail, value);
}

// Reads a script from a document.
class DocumentReader
{
public:
    explicit DocumentReader(const MRVScriptMode &mode)
        : m_roles(mode)
    {
    }

    MRVFountainScript script(const QTextDocument &document);

private:
    void addBlock(const QTextBlock &block);
    void addTitle(const QTextBlock &block);
    void addElement(const QTextBlock &block, Role role);
    void addHangingSpeech(const MRVFountainRuns &runs);
    MRVFountainRuns runsOf(const QTextBlock &block, Role role) const;
    static QVariant detail(const QTextBlock &block, int property);

    MrvScriptRoles m_roles;
    MRVFountainScript m_script;
};

MRVFountainScript DocumentReader::script(const QTextDocument &document)
{
    const QTextBlock first = document.begin();
    // A document without paragraphs still has one empty block.
    if (!first.next().isValid() && first.length() <= 1 && first.blockFormat().isEmpty()) {
        return m_script;
    }
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        addBlock(block);
    }
    return m_script.normalized();
}

void DocumentReader::addBlock(const QTextBlock &block)
{
    const Role role = m_roles.roleOf(block);
    const QTextFormat::PageBreakFlags breaks = block.blockFormat().pageBreakPolicy();
    const Element pageBreak(Element::PageBreak, QString());
    if (breaks & QTextFormat::PageBreak_AlwaysBefore) {
        m_script.elements.append(pageBreak);
    }
    if (role == Role::TitlePage && m_script.elements.isEmpty()) {
        addTitle(block); // its page ends anyway
        return;
    }
    addElement(block, role);
    if (breaks & QTextFormat::PageBreak_AlwaysAfter) {
        m_script.elements.append(pageBreak);
    }
}

// Of the first fragment that has it: a paragraph may begin with pasted text.
QVariant DocumentReader::detail(const QTextBlock &block, int property)
{
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QVariant value = it.fragment().charFormat().property(property);
        if (value.isValid()) {
            return value;
        }
    }
    return block.blockFormat().property(property);
}

MRVFountainRuns DocumentReader::runsOf(const QTextBlock &block, Role role) const
{
    const Run::Emphasis base = mrvEmphasisOf(m_roles.element(role).charFormat());
    MRVFountainRuns runs;
    bool wasBorder = false;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextCharFormat format = it.fragment().charFormat();
        if (format.objectType() != QTextFormat::NoObject) {
            continue;
        }
        const Run::Emphasis shown = mrvEmphasisOf(format);
        const Run::Emphasis meant(format.intProperty(Document::EmphasisProperty));
        Run run;
        run.text = it.fragment().text();
        run.emphasis = (shown & ~base) | (shown & meant);
        run.kind = format.boolProperty(Document::BoneyardProperty)         ? Run::Boneyard
            : format.boolProperty(MRVTextFormat::InlineAnnotationProperty) ? Run::Note
                                                                           : Run::Text;
        const bool isBorder = format.boolProperty(Document::NoteBorderProperty);
        // A note of which a part has another colour, for example, is still one note.
        if (run.kind != Run::Text && !runs.isEmpty() && runs.constLast().kind == run.kind
            && runs.constLast().emphasis == run.emphasis && isBorder == wasBorder) {
            runs.last().text += run.text;
        } else {
            runs.append(run);
        }
        wasBorder = isBorder;
    }
    return runs;
}

void DocumentReader::addTitle(const QTextBlock &block)
{
    const QString key = detail(block, Document::TitleKeyProperty).toString();
    const MRVFountainRuns runs = runsOf(block, Role::TitlePage);
    if (!key.isEmpty() || m_script.titles.isEmpty()) {
        m_script.titles.append({key.isEmpty() ? QStringLiteral("Title") : key, runs});
    } else {
        MRVFountainRuns &value = m_script.titles.last().value;
        value.append({QStringLiteral("\n"), {}, Run::Text});
        value += runs;
    }
}

void DocumentReader::addElement(const QTextBlock &block, Role role)
{
    MRVFountainRuns runs = runsOf(block, role);
    Element element;
    switch (role) {
    case Role::DualCharacter:
        element.kind = Element::Character;
        element.dual = true;
        break;
    case Role::DualParenthetical:
        element.kind = Element::Parenthetical;
        break;
    case Role::DualDialogue:
        element.kind = Element::Dialogue;
        break;
    case Role::TitlePage:
        element.kind = Element::Centered;
        break;
    case Role::HangingSpeech:
        addHangingSpeech(runs);
        return;
    default:
        element.kind = Element::Kind(int(role));
        break;
    }
    if (element.kind == Element::Parenthetical) {
        mrvRemoveBrackets(&runs);
    }
    element.runs = runs;
    element.sceneNumber = detail(block, Document::SceneNumberProperty).toString();
    element.dual = element.dual || detail(block, Document::DualProperty).toBool();
    element.apart = detail(block, Document::ApartProperty).toBool();
    element.level = qMax(1, detail(block, Document::SectionLevelProperty).toInt());
    m_script.elements.append(element);
}

void DocumentReader::addHangingSpeech(const MRVFountainRuns &runs)
{
    Element cue;
    cue.kind = Element::Character;
    Element speech;
    speech.kind = Element::Dialogue;
    bool isBehind = false;
    for (const Run &run : runs) {
        const int tab = isBehind || run.kind != Run::Text ? -1 : run.text.indexOf(u'\t');
        if (tab < 0) {
            (isBehind ? speech : cue).runs.append(run);
            continue;
        }
        isBehind = true;
        cue.runs.append({run.text.left(tab), run.emphasis, run.kind});
        speech.runs.append({run.text.mid(tab + 1), run.emphasis, run.kind});
    }
    m_script.elements.append(isBehind ? cue : Element());
    if (!isBehind) {
        m_script.elements.last().kind = Element::Dialogue;
        m_script.elements.last().runs = cue.runs;
    } else {
        m_script.elements.append(speech);
    }
}

} // namespace

void MRVScriptDocument::setScript(QTextDocument *document, const MRVFountainScript &script,
                                  const MRVScriptMode &mode)
{
    if (!document) {
        return;
    }
    const bool hadUndo = document->isUndoRedoEnabled();
    document->setUndoRedoEnabled(false);
    document->clear();
    const MRVFountainScript normal = script.normalized();
    DocumentWriter(document, mode).add(normal);
    document->setMetaInformation(QTextDocument::DocumentTitle,
                                 normal.title(QStringLiteral("Title")).simplified());
    document->setUndoRedoEnabled(hadUndo);
}

MRVFountainScript MRVScriptDocument::script(const QTextDocument &document,
                                            const MRVScriptMode &mode)
{
    return DocumentReader(mode).script(document);
}

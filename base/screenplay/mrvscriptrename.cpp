#include "screenplay/mrvscriptdocument.h"

#include "screenplay/mrvcueparts_p.h"
#include "screenplay/mrvscriptroles_p.h"
#include "textformat/mrvtextformat.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QVector>

namespace {

using Element = MRVFountainElement;
using Document = MRVScriptDocument;
using Role = MrvScriptRole;

struct Edit
{
    int start; // in the document
    int length;
    QString text;
};

bool isName(const QString &text)
{
    return !text.trimmed().isEmpty() && !text.contains(u'\n') && !text.contains(u'\r')
        && !text.contains(QChar(QChar::LineSeparator))
        && !text.contains(QChar(QChar::ParagraphSeparator));
}

bool hasLower(const QString &text)
{
    return text != text.toUpper();
}

// "ANN LEE" as "Ann Lee".
QString withCapitalInitials(const QString &name)
{
    QString text = name.toLower();
    bool isInitial = true;
    for (int i = 0; i < text.size(); ++i) {
        if (isInitial && text.at(i).isLetter()) {
            text[i] = text.at(i).toUpper();
        }
        isInitial =
            !text.at(i).isLetterOrNumber() && text.at(i) != u'\'' && text.at(i) != u'\u2019';
    }
    return text;
}

// The text of a paragraph, with notes, boneyards and objects as characters that no name holds.
QString namedText(const QTextBlock &block)
{
    QString text = block.text();
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextCharFormat format = it.fragment().charFormat();
        if (format.boolProperty(MRVTextFormat::InlineAnnotationProperty)
            || format.boolProperty(Document::BoneyardProperty)) {
            const int start = it.fragment().position() - block.position();
            const int length = it.fragment().length();
            text.replace(start, length, QString(length, QChar::ObjectReplacementCharacter));
        }
    }
    return text;
}

class Renaming
{
public:
    Renaming(const QString &from, const QString &to, Document::RenameScope scope)
        : m_from(from.simplified())
        , m_to(to.simplified())
        , m_scope(scope)
    {
        QStringList forms{m_from.toUpper(), withCapitalInitials(m_from)};
        if (m_from != m_from.toLower()) {
            forms.prepend(m_from);
        }
        for (QString &form : forms) {
            form = QRegularExpression::escape(form);
        }
        forms.removeDuplicates();
        m_expression.setPattern(
            QStringLiteral("(?<![\\p{L}\\p{N}_])(?:%1)(?![\\p{L}\\p{N}_])").arg(forms.join(u'|')));
        m_expression.setPatternOptions(QRegularExpression::UseUnicodePropertiesOption);
    }

    void addBlock(const QTextBlock &block, Role role);
    const QVector<Edit> &edits() const { return m_edits; }

private:
    void addCue(const QString &text, int position);
    bool addName(const QString &text, int start, int end, int position);
    void addText(const QString &text, int position);
    void add(const QString &old, int position);

    const QString m_from;
    const QString m_to;
    const Document::RenameScope m_scope;
    QRegularExpression m_expression;
    QVector<Edit> m_edits;
};

void Renaming::add(const QString &old, int position)
{
    const QString text = !hasLower(old) ? m_to.toUpper()
        : hasLower(m_to)                ? m_to
                                        : withCapitalInitials(m_to);
    if (text != old) {
        m_edits.append({position, old.size(), text});
    }
}

bool Renaming::addName(const QString &text, int start, int end, int position)
{
    const auto isBorder = [&text](int at) {
        return text.at(at).isSpace() || text.at(at) == QChar::ObjectReplacementCharacter;
    };
    while (start < end && isBorder(start)) {
        ++start;
    }
    while (end > start && isBorder(end - 1)) {
        --end;
    }
    const QString name = text.mid(start, end - start);
    // Upper case may be longer: Weiß becomes WEISS.
    if (name.simplified().toUpper() != m_from.toUpper()) {
        return false;
    }
    add(name, position + start);
    return true;
}

void Renaming::addCue(const QString &text, int position)
{
    QString end = text;
    while (!end.isEmpty()
           && (end.endsWith(u' ') || end.endsWith(QChar::ObjectReplacementCharacter))) {
        end.chop(1);
    }
    const int length = MRVFountainScript::cueNameLength(end);
    if (addName(text, 0, length, position)) {
        return;
    }
    const QVector<MrvCuePart> parts = mrvCueParts(text, length);
    for (const MrvCuePart &part : parts) {
        if (!addName(text, part.start, part.end, position)) {
            addName(text, part.start, part.ownerEnd, position); // "MARY'S VOICE"
        }
    }
}

void Renaming::addText(const QString &text, int position)
{
    for (auto it = m_expression.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        add(match.captured(), position + match.capturedStart());
    }
}

void Renaming::addBlock(const QTextBlock &block, Role role)
{
    const QString text = namedText(block);
    switch (int(role)) {
    case int(Element::Character):
    case int(Role::DualCharacter):
        addCue(text, block.position());
        break;
    case int(Role::HangingSpeech): {
        const int tab = text.indexOf(u'\t');
        if (tab >= 0) {
            addCue(text.left(tab), block.position());
        }
        if (m_scope.testFlag(Document::InDialogue)) {
            addText(text.mid(tab + 1), block.position() + tab + 1);
        }
        break;
    }
    case int(Element::Dialogue):
    case int(Element::Parenthetical):
    case int(Element::Lyrics):
    case int(Role::DualDialogue):
    case int(Role::DualParenthetical):
        if (m_scope.testFlag(Document::InDialogue)) {
            addText(text, block.position());
        }
        break;
    case int(Element::Note):
    case int(Element::Boneyard):
    case int(Role::TitlePage):
        break;
    default:
        if (m_scope.testFlag(Document::InAction)) {
            addText(text, block.position());
        }
        break;
    }
}

} // namespace

int MRVScriptDocument::renameCharacter(QTextDocument *document, const MRVScriptMode &mode,
                                       const QString &from, const QString &to, RenameScope scope)
{
    if (!document || !isName(from) || !isName(to)) {
        return 0;
    }
    const MrvScriptRoles roles(mode);
    Renaming renaming(from, to, scope);
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        renaming.addBlock(block, roles.roleOf(block));
    }
    const QVector<Edit> &edits = renaming.edits();
    if (edits.isEmpty()) {
        return 0;
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    // From the last to the first, so that positions stay valid.
    for (auto edit = edits.crbegin(); edit != edits.crend(); ++edit) {
        cursor.setPosition(edit->start + 1);
        const QTextCharFormat format = cursor.charFormat();
        cursor.setPosition(edit->start);
        cursor.setPosition(edit->start + edit->length, QTextCursor::KeepAnchor);
        cursor.insertText(edit->text, format);
    }
    cursor.endEditBlock();
    return edits.size();
}

#include "screenplay/mrvscriptdocument.h"

#include "screenplay/mrvscriptroles_p.h"
#include "screenplay/mrvtitlepage_p.h"
#include "textformat/mrvtextformat.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

using Element = MRVFountainElement;

// Centred text that begins an act.
bool isAct(const QString &text)
{
    static const QRegularExpression act(
        QStringLiteral(
            "^\\s*(?:(?:ACT|AKT|ACTE|ACTO)\\s+[\\p{L}\\p{N}]+(?:\\s*[:.\u2013\u2014-].*)?"
            "|TEASER|COLD OPEN|TAG|PROLOGUE|EPILOGUE)\\s*$"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    return act.match(text).hasMatch();
}

bool hasActs(const MRVFountainScript &script)
{
    return std::any_of(script.elements.cbegin(), script.elements.cend(),
                       [](const Element &element) {
                           return element.kind == Element::Centered && isAct(element.text());
                       });
}

// What the places on a page do not tell stands in the text.
MRVFountainScript labelled(MRVFountainScript script)
{
    for (MRVFountainTitle &title : script.titles) {
        title.value.prepend({mrvTitleLabel(title.key), {}, MRVFountainRun::Text});
    }
    for (Element &element : script.elements) {
        if (!element.sceneNumber.isEmpty()) {
            element.runs.prepend({element.sceneNumber + u' ', {}, MRVFountainRun::Text});
        }
    }
    return script;
}

} // namespace

void MRVScriptDocument::setPrintedScript(QTextDocument *document, const MRVFountainScript &script,
                                         const MRVScriptMode &mode)
{
    if (!document) {
        return;
    }
    const MRVFountainScript printed = script.printed();
    setScript(document, labelled(printed), mode);
    const int sceneLevel = hasActs(printed) ? 2 : 1;
    const bool hadUndo = document->isUndoRedoEnabled();
    document->setUndoRedoEnabled(false);
    const MrvScriptRoles roles(mode);
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const MrvScriptRole role = roles.roleOf(block);
        roles.element(role).recapitalizeBlock(block);
        QTextBlockFormat format = MRVScriptElement::withMargins(block.blockFormat());
        format.clearProperty(MRVTextFormat::BlockLeftIndent);
        format.clearProperty(MRVTextFormat::BlockRightIndent);
        const bool isScene = role == mrvScriptRole(Element::SceneHeading) && block.length() > 1;
        if (isScene || (role == mrvScriptRole(Element::Centered) && isAct(block.text()))) {
            format.clearProperty(MRVTextFormat::BlockSpacing); // which has the number of the level
            format.setHeadingLevel(isScene ? sceneLevel : 1);
        }
        cursor.setPosition(block.position());
        cursor.setBlockFormat(format);
    }
    cursor.endEditBlock();
    document->setUndoRedoEnabled(hadUndo);
}

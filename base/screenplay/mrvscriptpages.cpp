#include "screenplay/mrvscriptdocument.h"

#include "screenplay/mrvscriptroles_p.h"
#include "screenplay/mrvtitlepage_p.h"
#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

using Element = MRVFountainElement;

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
    setScript(document, labelled(script.printed()), mode);
    const bool hadUndo = document->isUndoRedoEnabled();
    document->setUndoRedoEnabled(false);
    const MrvScriptRoles roles(mode);
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const MrvScriptRole role = roles.roleOf(block);
        roles.element(role).recapitalizeBlock(block);
        QTextBlockFormat format = block.blockFormat();
        format.setLeftMargin(format.doubleProperty(MRVTextFormat::BlockLeftIndent));
        format.setRightMargin(format.doubleProperty(MRVTextFormat::BlockRightIndent));
        if (role == mrvScriptRole(Element::SceneHeading) && block.length() > 1) {
            format.clearProperty(MRVTextFormat::BlockSpacing); // which has the number of the level
            format.setHeadingLevel(1);
        }
        cursor.setPosition(block.position());
        cursor.setBlockFormat(format);
    }
    cursor.endEditBlock();
    document->setUndoRedoEnabled(hadUndo);
}

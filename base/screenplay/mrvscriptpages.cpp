#include "screenplay/mrvscriptdocument.h"

#include "screenplay/mrvscriptroles_p.h"
#include "screenplay/mrvtitlepage_p.h"
#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

using Element = MRVFountainElement;

MRVFountainRuns printed(MRVFountainRuns runs)
{
    const auto isHidden = [](const MRVFountainRun &run) {
        return run.kind != MRVFountainRun::Text;
    };
    runs.erase(std::remove_if(runs.begin(), runs.end(), isHidden), runs.end());
    return runs;
}

MRVFountainScript printed(const MRVFountainScript &script)
{
    MRVFountainScript result;
    for (const MRVFountainTitle &title : script.titles) {
        MRVFountainRuns value = printed(title.value);
        value.prepend({mrvTitleLabel(title.key), {}, MRVFountainRun::Text});
        result.titles.append({title.key, value});
    }
    for (Element element : script.elements) {
        if (element.kind == Element::Note || element.kind == Element::Boneyard
            || element.kind == Element::Section || element.kind == Element::Synopsis) {
            continue;
        }
        element.runs = printed(element.runs);
        if (!element.sceneNumber.isEmpty()) {
            element.runs.prepend({element.sceneNumber + u' ', {}, MRVFountainRun::Text});
        }
        result.elements.append(element);
    }
    return result;
}

} // namespace

void MRVScriptDocument::setPrintedScript(QTextDocument *document, const MRVFountainScript &script,
                                         const MRVScriptMode &mode)
{
    if (!document) {
        return;
    }
    setScript(document, printed(script.normalized()), mode);
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

// Feeds arbitrary texts to the readers of scripts: Fountain, pages and Final Draft documents, and
// what is read on to the writers, which must not change it.

#include "screenplay/mrvfinaldraft.h"
#include "screenplay/mrvfountain.h"
#include "screenplay/mrvfountainhtml.h"
#include "screenplay/mrvscriptcheck.h"
#include "screenplay/mrvscriptcompare.h"
#include "screenplay/mrvscriptnumbers.h"
#include "screenplay/mrvscriptscenes.h"
#include "screenplay/mrvscriptstatistics.h"

#include <cstdlib>

static void require(bool kept)
{
    if (!kept) {
        std::abort();
    }
}

// What reads scripts, and what changes them, on any text.
static void useTools(const QString &text, const MRVFountainScript &script)
{
    const MRVFountainScript printed = script.printed();
    require(printed.printed() == printed);
    require(MRVFountainScript::fromText(printed.toText()) == printed);
    for (const MRVScriptFault &fault : MRVScriptCheck::ofText(text)) {
        require(fault.line > 0);
    }
    require(MRVScriptCompare::elements(script, script).isEmpty());
    MRVFountainScript numbered = script;
    require(MRVScriptNumbers::number(&numbered) <= MRVScriptScene::of(script).size());
    require(MRVScriptNumbers::number(&numbered) == 0);
    require(MRVFountainScript::fromText(numbered.toText(text)) == numbered);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    MRVFountainScript script;
    MRVFountainHtml::fromHtml(bytes, &script);
    MRVFinalDraft::fromXml(bytes, &script);
    require(MRVFountainScript::fromText(script.toText()) == script);

    script = MRVFountainScript::fromText(QString::fromUtf8(bytes));
    require(script.normalized() == script);
    require(script.toText(QString::fromUtf8(bytes)) == QString::fromUtf8(bytes));
    require(MRVFountainScript::fromText(script.toText()) == script);
    useTools(QString::fromUtf8(bytes), script);
    MRVFountainScript read;
    require(MRVFinalDraft::fromXml(MRVFinalDraft::toXml(script), &read));
    // Characters that XML does not have are lost in it.
    for (const QChar c : script.toText()) {
        if ((c < u' ' && c != u'\n' && c != u'\t') || c.isSurrogate() || c.unicode() >= 0xfffe) {
            return 0;
        }
    }
    if (MRVFountainHtml::fromHtml(MRVFountainHtml::toHtml(script), &read)) {
        require(read == script);
    }
    require(MRVScriptStatistics::of(script).eighths >= 0);
    return 0;
}

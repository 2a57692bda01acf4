// Feeds arbitrary documents to the reader of Final Draft documents, and changes in place what it
// has understood: the result must be read as the script that was wanted.

#include "screenplay/mrvfinaldraft.h"

#include <cstdlib>

static void require(bool kept)
{
    if (!kept) {
        std::abort();
    }
}

// Words become longer, shorter, and hold what has to be escaped.
static void change(QString *text)
{
    text->replace(QLatin1String("DAVE"), QLatin1String("D<&]]>\"'"));
    text->replace(u'a', QStringLiteral("\u00e4\u044f"));
    text->remove(u'e');
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    MRVFountainScript script;
    QStringList losses;
    if (!MRVFinalDraft::fromXml(bytes, &script, nullptr, &losses)) {
        return 0;
    }
    QByteArray revised;
    require(MRVFinalDraft::revise(bytes, script, &revised));
    require(revised == bytes);
    for (MRVFountainTitle &title : script.titles) {
        for (MRVFountainRun &run : title.value) {
            change(&run.text);
        }
    }
    for (MRVFountainElement &element : script.elements) {
        for (MRVFountainRun &run : element.runs) {
            change(&run.text);
        }
        change(&element.sceneNumber);
    }
    QString error;
    if (!MRVFinalDraft::revise(bytes, script, &revised, &error)) {
        require(!error.isEmpty() && revised == bytes);
        return 0;
    }
    MRVFountainScript read;
    require(MRVFinalDraft::fromXml(revised, &read));
    require(read == script.normalized());
    return 0;
}

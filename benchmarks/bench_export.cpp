#include "novel.h"

#include "epub/mrvepubpackage.h"
#include "xhtml/mrvtextxhtmlexporter.h"

#include <QTemporaryDir>

using Exporter = MRVTextXhtmlExporter;

namespace {

// The text of an e-book page against Qt's own HTML, which it is made from.
void eBookText(benchmark::State &state)
{
    const auto document = novel(int(state.range(0)));
    compare(
        state, [&] { benchmark::DoNotOptimize(Exporter(document.get()).toText(Exporter::EPub)); },
        [&] { benchmark::DoNotOptimize(document->toHtml("utf-8")); });
}

// The same with the writing of the file, synced to the disk.
void eBookFile(benchmark::State &state)
{
    const auto document = novel(int(state.range(0)));
    const QTemporaryDir folder;
    compare(
        state,
        [&] {
            Exporter(document.get())
                .toFile(Exporter::EPub, folder.filePath(QStringLiteral("page.xhtml")), true);
        },
        [&] { benchmark::DoNotOptimize(document->toHtml("utf-8")); });
}

// The fix-ups on the whole text, for comparison.
void wholeTextChain(benchmark::State &state)
{
    const auto document = novel(int(state.range(0)));
    compare(
        state,
        [&] {
            Exporter::StyleList styles;
            benchmark::DoNotOptimize(Exporter::htmlToEpub(document->toHtml("utf-8"), &styles));
        },
        [&] { benchmark::DoNotOptimize(document->toHtml("utf-8")); });
}

// A thousand styles against ten.
void manyStyles(benchmark::State &state)
{
    const auto many = novel(int(state.range(0)), 1000);
    const auto few = novel(int(state.range(0)), 10);
    compare(
        state, [&] { benchmark::DoNotOptimize(Exporter(many.get()).toText(Exporter::EPub)); },
        [&] { benchmark::DoNotOptimize(Exporter(few.get()).toText(Exporter::EPub)); });
}

// The pages of an e-book, straight from the document.
void eBookPages(benchmark::State &state)
{
    const auto document = novel(int(state.range(0)));
    compare(
        state,
        [&] {
            MRVEPubPackage book;
            benchmark::DoNotOptimize(book.addDocument(*document));
        },
        [&] { benchmark::DoNotOptimize(document->toHtml("utf-8")); });
}

void package(benchmark::State &state)
{
    const auto document = novel(int(state.range(0)));
    compare(
        state,
        [&] {
            MRVEPubPackage book;
            book.addDocument(*document);
            benchmark::DoNotOptimize(book.toByteArray());
        },
        [&] { benchmark::DoNotOptimize(document->toHtml("utf-8")); });
}

// The last step of it alone: the links, the archive.
void packing(benchmark::State &state)
{
    const auto document = novel(int(state.range(0)));
    MRVEPubPackage book;
    book.addDocument(*document);
    compare(
        state, [&] { benchmark::DoNotOptimize(book.toByteArray()); },
        [&] { benchmark::DoNotOptimize(document->toHtml("utf-8")); });
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(10000)->Arg(100000)->Arg(1000000)->Iterations(1)->Unit(benchmark::kMillisecond);
}

BENCHMARK(eBookText)->Apply(sizes);
BENCHMARK(eBookFile)->Apply(sizes);
BENCHMARK(wholeTextChain)->Apply(sizes);
BENCHMARK(manyStyles)->Apply(sizes);
BENCHMARK(eBookPages)->Apply(sizes);
BENCHMARK(package)->Apply(sizes);
BENCHMARK(packing)->Apply(sizes);

} // namespace

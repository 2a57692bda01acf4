// Feeds arbitrary bytes to the readers of stored engine maps and of the names of web page imports.
// Not part of the normal build:
//
//   clang++-14 -O1 -g -fPIC -std=c++17 -fsanitize=fuzzer,address,undefined -fno-sanitize=vptr
//     -Ibase -Iplatform $(pkg-config --cflags --libs Qt5Core) fuzz/fuzz_engines.cpp
//     base/importexport/mrvengine*.cpp base/fileformats/mrvformat.cpp
//     base/fileformats/mrvimportexport.cpp platform/core/mcoretype.cpp -o fuzz_engines
//   ./fuzz_engines -rss_limit_mb=512 CORPUS

#include "fileformats/mrvenginetables.h"

#include <QDataStream>

#include <cstdlib>

using namespace MRVEngineTables;

namespace {

void check(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

// What Qt's own map operator gives, for bytes that it reads without reserving what a length claims.
FormatEngines readByQt(const QByteArray &bytes)
{
    FormatEngines engines;
    QMap<QString, QString> names;
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_5_15);
    stream >> names;
    for (auto it = names.cbegin(); it != names.cend(); ++it) {
        const MRVFormat::Format format = MRVFormat::format(it.key());
        const MRVImportExport::Engine engine = MRVImportExport::toEngine(it.value());
        if (format && engine) {
            engines.insert(format, engine);
        }
    }
    return engines;
}

// Names of formats that are no suffix are lost when a map is stored.
FormatEngines storable(FormatEngines engines)
{
    for (auto it = engines.begin(); it != engines.end();) {
        const bool same = MRVFormat::format(MRVFormat::name(it.key())) == it.key();
        it = same ? it + 1 : engines.erase(it);
    }
    return engines;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const FormatEngines engines = toFormatEngines(bytes);
    check(engines == readByQt(bytes));
    const QByteArray stored = toByteArray(engines);
    check(toFormatEngines(stored) == storable(engines));

    Choices choices;
    for (Direction direction : {Import, Export}) {
        choices.stored[direction] = engines;
        choices.used[direction] = usableEngines(direction, engines, {});
        check(!choices.used[direction].isEmpty());
        for (MRVImportExport::Engine engine : qAsConst(choices.used[direction])) {
            check(engine != MRVImportExport::Doc2AnyPreferMsOffice
                  && engine != MRVImportExport::Doc2AnyPreferOpenOffice);
        }
    }
    for (int row = 0; row < MRVFormat::formatsCount(); ++row) {
        const MRVFormat::Format format = MRVFormat::formatAt(row);
        check(!choose(format, MRVFormat::RTF, choices, {}).reasonText().isEmpty());
        check(!choose(MRVFormat::RTF, format, choices, {}).supported.isEmpty());
    }

    const MRVImportExport::UrlImportType type = MRVImportExport::toUrlImportType(bytes);
    check(type == MRVImportExport::ImportUndefined || bytes == "ImportAsPdf"
          || MRVImportExport::toByteArray(type) == bytes);
    return 0;
}

// Feeds arbitrary bytes to the reader of text presets, and to the store as the formats and presets
// of a settings file. Not part of the normal build:
//
//   for h in mrvshortcut mrvsettings; do /usr/lib/qt5/bin/moc -Ibase base/settings/$h.h
//     -p settings -o moc_$h.cpp; done
//   clang++-14 -O1 -g -fPIC -std=c++17 -fsanitize=fuzzer,address,undefined -fno-sanitize=vptr
//     -Ibase -Iplatform $(pkg-config --cflags --libs Qt5Gui) fuzz/fuzz_presets.cpp moc_*.cpp
//     base/settings/mrvshortcut*.cpp base/settings/mrvsettings*.cpp
//     base/presets/mrvtextpreset.cpp base/presets/mrvtextpresetscheme.cpp
//     base/textformat/mrvtextformatreader.cpp base/textformat/mrvtextformatstream.cpp
//     base/textformat/mrvlistlevel.cpp platform/core/mcoretype.cpp platform/core/mrvcoreutil.cpp
//     platform/core/mrvfilewriter.cpp -o fuzz_presets
//   LSAN_OPTIONS=suppressions=tests/lsan.supp ./fuzz_presets -rss_limit_mb=512 CORPUS

#include "gui/mrvguiutil.h"
#include "guiapplication.h"
#include "settings/mrvsettings.h"
#include "textformat/mrvtextformat.h"

#include <QTemporaryDir>

#include <cstdlib>

namespace {

const QString key = QStringLiteral("Fuzz/value");

void require(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

QList<int> properties(const QTextFormat &format)
{
    return format.properties().keys();
}

// In memory only: the event loop, which would save it, never runs.
MRVSettings &store()
{
    static QTemporaryDir folder;
    static MRVSettings *settings =
        new MRVSettings(folder.filePath(QStringLiteral("settings")), QSettings::IniFormat);
    return *settings;
}

} // namespace

// What the store uses of the rest, but not for what is read here.
QTextCharFormat MRVTextFormat::setFontHinting(const QTextCharFormat &format, bool)
{
    return format;
}

QByteArray MRVGuiUtil::toByteArray(const QImage &, const char *, int)
{
    return QByteArray();
}

QImage MRVGuiUtil::toImage(const QByteArray &, const char *)
{
    return QImage();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    QString error;
    const MRVTextPresetScheme scheme = MRVTextPresetScheme::fromByteArray(bytes, &error);
    // What was read can be written and read again, though a strange brush may change in detail.
    const QByteArray stored = MRVTextPresetScheme::toByteArray(scheme);
    error.clear();
    const MRVTextPresetScheme again = MRVTextPresetScheme::fromByteArray(stored, &error);
    require(error.isEmpty() && again.names() == scheme.names());
    for (const QString &name : scheme.names()) {
        const MRVTextPreset one = scheme.preset(name);
        const MRVTextPreset other = again.preset(name);
        require(one.applyFlags() == other.applyFlags());
        require(properties(one.charFormat()) == properties(other.charFormat()));
        require(properties(one.blockFormat()) == properties(other.blockFormat()));
    }

    store().setValue(key, bytes);
    const QStringList names = store().textPresets(key, {}).names();
    require(names == scheme.names());
    require(store().textCharFormat(key, {}).isCharFormat());
    require(store().textBlockFormat(key, {}).isBlockFormat());
    store().shortcutScheme(key, {});
    return 0;
}

// Feeds arbitrary bytes to the readers of stored forms; the first byte chooses the form. Whatever
// was read must be stored and read again as it was.

#include "guiapplication.h"

#include "autoreplace/mrvautoreplacelist.h"
#include "core/mcoretype.h"
#include "engines/mrvimportexportconfig.h"
#include "exchange/mrvfernwickdropitem.h"
#include "exchange/mrvreference.h"
#include "input/mrvvariantguard.h"
#include "presets/mrvtextpresetscheme.h"
#include "shortcuts/mrvshortcutcheck.h"
#include "shortcuts/mrvshortcutscheme.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvmimetypes.h"

#include <QMimeData>

#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

QList<int> properties(const QTextFormat &format)
{
    return format.properties().keys();
}

MRVAutoReplace bestOf(const MRVAutoReplaceList &list, const QString &text)
{
    MRVAutoReplace best;
    int length = 0;
    for (const MRVAutoReplace &entry : list) {
        if (entry.enabled && entry.match.size() > length && text.endsWith(entry.match)) {
            best = entry;
            length = entry.match.size();
        }
    }
    return best;
}

void autoReplace(const QByteArray &bytes)
{
    MRVAutoReplaceList list;
    list.fromByteArray(bytes);
    MRVAutoReplaceList again;
    again.fromByteArray(list.toByteArray());
    require(again == list);
    if (list.size() < 1000 && bytes.size() < 10000) {
        QString all;
        for (const MRVAutoReplace &entry : qAsConst(list)) {
            all += entry.replacement + entry.match;
            require(list.bestMatch(all) == bestOf(list, all));
        }
    }
}

void engines(const QByteArray &bytes)
{
    const auto map = MRVImportExportConfig::toFormatEngines(bytes);
    const auto again =
        MRVImportExportConfig::toFormatEngines(MRVImportExportConfig::toByteArray(map));
    for (auto it = again.cbegin(); it != again.cend(); ++it) {
        require(map.value(it.key()) == it.value());
    }
}

// A strange brush may change in detail.
void presets(const QByteArray &bytes)
{
    const auto scheme = MRVTextPresetScheme::fromByteArray(bytes);
    QString error;
    const auto again =
        MRVTextPresetScheme::fromByteArray(MRVTextPresetScheme::toByteArray(scheme), &error);
    require(error.isEmpty());
    require(again.names() == scheme.names());
    for (const QString &name : scheme.names()) {
        const MRVTextPreset one = scheme.preset(name);
        const MRVTextPreset other = again.preset(name);
        require(one.applyFlags() == other.applyFlags());
        require(properties(one.charFormat()) == properties(other.charFormat()));
        require(properties(one.blockFormat()) == properties(other.blockFormat()));
    }
}

void shortcuts(const QByteArray &bytes)
{
    const auto scheme = MRVShortcutScheme::fromByteArray(bytes);
    require(MRVShortcutScheme::fromByteArray(scheme.toByteArray()) == scheme);
    const MRVShortcutScheme merged(bytes, true);
    require(merged.shortcuts().size() == MRVShortcutScheme::morvane().shortcuts().size());
    for (const auto &conflict : MRVShortcutCheck::conflicts(scheme)) {
        require(!MRVShortcutCheck::describe(conflict, scheme).isEmpty());
    }
}

void formats(const QByteArray &bytes)
{
    const QTextCharFormat charFormat = MRVTextFormat::toCharFormat(bytes);
    const QTextBlockFormat blockFormat = MRVTextFormat::toBlockFormat(bytes);
    require(charFormat.isCharFormat());
    require(blockFormat.isBlockFormat());
    const auto again = MRVTextFormat::toCharFormat(MRVTextFormat::toByteArray(charFormat));
    require(properties(again) == properties(charFormat));
}

void references(const QByteArray &bytes)
{
    // An address that is none changes once more, as Qt puts it right.
    const auto list = MRVReference::toReferenceList(bytes);
    require(MRVReference::toReferenceList(MRVReference::toByteArray(list)).size() == list.size());
    QMimeData mime;
    mime.setData(QString::fromLatin1(MRV::ProjectNodeMimeType), bytes);
    MRV::parseProjectNodeMimeType(&mime);
}

void dropItems(const QByteArray &bytes)
{
    const auto item = MCoreType::fromByteArray<MRVFernwickDropItem>(bytes);
    require(!MCoreType::toByteArray(item).isEmpty());
}

// What the guard lets through, it lets through again, and Qt reads it.
void settings(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    const QByteArray value = MRVVariantGuard::take(stream, MRVVariantGuard::SettingsValue);
    QDataStream again(value);
    require(MRVVariantGuard::take(again, MRVVariantGuard::SettingsValue) == value);
    QDataStream checked(value);
    checked.setVersion(QDataStream::Qt_4_0);
    QVariant read;
    checked >> read;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static constexpr void (*Forms[])(const QByteArray &) = {
        autoReplace, engines, presets, shortcuts, formats, references, dropItems, settings};
    if (size > 0) {
        const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
        Forms[data[0] % std::size(Forms)](bytes);
    }
    return 0;
}

#include "options/mrvoptionstables_p.h"

#include "shortcuts/mrvshortcutcheck.h"
#include "shortcuts/mrvshortcutscheme.h"
#include "util/mrvfailure.h"

#include "settings/mrvsettingsvalue.h"

#include <QTextCodec>

using namespace MRVOptionsTables;

namespace {

// Stored words, so that a file can be read by a person and an enumeration can be reordered; the
// choice at index i carries the enumerator of value i.
QString wordOf(const Choices &choices, int value, int fallback)
{
    return choices.at(uint(value) < uint(choices.size()) ? value : fallback).value.toString();
}

int valueOf(const Choices &choices, const QString &text, int fallback)
{
    const int index = wordsOf(choices).indexOf(text);
    return index < 0 ? fallback : index;
}

// In the name of a key, "/" parts groups, and which slashes are one differs between systems.
QString pdfKey(const QString &key, QString name)
{
    if (name.isEmpty()) {
        return key;
    }
    name.replace(u'%', QLatin1String("%25"));
    name.replace(u'/', QLatin1String("%2F"));
    name.replace(u'\\', QLatin1String("%5C"));
    return key + u'/' + name;
}

QPair<QString, QString> halves(const QString &text)
{
    const int half = text.size() / 2;
    return {text.left(half), text.mid(half)};
}

} // namespace

QString MRVOptions::toString(CorkCornerStyle style)
{
    return wordOf(cornerStyles(), style, RoundedCorners);
}

QString MRVOptions::toString(CorkLabelIndicator indicator)
{
    return wordOf(labelIndicators(), indicator, PinIndicator);
}

QString MRVOptions::toString(SpaceDoubleClickMode mode)
{
    return wordOf(spaceDoubleClickModes(), mode, SpaceDoubleClickCreatesCard);
}

MRVOptions::CorkCornerStyle MRVOptions::toCornerStyle(const QString &text)
{
    return CorkCornerStyle(valueOf(cornerStyles(), text, RoundedCorners));
}

MRVOptions::CorkLabelIndicator MRVOptions::toLabelIndicator(const QString &text)
{
    return CorkLabelIndicator(valueOf(labelIndicators(), text, PinIndicator));
}

MRVOptions::SpaceDoubleClickMode MRVOptions::toSpaceDoubleClickMode(const QString &text)
{
    return SpaceDoubleClickMode(
        valueOf(spaceDoubleClickModes(), text, SpaceDoubleClickCreatesCard));
}

MRVOptions::CorkCornerStyle MRVOptions::cornerStyle() const
{
    return toCornerStyle(value(IndexCardCornerStyle));
}

bool MRVOptions::setCornerStyle(CorkCornerStyle style)
{
    return setValue(IndexCardCornerStyle, toString(style));
}

MRVOptions::CorkLabelIndicator MRVOptions::labelIndicator() const
{
    return toLabelIndicator(value(LabelIndicator));
}

bool MRVOptions::setLabelIndicator(CorkLabelIndicator indicator)
{
    return setValue(LabelIndicator, toString(indicator));
}

MRVOptions::SpaceDoubleClickMode MRVOptions::spaceDoubleClickMode() const
{
    return toSpaceDoubleClickMode(value(SpaceDoubleClick));
}

bool MRVOptions::setSpaceDoubleClickMode(SpaceDoubleClickMode mode)
{
    return setValue(SpaceDoubleClick, toString(mode));
}

MRV::SeparatorType MRVOptions::separatorType(MRV::SeparatorContext context) const
{
    const SeparatorRow *row = rowOf({context, SeparatorSetting::Type});
    if (!row) {
        return MRV::EmptyLine;
    }
    const QVariant stored = value(row->keyText());
    return MRV::toSeparatorType(stored.isValid() ? stored.toString()
                                                 : QString::fromUtf8(row->value.utf8));
}

bool MRVOptions::setSeparator(MRV::SeparatorContext context, MRV::SeparatorType type,
                              const QString &custom)
{
    const SeparatorRow *typeRow = rowOf({context, SeparatorSetting::Type});
    const SeparatorRow *customRow = rowOf({context, SeparatorSetting::Custom});
    if (!typeRow || type < MRV::SingleReturn || type > MRV::CustomSeparator) {
        return false;
    }
    if (!custom.isNull() && !setValue(customRow->keyText(), custom)) {
        return false;
    }
    return setValue(typeRow->keyText(), QString::fromLatin1(MRV::toString(type)));
}

QString MRVOptions::customSeparator(MRV::SeparatorContext context) const
{
    const SeparatorRow *row = rowOf({context, SeparatorSetting::Custom});
    return row ? mrvToText(value(row->keyText(), QString::fromUtf8(row->value.utf8))) : QString();
}

QPair<QString, QString> MRVOptions::singleQuotes() const
{
    const QString text = value(SingleQuotesSubstitution);
    return halves(isQuotePair(text) ? text : defaultValue(SingleQuotesSubstitution));
}

QPair<QString, QString> MRVOptions::doubleQuotes() const
{
    const QString text = value(DoubleQuotesSubstitution);
    return halves(isQuotePair(text) ? text : defaultValue(DoubleQuotesSubstitution));
}

QByteArray MRVOptions::pdfSettings(const QString &name) const
{
    return value(pdfKey(keyText(PdfSettings), name)).toByteArray();
}

QStringList MRVOptions::pdfSettingsNames() const
{
    const QString prefix = keyText(PdfSettings) + u'/';
    QStringList names;
    const QStringList keys = allKeys();
    for (const QString &key : keys) {
        if (!key.startsWith(prefix)) {
            continue;
        }
        QString name = key.mid(prefix.size());
        name.replace(QLatin1String("%5C"), QLatin1String("\\"));
        name.replace(QLatin1String("%2F"), QLatin1String("/"));
        name.replace(QLatin1String("%25"), QLatin1String("%"));
        names.append(name);
    }
    names.sort();
    return names;
}

void MRVOptions::removePdfSettings(const QString &name)
{
    if (!name.isEmpty()) {
        remove(pdfKey(keyText(PdfSettings), name));
    }
}

bool MRVOptions::setPdfSettings(const QString &name, const QByteArray &settings)
{
    return setValue(pdfKey(keyText(PdfSettings), name), settings);
}

MRVAutoReplaceList MRVOptions::autoReplaceList(MRVErrorSink error) const
{
    MRVAutoReplaceList list;
    const QByteArray stored = value(keyText(SubstitutionList)).toByteArray();
    MRVError reason;
    list.fromByteArray(stored, &reason);
    if (reason && !stored.isEmpty()) {
        MRV::fail(error, reason.kind, tr("the list in %1: %2").arg(fileName(), reason.text));
    }
    // The default list holds the ordinals already.
    if (list.isEmpty()) {
        return MRVAutoReplaceList::defaultReplacements();
    }
    MRVAutoReplaceList::appendMissingOrdinals(&list);
    return list;
}

MRVShortcutScheme MRVOptions::shortcutScheme(MRVErrorSink error) const
{
    // value() gives the default in place of what cannot be read.
    const QVariant stored = value(keyText(DefaultShortcutScheme));
    if (!stored.isValid()) {
        return MRVShortcutScheme::morvane();
    }
    MRVError reason;
    const auto scheme = MRVShortcutScheme::fromByteArray(stored.toByteArray(), &reason);
    if (reason) {
        MRV::fail(error, reason.kind,
                  tr("the shortcut scheme in %1: %2").arg(fileName(), reason.text));
    }
    return scheme;
}

bool MRVOptions::setShortcuts(const ShortcutKeys &keys, Conflicts conflicts, MRVErrorSink error)
{
    MRVError damage;
    MRVShortcutScheme scheme = shortcutScheme(&damage);
    if (damage) {
        return MRV::fail(error, damage.kind, tr("%1; it can be reset").arg(damage.text));
    }
    scheme.mergeMissingShortcuts(MRVShortcutScheme::morvane().shortcuts());
    for (const auto &[id, sequence] : keys) {
        scheme.setShortcut(id, sequence);
    }
    for (const auto &[id, sequence] : keys) {
        const auto found = MRVShortcutCheck::conflicts(scheme, id, sequence);
        if (conflicts == Conflicts::Refuse && !found.isEmpty()) {
            return MRV::fail(error, MRVShortcutCheck::describe(found.constFirst(), scheme));
        }
    }
    return setShortcutScheme(keyText(DefaultShortcutScheme), scheme)
        || MRV::fail(error, tr("%1 cannot be written").arg(fileName()));
}

bool MRVOptions::setAutoReplaceList(const MRVAutoReplaceList &list)
{
    return setValue(SubstitutionList, list.toByteArray());
}

QByteArray MRVOptions::defaultTextEncoding() const
{
    const QByteArray codec = value(ImportDefaultCodec);
    return QTextCodec::codecForName(codec) ? codec : defaultValue(ImportDefaultCodec);
}

bool MRVOptions::setDefaultTextEncoding(const QByteArray &codec)
{
    return setValue(ImportDefaultCodec, codec);
}

MRVImportExport::UrlImportType MRVOptions::defaultImportUrlType() const
{
    return MRVImportExport::toUrlImportType(value(ImportDefaultUrlType));
}

bool MRVOptions::setDefaultImportUrlType(MRVImportExport::UrlImportType type)
{
    return setValue(ImportDefaultUrlType, MRVImportExport::toByteArray(type));
}

QString MRVOptions::backupPath() const
{
    const QString path = value(BackupsLocation);
    return path.isEmpty() ? defaultBackupPath() : path;
}

void MRVOptions::resetAllWarnings()
{
    // The application state shares the file, but not the group that is open here.
    setInFile(QStringLiteral("Options/Warnings"), QVariant());
    const QStringList keys = warningKeys();
    for (const QString &key : keys) {
        setInFile(key, true);
    }
}

QStringList MRVOptions::warningKeys()
{
    QStringList keys;
    for (const char *key : warningRows()) {
        keys.append(QLatin1String(key));
    }
    return keys;
}

#include "options/mrvoptionstables_p.h"

#include "shortcuts/mrvshortcutscheme.h"

#include "settings/mrvsettingsvalue.h"

#include <QTextCodec>

using namespace MRVOptionsTables;

namespace {

// Stored words, so that a file can be read by a person and an enumeration can be reordered;
// row i carries the enumerator of value i.
constexpr const char *CornerStyles[] = {"SquareCorners", "RoundedCorners"};
constexpr const char *LabelIndicators[] = {"NoLabelIndicator", "PinIndicator", "CornerIndicator",
                                           "StripeIndicator"};
constexpr const char *SpaceDoubleClickModes[] = {
    "SpaceDoubleClickDoesNothing", "SpaceDoubleClickCreatesCard", "SpaceDoubleClickOpensParent"};

static_assert(std::size(CornerStyles) == MRVOptions::RoundedCorners + 1);
static_assert(std::size(LabelIndicators) == MRVOptions::StripeIndicator + 1);
static_assert(std::size(SpaceDoubleClickModes) == MRVOptions::SpaceDoubleClickOpensParent + 1);

template<std::size_t Size>
QString wordOf(const char *const (&words)[Size], int value, int fallback)
{
    return QString::fromLatin1(words[uint(value) < Size ? value : fallback]);
}

template<std::size_t Size>
int valueOf(const char *const (&words)[Size], const QString &text, int fallback)
{
    for (std::size_t i = 0; i < Size; ++i) {
        if (text == QLatin1String(words[i])) {
            return int(i);
        }
    }
    return fallback;
}

template<std::size_t Size>
QStringList listOf(const char *const (&words)[Size])
{
    QStringList list;
    for (const char *word : words) {
        list.append(QString::fromLatin1(word));
    }
    return list;
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

const SeparatorRow *separatorRow(MRV::SeparatorContext context)
{
    for (const SeparatorRow &row : separators()) {
        if (row.context == context) {
            return &row;
        }
    }
    return nullptr;
}

QPair<QString, QString> halves(const QString &text)
{
    const int half = text.size() / 2;
    return {text.left(half), text.mid(half)};
}

} // namespace

QStringList MRVOptionsTables::cornerStyleWords()
{
    return listOf(CornerStyles);
}

QStringList MRVOptionsTables::labelIndicatorWords()
{
    return listOf(LabelIndicators);
}

QStringList MRVOptionsTables::spaceDoubleClickWords()
{
    return listOf(SpaceDoubleClickModes);
}

QStringList MRVOptionsTables::separatorTypeWords()
{
    QStringList words;
    for (const auto type : {MRV::SingleReturn, MRV::EmptyLine, MRV::CustomSeparator}) {
        words.append(QString::fromLatin1(MRV::toString(type)));
    }
    return words;
}

QString MRVOptions::toString(CorkCornerStyle style)
{
    return wordOf(CornerStyles, style, RoundedCorners);
}

QString MRVOptions::toString(CorkLabelIndicator indicator)
{
    return wordOf(LabelIndicators, indicator, PinIndicator);
}

QString MRVOptions::toString(SpaceDoubleClickMode mode)
{
    return wordOf(SpaceDoubleClickModes, mode, SpaceDoubleClickCreatesCard);
}

MRVOptions::CorkCornerStyle MRVOptions::toCornerStyle(const QString &text)
{
    return CorkCornerStyle(valueOf(CornerStyles, text, RoundedCorners));
}

MRVOptions::CorkLabelIndicator MRVOptions::toLabelIndicator(const QString &text)
{
    return CorkLabelIndicator(valueOf(LabelIndicators, text, PinIndicator));
}

MRVOptions::SpaceDoubleClickMode MRVOptions::toSpaceDoubleClickMode(const QString &text)
{
    return SpaceDoubleClickMode(valueOf(SpaceDoubleClickModes, text, SpaceDoubleClickCreatesCard));
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
    const SeparatorRow *row = separatorRow(context);
    if (!row) {
        return MRV::EmptyLine;
    }
    const QVariant stored = value(QString::fromLatin1(row->typeKey));
    return stored.isValid() ? MRV::toSeparatorType(stored.toString()) : row->type;
}

bool MRVOptions::setSeparator(MRV::SeparatorContext context, MRV::SeparatorType type,
                              const QString &custom)
{
    const SeparatorRow *row = separatorRow(context);
    if (!row || type < MRV::SingleReturn || type > MRV::CustomSeparator) {
        return false;
    }
    if (!custom.isNull() && !setValue(QString::fromLatin1(row->customKey), custom)) {
        return false;
    }
    return setValue(QString::fromLatin1(row->typeKey), QString::fromLatin1(MRV::toString(type)));
}

QString MRVOptions::customSeparator(MRV::SeparatorContext context) const
{
    const SeparatorRow *row = separatorRow(context);
    return row ? mrvToText(value(QString::fromLatin1(row->customKey), defaultCustomSeparator()))
               : QString();
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

MRVAutoReplaceList MRVOptions::autoReplaceList(QString *error) const
{
    MRVAutoReplaceList list;
    const QByteArray stored = value(keyText(SubstitutionList)).toByteArray();
    QString reason;
    if (error && !stored.isEmpty()) {
        list.fromByteArray(stored, &reason);
    }
    if (!reason.isEmpty()) {
        *error = tr("the list in %1: %2").arg(fileName(), reason);
    }
    list.fromByteArray(value(keyText(SubstitutionList)).toByteArray());
    // The default list holds the ordinals already.
    if (list.isEmpty()) {
        return MRVAutoReplaceList::defaultReplacements();
    }
    MRVAutoReplaceList::appendMissingOrdinals(&list);
    return list;
}

MRVShortcutScheme MRVOptions::shortcutScheme(QString *error) const
{
    // value() gives the default in place of what cannot be read.
    const QVariant stored = value(keyText(DefaultShortcutScheme));
    if (!stored.isValid()) {
        return MRVShortcutScheme::morvane();
    }
    QString reason;
    const auto scheme = MRVShortcutScheme::fromByteArray(stored.toByteArray(), &reason);
    if (error && !reason.isEmpty()) {
        *error = tr("the shortcut scheme in %1: %2").arg(fileName(), reason);
    }
    return scheme;
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

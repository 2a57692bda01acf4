#include "presets/mrvtextpresetscheme.h"

#include "textformat/mrvtextformat.h"
#include "util/mrvfailure.h"

#include "core/mcoretype.h"
#include "core/mrvcheckedstream.h"
#include "core/mrvcoreutil.h"

#include <QDataStream>
#include <QFont>
#include <QIODevice>

namespace {

constexpr qint32 Version = 1;

struct DefaultRow
{
    const char *name;
    int size; ///< in points
    int weight; ///< 0 leaves it alone
    Qt::AlignmentFlag alignment;
    int indent; ///< of the whole paragraph on both sides, in points; like the rest
    int firstLine;
    int above;
    int below;
    bool isDouble; ///< double line spacing
    bool isPreserved;
};

// Sizes and distances are those of a manuscript: 12 points, and indents of half an inch.
// clang-format off
constexpr DefaultRow DefaultRows[] = {
    {"Block Quote",                   12, 0,           Qt::AlignLeft,    36, 0,  6,  6,  false, false},
    {"Body",                          12, 0,           Qt::AlignLeft,    0,  36, 0,  0,  false, false},
    {"Essay Block Quote (Preserved)", 12, 0,           Qt::AlignLeft,    36, 0,  0,  0,  true,  true},
    {"Heading",                       16, QFont::Bold, Qt::AlignLeft,    0,  0,  18, 6,  false, false},
    {"Sub-heading",                   13, QFont::Bold, Qt::AlignLeft,    0,  0,  12, 3,  false, false},
    {"Title",                         24, QFont::Bold, Qt::AlignHCenter, 0,  0,  0,  24, false, false},
};
// clang-format on

MRVTextPreset defaultPreset(const DefaultRow &row)
{
    // No setFont(), which would set twenty properties more.
    QTextCharFormat charFormat;
    charFormat.setFontPointSize(row.size);
    if (row.weight != 0) {
        charFormat.setFontWeight(row.weight);
    }
    if (row.isPreserved) {
        charFormat.setProperty(MRVTextFormat::PreserveFormatProperty, true);
    }
    QTextBlockFormat blockFormat;
    blockFormat.setAlignment(row.alignment);
    blockFormat.setLeftMargin(row.indent);
    blockFormat.setRightMargin(row.indent);
    blockFormat.setTextIndent(row.firstLine);
    blockFormat.setTopMargin(row.above);
    blockFormat.setBottomMargin(row.below);
    blockFormat.setProperty(MRVTextFormat::BlockSpacing, row.isDouble ? 24.0 : 12.0);
    blockFormat.setProperty(MRVTextFormat::BlockBaseSpacing, 12.0);
    return {charFormat, blockFormat,
            MRVTextPreset::ApplyCharFormat | MRVTextPreset::ApplyBlockFormat};
}

} // namespace

void MRVTextPresetScheme::setPreset(const QString &name, const MRVTextPreset &preset)
{
    m_presets.insert(name, preset);
}

bool MRVTextPresetScheme::deletePreset(const QString &name)
{
    return m_presets.remove(name) > 0;
}

bool MRVTextPresetScheme::renamePreset(const QString &oldName, const QString &newName)
{
    if (!contains(oldName) || (newName != oldName && contains(newName))) {
        return false;
    }
    const MRVTextPreset preset = m_presets.take(oldName);
    m_presets.insert(newName, preset);
    return true;
}

bool MRVTextPresetScheme::isStoredForm(const QByteArray &bytes)
{
    QString error;
    fromByteArray(bytes, &error);
    return error.isEmpty() && !bytes.isEmpty();
}

QByteArray MRVTextPresetScheme::toByteArray(const MRVTextPresetScheme &scheme)
{
    return MCoreType::toByteArray(scheme);
}

MRVTextPresetScheme MRVTextPresetScheme::fromByteArray(const QByteArray &bytes, MRVErrorSink error)
{
    MRVTextPresetScheme scheme;
    if (bytes.isEmpty()) {
        return scheme;
    }
    // Not through MCoreType, which gives nothing at all where something is damaged.
    QDataStream stream(bytes);
    stream.setVersion(MCoreType::StreamVersion);
    stream >> scheme;
    if (stream.status() != QDataStream::Ok) {
        MRV::fail(error, MRVErrorKind::Damaged,
                  tr("The text presets are damaged, or were stored by another version"));
    }
    return scheme;
}

MRVTextPresetScheme MRVTextPresetScheme::defaultScheme()
{
    MRVTextPresetScheme scheme;
    for (const DefaultRow &row : DefaultRows) {
        scheme.setPreset(QLatin1String(row.name), defaultPreset(row));
    }
    return scheme;
}

void MRVTextPresetScheme::merge(const MRVTextPresetScheme &other)
{
    for (auto it = other.m_presets.cbegin(); it != other.m_presets.cend(); ++it) {
        m_presets.insert(it.key(), it.value());
    }
}

MRVTextPresetScheme MRVTextPresetScheme::load(const QString &path, MRVErrorSink error)
{
    MRVError unreadable;
    MRVError damage;
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, &unreadable);
    const MRVTextPresetScheme scheme = fromByteArray(bytes, &damage);
    if (unreadable) {
        MRV::fail(error, unreadable);
    } else if (bytes.isEmpty() || damage) {
        MRV::fail(error, MRVErrorKind::Damaged,
                  tr("%1 is not a preset file, or is damaged").arg(path));
    }
    return scheme;
}

bool MRVTextPresetScheme::save(const QString &path, MRVErrorSink error) const
{
    return MRVCoreUtil::WriteBinaryFile(toByteArray(*this), path, error);
}

QDataStream &operator<<(QDataStream &stream, const MRVTextPresetScheme &scheme)
{
    const QStringList names = scheme.names();
    stream << Version << qint32(names.size());
    for (const QString &name : names) {
        stream << name << scheme.preset(name);
    }
    return stream;
}

QDataStream &operator>>(QDataStream &stream, MRVTextPresetScheme &scheme)
{
    MRVCheckedStream in(&stream);
    scheme = MRVTextPresetScheme();
    qint32 version = 0;
    qint32 count = 0;
    if (!in.read(&version)) {
        return stream;
    }
    if (version != Version || (in.read(&count) && count < 0)) {
        in.fail();
    }
    // Nothing is reserved for the count; the data ends before a wrong one does.
    for (; count > 0 && in.isOk(); --count) {
        QString name;
        MRVTextPreset preset;
        if (in.read(&name)) {
            stream >> preset;
        }
        if (in.isOk()) {
            scheme.setPreset(name, preset);
        }
    }
    return stream;
}

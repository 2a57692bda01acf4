#include "presets/mrvtextpreset.h"

#include "core/mrvcheckedstream.h"
#include "textformat/mrvtextformat.h"

#include <QDataStream>

namespace {

constexpr qint32 Version = 1;

// Formats with tab stops are unequal to Qt until the type of tab stops is registered, which storing
// one does.
template<typename Format>
bool isStoredAlike(const Format &a, const Format &b)
{
    return a == b || MRVTextFormat::toByteArray(a) == MRVTextFormat::toByteArray(b);
}

template<typename Format>
void writeFormat(QDataStream &stream, const Format &format)
{
    const QByteArray bytes = MRVTextFormat::toByteArray(format);
    stream.writeRawData(bytes.constData(), bytes.size());
}

} // namespace

MRVTextPreset::MRVTextPreset(const QTextCharFormat &charFormat, const QTextBlockFormat &blockFormat,
                             ApplyFlags applyFlags)
    : m_charFormat(charFormat)
    , m_blockFormat(blockFormat)
    , m_applyFlags(applyFlags)
{
}

bool operator==(const MRVTextPreset &a, const MRVTextPreset &b)
{
    return a.m_applyFlags == b.m_applyFlags && isStoredAlike(a.m_charFormat, b.m_charFormat)
        && isStoredAlike(a.m_blockFormat, b.m_blockFormat);
}

QDataStream &operator<<(QDataStream &stream, const MRVTextPreset &preset)
{
    stream << Version << qint32(preset.applyFlags());
    writeFormat(stream, preset.charFormat());
    writeFormat(stream, preset.blockFormat());
    return stream;
}

QDataStream &operator>>(QDataStream &stream, MRVTextPreset &preset)
{
    MRVCheckedStream in(&stream);
    qint32 version = 0;
    if (in.read(&version) && version != Version) {
        in.fail();
    }
    qint32 flags = 0;
    QTextCharFormat charFormat;
    QTextBlockFormat blockFormat;
    if (in.read(&flags) && MRVTextFormat::read(stream, &charFormat)
        && MRVTextFormat::read(stream, &blockFormat)) {
        preset = MRVTextPreset(charFormat, blockFormat, MRVTextPreset::ApplyFlags(QFlag(flags)));
    }
    return stream;
}

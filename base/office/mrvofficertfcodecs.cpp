#include "office/mrvofficertfcodecs_p.h"

#include <QTextCodec>

#include <algorithm>

namespace {

constexpr int Western = 1252;

// The code page of a character set, as fonts number these.
constexpr struct
{
    int set;
    int page;
} charsets[] = {
    {77, 10000}, {128, 932},  {129, 949},  {134, 936},  {136, 950},  {161, 1253},
    {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251},
    {222, 874},  {238, 1250}, {254, 437},  {255, 850},
};

// The others are "windows-1250" and so on.
constexpr struct
{
    int page;
    const char *name;
} codecNames[] = {
    {437, "IBM437"},  {850, "IBM850"},      {852, "IBM852"},  {866, "IBM866"},
    {874, "TIS-620"}, {932, "CP932"},       {936, "GBK"},     {949, "windows-949"},
    {950, "Big5"},    {10000, "macintosh"}, {65001, "UTF-8"},
};

QTextCodec *codecOf(int page)
{
    if (page == Western) {
        return nullptr;
    }
    for (const auto &row : codecNames) {
        if (row.page == page) {
            return QTextCodec::codecForName(row.name);
        }
    }
    return QTextCodec::codecForName("windows-" + QByteArray::number(page));
}

QTextCodec *westernCodec()
{
    return QTextCodec::codecForName("windows-1252");
}

} // namespace

void MRVRtfCodecs::open()
{
    m_groups.append(m_group);
}

void MRVRtfCodecs::close()
{
    m_group = m_groups.isEmpty() ? Group() : m_groups.takeLast();
}

void MRVRtfCodecs::read(const MRVRtfControl &control)
{
    const QByteArray &word = control.word;
    if (word == "fonttbl") {
        m_group.isFontTable = true;
    } else if (word == "f") {
        m_group.font = control.number;
    } else if (word == "plain") {
        m_group.font = m_font;
    } else if (word == "deff") {
        m_font = m_group.font = control.number;
    } else if (word == "fcharset" && m_group.isFontTable) {
        for (const auto &row : charsets) {
            if (row.set == control.number) {
                m_fonts.insert(m_group.font, codecOf(row.page));
            }
        }
    } else if (word == "uc") {
        m_group.substitutes = qBound(0, control.number, 10);
    } else if (word == "ansicpg") {
        m_codec = codecOf(control.number);
    } else if (word == "mac" || word == "pc" || word == "pca") {
        m_codec = codecOf(word == "mac" ? 10000 : word == "pc" ? 437 : 850);
    }
}

bool MRVRtfCodecs::isRead(const MRVRtfControl &control)
{
    constexpr const char *words[] = {"f", "plain", "deff", "ansicpg", "mac", "pc", "pca"};
    return std::any_of(std::begin(words), std::end(words),
                       [&control](const char *word) { return control.word == word; });
}

QTextCodec *MRVRtfCodecs::codec() const
{
    return m_fonts.value(m_group.font, m_codec);
}

QString MRVRtfCodecs::decoded(const QByteArray &bytes) const
{
    return (codec() ? codec() : westernCodec())->toUnicode(bytes);
}

bool MRVRtfCodecs::isIncomplete(const QByteArray &bytes) const
{
    const QTextCodec *const used = codec();
    if (!used) {
        return false;
    }
    QTextCodec::ConverterState state;
    const QString text = used->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.remainingChars > 0 || (!bytes.isEmpty() && text.isEmpty());
}

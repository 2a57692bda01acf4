#include "textformat/mrvtextformat.h"
#include "textformat/mrvformatspread.h"
#include "textformat/mrvtextformat_p.h"

#include <QColor>
#include <QFont>
#include <QRegExp>
#include <QTextCursor>
#include <QTextDocument>

namespace {

// Qt's marks around the text of a frame; it names them in private headers only.
constexpr QChar BeginningOfFrame(0xfdd0);
constexpr QChar EndOfFrame(0xfdd1);

enum class Default { Int, Double, Bool, String, List, Color };

struct DefaultRow
{
    int property;
    Default type;
    int value;
};

// clang-format off
constexpr DefaultRow DefaultRows[] = {
    {QTextFormat::CssFloat,                          Default::Int,    0},
    {QTextFormat::LayoutDirection,                   Default::Int,    0},
    {QTextFormat::OutlinePen,                        Default::Int,    0},
    {QTextFormat::BackgroundBrush,                   Default::Int,    0},
    {QTextFormat::ForegroundBrush,                   Default::Int,    0},
    {QTextFormat::BackgroundImageUrl,                Default::String, 0},
    {QTextFormat::BlockAlignment,                    Default::Int,    Qt::AlignLeft},
    {QTextFormat::BlockTopMargin,                    Default::Double, 0},
    {QTextFormat::BlockBottomMargin,                 Default::Double, 0},
    {QTextFormat::BlockLeftMargin,                   Default::Double, 0},
    {QTextFormat::BlockRightMargin,                  Default::Double, 0},
    {QTextFormat::TextIndent,                        Default::Double, 0},
    {QTextFormat::TabPositions,                      Default::List,   0},
    {MRVTextFormat::BlockLeftIndent,                 Default::Double, 0},
    {MRVTextFormat::BlockRightIndent,                Default::Double, 0},
    {QTextFormat::BlockTrailingHorizontalRulerWidth, Default::Int,    0},
    {MRVTextFormat::BlockSpacing,                    Default::Double, 0},
    {MRVTextFormat::BlockBaseSpacing,                Default::Double, 0},
    {QTextFormat::FontCapitalization,                Default::Int,    0},
    {QTextFormat::FontLetterSpacing,                 Default::Double, 0},
    {QTextFormat::FontWordSpacing,                   Default::Double, 0},
    {QTextFormat::FontStyleHint,                     Default::Int,    0},
    {QTextFormat::FontStyleStrategy,                 Default::Int,    0},
    {QTextFormat::FontKerning,                       Default::Bool,   0},
    {QTextFormat::FontFamily,                        Default::String, 0},
    {QTextFormat::FontPointSize,                     Default::Double, 0},
    {QTextFormat::FontWeight,                        Default::Int,    QFont::Normal},
    {QTextFormat::FontItalic,                        Default::Bool,   0},
    {QTextFormat::FontOverline,                      Default::Bool,   0},
    {QTextFormat::FontStrikeOut,                     Default::Bool,   0},
    {QTextFormat::FontFixedPitch,                    Default::Bool,   0},
    {QTextFormat::FontPixelSize,                     Default::Int,    0},
    {QTextFormat::TextUnderlineColor,                Default::Color,  0},
    {QTextFormat::TextVerticalAlignment,             Default::Int,    0},
    {QTextFormat::TextOutline,                       Default::Int,    0},
    {QTextFormat::TextUnderlineStyle,                Default::Int,    0},
    {QTextFormat::TextToolTip,                       Default::String, 0},
    {QTextFormat::IsAnchor,                          Default::Bool,   0},
    {QTextFormat::AnchorHref,                        Default::String, 0},
    {QTextFormat::AnchorName,                        Default::String, 0},
    {QTextFormat::PageBreakPolicy,                   Default::Int,    0},
    {MRVTextFormat::InlineAnnotationProperty,        Default::Bool,   0},
    {MRVTextFormat::InlineFootnoteProperty,          Default::Bool,   0},
    {MRVTextFormat::InspectorCommentProperty,        Default::Bool,   0},
    {MRVTextFormat::InspectorFootnoteProperty,       Default::Bool,   0},
};
// clang-format on

QVariant toVariant(const DefaultRow &row)
{
    switch (row.type) {
    case Default::Int:
        return row.value;
    case Default::Double:
        return double(row.value);
    case Default::Bool:
        return row.value != 0;
    case Default::String:
        return QString(QLatin1String(""));
    case Default::List:
        return QVariantList();
    case Default::Color:
        return QColor();
    }
    return QVariant();
}

// Qt writes a list of anchor names where older data has one name; an empty value may be of either
// type. A stored weight of 0 means normal.
QVariant comparable(int property, const QVariant &value)
{
    if (property == QTextFormat::AnchorName && value.userType() == QMetaType::QStringList
        && value.toStringList().isEmpty()) {
        return MRVTextFormat::defaultProperty(property);
    }
    if (property == QTextFormat::FontWeight && value.userType() == QMetaType::Int && value == 0) {
        return MRVTextFormat::defaultProperty(property);
    }
    return value;
}

bool coveredBy(const QMap<int, QVariant> &a, const QMap<int, QVariant> &b)
{
    for (auto it = a.cbegin(); it != a.cend(); ++it) {
        if (it.key() == QTextFormat::PageBreakPolicy || it.key() == MRVFormatSpread::Property) {
            continue;
        }
        const QVariant value = comparable(it.key(), it.value());
        const auto other = b.constFind(it.key());
        const bool same = other != b.cend() ? comparable(it.key(), other.value()) == value
                                            : value == MRVTextFormat::defaultProperty(it.key());
        if (!same) {
            return false;
        }
    }
    return true;
}

// Kept in a property of the document object, since a Qt document has only a default font.
constexpr char DefaultCharFormatName[] = "_mrv_defaultCharFormat";

QTextCharFormat attributesOf(const QFont &font)
{
    QTextCharFormat format;
    format.setProperty(QTextFormat::FontFamily, font.families().value(0, font.family()));
    if (font.pointSizeF() > 0.0) {
        format.setProperty(QTextFormat::FontPointSize, font.pointSizeF());
    } else {
        format.setProperty(QTextFormat::FontPixelSize, font.pixelSize());
    }
    if (font.weight() != QFont::Normal) {
        format.setProperty(QTextFormat::FontWeight, font.weight());
    }
    if (font.italic()) {
        format.setProperty(QTextFormat::FontItalic, true);
    }
    if (font.underline()) {
        format.setProperty(QTextFormat::TextUnderlineStyle, int(QTextCharFormat::SingleUnderline));
    }
    if (font.overline()) {
        format.setProperty(QTextFormat::FontOverline, true);
    }
    if (font.strikeOut()) {
        format.setProperty(QTextFormat::FontStrikeOut, true);
    }
    if (font.fixedPitch()) {
        format.setProperty(QTextFormat::FontFixedPitch, true);
    }
    if (font.capitalization() != QFont::MixedCase) {
        format.setProperty(QTextFormat::FontCapitalization, int(font.capitalization()));
    }
    return format;
}

} // namespace

QTextCharFormat MRVTextFormat::setFontHinting(const QTextCharFormat &format, bool hinting)
{
    QTextCharFormat copy = format;
    copy.setProperty(QTextFormat::FontHintingPreference,
                     int(hinting ? QFont::PreferFullHinting : QFont::PreferNoHinting));
    return copy;
}

bool MRVTextFormat::hasAnyProperty(const QTextCharFormat &format, const QSet<int> &properties)
{
    for (int property : properties) {
        if (format.hasProperty(property)) {
            return true;
        }
    }
    return false;
}

bool MRVTextFormat::equivalent(const QTextFormat &a, const QTextFormat &b)
{
    if (&a == &b) {
        return true;
    }
    mrvRegisterTextTypes();
    const QMap<int, QVariant> propertiesA = a.properties();
    const QMap<int, QVariant> propertiesB = b.properties();
    return coveredBy(propertiesA, propertiesB) && coveredBy(propertiesB, propertiesA);
}

bool MRVTextFormat::formatsMatch(const QTextCharFormat &format, const QTextCharFormat &pattern,
                                 bool compareValues)
{
    mrvRegisterTextTypes();
    const QMap<int, QVariant> wanted = pattern.properties();
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        if (!format.hasProperty(it.key())) {
            return false;
        }
        // The format's value stands on the left: QVariant converts the right one to its type.
        if (compareValues && !(format.property(it.key()) == it.value())) {
            return false;
        }
    }
    return true;
}

QVariant MRVTextFormat::defaultProperty(int property)
{
    for (const DefaultRow &row : DefaultRows) {
        if (row.property == property) {
            return toVariant(row);
        }
    }
    return QVariant();
}

QTextCharFormat MRVTextFormat::defaultCharFormat(const QTextDocument &document)
{
    const QVariant kept = document.property(DefaultCharFormatName);
    if (kept.userType() == QMetaType::QTextFormat) {
        return kept.value<QTextFormat>().toCharFormat();
    }
    return attributesOf(document.defaultFont());
}

void MRVTextFormat::setDefaultCharFormat(QTextDocument &document, const QTextCharFormat &format)
{
    document.setProperty(DefaultCharFormatName, QVariant::fromValue<QTextFormat>(format));
    QTextCharFormat drawn = format;
    // A stored 0 means normal weight; Qt would draw the thinnest weight.
    if (drawn.intProperty(QTextFormat::FontWeight) == 0) {
        drawn.clearProperty(QTextFormat::FontWeight);
    }
    // Qt draws with the first of the families, whatever the single family says.
    const QString family = drawn.property(QTextFormat::FontFamilies).toStringList().value(0);
    if (!family.isEmpty()) {
        drawn.setProperty(QTextFormat::FontFamily, family);
    }
    document.setDefaultFont(drawn.font());
}

int MRVTextFormat::morvaneLinkId(const QString &href)
{
    static const QRegExp pattern(QStringLiteral("^\\d+$"), Qt::CaseSensitive);
    // A QRegExp remembers its last match, so the shared one is copied.
    if (QRegExp(pattern).indexIn(href) < 0) {
        return -1;
    }
    bool ok = false;
    const int id = href.toInt(&ok);
    return ok ? id : -1;
}

bool MRVTextFormat::isMorvaneLink(const QString &href)
{
    return morvaneLinkId(href) >= 0;
}

bool MRVTextFormat::isMorvaneLink(const QTextCharFormat &format)
{
    return format.isAnchor() && isMorvaneLink(format.anchorHref());
}

bool MRVTextFormat::hasFrameInString(const QString &text)
{
    return text.contains(BeginningOfFrame) || text.contains(EndOfFrame);
}

bool MRVTextFormat::hasBlockInString(const QString &text)
{
    return text.contains(QChar(QChar::ParagraphSeparator)) || hasFrameInString(text);
}

QPair<QTextBlockFormat, QTextCharFormat> mrvDocumentFormatPair(const QTextDocument &document)
{
    // QTextCursor takes a non-const document; this cursor only reads.
    QTextCursor cursor(const_cast<QTextDocument *>(&document));
    cursor.movePosition(QTextCursor::Start);
    return {cursor.blockFormat(), cursor.charFormat()};
}

bool mrvIsPreserved(const QTextCharFormat &format)
{
    QTextCharFormat pattern;
    pattern.setProperty(MRVTextFormat::PreserveFormatProperty, true);
    return MRVTextFormat::formatsMatch(format, pattern, true);
}

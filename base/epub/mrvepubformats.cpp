#include "epub/mrvepubformats_p.h"

#include "textformat/mrvtextblockformat.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvnames.h"

#include <QFont>
#include <QGuiApplication>
#include <QMap>
#include <QTextDocument>

#include <cmath>

namespace {

constexpr QRgb Black = 0xff000000;
constexpr QRgb White = 0xffffffff;
constexpr QRgb Yellow = 0xffffff00;
constexpr QRgb LinkBlue = 0xff0000ff;
constexpr double PixelsPerPoint = 4 / 3.0;
constexpr double QuotePixels = 40; // of a quotation, on both sides
constexpr double IndentPixels = 40;

constexpr MRVEPubDirection directions[] = {
    {"ltr", "<span dir=\"ltr\">", "</span>", true},
    {"rtl", "<span dir=\"rtl\">", "</span>", true},
    {"auto", "<bdi>", "</bdi>", false},
    {"ltr-override", "<bdo dir=\"ltr\">", "</bdo>", true},
    {"rtl-override", "<bdo dir=\"rtl\">", "</bdo>", true},
};

uint bit(MRVEPubInline element)
{
    return 1U << int(element);
}

// 0 where the brush is none that a style sheet could name.
QRgb colorOf(const QBrush &brush)
{
    return brush.style() == Qt::SolidPattern && brush.color().alpha() > 0 ? brush.color().rgb() : 0;
}

double pixelsOf(const QFont &font)
{
    return font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * PixelsPerPoint;
}

QStringList familiesOf(const QTextCharFormat &format)
{
    const QStringList families = format.fontFamilies().toStringList();
    return families.isEmpty() && !format.fontFamily().isEmpty() ? QStringList(format.fontFamily())
                                                                : families;
}

// Names of fonts as CSS has them; generic ones are keywords.
QString familyText(const QStringList &families)
{
    QStringList names;
    for (const QString &family : families) {
        QString name = family;
        name.remove(u'"').remove(u'\\').remove(u'\n');
        const bool isKeyword = name == QLatin1String("serif") || name == QLatin1String("sans-serif")
            || name == QLatin1String("cursive") || name == QLatin1String("fantasy")
            || name == QLatin1String("monospace");
        names.append(isKeyword ? name : u'"' + name + u'"');
    }
    return names.join(QLatin1String(", "));
}

bool isFixedPitch(const QTextCharFormat &format)
{
    const QStringList families = familiesOf(format);
    return format.fontFixedPitch()
        || (!families.isEmpty() && families.constLast() == QLatin1String("monospace"));
}

int hundredths(double value)
{
    return int(std::lround(value * 100));
}

template<typename Key>
Key mostUsed(const QMap<Key, qint64> &uses, const Key &otherwise)
{
    Key best = otherwise;
    qint64 most = 0;
    for (auto it = uses.begin(); it != uses.end(); ++it) {
        if (it.value() > most) {
            most = it.value();
            best = it.key();
        }
    }
    return best;
}

} // namespace

MRVEPubFormats::MRVEPubFormats(const MRVDocumentFlow &flow, MRVEPubLooks *looks,
                               MRVEPubVersion version, const QString &language)
    : m_flow(flow)
    , m_looks(looks)
    , m_version(version)
    , m_language(language)
    , m_texts(flow.formats.size())
    , m_paragraphs(flow.formats.size())
{
    findBody();
}

void MRVEPubFormats::findBody()
{
    // Headings do not count, nor does code where there is other text.
    QVector<qint64> lengths(m_flow.formats.size());
    for (int i = 0; i < m_flow.count(); ++i) {
        const MRVFlowParagraph &paragraph = m_flow.paragraphs.at(i);
        const int end = m_flow.paragraphs.at(i + 1).firstFragment;
        for (int at = paragraph.firstFragment; at < end && paragraph.headingLevel == 0; ++at) {
            lengths[m_flow.fragments.at(at).format] += m_flow.fragments.at(at).length;
        }
    }
    const double defaultPixels = pixelsOf(m_flow.document.defaultFont());
    m_bodyPixels = defaultPixels > 0 ? defaultPixels : m_bodyPixels;
    QMap<int, qint64> sizes;
    QMap<QRgb, qint64> inks;
    QMap<QStringList, qint64> families;
    QMap<QStringList, qint64> allFamilies;
    for (int i = 0; i < lengths.size(); ++i) {
        if (lengths.at(i) > 0 && !m_flow.formats.at(i).isImageFormat()) {
            const QTextCharFormat format = m_flow.formats.at(i).toCharFormat();
            sizes[hundredths(pixels(format))] += lengths.at(i);
            inks[colorOf(format.foreground())] += lengths.at(i);
            families[familiesOf(format)] += isFixedPitch(format) ? 0 : lengths.at(i);
            allFamilies[familiesOf(format)] += lengths.at(i);
        }
    }
    m_bodyPixels = mostUsed(sizes, hundredths(m_bodyPixels)) / 100.0;
    m_ink = mostUsed(inks, Black);
    m_families = mostUsed(families, mostUsed(allFamilies, QStringList()));
}

double MRVEPubFormats::pixels(const QTextCharFormat &format) const
{
    constexpr double factors[] = {0.7, 0.8, 1, 1.2, 1.5, 2, 2.4};
    if (format.hasProperty(QTextFormat::FontPointSize)) {
        return format.fontPointSize() * PixelsPerPoint;
    }
    if (format.hasProperty(QTextFormat::FontPixelSize)) {
        return format.intProperty(QTextFormat::FontPixelSize);
    }
    const int step = qBound(-2, format.intProperty(QTextFormat::FontSizeAdjustment), 4);
    return m_bodyPixels * factors[step + 2];
}

const MRVEPubTextFormat &MRVEPubFormats::text(int index)
{
    MRVEPubTextFormat &format = m_texts[index];
    if (!format.isKnown) {
        format = readText(m_flow.formats.at(index).toCharFormat());
        if (!format.language.isEmpty() && !m_languages.contains(format.language)) {
            m_languages.append(format.language);
        }
    }
    return format;
}

MRVEPubTextFormat MRVEPubFormats::readText(const QTextCharFormat &format) const
{
    MRVEPubTextFormat text;
    text.isKnown = true;
    text.isPicture = format.isImageFormat();
    text.isComment = format.boolProperty(MRVTextFormat::InlineAnnotationProperty)
        || format.boolProperty(MRVTextFormat::InlineFootnoteProperty);
    text.hasNames = !format.anchorNames().isEmpty();
    text.address = format.anchorHref();
    text.linkTitle = format.toolTip();
    const QString language =
        MRV::languageTag(format.stringProperty(MRVTextFormat::LanguageProperty));
    text.language = language == m_language ? QString() : language;
    readDirections(format, &text);
    if (text.isPicture) {
        return text;
    }
    text.isBold = format.fontWeight() >= QFont::DemiBold;
    const auto add = [&text](bool is, MRVEPubInline element) {
        text.elements |= is ? bit(element) : 0;
    };
    add(format.fontItalic(), MRVEPubInline::Emphasis);
    add(isFixedPitch(format) && familiesOf(format) != m_families, MRVEPubInline::Code);
    add(format.fontStrikeOut(), MRVEPubInline::Strike);
    add(format.verticalAlignment() == QTextCharFormat::AlignSuperScript, MRVEPubInline::Raised);
    add(format.verticalAlignment() == QTextCharFormat::AlignSubScript, MRVEPubInline::Lowered);
    readLook(format, &text);
    return text;
}

void MRVEPubFormats::readDirections(const QTextCharFormat &format, MRVEPubTextFormat *text) const
{
    const QStringList names =
        format.stringProperty(MRVTextFormat::DirectionProperty).split(u' ', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        for (const MRVEPubDirection &direction : directions) {
            if (name == QLatin1String(direction.name)
                && (direction.isInEPub2 || m_version == MRVEPubVersion::EPub3)) {
                text->directions.append(&direction);
            }
        }
    }
}

void MRVEPubFormats::readLook(const QTextCharFormat &format, MRVEPubTextFormat *text) const
{
    using Look = MRVEPubTextLook;
    Look &look = text->look;
    const bool isLink = !text->address.isEmpty();
    const double size = pixels(format);
    look[Look::Size] = int(std::lround(100 * size / m_bodyPixels));
    if (format.fontWeight() > 0 && format.fontWeight() < 40) {
        look[Look::Weight] = 1;
    }
    look[Look::Caps] = format.fontCapitalization();
    const bool isUnderlined =
        format.fontUnderline() && format.underlineStyle() != QTextCharFormat::SpellCheckUnderline;
    look[Look::Lines] = (isUnderlined && !isLink ? Look::Underline : 0)
        | (format.fontOverline() ? Look::Overline : 0);
    const double spacing = format.fontLetterSpacing();
    const bool isPart = format.fontLetterSpacingType() == QFont::PercentageSpacing;
    if (format.hasProperty(QTextFormat::FontLetterSpacing) && size > 0) {
        look[Look::Spacing] = int(
            std::lround(isPart ? (spacing > 0 ? spacing - 100 : 0) * 10 : 1000 * spacing / size));
    }
    if (size > 0) {
        look[Look::WordSpacing] = int(std::lround(1000 * format.fontWordSpacing() / size));
    }
    const QRgb color = colorOf(format.foreground());
    if (color != Black && color != White && color != m_ink && !(isLink && color == LinkBlue)) {
        look[Look::Color] = int(color);
    }
    const QRgb background = colorOf(format.background());
    if (background == Yellow && m_version == MRVEPubVersion::EPub3) {
        text->elements |= bit(MRVEPubInline::Mark);
    } else if (background != White) {
        look[Look::Background] = int(background);
    }
    const QStringList families = familiesOf(format);
    const QString own = QGuiApplication::font().family();
    if (!families.isEmpty() && families != m_families && !isFixedPitch(format)
        && families.constFirst() != own
        && families.constFirst() != m_flow.document.defaultFont().family()) {
        look[Look::Family] = m_looks->familyNumber(familyText(families));
    }
}

const MRVEPubParagraphFormat &MRVEPubFormats::paragraph(int index)
{
    MRVEPubParagraphFormat &format = m_paragraphs[index];
    if (!format.isKnown) {
        format = readParagraph(m_flow.formats.at(index).toBlockFormat());
    }
    return format;
}

MRVEPubParagraphFormat MRVEPubFormats::readParagraph(const QTextBlockFormat &format) const
{
    using Look = MRVEPubParagraphLook;
    MRVEPubParagraphFormat paragraph;
    paragraph.isKnown = true;
    paragraph.isPreformatted = format.nonBreakableLines();
    paragraph.isItem = format.objectIndex() >= 0;
    paragraph.breaksBefore = format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore;
    paragraph.breaksAfter = format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysAfter;
    paragraph.quoteLevel = format.intProperty(QTextFormat::BlockQuoteLevel);
    paragraph.indent = format.indent();
    if (format.hasProperty(QTextFormat::LayoutDirection)) {
        paragraph.direction = format.layoutDirection();
    }
    paragraph.marker = format.marker();
    Look &look = paragraph.look;
    const Qt::Alignment alignment = format.alignment();
    look[Look::Align] = alignment & Qt::AlignHCenter ? Look::Centered
        : alignment & Qt::AlignJustify               ? Look::Justified
        : alignment & Qt::AlignRight                 ? Look::RightSide
                                                     : Look::Start;
    if (alignment == (Qt::AlignLeft | Qt::AlignAbsolute)) {
        look[Look::Align] = Look::LeftSide;
    }
    const double quoted = QuotePixels * paragraph.quoteLevel;
    const double scale = 16 / m_bodyPixels;
    // Until the size of the text is known, as if it were the body's.
    const auto length = [scale](double pixels) { return mrvEPubLength(pixels * scale, 100); };
    look[Look::Indent] = length(format.textIndent());
    look[Look::Top] = length(format.topMargin());
    look[Look::Bottom] = length(format.bottomMargin());
    look[Look::Left] =
        length(format.leftMargin() - quoted
               + format.doubleProperty(MRVTextFormat::BlockLeftIndent) * PixelsPerPoint);
    look[Look::Right] =
        length(format.rightMargin() - quoted
               + format.doubleProperty(MRVTextFormat::BlockRightIndent) * PixelsPerPoint);
    look[Look::LineHeight] = lineHeight(format);
    const QRgb background = colorOf(format.background());
    look[Look::Background] = background == White ? 0 : int(background);
    return paragraph;
}

// In hundredths of the text's size; 0: the reader's business.
int MRVEPubFormats::lineHeight(const QTextBlockFormat &format) const
{
    const double points = m_bodyPixels / PixelsPerPoint;
    if (format.hasProperty(QTextFormat::LineHeightType)) {
        const double height = format.lineHeight();
        switch (format.lineHeightType()) {
        case QTextBlockFormat::ProportionalHeight:
            return int(std::lround(height));
        case QTextBlockFormat::FixedHeight:
        case QTextBlockFormat::MinimumHeight:
            return hundredths(height / m_bodyPixels);
        default:
            return 0;
        }
    }
    double value = 0;
    switch (MRVTextFormat::spacingType(format, &value)) {
    case MRVTextFormat::SingleSpacing:
        return 0;
    case MRVTextFormat::FixedSpacing:
    case MRVTextFormat::ExactSpacing:
        return hundredths(value / points);
    default:
        return hundredths(value * 1.2); // of the font's own line height
    }
}

MRVEPubParagraphLook MRVEPubFormats::look(int paragraph, MRVEPubKind kind, int usedIndent,
                                          MRVEPubContext *context)
{
    using Look = MRVEPubParagraphLook;
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    const MRVEPubParagraphFormat &format = this->paragraph(place.format);
    Look look = format.look;
    look.kind = kind;
    const int levels = qMax(0, format.indent - usedIndent);
    if (levels > 0) {
        const Look::Value side = isRightToLeft(paragraph) ? Look::Right : Look::Left;
        look[side] += mrvEPubLength(levels * IndentPixels, 100);
    }
    // What all of the text has in common is the paragraph's.
    int size = 0;
    bool isBold = false;
    bool isFirst = true;
    const int end = m_flow.paragraphs.at(paragraph + 1).firstFragment;
    for (int i = place.firstFragment; i < end; ++i) {
        const MRVEPubTextFormat &text = this->text(m_flow.fragments.at(i).format);
        if (text.isPicture) {
            continue;
        }
        size = isFirst || size == text.look[MRVEPubTextLook::Size]
            ? text.look[MRVEPubTextLook::Size]
            : 100;
        isBold = (isFirst || isBold) && text.isBold;
        context->language =
            isFirst || context->language == text.language ? text.language : QString();
        isFirst = false;
    }
    const bool isHeading = kind >= MRVEPubKind::Heading1 && kind <= MRVEPubKind::Heading6;
    look[Look::Size] = isFirst ? mrvEPubPlainLook(kind)[Look::Size] : qMax(1, size);
    for (const auto value : {Look::Indent, Look::Top, Look::Right, Look::Bottom, Look::Left}) {
        look[value] = int(std::lround(look[value] * 100.0 / look[Look::Size]));
    }
    look[Look::Weight] = isHeading && !isFirst && !isBold ? 1 : 0;
    context->size = look[Look::Size];
    context->isBold = isHeading && (isFirst || isBold);
    return look;
}

bool MRVEPubFormats::isRightToLeft(int paragraph)
{
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    const Qt::LayoutDirection direction = this->paragraph(place.format).direction;
    return direction == Qt::LayoutDirectionAuto ? m_flow.textOf(place).isRightToLeft()
                                                : direction == Qt::RightToLeft;
}

QByteArray MRVEPubFormats::span(int index, const MRVEPubContext &context)
{
    const QPair<int, QString> key(index,
                                  QString::number(context.isBold ? -context.size : context.size)
                                      + u' ' + context.language);
    const auto known = m_spans.constFind(key);
    if (known != m_spans.constEnd()) {
        return *known;
    }
    QByteArray attributes;
    const MRVEPubTextFormat &format = text(index);
    MRVEPubTextLook look = format.look;
    const int size = look[MRVEPubTextLook::Size];
    look[MRVEPubTextLook::Size] = int(std::lround(100.0 * size / context.size));
    if (look[MRVEPubTextLook::Size] == 100) {
        look[MRVEPubTextLook::Size] = 0;
    }
    if (context.isBold && !format.isBold) {
        look[MRVEPubTextLook::Weight] = -1;
    }
    if (!look.isPlain()) {
        attributes = " class=\"" + m_looks->textClass(look) + '"';
    }
    if (format.language != context.language && !format.isPicture) {
        const QByteArray language =
            (format.language.isEmpty() ? m_language : format.language).toUtf8();
        attributes += (m_version == MRVEPubVersion::EPub3 ? " lang=\"" + language + '"' : "")
            + QByteArray(" xml:lang=\"") + language + '"';
    }
    return m_spans.insert(key, attributes).value();
}

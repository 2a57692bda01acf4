#include "screenplay/mrvscripttypesetter_p.h"

#include "screenplay/mrvscriptxml_p.h"
#include "textformat/mrvtextformat.h"

#include <QFontDatabase>
#include <QFontMetricsF>

#include <algorithm>

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;
using Role = MrvScriptRole;

constexpr qreal DefaultSize = 12;
constexpr qreal CellsPerEm = 0.6;
constexpr qreal MeasuredLineHeight = 1.15; // of the size, since fonts differ in theirs
constexpr qreal ColumnGap = 14.4; // between speeches side by side: two characters

// Indents of two who speak side by side, where the mode has none: from the column's left edge.
constexpr qreal BesideCueIndent = 72;
constexpr qreal BesideDirectionIndent = 28.8;

bool isTypewriter(const QString &family)
{
    static const QStringList parts = {QStringLiteral("Courier"), QStringLiteral("Mono"),
                                      QStringLiteral("Typewriter"), QStringLiteral("Consolas")};
    return std::any_of(parts.cbegin(), parts.cend(), [&family](const QString &part) {
        return family.contains(part, Qt::CaseInsensitive);
    });
}

// Whether bold and italic are what they say: some packages give one name to all four files.
bool hasFourStyles(const QString &family)
{
    const QStringList styles = QFontDatabase().styles(family);
    const auto has = [&styles](const char *a, const char *b) {
        return std::any_of(styles.cbegin(), styles.cend(), [a, b](const QString &style) {
            return style.contains(QLatin1String(a)) || style.contains(QLatin1String(b));
        });
    };
    return has("Bold", "Bold") && has("Italic", "Oblique");
}

QString typewriterFamily(const QString &wanted)
{
    static const QString prime = QStringLiteral("Courier Prime");
    static const bool hasPrime = hasFourStyles(prime);
    return hasPrime && wanted.contains(QLatin1String("Courier")) ? prime : wanted;
}

qreal lineHeight(const QTextBlockFormat &format, const MrvScriptStyle &style)
{
    const qreal single = style.isFixedPitch ? style.size : style.size * MeasuredLineHeight;
    double value = 1;
    switch (MRVTextFormat::spacingType(format, &value)) {
    case MRVTextFormat::DoubleSpacing:
        return 2 * single;
    case MRVTextFormat::ExactSpacing:
        return value;
    case MRVTextFormat::FixedSpacing:
        return qMax<qreal>(value, single);
    case MRVTextFormat::MultipleSpacing:
        return value * single;
    case MRVTextFormat::SingleSpacing:
        break;
    }
    return single;
}

} // namespace

QFont mrvScriptFont(const MrvScriptStyle &style, Run::Emphasis emphasis, int dotsPerInch)
{
    const qreal dots = style.size * dotsPerInch / 72;
    QFont font(style.isFixedPitch ? typewriterFamily(style.family) : style.family);
    font.setStyleHint(style.isFixedPitch                                    ? QFont::Monospace
                          : style.family.startsWith(QLatin1String("Times")) ? QFont::Serif
                                                                            : QFont::SansSerif);
    font.setPixelSize(qMax(1, qRound(dots)));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setItalic(emphasis.testFlag(Run::Italic));
    font.setBold(emphasis.testFlag(Run::Bold));
    font.setUnderline(emphasis.testFlag(Run::Underline));
    // Spacing other than 0 also keeps Qt from making one glyph of "fi", which a search in the PDF
    // would not find.
    qreal spacing = 1.0 / 64;
    if (style.isFixedPitch) {
        spacing = dots * CellsPerEm - QFontMetricsF(font).horizontalAdvance(u'M');
        spacing = qAbs(spacing) < 1.0 / 64 ? 1.0 / 64 : spacing;
    }
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    return font;
}

MrvScriptTypesetter::MrvScriptTypesetter(const MRVScriptMode &mode, qreal columnWidth)
    : m_roles(mode)
    , m_columnWidth(columnWidth)
    , m_hangs(m_roles.has(Role::HangingSpeech) && !m_roles.has(mrvScriptRole(Element::Character)))
{
}

int MrvScriptTypesetter::styleOf(const QTextCharFormat &format)
{
    const QStringList families = format.fontFamilies().toStringList();
    MrvScriptStyle style;
    style.family = families.value(0, format.fontFamily());
    if (style.family.isEmpty()) {
        style.family = QStringLiteral("Courier New");
    }
    style.size = format.fontPointSize() > 0 ? format.fontPointSize() : DefaultSize;
    style.isFixedPitch = isTypewriter(style.family);
    if (format.hasProperty(QTextFormat::ForegroundBrush)) {
        style.color = format.foreground().color();
    }
    const int known = m_styles.indexOf(style);
    if (known >= 0) {
        return known;
    }
    MrvPrintedFont font;
    font.isFixedPitch = style.isFixedPitch;
    font.size = style.size;
    if (!style.isFixedPitch) {
        font.font = mrvScriptFont(style, {}, MrvPrintedParagraph::DotsPerInch);
    }
    m_styles.append(style);
    m_fonts.append(font);
    return m_styles.size() - 1;
}

const MrvScriptTypesetter::Look &MrvScriptTypesetter::look(Role role)
{
    Look &result = m_looks[int(role)];
    if (!result.isKnown) {
        result.isKnown = true;
        result.element = m_roles.element(role);
        // What the mode does not know looks as in the built-in one, but in the mode's own font.
        const bool isOwn = m_roles.has(role);
        const QTextCharFormat format = isOwn
            ? result.element.charFormat()
            : m_roles.element(mrvScriptRole(Element::Action)).charFormat();
        result.style = styleOf(format);
    }
    return result;
}

MrvPrintedParagraph MrvScriptTypesetter::emptyParagraph(Role role)
{
    const Look &known = look(role);
    const QTextBlockFormat format = known.element.blockFormat();
    MrvPrintedParagraph result;
    result.style = known.style;
    result.left = format.doubleProperty(MRVTextFormat::BlockLeftIndent);
    const qreal right = format.doubleProperty(MRVTextFormat::BlockRightIndent);
    result.width = qMax<qreal>(DefaultSize, m_columnWidth - result.left - right);
    result.firstIndent = format.textIndent();
    result.before = format.topMargin();
    result.after = format.bottomMargin();
    result.lineHeight = qMax<qreal>(1, lineHeight(format, m_styles.at(known.style)));
    const Qt::Alignment alignment = format.alignment() & Qt::AlignHorizontal_Mask;
    result.alignment = alignment ? alignment : Qt::AlignLeft;
    result.keepsWithNext = known.element.hasFlag(MRVScriptElement::KeepWithNext);
    return result;
}

void MrvScriptTypesetter::append(MrvPrintedParagraph *paragraph, const MRVFountainRuns &runs,
                                 Role role)
{
    const Look &known = look(role);
    const Run::Emphasis own = mrvEmphasisOf(known.element.charFormat());
    const int before = paragraph->text.size();
    for (const Run &run : runs) {
        if (run.kind == Run::Text) {
            paragraph->append(run.text, run.emphasis | own);
        }
    }
    if (!known.element.hasFlag(MRVScriptElement::AllCaps)) {
        return;
    }
    const QString delimiter = known.element.styleDelimiter();
    const int found = delimiter.isEmpty() ? -1 : paragraph->text.indexOf(delimiter, before);
    const int end = found < 0 ? paragraph->text.size() : found;
    // Piece by piece, since upper case may be longer.
    MrvPrintedParagraph upper = *paragraph;
    upper.text.clear();
    upper.starts.clear();
    upper.emphasis.clear();
    for (int i = 0; i < paragraph->starts.size(); ++i) {
        const int start = paragraph->starts.at(i);
        const int next =
            i + 1 < paragraph->starts.size() ? paragraph->starts.at(i + 1) : paragraph->text.size();
        const int capsStart = qBound(start, before, next);
        const int capsEnd = qBound(capsStart, end, next);
        const QString &text = paragraph->text;
        upper.append(text.mid(start, capsStart - start), paragraph->emphasis.at(i));
        upper.append(text.mid(capsStart, capsEnd - capsStart).toUpper(), paragraph->emphasis.at(i));
        upper.append(text.mid(capsEnd, next - capsEnd), paragraph->emphasis.at(i));
    }
    *paragraph = upper;
}

void MrvScriptTypesetter::breakLines(MrvPrintedParagraph *paragraph) const
{
    paragraph->lines = linesFrom(*paragraph, 0);
}

QVector<MrvPrintedLine> MrvScriptTypesetter::linesFrom(const MrvPrintedParagraph &paragraph,
                                                       int start) const
{
    return paragraph.linesFrom(start, m_fonts.at(paragraph.style));
}

MrvPrintedParagraph MrvScriptTypesetter::paragraph(const Element &element, int index)
{
    const Role role = mrvScriptRole(element.kind);
    MrvPrintedParagraph result = emptyParagraph(role);
    result.element = index;
    result.kind = element.kind;
    const bool hasBrackets = element.kind == Element::Parenthetical
        || (look(role).element.hasFlag(MRVScriptElement::Parenthetical)
            && !element.text().startsWith(u'(') && !element.text().trimmed().isEmpty());
    append(&result, hasBrackets ? mrvWithBrackets(element.runs) : element.runs, role);
    const bool isEmptyLine = element.kind == Element::Action && element.runs.isEmpty();
    if (isEmptyLine) {
        result.before = result.after = 0;
    }
    if (isEmptyLine || !result.text.trimmed().isEmpty()) {
        breakLines(&result);
    }
    return result;
}

MrvPrintedParagraph MrvScriptTypesetter::hangingSpeech(const MRVFountainScript &script, int cue,
                                                       int end)
{
    const Role role = Role::HangingSpeech;
    MrvPrintedParagraph result = emptyParagraph(role);
    result.element = cue;
    result.kind = Element::Dialogue;
    result.keepsWithNext = false;
    result.tabStop = -result.firstIndent;
    MRVFountainRuns runs = script.elements.at(cue).runs;
    // With a blank, since the tab after a long name may be as narrow as nothing.
    QString separator = QStringLiteral(" \t");
    for (int i = cue + 1; i < end; ++i) {
        const Element &element = script.elements.at(i);
        const MRVFountainRuns more =
            element.kind == Element::Parenthetical ? mrvWithBrackets(element.runs) : element.runs;
        runs.append({separator, {}, Run::Text});
        runs += more;
        separator = element.kind == Element::Lyrics ? QStringLiteral("\n") : QStringLiteral(" ");
    }
    append(&result, runs, role);
    breakLines(&result);
    return result;
}

MrvPrintedParagraph MrvScriptTypesetter::besideParagraph(const Element &element, int index,
                                                         int side)
{
    const Role role = element.kind == Element::Character ? Role::DualCharacter
        : element.kind == Element::Parenthetical         ? Role::DualParenthetical
                                                         : Role::DualDialogue;
    MrvPrintedParagraph result = paragraph(element, index);
    const qreal half = (m_columnWidth + ColumnGap) / 2;
    qreal base = half;
    if (m_roles.has(Role::DualDialogue) && m_roles.has(role)) {
        const MrvPrintedParagraph own = emptyParagraph(role);
        base = emptyParagraph(Role::DualDialogue).left;
        result.left = own.left - base;
        result.width = own.width;
        result.firstIndent = own.firstIndent;
    } else {
        result.left = element.kind == Element::Character ? BesideCueIndent
            : element.kind == Element::Parenthetical     ? BesideDirectionIndent
                                                         : 0;
        result.width = m_columnWidth - half - result.left;
    }
    const qreal columnEnd = side == 0 ? base - ColumnGap : m_columnWidth - base;
    result.width = qMax<qreal>(DefaultSize, qMin(result.width, columnEnd - result.left));
    result.left += side == 0 ? 0 : base;
    result.alignment = Qt::AlignLeft;
    if (!result.lines.isEmpty()) {
        breakLines(&result);
    }
    return result;
}

MrvPrintedParagraph MrvScriptTypesetter::titleParagraph(const MRVFountainRuns &runs,
                                                        Qt::Alignment alignment, qreal width)
{
    MrvPrintedParagraph result = emptyParagraph(Role::TitlePage);
    result.left = 0;
    result.width = width;
    result.firstIndent = 0;
    result.before = result.after = 0;
    result.alignment = alignment;
    append(&result, runs, Role::TitlePage);
    breakLines(&result);
    return result;
}

MrvPrintedParagraph MrvScriptTypesetter::lineLike(Element::Kind kind, const QString &text)
{
    MrvPrintedParagraph result = emptyParagraph(mrvScriptRole(kind));
    result.kind = kind;
    result.append(text, {});
    breakLines(&result);
    return result;
}

#include "textformat/mrvtextformat.h"

#include "core/mrvfuzzycompare.h"
#include "textformat/mrvtextblockformat.h"

namespace {

constexpr double CanonicalBase = 12.0;

struct Spacing
{
    double spacing;
    double base;
};

// A heading level under the same number is an int, which doubleProperty() reads as 0.
Spacing spacingOf(const QTextBlockFormat &format)
{
    return {format.doubleProperty(MRVTextFormat::BlockSpacing),
            format.doubleProperty(MRVTextFormat::BlockBaseSpacing)};
}

void setSpacing(QTextBlockFormat *format, const Spacing &value)
{
    MRVTextBlockFormat::setLineSpacing(format, value.spacing, value.base);
}

// How two reals are compared is the caller's: simplified() and simplifySpacing() differ in it.
template<typename Equal>
Spacing normalized(const Spacing &old, Equal equal)
{
    if (equal(old.spacing, old.base)) {
        return {CanonicalBase, CanonicalBase};
    }
    if (equal(old.base, 0.0)) {
        return {old.spacing, 0.0};
    }
    return {old.spacing * CanonicalBase / old.base, CanonicalBase};
}

void copyIfPresent(QTextBlockFormat *to, const QTextBlockFormat &from, int property)
{
    if (from.hasProperty(property)) {
        to->setProperty(property, from.property(property));
    }
}

} // namespace

QTextBlockFormat MRVTextFormat::simplified(const QTextBlockFormat &format, FormatGroups groups)
{
    QTextBlockFormat simple;
    if (groups & LineSpacingGroup) {
        setSpacing(&simple, normalized(spacingOf(format), mrvFuzzyCompare));
    }
    if (groups & ParagraphSpacingGroup) {
        copyIfPresent(&simple, format, QTextFormat::BlockTopMargin);
        copyIfPresent(&simple, format, QTextFormat::BlockBottomMargin);
    }
    if (groups & IndentGroup) {
        copyIfPresent(&simple, format, BlockLeftIndent);
        copyIfPresent(&simple, format, QTextFormat::TextIndent);
        copyIfPresent(&simple, format, BlockRightIndent);
    }
    return simple;
}

void MRVTextFormat::simplifySpacing(QTextBlockFormat *format)
{
    if (!format) {
        return;
    }
    // Deliberate: exact here, where simplified() allows for rounding.
    const auto equal = [](double a, double b) { return a == b; };
    setSpacing(format, normalized(spacingOf(*format), equal));
}

QTextBlockFormat MRVTextFormat::simplifiedSpacing(const QTextBlockFormat &format)
{
    QTextBlockFormat copy = format;
    simplifySpacing(&copy);
    return copy;
}

MRVTextFormat::SpacingType MRVTextFormat::spacingType(const QTextBlockFormat &format, double *value)
{
    const Spacing pair = spacingOf(simplifiedSpacing(format));
    SpacingType type = SingleSpacing;
    double companion = 1.0;
    if (pair.base != 0.0) {
        if (pair.spacing != 0.0 && pair.spacing != pair.base) {
            type = pair.spacing == 2 * pair.base ? DoubleSpacing : MultipleSpacing;
            companion = pair.spacing / pair.base;
        }
    } else if (pair.spacing > 0.0) {
        type = FixedSpacing;
        companion = pair.spacing;
    } else if (pair.spacing < 0.0) {
        type = ExactSpacing;
        companion = -pair.spacing;
    }
    if (value) {
        *value = companion;
    }
    return type;
}

bool MRVTextFormat::equivalentSpacing(const QTextBlockFormat &a, const QTextBlockFormat &b)
{
    double valueA = 0.0;
    double valueB = 0.0;
    return spacingType(a, &valueA) == spacingType(b, &valueB)
        && !(valueA < valueB || valueA > valueB);
}

#include "css/mrvcssdeclarationreader_p.h"

#include "css/mrvcssvalue.h"

namespace {

/// Puts the values of a shorthand into @p values, which hold what it resets the others to.
using Splitter = bool (*)(const QStringList &parts, QStringList &values);

bool isOneOf(const QString &part, const char *words)
{
    return QString::fromLatin1(words).split(u' ').contains(part, Qt::CaseInsensitive);
}

bool isColor(const QString &part)
{
    return isOneOf(part, "currentcolor") || mrvCssColor(part).isValid();
}

bool isFontSize(const QString &part)
{
    const MRVCssLength length = MRVCssLength::parsed(part);
    return (length.isValid() && length.unit != MRVCssLength::Number)
        || isOneOf(part,
                   "xx-small x-small small medium large x-large xx-large xxx-large smaller larger");
}

bool isImage(const QString &part)
{
    return part.startsWith(QLatin1String("url("), Qt::CaseInsensitive)
        || part.contains(QLatin1String("gradient("), Qt::CaseInsensitive);
}

/// Puts a part into the value at @p index, once.
bool put(const QString &part, int index, QVector<bool> &isTaken, QStringList &values)
{
    if (isTaken.at(index)) {
        return false;
    }
    isTaken[index] = true;
    values[index] = part;
    return true;
}

/// Top, right, bottom and left.
bool splitSides(const QStringList &parts, QStringList &values)
{
    const int count = parts.size();
    if (count > 4 || parts.contains(QStringLiteral(",")) || parts.contains(QStringLiteral("/"))) {
        return false;
    }
    for (int side = 0; side < 4; ++side) {
        values[side] = parts.at(side < count ? side : side == 3 && count >= 2 ? 1 : 0);
    }
    return true;
}

/// The width, style and colour of one side, or of all four.
bool splitBorder(const QStringList &parts, QStringList &values)
{
    QVector<bool> isTaken(3);
    QStringList side = values.mid(0, 3);
    for (const QString &part : parts) {
        const bool isStyle =
            isOneOf(part, "none hidden dotted dashed solid double groove ridge inset outset");
        const int index = isStyle ? 1 : MRVCssLength::parsed(part).isValid() ? 0 : 2;
        if ((index == 2 && !isColor(part)) || !put(part, index, isTaken, side)) {
            return false;
        }
    }
    for (int i = 0; i < values.size(); ++i) {
        values[i] = side.at(i % 3);
    }
    return true;
}

/// Style, variant, weight, size, line height and family.
bool splitFont(const QStringList &parts, QStringList &values)
{
    QVector<bool> isTaken(3);
    int i = 0;
    for (; i < parts.size() && !isFontSize(parts.at(i)); ++i) {
        const QString &part = parts.at(i);
        const bool isWeight = isOneOf(part, "bold bolder lighter")
            || MRVCssLength::parsed(part).unit == MRVCssLength::Number;
        const int index = isOneOf(part, "italic oblique") ? 0
            : isOneOf(part, "small-caps")                 ? 1
            : isWeight                                    ? 2
                                                          : -1;
        if (index >= 0 ? !put(part, index, isTaken, values)
                       : !isOneOf(part, "normal") && !part.endsWith(QLatin1String("condensed"))
                    && !part.endsWith(QLatin1String("expanded"))) {
            return false;
        }
    }
    values[3] = parts.value(i++);
    if (parts.value(i) == QLatin1String("/")) {
        values[4] = parts.value(i + 1);
        i += 2;
    }
    values[5] = parts.value(i++);
    for (; i < parts.size(); ++i) {
        values[5] +=
            (parts.at(i) == QLatin1String(",") ? QString() : QStringLiteral(" ")) + parts.at(i);
    }
    return !values.at(3).isEmpty() && !values.at(4).isEmpty() && !values.at(5).isEmpty();
}

/// The colour and the topmost image; where they go and how they repeat is not kept.
bool splitBackground(const QStringList &parts, QStringList &values)
{
    QVector<bool> isTaken(2);
    for (const QString &part : parts) {
        const int index = isColor(part) ? 0 : isImage(part) ? 1 : -1;
        if (index == 0 && !put(part, index, isTaken, values)) {
            return false;
        }
        if (index == 1) {
            put(part, index, isTaken, values);
        }
    }
    return true;
}

/// Type, position and image.
bool splitListStyle(const QStringList &parts, QStringList &values)
{
    QVector<bool> isTaken(3);
    int nones = 0;
    for (const QString &part : parts) {
        const int index = isOneOf(part, "inside outside") ? 1 : isImage(part) ? 2 : 0;
        if (isOneOf(part, "none")) {
            ++nones;
        } else if (!put(part, index, isTaken, values)) {
            return false;
        }
    }
    if (nones > 0 && !isTaken.at(0)) {
        values[0] = QStringLiteral("none");
    }
    return nones <= (isTaken.at(0) ? 0 : 1) + (isTaken.at(2) ? 0 : 1);
}

/// Lines, of which there may be several, style and colour.
bool splitDecoration(const QStringList &parts, QStringList &values)
{
    QVector<bool> isTaken(3);
    QStringList lines;
    for (const QString &part : parts) {
        const int index = isOneOf(part, "solid double dotted dashed wavy") ? 1 : 2;
        if (isOneOf(part, "none underline overline line-through blink")) {
            lines.append(part);
        } else if (index == 2 && !isColor(part)) {
            if (!MRVCssLength::parsed(part).isValid() && !isOneOf(part, "auto from-font")) {
                return false; // not even a thickness
            }
        } else if (!put(part, index, isTaken, values)) {
            return false;
        }
    }
    if (!lines.isEmpty()) {
        values[0] = lines.join(u' ');
    }
    return true;
}

struct Shorthand
{
    const char *name;
    Splitter split;
    const char *properties; // each with the value that the shorthand resets it to
};

// clang-format off
constexpr Shorthand shorthands[] = {
    {"margin", splitSides, "margin-top:0 margin-right:0 margin-bottom:0 margin-left:0"},
    {"padding", splitSides, "padding-top:0 padding-right:0 padding-bottom:0 padding-left:0"},
    {"border-width", splitSides,
     "border-top-width:0 border-right-width:0 border-bottom-width:0 border-left-width:0"},
    {"border-style", splitSides,
     "border-top-style:0 border-right-style:0 border-bottom-style:0 border-left-style:0"},
    {"border-color", splitSides,
     "border-top-color:0 border-right-color:0 border-bottom-color:0 border-left-color:0"},
    {"border", splitBorder,
     "border-top-width:medium border-top-style:none border-top-color:currentcolor "
     "border-right-width:medium border-right-style:none border-right-color:currentcolor "
     "border-bottom-width:medium border-bottom-style:none border-bottom-color:currentcolor "
     "border-left-width:medium border-left-style:none border-left-color:currentcolor"},
    {"border-top", splitBorder,
     "border-top-width:medium border-top-style:none border-top-color:currentcolor"},
    {"border-right", splitBorder,
     "border-right-width:medium border-right-style:none border-right-color:currentcolor"},
    {"border-bottom", splitBorder,
     "border-bottom-width:medium border-bottom-style:none border-bottom-color:currentcolor"},
    {"border-left", splitBorder,
     "border-left-width:medium border-left-style:none border-left-color:currentcolor"},
    {"font", splitFont,
     "font-style:normal font-variant:normal font-weight:normal font-size:medium "
     "line-height:normal font-family:serif"},
    {"background", splitBackground, "background-color:transparent background-image:none"},
    {"list-style", splitListStyle,
     "list-style-type:disc list-style-position:outside list-style-image:none"},
    {"text-decoration", splitDecoration,
     "text-decoration-line:none text-decoration-style:solid text-decoration-color:currentcolor"},
};
// clang-format on

void appendSplit(const Shorthand &shorthand, const MRVCssDeclaration &whole,
                 QVector<MRVCssDeclaration> &declarations)
{
    QStringList names;
    QStringList values;
    const QStringList pairs = QString::fromLatin1(shorthand.properties).split(u' ');
    for (const QString &pair : pairs) {
        names.append(pair.section(u':', 0, 0));
        values.append(pair.section(u':', 1));
    }
    const QStringList parts = mrvCssParts(whole.value);
    if (parts.size() == 1 && isOneOf(parts.constFirst(), "inherit initial unset revert")) {
        std::fill(values.begin(), values.end(), parts.constFirst());
    } else if (parts.isEmpty() || !shorthand.split(parts, values)) {
        return;
    }
    for (int i = 0; i < names.size(); ++i) {
        declarations.append({names.at(i), values.at(i), whole.important});
    }
}

/// The index of the last token before @p end that is no white space; -1 when there is none.
int lastBefore(const QVector<MRVCssToken> &tokens, int end)
{
    do {
        --end;
    } while (end >= 0 && tokens.at(end).type == MRVCssToken::Space);
    return end;
}

/// Reads "property: value"; an empty property where the part is anything else.
MRVCssDeclaration readDeclaration(const MRVCssPart &part)
{
    const QVector<MRVCssToken> &tokens = part.tokens;
    int colon = 1;
    while (colon < tokens.size() && tokens.at(colon).type == MRVCssToken::Space) {
        ++colon;
    }
    if (!part.isValid || colon >= tokens.size() || !tokens.at(colon).is(':')
        || tokens.constFirst().type != MRVCssToken::Ident) {
        return {};
    }
    MRVCssDeclaration declaration;
    int end = tokens.size();
    const int mark = lastBefore(tokens, end - 1);
    if (tokens.constLast().isWord(QLatin1String("important")) && tokens.at(mark).is('!')) {
        declaration.important = true;
        end = mark;
    }
    for (int i = colon + 1; i < end; ++i) {
        if (tokens.at(i).is('{') || tokens.at(i).is('!')) {
            return {};
        }
    }
    declaration.value = mrvCssSource(tokens.constData() + colon + 1, tokens.constData() + end);
    if (!declaration.value.isEmpty()) {
        declaration.property = tokens.constFirst().text.toLower();
    }
    return declaration;
}

} // namespace

bool mrvReadCssDeclarations(MRVCssTokenizer &tokens, const char *ends, int most,
                            QVector<MRVCssDeclaration> &declarations)
{
    for (;;) {
        const MRVCssPart part = tokens.readPart(ends);
        const MRVCssDeclaration declaration = readDeclaration(part);
        const Shorthand *shorthand = nullptr;
        for (const Shorthand &row : shorthands) {
            if (declaration.property == QLatin1String(row.name)) {
                shorthand = &row;
            }
        }
        if (shorthand) {
            appendSplit(*shorthand, declaration, declarations);
        } else if (!declaration.property.isEmpty()) {
            declarations.append(declaration);
        }
        if (declarations.size() > most) {
            return false;
        }
        if (part.end != u';') {
            return true;
        }
    }
}

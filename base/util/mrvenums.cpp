#include "util/mrvenums.h"

#include <QCoreApplication>

#include <iterator>

namespace {

template<typename Enum>
struct Name
{
    Enum value;
    const char *text;
};

// Stored texts and their order in the files; row i carries the enumerator of value First + i.
constexpr Name<MRV::OpenInTarget> OpenInTargets[] = {
    {MRV::OpenInOtherEditor, "OpenInOtherEditor"},
    {MRV::OpenInCurrentEditor, "OpenInCurrentEditor"},
    {MRV::OpenInReferencePanel, "OpenInReferencePanel"},
};

constexpr Name<MRV::SeparatorContext> SeparatorContexts[] = {
    {MRV::Morvanings, "Morvanings"},
    {MRV::MergedDocuments, "MergedDocuments"},
    {MRV::Clippings, "Clippings"},
};

constexpr Name<MRV::SeparatorType> SeparatorTypes[] = {
    {MRV::SingleReturn, "SingleReturn"},
    {MRV::EmptyLine, "EmptyLine"},
    {MRV::CustomSeparator, "CustomSeparator"},
};

constexpr Name<MRV::NodeType> NodeTypes[] = {
    {MRV::TextNode, "Text"},   {MRV::ImageNode, "Image"}, {MRV::PdfNode, "PDF"},
    {MRV::MediaNode, "Media"}, {MRV::WebNode, "Web"},     {MRV::CustomNode, "Custom"},
};

// The missing blank before the parenthesis is in every translation's source text.
constexpr Name<MRV::OpmlImportType> OpmlImportTypes[] = {
    {MRV::OpmlTitlesOnly, QT_TRANSLATE_NOOP("QObject", "Titles Only")},
    {MRV::OpmlSynopsis, QT_TRANSLATE_NOOP("QObject", "Synopsis")},
    {MRV::OpmlMainText, QT_TRANSLATE_NOOP("QObject", "Main Text(with Synopsis)")},
    {MRV::OpmlNotes, QT_TRANSLATE_NOOP("QObject", "Notes (with Synopsis)")},
};

constexpr Name<MRV::CompileNoteFlag> NoteFlagNames[] = {
    {MRV::IncludeFootnotes, "IncludeFootnotes:"},
    {MRV::FootnotesToComments, "FootnotesToComments:"},
    {MRV::FootnotesToFootnotes, "FootnotesToFootnotes:"},
    {MRV::FootnotesToEndnotes, "FootnotesToEndnotes:"},
    {MRV::FootnotesToEndOfDocument, "FootnotesToEndOfDocument:"},
    {MRV::FootnotesToEndnoteMarker, "FootnotesToEndnoteMarker:"},
    {MRV::FootnotesOverrideFont, "FootnotesOverrideFont:"},
    {MRV::IncludeAnnotations, "IncludeAnnotations:"},
    {MRV::AnnotationsToMarginComments, "AnnotationsToMarginComments:"},
    {MRV::AnnotationsToInlineComments, "AnnotationsToInlineComments:"},
    {MRV::AnnotationsToFootnotes, "AnnotationsToFootnotes:"},
    {MRV::AnnotationsToEndnotes, "AnnotationsToEndnotes:"},
    {MRV::AnnotationsToHtml, "AnnotationsToHtml:"},
    {MRV::IncludeComments, "IncludeComments:"},
};

constexpr struct
{
    MRV::ViewMode mode;
    MRV::AppView view;
} Views[] = {
    {MRV::DocumentMode, MRV::DocumentView},
    {MRV::CompositeMode, MRV::CompositeView},
    {MRV::CorkboardMode, MRV::CorkboardView},
    {MRV::OutlinerMode, MRV::OutlinerView},
};

template<typename Row, std::size_t Size>
constexpr bool runsFromTo(const Row (&table)[Size], int first, int last)
{
    for (std::size_t i = 0; i < Size; ++i) {
        if (table[i].value != first + int(i)) {
            return false;
        }
    }
    return first + int(Size) - 1 == last;
}

// Every bit from the lowest to the highest once, except the unused 0x80.
template<std::size_t Size>
constexpr bool holdsEachBitInOrder(const Name<MRV::CompileNoteFlag> (&table)[Size])
{
    int bit = 1;
    for (std::size_t i = 0; i < Size; ++i, bit <<= 1) {
        if (bit == 0x80) {
            bit <<= 1;
        }
        if (table[i].value != bit) {
            return false;
        }
    }
    return table[Size - 1].value == MRV::IncludeComments;
}

static_assert(runsFromTo(OpenInTargets, 0, MRV::OpenInReferencePanel));
static_assert(runsFromTo(SeparatorContexts, 0, MRV::Clippings));
static_assert(runsFromTo(SeparatorTypes, 0, MRV::CustomSeparator));
static_assert(runsFromTo(NodeTypes, MRV::TextNode, MRV::CustomNode));
static_assert(runsFromTo(OpmlImportTypes, 0, MRV::OpmlNotes));
static_assert(holdsEachBitInOrder(NoteFlagNames));
static_assert(std::size(Views) == MRV::OutlinerMode + 1);

template<typename Enum, std::size_t Size>
const char *textOf(const Name<Enum> (&table)[Size], Enum value, const char *fallback)
{
    for (const Name<Enum> &row : table) {
        if (row.value == value) {
            return row.text;
        }
    }
    return fallback;
}

template<typename Enum, std::size_t Size>
Enum valueOf(const Name<Enum> (&table)[Size], const QString &text, Enum fallback)
{
    for (const Name<Enum> &row : table) {
        if (text == QLatin1String(row.text)) {
            return row.value;
        }
    }
    return fallback;
}

} // namespace

const char *MRV::toString(OpenInTarget target)
{
    return textOf(OpenInTargets, target, OpenInTargets[OpenInOtherEditor].text);
}

MRV::OpenInTarget MRV::toOpenInTarget(const QString &text)
{
    return valueOf(OpenInTargets, text, OpenInOtherEditor);
}

const char *MRV::toString(SeparatorContext context)
{
    return textOf(SeparatorContexts, context, "UnknownContext");
}

const char *MRV::toString(SeparatorType type)
{
    return textOf(SeparatorTypes, type, "UnknownSeparatorType");
}

MRV::SeparatorType MRV::toSeparatorType(const QString &text)
{
    return valueOf(SeparatorTypes, text, CustomSeparator);
}

QString MRV::toString(NodeType type)
{
    return QString::fromLatin1(textOf(NodeTypes, type, "Unknown"));
}

QString MRV::toStringTr(NodeType type)
{
    return toString(type);
}

QMap<MRV::OpmlImportType, QString> MRV::opmlImportTypesDescr()
{
    QMap<OpmlImportType, QString> descriptions;
    for (const auto &row : OpmlImportTypes) {
        descriptions.insert(row.value, QCoreApplication::translate("QObject", row.text));
    }
    return descriptions;
}

QStringList MRV::opmlImportTypesDescrSorted()
{
    QStringList descriptions = opmlImportTypesDescr().values();
    descriptions.sort();
    return descriptions;
}

QDebug MRV::operator<<(QDebug debug, QFlags<CompileNoteFlag> flags)
{
    debug.nospace() << "CompileFlags(";
    for (const auto &row : NoteFlagNames) {
        debug << row.text << flags.testFlag(row.value) << '\n';
    }
    debug << ')';
    return debug.space();
}

int MRV::viewModeToAppView(ViewMode mode)
{
    for (const auto &row : Views) {
        if (row.mode == mode) {
            return row.view;
        }
    }
    return NoView;
}

bool MRV::isFreeTextColumn(Columns column)
{
    return column == SynopsisColumn;
}

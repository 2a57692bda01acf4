#include "fileformats/mrvformat.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <iterator>

namespace {

struct Row
{
    MRVFormat::Format format;
    const char *name;
    const char *suffix;
    const char *description;
};

// The first row of a format, and of a suffix, is the one that counts. The descriptions are the
// source texts of translations, irregular ones ("Windows Media", the two of JPEG) included.
// clang-format off
constexpr Row rows[] = {
    {MRVFormat::ODT,       "ODT",       "odt",   QT_TRANSLATE_NOOP("QObject", "OpenDocument Text")},
    {MRVFormat::OTT,       "OTT",       "ott",   QT_TRANSLATE_NOOP("QObject", "OpenDocument Text Template")},
    {MRVFormat::RTF,       "RTF",       "rtf",   QT_TRANSLATE_NOOP("QObject", "Rich Text Format")},
    {MRVFormat::DOC,       "DOC",       "doc",   QT_TRANSLATE_NOOP("QObject", "Microsoft Word")},
    {MRVFormat::DOCX,      "DOCX",      "docx",  QT_TRANSLATE_NOOP("QObject", "Office Open XML Document")},
    {MRVFormat::DOT,       "DOT",       "dot",   QT_TRANSLATE_NOOP("QObject", "Microsoft Document Template")},
    {MRVFormat::PDF,       "PDF",       "pdf",   QT_TRANSLATE_NOOP("QObject", "Adobe Portable Document Format")},
    {MRVFormat::PS,        "PS",        "ps",    QT_TRANSLATE_NOOP("QObject", "Adobe PostScript")},
    {MRVFormat::EPS,       "EPS",       "eps",   QT_TRANSLATE_NOOP("QObject", "Adobe Encapsulated PostScript")},
    {MRVFormat::WMF,       "WMF",       "wmf",   QT_TRANSLATE_NOOP("QObject", "Windows Media")},
    {MRVFormat::EMF,       "EMF",       "emf",   QT_TRANSLATE_NOOP("QObject", "Microsoft Enhanced Metafile")},
    {MRVFormat::SVG,       "SVG",       "svg",   QT_TRANSLATE_NOOP("QObject", "Scalable Vector Graphics")},
    {MRVFormat::SWF,       "SWF",       "swf",   QT_TRANSLATE_NOOP("QObject", "Adobe Flash File Format")},
    {MRVFormat::XPS,       "XPS",       "xps",   QT_TRANSLATE_NOOP("QObject", "Microsoft XML Paper Specification")},
    {MRVFormat::HPGL,      "HPGL",      "hpgl",  QT_TRANSLATE_NOOP("QObject", "HP-GL plotter language")},
    {MRVFormat::PCL,       "PCL",       "pcl",   QT_TRANSLATE_NOOP("QObject", "Printer Command Language Format")},
    {MRVFormat::HTML,      "HTML",      "html",  QT_TRANSLATE_NOOP("QObject", "Hypertext Mark-up Language")},
    {MRVFormat::HTML,      "HTML",      "htm",   QT_TRANSLATE_NOOP("QObject", "Hypertext Mark-up Language")},
    {MRVFormat::XHTML,     "XHTML",     "xhtml", QT_TRANSLATE_NOOP("QObject", "eXtensible HyperText Markup Language")},
    {MRVFormat::XHTML,     "XHTML",     "xhtm",  QT_TRANSLATE_NOOP("QObject", "eXtensible HyperText Markup Language")},
    {MRVFormat::TXT,       "TXT",       "txt",   QT_TRANSLATE_NOOP("QObject", "Plain Text Format")},
    {MRVFormat::XML,       "XML",       "xml",   QT_TRANSLATE_NOOP("QObject", "eXtensible Markup Language")},
    {MRVFormat::JPEG,      "JPEG",      "jpeg",  QT_TRANSLATE_NOOP("QObject", "Joint Photographic Experts Group")},
    {MRVFormat::JPEG,      "JPEG",      "jpg",   QT_TRANSLATE_NOOP("QObject", "Joint Photographic Group")},
    {MRVFormat::TIFF,      "TIFF",      "tiff",  QT_TRANSLATE_NOOP("QObject", "Tagged Image File Format")},
    {MRVFormat::TIFF,      "TIFF",      "tif",   QT_TRANSLATE_NOOP("QObject", "Tagged Image File Format")},
    {MRVFormat::BMP,       "BMP",       "bmp",   QT_TRANSLATE_NOOP("QObject", "Windows Bitmap Image")},
    {MRVFormat::GIF,       "GIF",       "gif",   QT_TRANSLATE_NOOP("QObject", "Graphical Interchange Format")},
    {MRVFormat::PNG,       "PNG",       "png",   QT_TRANSLATE_NOOP("QObject", "Portable Network Graphics")},
    {MRVFormat::TGA,       "TGA",       "tga",   QT_TRANSLATE_NOOP("QObject", "Truevision Targa Image")},
    {MRVFormat::PCX,       "PCX",       "pcx",   QT_TRANSLATE_NOOP("QObject", "ZSoft IBM PC Paintbrush file")},
    {MRVFormat::EPUB,      "EPUB",      "epub",  QT_TRANSLATE_NOOP("QObject", "ePub Book")},
    {MRVFormat::MOBI,      "MOBI",      "mobi",  QT_TRANSLATE_NOOP("QObject", "Amazon Kindle(Mobi) Book")},
    {MRVFormat::FDX,       "FDX",       "fdx",   QT_TRANSLATE_NOOP("QObject", "Final Draft")},
    {MRVFormat::OPML,      "OPML",      "opml",  QT_TRANSLATE_NOOP("QObject", "OPML Format")},
    {MRVFormat::MM,        "MM",        "mm",    QT_TRANSLATE_NOOP("QObject", "Mind Mapping Format")},
    {MRVFormat::MMD,       "MMD",       "mmd",   QT_TRANSLATE_NOOP("QObject", "Multimarkdown Format")},
    {MRVFormat::MMDtoHTML, "MMDtoHTML", "html",  QT_TRANSLATE_NOOP("QObject", "Multimarkdown to HTML")},
    {MRVFormat::MMDtoTEX,  "MMDtoTEX",  "tex",   QT_TRANSLATE_NOOP("QObject", "Multimarkdown to LaTeX")},
    {MRVFormat::MMDtoOPML, "MMDtoOPML", "opml",  QT_TRANSLATE_NOOP("QObject", "Multimarkdown to OPML")},
    {MRVFormat::MMDtoODF,  "MMDtoODF",  "odf",   QT_TRANSLATE_NOOP("QObject", "Multimarkdown to FODT")},
    {MRVFormat::Print,     "Print",     "",      ""},
    {MRVFormat::Preview,   "Preview",   "",      ""},
};
// clang-format on

constexpr bool equal(const char *left, const char *right)
{
    while (*left && *left == *right) {
        ++left;
        ++right;
    }
    return *left == *right;
}

constexpr const Row *rowOf(MRVFormat::Format format)
{
    for (const Row &row : rows) {
        if (row.format == format) {
            return &row;
        }
    }
    return nullptr;
}

// Every number up to the last has a row, but for the one that is never used.
constexpr bool holdsEachFormat()
{
    for (int i = 0; i <= MRVFormat::OTT + 1; ++i) {
        const bool used = i > 0 && i != 22 && i <= MRVFormat::OTT;
        if (used != (rowOf(MRVFormat::Format(i)) != nullptr)) {
            return false;
        }
    }
    return true;
}

// Names belong to one format each; suffixes are as format() looks for them.
constexpr bool namesAndSuffixesAreSound()
{
    for (const Row &row : rows) {
        for (const Row &other : rows) {
            if ((row.format == other.format) != equal(row.name, other.name)) {
                return false;
            }
        }
        for (const char *at = row.suffix; *at; ++at) {
            if (*at < 'a' || *at > 'z') {
                return false;
            }
        }
        const bool file = row.format != MRVFormat::Print && row.format != MRVFormat::Preview;
        if (file != (*row.suffix != '\0')) {
            return false;
        }
    }
    return true;
}

static_assert(std::size(rows) == 43);
static_assert(holdsEachFormat());
static_assert(namesAndSuffixesAreSound());

} // namespace

int MRVFormat::formatsCount()
{
    return int(std::size(rows));
}

MRVFormat::Format MRVFormat::format(const QString &suffix)
{
    if (suffix.isEmpty()) {
        return NoFormat;
    }
    const QString lower = suffix.toLower();
    for (const Row &row : rows) {
        if (lower == QLatin1String(row.suffix)) {
            return row.format;
        }
    }
    return NoFormat;
}

MRVFormatInfo MRVFormat::formatInfo(int row)
{
    const Row &info = rows[row];
    const QString description =
        *info.description ? QCoreApplication::translate("QObject", info.description) : QString();
    return {info.format, QString::fromLatin1(info.name), QString::fromLatin1(info.suffix),
            description};
}

MRVFormat::Format MRVFormat::formatNamed(const QString &text)
{
    for (const Row &row : rows) {
        if (text.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) {
            return row.format;
        }
    }
    return format(text.contains(u'.') ? QFileInfo(text).suffix() : text);
}

QList<MRVFormat::Format> MRVFormat::formats()
{
    QList<Format> formats;
    for (const Row &row : rows) {
        if (!formats.contains(row.format)) {
            formats.append(row.format);
        }
    }
    return formats;
}

MRVFormat::Format MRVFormat::formatAt(int row)
{
    return rows[row].format;
}

QString MRVFormat::formatExtension(int row)
{
    return QString::fromLatin1(rows[row].suffix);
}

QString MRVFormat::extension(Format format)
{
    const Row *row = rowOf(format);
    return row ? QString::fromLatin1(row->suffix) : QString();
}

QString MRVFormat::name(Format format)
{
    const Row *row = rowOf(format);
    return row ? QString::fromLatin1(row->name) : QString();
}

bool MRVFormat::isMmdVariant(Format format)
{
    return format >= MMDtoHTML && format <= MMD;
}

bool MRVFormat::isPlainTextVariant(Format format)
{
    return isMmdVariant(format) || format == TXT;
}

bool MRVFormat::isRtfOrDoc(Format format)
{
    return format == RTF || format == DOC || format == DOCX;
}

bool MRVFormat::isEBook(Format format)
{
    return format == EPUB || format == MOBI;
}

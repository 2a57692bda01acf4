#include "office/mrvofficeconverter.h"

#include "office/mrvofficesource_p.h"
#include "util/mrvescape.h"
#include "util/mrvfailure.h"
#include "util/mrvlimitedprogram.h"
#include "util/mrvnames.h"
#include "util/mrvtemporaryfolder.h"

#include "core/mrvcoreutil.h"

#include <QDir>
#include <QStandardPaths>

namespace {

// Which installed program reads which format. Beside the table of engines, which says what an
// application offers and stores; this one says how this library reads.
struct Converter
{
    MRVFormat::Format format;
    const char *program;
    const char *package; // of Debian
    const char *reader; // as the program calls the format
};

// Blank paragraphs are kept: writers separate scenes by them.
constexpr Converter converters[] = {
    {MRVFormat::DOCX, "pandoc", "pandoc", "docx+empty_paragraphs"},
    {MRVFormat::ODT, "pandoc", "pandoc", "odt+empty_paragraphs"},
    {MRVFormat::RTF, "pandoc", "pandoc", "rtf"},
};

const Converter *converterOf(MRVFormat::Format format)
{
    for (const Converter &row : converters) {
        if (row.format == format) {
            return &row;
        }
    }
    return nullptr;
}

// What styles of the document mark as its title and the like is no part of the body.
constexpr char pageTemplate[] = R"(<!DOCTYPE html>
<html$if(lang)$ lang="$lang$"$else$@lang@$endif$>
<head>
<meta charset="utf-8">
$if(title)$<title>$pagetitle$</title>
$else$@title@$endif$$if(author-meta)$$for(author-meta)$<meta name="author" content="$author-meta$">
$endfor$$else$@author@$endif$$if(description-meta)$<meta name="description" content="$description-meta$">
$else$@description@$endif$$if(date-meta)$<meta name="date" content="$date-meta$">
$endif$</head>
<body>
$if(title)$<p style="text-align: center; font-size: 2em; font-weight: bold">$title$</p>
$endif$$if(subtitle)$<p style="text-align: center; font-size: 1.5em">$subtitle$</p>
$endif$$for(author)$<p style="text-align: center">$author$</p>
$endfor$$if(date)$<p style="text-align: center">$date$</p>
$endif$$if(abstract)$<div>$abstract$</div>
$endif$$body$
</body>
</html>
)";

// A text as a template has it.
QString literal(const QString &text)
{
    return MRV::escape(text).replace(u'$', QLatin1String("$$"));
}

QString metaElement(const char *name, const QString &content)
{
    return content.isEmpty() ? QString()
                             : QStringLiteral("<meta name=\"%1\" content=\"%2\">\n")
                                   .arg(QLatin1String(name), literal(content));
}

// What the text does not say, the properties do.
QByteArray templateFor(const MRVOfficeProperties &properties)
{
    QString authors;
    for (const QString &author : properties.authors) {
        authors += metaElement("author", author);
    }
    const QString language = MRV::languageTag(properties.language);
    const struct
    {
        const char *place;
        QString markup;
    } rows[] = {
        {"@lang@",
         language.isEmpty() ? QString() : QStringLiteral(" lang=\"%1\"").arg(literal(language))},
        {"@title@",
         properties.title.isEmpty()
             ? QString()
             : QStringLiteral("<title>%1</title>\n").arg(literal(properties.title))},
        {"@author@", authors},
        {"@description@", metaElement("description", properties.description)},
    };
    QString page;
    QString rest = QLatin1String(pageTemplate);
    for (const auto &row : rows) { // in order: a value may look like another place
        const int place = rest.indexOf(QLatin1String(row.place));
        page += rest.left(place) + row.markup;
        rest.remove(0, place + int(qstrlen(row.place)));
    }
    return (page + rest).toUtf8();
}

// --sandbox keeps it from other files and from the network, which a document may name.
QStringList argumentsFor(const Converter &converter, bool embedsPictures)
{
    QStringList arguments{QStringLiteral("--from"),
                          QLatin1String(converter.reader),
                          QStringLiteral("--to=html5+empty_paragraphs"),
                          QStringLiteral("--sandbox"),
                          QStringLiteral("--template=page.template"),
                          QStringLiteral("--wrap=none"),
                          QStringLiteral("--eol=lf"),
                          QStringLiteral("--no-highlight")};
    if (embedsPictures) {
        arguments.append(QStringLiteral("--self-contained"));
    }
    return arguments;
}

// In a sandbox, pandoc also misses its own translations, of which a page needs none.
bool isWorthTelling(const QString &warning)
{
    return !warning.contains(QLatin1String("translation"))
        && !warning.contains(QLatin1String("nonempty <title>"));
}

// A warning is a line that begins with its kind, and indented ones.
QStringList warningsIn(const QByteArray &errors)
{
    const QLatin1String mark("[WARNING] ");
    QStringList warnings;
    const QStringList lines = QString::fromUtf8(errors).split(u'\n', Qt::SkipEmptyParts);
    bool isWarning = false;
    for (const QString &line : lines) {
        if (line.startsWith(mark)) {
            warnings.append(line.mid(mark.size()).simplified());
            isWarning = true;
        } else if (isWarning && line.startsWith(u' ')) {
            warnings.last() += u' ' + line.simplified();
        } else {
            isWarning = false;
        }
    }
    const auto useless = [](const QString &warning) { return !isWorthTelling(warning); };
    warnings.erase(std::remove_if(warnings.begin(), warnings.end(), useless), warnings.end());
    warnings.removeDuplicates();
    return warnings;
}

// The last line that is no warning, without the program's name.
QString reasonIn(const QByteArray &errors)
{
    const QStringList lines = QString::fromUtf8(errors).split(u'\n', Qt::SkipEmptyParts);
    for (int i = lines.size() - 1; i >= 0; --i) {
        const QString line = lines.at(i).simplified();
        if (!line.isEmpty() && !line.startsWith(u'[') && !lines.at(i).startsWith(u' ')) {
            return line.startsWith(QLatin1String("pandoc: ")) ? line.mid(8) : line;
        }
    }
    return QString();
}

} // namespace

bool MRVOfficeConverter::canConvert(MRVFormat::Format format)
{
    return converterOf(format);
}

MRVFormat::Format MRVOfficeConverter::formatOf(const QByteArray &bytes)
{
    if (bytes.startsWith("{\\rtf")) {
        return MRVFormat::RTF;
    }
    if (!bytes.startsWith("PK\3\4")) {
        return MRVFormat::NoFormat;
    }
    // The first file of an ODT is its type, uncompressed; names are at the end of any archive.
    if (bytes.mid(30, 47) == "mimetypeapplication/vnd.oasis.opendocument.text") {
        return MRVFormat::ODT;
    }
    return bytes.contains("[Content_Types].xml") && bytes.contains("word/") ? MRVFormat::DOCX
                                                                            : MRVFormat::NoFormat;
}

// What begins in another way is no such document, whatever its name says.
bool MRVOfficeConverter::begins(const QByteArray &bytes, MRVFormat::Format format,
                                MRVErrorSink error)
{
    const QString name = MRVFormat::name(format);
    const MRVFormat::Format found = formatOf(bytes);
    if (found != MRVFormat::NoFormat && found != format) {
        return MRV::fail(error, MRVErrorKind::Unsupported,
                         tr("it is not %1, but %2").arg(name, MRVFormat::name(found)));
    }
    return bytes.startsWith(format == MRVFormat::RTF ? "{\\rtf" : "PK\3\4")
        || MRV::fail(error, MRVErrorKind::Damaged, tr("it is not %1").arg(name));
}

QString MRVOfficeConverter::toHtml(const QByteArray &bytes, MRVFormat::Format format,
                                   MRVErrorSink error)
{
    m_warnings.clear();
    m_missingWords.clear();
    m_missingComments.clear();
    const Converter *converter = converterOf(format);
    const QString formatName = MRVFormat::name(format);
    if (!converter) {
        MRV::fail(error, MRVErrorKind::Unsupported,
                  tr("no program is known that reads %1").arg(formatName));
        return QString();
    }
    const QString program = QStandardPaths::findExecutable(QLatin1String(converter->program));
    if (program.isEmpty()) {
        MRV::fail(error, MRVErrorKind::ProgramMissing,
                  tr("reading %1 needs the program %2, which is not installed (Debian: apt install "
                     "%3)")
                      .arg(formatName, QLatin1String(converter->program),
                           QLatin1String(converter->package)));
        return QString();
    }
    if (!begins(bytes, format, error)) {
        return QString();
    }
    MRVOfficeSource source(bytes, format);
    if (source.fault()) {
        MRV::fail(error, source.fault());
        return QString();
    }
    if (source.isTooLarge()) {
        MRV::fail(error, MRVErrorKind::TooLarge,
                  tr("its text is larger than %1 MB").arg(MRVOfficeSource::MostUnpacked >> 20));
        return QString();
    }
    const MRVTemporaryFolder folder(QDir::tempPath());
    const QDir files(folder.path());
    const QString input = files.filePath(QStringLiteral("input"));
    MRVError reason = folder.error();
    if (reason || !MRVCoreUtil::WriteBinaryFile(source.prepared(), input, &reason)
        || !MRVCoreUtil::WriteBinaryFile(templateFor(source.properties()),
                                         files.filePath(QStringLiteral("page.template")),
                                         &reason)) {
        MRV::fail(error, reason);
        return QString();
    }
    const MRVProgramResult result =
        mrvRunLimited(program, argumentsFor(*converter, m_embedsPictures), input, folder.path(),
                      {m_limits.milliseconds, m_limits.memory, m_limits.output},
                      [this] { return !m_progress || m_progress(0); });
    if (result.end == MRVProgramResult::Cancelled) {
        MRV::fail(error, MRVProgressMeter::cancelled());
        return QString();
    }
    if (result.end != MRVProgramResult::Exited || result.exitCode != 0) {
        MRV::fail(error, QLatin1String(converter->program), failureOf(result));
        return QString();
    }
    m_warnings = warningsIn(result.errors);
    const QString page = source.withMarks(QString::fromUtf8(result.output))
                             .replace(QLatin1String("<p></p>"), QLatin1String("<p><br /></p>"));
    m_missingWords = source.missingFrom(page);
    m_missingComments = source.missingComments();
    return page;
}

MRVError MRVOfficeConverter::failureOf(const MRVProgramResult &result) const
{
    constexpr qint64 megabyte = 1 << 20;
    const QString reason = reasonIn(result.errors);
    switch (result.end) {
    case MRVProgramResult::NotStarted:
        return {MRVErrorKind::ProgramMissing, tr("it cannot be started")};
    case MRVProgramResult::OutOfTime:
        return {MRVErrorKind::TooLarge,
                tr("it was not done after %1 seconds").arg(m_limits.milliseconds / 1000)};
    case MRVProgramResult::TooMuchOutput:
        return {MRVErrorKind::TooLarge,
                tr("its result is larger than %1 MB").arg(m_limits.output / megabyte)};
    case MRVProgramResult::Cancelled: // is no failure of the program
    case MRVProgramResult::Crashed:
    case MRVProgramResult::Exited:
        break;
    }
    if (reason.contains(QLatin1String("memory"), Qt::CaseInsensitive)) {
        return {MRVErrorKind::TooLarge,
                tr("it needs more than %1 MB of memory").arg(m_limits.memory / megabyte)};
    }
    return {MRVErrorKind::Damaged,
            reason.isEmpty() ? tr("it has failed without a reason") : reason};
}

#include "manuscript/mrvmanuscript.h"

#include "markdown/mrvfrontmatter.h"

#include <QFileInfo>
#include <QTextCodec>

#include <algorithm>
#include <iterator>

namespace {

constexpr struct
{
    MRVManuscript::Format format;
    const char *name;
    const char *suffixes;
} formats[] = {
    {MRVManuscript::Html, "html", "html htm xhtml"},
    {MRVManuscript::Markdown, "markdown", "md markdown mkd mdown"},
    {MRVManuscript::PlainText, "text", "txt text fountain"},
    {MRVManuscript::Docx, "docx", "docx"},
    {MRVManuscript::Odt, "odt", "odt"},
    {MRVManuscript::Rtf, "rtf", "rtf"},
    {MRVManuscript::Native, "mrvdoc", "mrvdoc"},
};

// Metadata of HTML that say nothing of the text, but how programs show or collect the page.
constexpr const char *pageKeys[] = {"color-scheme", "format-detection", "generator",   "qrichtext",
                                    "referrer",     "robots",           "theme-color", "viewport"};

} // namespace

QString MRVUnreadablePicture::text() const
{
    return line > 0
        ? tr("line %1: the picture %2 cannot be read: %3").arg(QString::number(line), name, reason)
        : tr("the picture %1 cannot be read: %2").arg(name, reason);
}

QStringList MRVManuscript::readingNotes() const
{
    QStringList notes = conversionNotes;
    for (const MRVHtmlLoss &loss : report.losses) {
        notes.append(loss.line > 0
                         ? tr("line %1: not in the document: %2").arg(loss.line).arg(loss.what)
                         : tr("not in the document: %1").arg(loss.what));
    }
    for (const MRVUnreadablePicture &picture : unreadablePictures) {
        notes.append(picture.text());
    }
    if (!report.missingSheets.isEmpty()) {
        notes.append(tr("style sheets that cannot be read: %1")
                         .arg(report.missingSheets.join(QLatin1String(", "))));
    }
    if (!report.remoteSheets.isEmpty()) {
        notes.append(tr("style sheets on other machines, which are not loaded: %1")
                         .arg(report.remoteSheets.join(QLatin1String(", "))));
    }
    if (report.hiddenWords > 0) {
        notes.append(tr("words that the page hides, and the document does not hold: %1")
                         .arg(report.hiddenWords));
    }
    return notes;
}

MRVMarkdownHead MRVManuscript::head() const
{
    MRVMarkdownHead head;
    head.title = document ? document->metaInformation(QTextDocument::DocumentTitle) : QString();
    head.authors = authors;
    head.description = description;
    head.language = language;
    head.date = date;
    std::copy_if(metadata.cbegin(), metadata.cend(), std::back_inserter(head.entries),
                 [](const MRVMetadataEntry &entry) {
                     return std::none_of(
                         std::begin(pageKeys), std::end(pageKeys),
                         [&](const char *key) { return entry.key == QLatin1String(key); });
                 });
    if (!language.isEmpty() && MRVFrontMatter::head(metadata).language.isEmpty()) {
        head.entries.append({QStringLiteral("language"), {language}, 0});
    }
    return head;
}

QString MRVManuscript::sourceText() const
{
    const QTextCodec *codec = QTextCodec::codecForName(encoding);
    QTextCodec::ConverterState state;
    return codec ? codec->toUnicode(bytes.constData(), bytes.size(), &state) : QString();
}

QStringList MRVManuscript::formatNames()
{
    QStringList names;
    for (const auto &row : formats) {
        names.append(QLatin1String(row.name));
    }
    return names;
}

MRVManuscript::Format MRVManuscript::formatNamed(const QString &name)
{
    for (const auto &row : formats) {
        if (name == QLatin1String(row.name)) {
            return row.format;
        }
    }
    return Unknown;
}

MRVManuscript::Format MRVManuscript::formatOfFile(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix.isEmpty()) {
        return PlainText;
    }
    for (const auto &row : formats) {
        if (QString::fromLatin1(row.suffixes).split(u' ').contains(suffix)) {
            return row.format;
        }
    }
    return Unknown;
}

#include "epub/mrvscriptbook.h"

#include "epub/mrvepubpackage.h"
#include "screenplay/mrvscriptdocument.h"
#include "scriptmode/mrvscriptmode.h"
#include "util/mrvfixeddate.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

namespace {

constexpr double TextWidth = 432; // points, of a Letter page with the margins of a script
constexpr int LargePage = 60000; // characters, some forty pages of a script

// After what the mode says of each element.
constexpr char StyleSheet[] = R"(body {
    margin: 0 5%;
    line-height: 1.2;
}
p, h1, h2 {
    hyphens: none;
    -webkit-hyphens: none;
    widows: 2;
    orphans: 2;
}
h1, h2 {
    break-after: avoid;
    page-break-after: avoid;
    break-inside: avoid;
}
nav ol {
    list-style-type: none;
}
)";
constexpr char FixedPitchSheet[] = R"(body {
    font-family: "Courier Prime", "Courier New", Courier, monospace;
}
)";

bool hasActs(const QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 1) {
            return true; // the scenes are below them
        }
    }
    return false;
}

double fontSize(const MRVScriptMode &mode)
{
    for (const MRVScriptElement &element : mode.elements()) {
        if (element.charFormat().fontPointSize() > 0) {
            return element.charFormat().fontPointSize();
        }
    }
    return 12;
}

MRVEPubOptions options(const QTextDocument &document, const MRVScriptMode &mode,
                       MRVScriptBook::Typeface typeface)
{
    MRVEPubOptions options;
    options.styleSheet = StyleSheet;
    if (typeface == MRVScriptBook::FixedPitch) {
        options.styleSheet += FixedPitchSheet;
    }
    options.pageDepth = hasActs(document) ? 1 : 0;
    options.largePage = LargePage;
    options.textWidth = TextWidth / fontSize(mode);
    return options;
}

} // namespace

MRVEPubMetadata MRVScriptBook::metadata(const MRVFountainScript &script)
{
    static const QRegularExpression separator(QStringLiteral("\\s*(?:\\n|&|,| and )\\s*"));
    const QString author = script.title(QStringLiteral("Author"));
    const QString authors = author.isEmpty() ? script.title(QStringLiteral("Authors")) : author;
    MRVEPubMetadata metadata;
    metadata.title = script.title(QStringLiteral("Title")).simplified();
    metadata.authors = authors.split(separator, Qt::SkipEmptyParts);
    metadata.rights = script.title(QStringLiteral("Copyright")).simplified();
    return metadata;
}

QByteArray MRVScriptBook::toByteArray(const MRVFountainScript &script, const MRVScriptMode &mode,
                                      const QString &language, Typeface typeface,
                                      MRVErrorSink error)
{
    MRVEPubMetadata book = metadata(script);
    book.language = language;
    if (!MRVFixedDate::fromEnvironment(&book.modified, error)) {
        return QByteArray();
    }
    QTextDocument document;
    MRVScriptDocument::setPrintedScript(&document, script, mode);
    MRVEPubPackage package(MRVEPubVersion::EPub3, book, options(document, mode, typeface));
    return package.addDocument(document, QString(), error) ? package.toByteArray(error)
                                                           : QByteArray();
}

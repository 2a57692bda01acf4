#include "epub/mrvscriptbook.h"

#include "epub/mrvepubpackage.h"
#include "screenplay/mrvscriptdocument.h"
#include "util/mrvfixeddate.h"

#include <QRegularExpression>
#include <QTextDocument>

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
                                      const QString &language, QString *error)
{
    MRVEPubMetadata book = metadata(script);
    book.language = language;
    if (!MRVFixedDate::fromEnvironment(&book.modified, error)) {
        return QByteArray();
    }
    QTextDocument document;
    MRVScriptDocument::setPrintedScript(&document, script, mode);
    MRVEPubPackage package(MRVEPubVersion::EPub3, book);
    return package.addDocument(document, QString(), error) ? package.toByteArray(error)
                                                           : QByteArray();
}

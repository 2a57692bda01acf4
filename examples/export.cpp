// Writes a document as an XHTML page and as an EPUB, into the folder that is given.
#include "epub/mrvepubpackage.h"
#include "xhtml/mrvtextxhtmlexporter.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextStream>
#include <QUrl>

namespace {

void write(QTextDocument *document)
{
    document->setMetaInformation(QTextDocument::DocumentTitle, QStringLiteral("Two Inches"));
    QImage picture(80, 40, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    document->addResource(QTextDocument::ImageResource, QUrl(QStringLiteral("sea")), picture);

    QTextCursor cursor(document);
    QTextBlockFormat heading;
    heading.setHeadingLevel(1);
    cursor.setBlockFormat(heading);
    cursor.insertText(QStringLiteral("Two Inches"));
    cursor.insertBlock(QTextBlockFormat());
    cursor.insertText(QStringLiteral("A tide can be foretold. "));
    cursor.insertImage(QStringLiteral("sea"));
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    QTextStream out(stdout);
    if (argc != 2) {
        out << "usage: export FOLDER\n";
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    QTextDocument document;
    write(&document);

    QString error;
    MRVTextXhtmlExporter page(&document);
    page.setLanguage(QStringLiteral("en-GB"));
    if (!page.toFile(MRVTextXhtmlExporter::Xhtml, folder.filePath(QStringLiteral("tide.xhtml")),
                     true, QString(), &error)) {
        out << error << '\n';
        return 1;
    }

    MRVEPubMetadata metadata;
    metadata.authors = QStringList(QStringLiteral("Ilse Marrable"));
    metadata.language = QStringLiteral("en-GB");
    // With a fixed date the same document gives the same bytes.
    metadata.modified = QDateTime(QDate(2024, 1, 2), QTime(3, 4), Qt::UTC);
    MRVEPubPackage book(MRVEPubVersion::EPub3, metadata);
    if (!book.addDocument(document, QString(), &error)
        || !book.write(folder.filePath(QStringLiteral("tide.epub")), &error)) {
        out << error << '\n';
        return 1;
    }
    const QStringList files = folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    out << files.join(u'\n') << '\n';
    return 0;
}

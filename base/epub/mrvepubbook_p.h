#pragma once

#include "document/mrvdocumentpictures.h"
#include "epub/mrvepubmetadata.h"
#include "epub/mrvepuboptions.h"
#include "xhtml/mrvtextxhtmlexporter.h"

#include <QCoreApplication>
#include <QHash>
#include <QVector>

/** An entry of the table of contents; depth 0 is the outermost. */
struct MRVEPubEntry
{
    QString text;
    QString target; // "page.xhtml" or "page.xhtml#id"
    int depth = 0;
};

/** Where a page of the printed edition begins. */
struct MRVEPubPageBreak
{
    QString label; // the printed number: "12", "xii"
    QString target; // "page.xhtml#id"
};

/**
 * A page of the book. Its body is kept until all documents are in, when its links can be resolved.
 */
struct MRVEPubPage
{
    QString fileName;
    QString title;
    // As epub:type has it: "titlepage", "chapter", "part", "glossary"...; empty where nothing tells.
    QString type;
    QString bodyTag;
    QString body;
    int document = 0; // the one it is a piece of
};

/** A picture of the package. */
struct MRVEPubFile
{
    QString path; // below the package folder
    QString mediaType;
    MRVDocumentPicture picture; // read from its file when the package is written
};

/** Where the links of a document lead. */
struct MRVEPubAnchors
{
    QString fileName; // of the document, as links of others name it
    QString firstPage;
    QHash<QString, QString> targets; // anchor name to "page.xhtml#id"
};

/** All that goes into an e-book, as documents are added. */
struct MRVEPubBook
{
    Q_DECLARE_TR_FUNCTIONS(MRVEPubBook)

public:
    MRVEPubVersion version = MRVEPubVersion::EPub3;
    MRVEPubMetadata metadata;
    MRVEPubOptions options;
    QVector<MRVEPubPage> pages; // in reading order
    QVector<MRVEPubEntry> headings; // of all pages, depth counted from heading level 1 as 0
    QVector<MRVEPubFile> pictures;
    QVector<MRVEPubAnchors> anchors; // by document
    MRVTextXhtmlExporter::StyleList styles;
    QHash<QByteArray, QString> picturePaths; // by digest of the bytes
    QStringList picturesWithoutText; // names, each once; those marked as decoration do not count
    QVector<MRVEPubPageBreak> pageBreaks; // in reading order
    QStringList languages; // of the text, beside the book's own, each once
    int notes = 0; // that are linked with a mark

    /**
     * Adds the cover's picture, which has to come before all others; one that readers cannot show
     * is converted.
     */
    void addCover();
    bool addDocument(const QTextDocument &document, const QString &fileName, QString *error);

    /**
     * The headings as entries without gaps in depth, as deep as the options say; of a book without
     * headings its pages.
     */
    QVector<MRVEPubEntry> contents() const;
    /** Whether there is a page for the cover: for its picture, or where the book is empty. */
    bool hasCoverPage() const { return !metadata.cover.isEmpty() || pages.isEmpty(); }
    /** The page with its links resolved. May be called from several threads. */
    QByteArray pageBytes(const MRVEPubPage &page) const;
    QByteArray coverBytes() const;
    QByteArray styleSheet() const;
    /** A whole page of the book around a body. */
    QString framed(const QString &title, const QString &bodyTag, const QString &body) const;
    QString title() const;
    QStringList authors() const;
    QString language() const;

private:
    struct Cutting;

    bool addAllPictures(const QTextDocument &document, QHash<QString, QString> *references,
                        QString *error);
    QString pageName(int piece) const;
    MRVEPubAnchors anchorTargets(const Cutting &cutting, const QString &fileName) const;
    void addPages(const Cutting &cutting);
    bool addPictures(const QTextDocument &document, QHash<QString, QString> *references,
                     QString *error);
    QString addPicture(const MRVDocumentPicture &picture, const QString &name);
    QString resolved(const QString &href, int document) const;
};

/** The navigation document of EPUB 3. */
QByteArray mrvEPubNavigation(const MRVEPubBook &book);
/** The table of contents of EPUB 2, which EPUB 3 books carry for older readers. */
QByteArray mrvEPubNcx(const MRVEPubBook &book, const QString &identifier);
/** The package document: metadata, the list of files and the reading order. */
QByteArray mrvEPubPackageDocument(const MRVEPubBook &book, const QString &identifier,
                                  const QDateTime &modified);

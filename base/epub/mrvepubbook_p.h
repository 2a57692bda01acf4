#pragma once

#include "core/mrverror.h"
#include "document/mrvdocumentpictures.h"
#include "epub/mrvepublooks_p.h"
#include "epub/mrvepubmetadata.h"
#include "epub/mrvepuboptions.h"
#include "xhtml/mrvuniqueids.h"

#include <QCoreApplication>
#include <QHash>
#include <QVector>

#include <memory>

class MRVProgressMeter;
class QTextDocument;
class QTranslator;

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

/** A place in a page for what is known once the book is complete. */
struct MRVEPubHole
{
    enum Kind { Class, LinkBegin, LinkEnd };
    enum Flag { Spaced = 1, Open = 2, Done = 4, SceneBreak = 8 }; // further classes

    int offset; // in the page's body
    Kind kind;
    int value; // the number of the look, or of the link
    int flags;
    int extra; // in the page's attributes: of a link, or a further class; -1: none
};

/**
 * A page of the book. Its body is kept with holes until all documents are in, when its links can be
 * resolved.
 */
struct MRVEPubPage
{
    QString fileName;
    QString title;
    // As epub:type has it: "titlepage", "chapter", "part", "glossary"...; empty where nothing
    // tells.
    QString type;
    QByteArray begin; // what stands around the body, UTF-8 as that
    QByteArray body;
    QByteArray end;
    QVector<MRVEPubHole> holes; // by offset
    QVector<QByteArray> attributes;
};

/** Where a link of a document leads, as the document says. */
struct MRVEPubAddress
{
    QString address;
    int document; // by its number
    QString title;
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
    QString path; // of the document, as MRV::fileIdentity() gives it; may be empty
    QString firstPage;
    QHash<QString, QString> targets; // anchor name to "page.xhtml#id"
};

/** All that goes into an e-book, as documents are added. */
struct MRVEPubBook
{
    Q_DECLARE_TR_FUNCTIONS(MRVEPubBook)

public:
    static constexpr QLatin1String NotesPage{"notes.xhtml"}; // of the whole book

    MRVEPubVersion version = MRVEPubVersion::EPub3;
    MRVEPubMetadata metadata;
    MRVEPubOptions options;
    std::shared_ptr<QTranslator> translator; // into the book's language; null: none
    QVector<MRVEPubPage> pages; // in reading order
    QVector<MRVEPubEntry> headings; // of all pages, depth counted from heading level 1 as 0
    QVector<MRVEPubFile> pictures;
    QVector<MRVEPubAnchors> anchors; // by document
    QHash<QString, int> documents; // numbers by path, as MRV::fileIdentity() gives it
    QVector<MRVEPubAddress> links;
    MRVEPubLooks looks;
    QVector<QByteArray> classes; // of the paragraphs' looks
    MRVUniqueIds uniqueIds; // of all pages
    int pageNumber = 0; // of the last page that was named
    QHash<QByteArray, QString> picturePaths; // by digest of the bytes
    QStringList picturesWithoutText; // names, each once; those marked as decoration do not count
    QVector<MRVEPubPageBreak> pageBreaks; // in reading order
    QStringList languages; // of the text, beside the book's own, each once
    QVector<MRVEPubPage> platePages; // outside of the reading order; only links lead to them
    QHash<QString, QString> plates; // their names by the picture's file, as MRV::fileIdentity()
    int notes = 0; // that are linked with a mark
    int comments = 0; // that became notes
    int notesLevel = 0; // of the heading above all notes; 0: the book has no page for them
    bool areNotesInChapter = false; // of a manuscript, which is then the page for them
    bool isPartOpen = false; // the last page holds the title of a part, which goes on
    bool hasParts = false; // which stand above all headings of documents

    /**
     * Adds the cover's picture, which has to come before all others; one that readers cannot show
     * is converted.
     */
    void addCover();
    /**
     * Adds the pictures of a document.
     *
     * @param references receives their paths by resource id, empty for those that no book can hold.
     * @return false, with nothing added, when one of them cannot be read.
     */
    bool addAllPictures(const QTextDocument &document, QHash<QString, QString> *references,
                        MRVProgressMeter *meter, MRVErrorSink error);

    /**
     * Adds a page for a picture that a link leads to, where it is a file in the folder of the
     * document or below. Otherwise the link is one that leads nowhere.
     *
     * @param text of the link, which says what the picture shows.
     * @param path of the document; may be empty.
     */
    void addPlate(const QString &address, const QString &text, const QString &path);

    /**
     * The headings as entries without gaps in depth, as deep as the options say; of a book without
     * headings its pages.
     */
    QVector<MRVEPubEntry> contents() const;
    /** Whether there is a page for the cover: for its picture, or where the book is empty. */
    bool hasCoverPage() const { return !metadata.cover.isEmpty() || pages.isEmpty(); }
    /** The page with its links resolved. May be called from several threads. */
    QByteArray pageBytes(const MRVEPubPage &page) const;
    /** The addresses of links that lead nowhere in the book, each once. */
    QStringList deadLinks() const;
    QByteArray coverBytes() const;
    /** The base of the options, the rules of all looks, and the sheet of the options. */
    QByteArray styleSheet() const;
    /** A whole page of the book around a body. */
    QString framed(const QString &title, const QString &bodyTag, const QString &body) const;
    QString title() const;
    QStringList authors() const;
    QString language() const;
    /**
     * A text that was marked for translation, in the language of the book; where that is unknown,
     * or there is no translation into it, in the language of the interface.
     */
    QString text(const char *source) const;

    /** Adds a page for the title of a part, which the next one goes on with, and its heading. */
    void addPart(const QString &title);
    /** A page that is still to be added, with a name: empty, or with the title of its part. */
    MRVEPubPage beginPage();
    void addPage(const MRVEPubPage &page);
    /** Adds a title page from the metadata before all others, where the book begins with none. */
    void addTitlePage();
    /**
     * Makes a chapter of notes the page for those of the whole book, where these have one and none
     * is it yet.
     *
     * @param level of its heading.
     * @return the notes that it has to end with; they may be none.
     */
    MRVEPubPage adoptNotes(MRVEPubPage *chapter, int level);
    /**
     * Begins the page of notes, which stays the last one, where the book has none.
     *
     * @param level of the headings of chapters; 0: without any.
     * @return an empty page of that name, for further notes.
     */
    MRVEPubPage beginNotes(int level);
    /** Adds to the page of notes. */
    void addNotes(const MRVEPubPage &page);

private:
    // After the pages of documents comes one that was made for notes.
    int documentEnd() const
    {
        return pages.size() - (notesLevel > 0 && !areNotesInChapter ? 1 : 0);
    }
    bool addPictures(const QTextDocument &document, QHash<QString, QString> *references,
                     MRVProgressMeter *meter, MRVErrorSink error);
    QString addPicture(const MRVDocumentPicture &picture, const QString &name);
    static QString linkedFile(const QString &address, const QString &path);
    QString resolved(const QString &href, int document) const;
    QByteArray classAttribute(const MRVEPubPage &page, const MRVEPubHole &hole) const;
    QByteArray linkTag(const MRVEPubPage &page, const MRVEPubHole &hole) const;
    QString head(const QString &title) const;
    QByteArray titleBody() const;
};

/** The package document: metadata, the list of files and the reading order. */
QByteArray mrvEPubPackageDocument(const MRVEPubBook &book, const QString &identifier,
                                  const QDateTime &modified);

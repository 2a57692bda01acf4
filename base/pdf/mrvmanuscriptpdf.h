#pragma once

#include "core/mrverror.h"
#include "pdf/mrvprintoptions.h"
#include "util/mrvbase_export.h"
#include "util/mrvprogress.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <memory>

class MRVPrintedBook;
class QTextDocument;

/**
 * Documents as one PDF document: a title page, the contents with links, and the text.
 *
 * A chapter begins a page: a heading of the highest level that occurs more than once, what follows
 * a page break, and each document. No heading stands alone at the foot of a page, and of a
 * paragraph at least two lines stand on either side of a page break. Pictures become smaller where
 * they would not fit; a row of a table stays on one page where it can, and a table within four
 * others becomes lines of text. Emphasis, lists, tables, pictures and links, also those between
 * notes and their marks, are kept; fonts and sizes of the text in a book, too. A first heading that
 * repeats the title is on the title page alone. The outline has all headings. A chapter of more
 * than some 200 pages is divided by one page break more, between paragraphs.
 *
 * The same documents and options give the same bytes on a machine with the same fonts. GUI thread
 * only.
 *
 * @code
 * MRVPrintOptions options;
 * options.title = QStringLiteral("The Tide Book");
 * MRVManuscriptPdf pdf(options);
 * pdf.addDocument(document);
 * QByteArray bytes;
 * QString error;
 * if (!pdf.toByteArray(&bytes, &error)) {
 *     qWarning() << error;
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVManuscriptPdf
{
    Q_DECLARE_TR_FUNCTIONS(MRVManuscriptPdf)

public:
    /** A document without text. */
    explicit MRVManuscriptPdf(const MRVPrintOptions &options);
    ~MRVManuscriptPdf();
    Q_DISABLE_COPY(MRVManuscriptPdf)

    /**
     * Adds a document after those added before. It has to live, unchanged, until the file is made.
     *
     * @param fileName the path by which links of other documents name this one; may be empty.
     * @param heading  what stands before it, and in the contents, where it does not begin with a
     *                 heading; may be empty.
     */
    void addDocument(const QTextDocument &document, const QString &fileName = QString(),
                     const QString &heading = QString());

    /** What follows toByteArray(); nothing at first. */
    void setProgress(const MRVProgress &progress) { m_progress = progress; }

    /** Has the next document begin a part of the book, whose title stands on a page before it. */
    void addPart(const QString &title);

    /**
     * The addresses of links that lead to no place in the file and to none that a viewer may open;
     * their text is printed. Each once, in order; known after toByteArray().
     */
    QStringList deadLinks() const;

    /**
     * How many tables are cut off at the edge of the paper, since their words are wider in the
     * smallest type; known after toByteArray().
     */
    int wideTables() const;

    /**
     * How many tables are printed as lines of text, a row each, since there are four tables or more
     * around them; known after toByteArray().
     */
    int flattenedTables() const;

    /** See MRVPdfWriter::missingCharacters(). */
    QString missingCharacters() const;

    /**
     * What the file lacks of the documents, for people to know: a translated line each for links,
     * characters and tables. Empty where it lacks nothing; known after toByteArray().
     */
    QStringList notes() const;

    /**
     * Makes the file; only once.
     *
     * @param bytes receives it on success; untouched on failure.
     * @param error if given, receives one translated line on failure; untouched on success.
     */
    bool toByteArray(QByteArray *bytes, MRVErrorSink error = nullptr);

private:
    std::unique_ptr<MRVPrintedBook> m_book;
    MRVProgress m_progress;
};

#pragma once

#include "core/mrverror.h"
#include "html/mrvhtmlreport.h"
#include "markdown/mrvmarkdown.h"
#include "markdown/mrvmarkdownhead.h"
#include "util/mrvbase_export.h"
#include "util/mrvmetadataentry.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QTextDocument>
#include <QVector>

#include <memory>

/**
 * A picture that a manuscript shows and that is missing or cannot be read.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVUnreadablePicture
{
    Q_DECLARE_TR_FUNCTIONS(MRVUnreadablePicture)

public:
    QString name; ///< as the source has it; where that holds the picture itself, the start of it
    int line = 0; ///< of the source, from 1, that shows it first; 0 where it is not known
    QString reason; ///< a translated end of a sentence: "it does not exist"
    MRVErrorKind kind = MRVErrorKind::None; ///< of the reason

    /** All that as a translated sentence without a full stop. */
    QString text() const;
};

/**
 * A manuscript as it was read: the document, what the file says about it, and the file's bytes.
 *
 * MRVManuscriptReader fills it. It can be moved, not copied. GUI thread only.
 *
 * @code
 * // Change the text of a file, and nothing else in it.
 * MRVManuscript manuscript;
 * MRVManuscriptReader reader;
 * if (reader.read(QStringLiteral("novel.html"), &manuscript)) {
 *     MRVTextQuery query;
 *     query.text = QStringLiteral("Ann");
 *     QByteArray changed;
 *     const QVector<MRVTextChange> changes = MRVTextReplacer::preview(
 *         manuscript.document.get(), query, QStringLiteral("Anna"));
 *     if (MRVSourceEdit::changedBytes(manuscript, changes, MRVSourceEdit::KeepMarkup, &changed)) {
 *         MRVSourceFile::replace(manuscript.path, manuscript.bytes, changed);
 *     }
 * }
 * @endcode
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVManuscript
{
    Q_DECLARE_TR_FUNCTIONS(MRVManuscript)

public:
    /** Native is MRVDocumentArchive's. */
    enum Format {
        Unknown = 0,
        Html = 1,
        Markdown = 2,
        PlainText = 3,
        Docx = 4,
        Odt = 5,
        Rtf = 6,
        Native = 7
    };

    /** As the reader was given it; for bytes that are in no file, what messages call them. */
    QString path;
    /** The file's name without its folder; empty for bytes that are in no file. */
    QString fileName;
    /** Where it was read, as MRVHtmlDocument::read() takes it; empty where that is not known. */
    QString location;
    Format format = Unknown;
    MRVMarkdown::Options options; ///< with which Markdown was read
    QByteArray encoding; ///< as QTextCodec calls it; empty where isConverted()
    QByteArray bytes; ///< as they were read

    std::unique_ptr<QTextDocument> document; ///< keeps no undo history; null until read
    /** What the head of HTML, or the front matter of Markdown, says; so with those that follow. */
    QStringList authors;
    QString description;
    QString date; ///< as it is written
    QString language; ///< a well-formed BCP 47 tag such as "en-GB", or empty
    QVector<MRVMetadataEntry> metadata; ///< all that it says there, in order
    /**
     * The same with the title of the document, for another file that is to say as much of it: also
     * the language has an entry there, and what tells browsers how to show a page has none.
     */
    MRVMarkdownHead head() const;

    QStringList pictures; ///< files that it shows, each once, in order of appearance
    /** Those that MRVManuscriptReader::setMissingPictures() let pass, each once, in order. */
    QVector<MRVUnreadablePicture> unreadablePictures;
    /** What reading found out beside the text: style sheets that are missing, and losses. */
    MRVHtmlReport report;
    QStringList conversionNotes; ///< the converter's own, in English, where isConverted()
    int remotePictures = 0; ///< pictures on other machines that it shows; they are not loaded

    /** Whether the document holds all words, links and pictures that the source shows. */
    bool isWhole() const { return report.losses.isEmpty() && unreadablePictures.isEmpty(); }
    /** What a writer should know about the reading, a translated line each; see report. */
    QStringList readingNotes() const;

    /**
     * Whether the file is no text: a native one, or DOCX, ODT and RTF, of which a program that is
     * installed has made a page, see MRVOfficeConverter.
     */
    bool isConverted() const { return format >= Docx; }

    /**
     * The bytes as a text, markup included, without a byte-order mark; empty until read, and where
     * isConverted().
     */
    QString sourceText() const;

    /** "html", "markdown", "text", "docx", "odt", "rtf" and "mrvdoc", in the order of Format. */
    static QStringList formatNames();
    /** The format with one of formatNames(); Unknown for any other text. */
    static Format formatNamed(const QString &name);
    /**
     * The format that the suffix of a file means, in any case. A name without suffix means plain
     * text; an unknown suffix gives Unknown.
     */
    static Format formatOfFile(const QString &path);
};

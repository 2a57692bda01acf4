#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <memory>

class QFont;
class QPainter;

/**
 * What a PDF document says about itself; what is empty is left out.
 *
 * @since 1.0
 */
struct MRVPdfProperties
{
    QString title;
    QString author;
    QString language; ///< a BCP 47 tag
    QDateTime date; ///< of creation; invalid for none, so that equal pages give equal bytes
};

/**
 * Writes a PDF document page by page: what is painted, with fonts embedded, and what QPdfWriter has
 * no place for: an outline, links, and numbers of pages as viewers show them.
 *
 * Lengths are dots of 1/1200 inch from the upper left corner of the paper, so fonts are set with
 * QFont::setPixelSize() of dots. Nothing that depends on the time, or on the order of a hash, is
 * in the document. GUI thread only; needs a QGuiApplication.
 *
 * @code
 * MRVPdfWriter pdf(MRVPaperSize::Letter, {QStringLiteral("Play"), {}, {}, {}});
 * pdf.painter()->drawText(QPointF(1200, 1200), QStringLiteral("FADE IN:"));
 * pdf.addOutline(QStringLiteral("Start"), 1, 1200);
 * QByteArray bytes;
 * QString error;
 * if (!pdf.finish(&bytes, &error)) {
 *     qWarning() << error;
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVPdfWriter
{
    Q_DECLARE_TR_FUNCTIONS(MRVPdfWriter)

public:
    static constexpr int DotsPerInch = 1200;
    static constexpr qreal DotsPerPoint = DotsPerInch / 72.0;

    /**
     * Begins a document with an empty page.
     *
     * @param paper      width and height in points, for all pages: an MRVPaperSize, for example.
     * @param properties what the document says about itself.
     */
    MRVPdfWriter(const QSizeF &paper, const MRVPdfProperties &properties);
    ~MRVPdfWriter();
    Q_DISABLE_COPY(MRVPdfWriter)

    /** Paints on the current page; owned by the writer, and not to be ended. */
    QPainter *painter();

    /** Ends the current page and begins another. */
    void newPage();

    /** The pages so far, the current one included. */
    int pageCount() const;

    /**
     * Sets the @p number that viewers show for the current page; those after it count on from it.
     * 0 stands for pages without a number. Without any call, the first page is 1.
     */
    void setPageNumber(int number);

    /**
     * Adds an entry to the outline that leads to the current page.
     *
     * @param title as viewers show it; an empty one is left out.
     * @param level 1 is the outermost; a level that skips others goes one below the entry before.
     * @param y     what the viewer moves to, in dots.
     */
    void addOutline(const QString &title, int level, qreal y);

    /**
     * Gives the place @p y of the current page, in dots, a @p name that links can name; the first
     * place of a name counts.
     */
    void addTarget(const QString &name, qreal y);

    /**
     * Makes a part of the current page a link.
     *
     * @param area in dots.
     * @param address "#name" for a target of the document, before or after this page; else an
     *                address of http, https or mailto. For all others nothing is added.
     */
    void addLink(const QRectF &area, const QString &address);

    /**
     * The characters of @p text that neither @p font nor any other installed font has, each once:
     * an empty box is painted for them, and nobody finds them in the document.
     */
    static QString missingCharacters(const QString &text, const QFont &font);
    /** A translated line for the user about @p characters, some, that no font has. */
    static QString missingCharactersNote(const QString &characters);

    /**
     * Ends the document, on which nothing can be painted then.
     *
     * @param bytes receives the file on success; untouched on failure.
     * @param error if given, receives one translated line on failure; untouched on success.
     * @return false where it cannot be painted or put together, for example for lack of memory.
     */
    bool finish(QByteArray *bytes, MRVErrorSink error = nullptr);

private:
    class Private;
    std::unique_ptr<Private> d;
};

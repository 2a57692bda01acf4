#pragma once

#include "util/mrvbase_export.h"
#include "xhtml/mrvhtmltag.h"
#include "xhtml/mrvstyleclasses.h"
#include "xhtml/mrvtextxhtmlexporter.h"
#include "xhtml/mrvuniqueids.h"

#include <QHash>
#include <QVector>

#include <memory>

/**
 * Turns the HTML that Qt wrote for a document into a page, in one pass.
 *
 * The text between tags is copied; each distinct tag is normalised, goes through the public
 * fix-ups, is made valid for the dialect and is then remembered, so that a page of a million words
 * costs little more than its copying. A stack of the open lists, tables and cells closes what Qt
 * leaves open or crossed.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVPageWriter
{
public:
    using ExportType = MRVTextXhtmlExporter::ExportType;

    /**
     * @param type    which fix-ups are applied.
     * @param dialect which document type the page has to be valid against.
     * @param styles  where rule sets are collected; null leaves style attributes in place. Not
     *                owned.
     */
    MRVPageWriter(ExportType type, MRVHtmlDialect dialect, MRVTextXhtmlExporter::StyleList *styles);

    /**
     * @param html          what mrvDocumentHtml() gives.
     * @param documentTitle the own title of the document, which @p html has.
     * @param title         the title where the document has none.
     */
    QString write(const QString &html, const QString &documentTitle, const QString &title);

    /** Link targets to replace, old to new, both unescaped. */
    void setLinks(const QHash<QString, QString> &links) { m_replacedLinks = links; }
    /** The language of the page as a BCP 47 tag; empty leaves it open. */
    void setLanguage(const QString &language) { m_language = language; }
    /** Keeps @p id for the caller: no anchor gets it. */
    void reserveId(const QString &id) { m_uniqueIds.reserve(id); }

private:
    struct Open
    {
        QString name;
        QString tag; // as written
        int offset = 0;
        bool hasBody = false; // of a table: a tbody is open
        QString cellStyle; // of a table
    };

    struct Link
    {
        int offset; // of the target in the page
        int length;
        QString anchor; // unescaped
    };

    // The paragraph or list item that text goes to.
    struct Paragraph
    {
        int offset = -1; // of its tag in the page; -1 outside of paragraphs
        QStringView tag; // as Qt wrote it
        bool spaced = false; // holds white space that a browser would swallow
        bool afterBlank = true;
    };

    void writeHead(const QString &html, int end, const QString &documentTitle,
                   const QString &title);
    void writeBody(QStringView html);
    int tagEnd(QStringView html, int begin) const;
    void startTag(QStringView html, int begin, int end);
    int startAnchor(QStringView html, int begin, int end);
    void startItem(QStringView tag);
    void startRule(QStringView html, int begin, int end);
    void startBlock(QStringView html, int begin, int end);
    void startContainer(QStringView tag, const QString &name);
    void endTag(QStringView html, int begin, int end);
    void endContainer(const QString &name);
    void endHeaderRows(QStringView rest);
    bool topIs(QLatin1String name) const;
    void close();
    void closeItem();
    void enterBlock();
    void beginParagraph(int offset, QStringView tag);
    void appendText(QStringView text);
    void endParagraph();
    int paragraphEnd(QStringView html, int end) const;
    const QString &rewritten(QStringView unit);
    QString rewrite(const QString &unit, const QString &cellStyle);
    QString chain(const QString &text) const;
    QString uniqueId(const QString &name);
    void resolveLinks();

    ExportType m_type;
    MRVHtmlDialect m_dialect;
    std::unique_ptr<MRVStyleClasses> m_classes;

    QString m_page;
    QHash<QStringView, QString> m_rewritten; // keys lie in the HTML that is being written
    QHash<QStringView, QString> m_spaced; // the same for paragraphs that keep their white space
    Paragraph m_paragraph;
    QVector<Open> m_open;
    QVector<QString> m_suspended; // tags of lists that had to be closed early, innermost last
    int m_itemEnd = -1; // where the page ended after a list item was closed
    bool m_preAsParagraph = false;
    QHash<QString, QString> m_replacedLinks;
    QString m_language;
    QVector<Link> m_links;
    QHash<QString, QString> m_ids;
    MRVUniqueIds m_uniqueIds;
};

#pragma once

#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

class QTextBlock;
class QTextCharFormat;
class QTextDocument;

/**
 * Compares what documents hold with the pages that were made of them: whether all words, links and
 * pictures are there.
 *
 * Paragraphs are compared whole, wherever they stand, since an e-book moves notes; where one has
 * changed, its words are looked for in what the pages have besides. What the pages hold in addition
 * is no loss; marks of notes, which are links of a number, may stand within words. Footnotes in the
 * margin are paragraphs. The markup of the pages is read by its own few rules and not by what wrote
 * it. The cost is linear, and a small part of that of an export. GUI thread only.
 *
 * @code
 * MRVTextXhtmlExporter exporter(&document);
 * MRVExportCheck check;
 * check.addDocument(document);
 * check.addPage(exporter.toText(MRVTextXhtmlExporter::Xhtml));
 * for (const QString &loss : check.losses()) {
 *     qWarning() << loss;
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVExportCheck
{
    Q_DECLARE_TR_FUNCTIONS(MRVExportCheck)

public:
    enum Target {
        Pages, ///< each link and each picture is to be there
        Book, ///< links into files and pictures on other machines give way to their text
    };

    /** A comparison without documents and pages. @p target says what they may lack. */
    explicit MRVExportCheck(Target target = Pages)
        : m_target(target)
    {
    }

    /** Adds what @p document holds, as something that the pages have to show. */
    void addDocument(const QTextDocument &document);
    /**
     * Adds a page that was written.
     *
     * @param html HTML or XHTML with a body, all of whose tags end. What is drawn by a style sheet
     *             alone does not count.
     * @param name the file by which links of other pages name it; may be empty.
     */
    void addPage(const QString &html, const QString &name = QString());

    /** What the pages lack, a translated line each; empty if they lack nothing. */
    QStringList losses() const;

private:
    class PageReader;

    struct Paragraph
    {
        QString text; // with white space as it came
        quint64 hash; // of its words
        QString plainText; // without the marks of notes; null where it has none
        quint64 plainHash;
    };

    struct Link
    {
        QString page; // that it stands on
        QString address;
    };

    struct Content
    {
        QVector<Paragraph> paragraphs; // with words
        QVector<Link> links;
        QSet<QString> names; // that links can lead to: "page#name"
        int pictures = 0;

        void add(const QString &paragraph, const QString &plainText = QString());
        QHash<QString, int> countedLinks(bool isBook) const;
    };

    static void removeCommon(QVector<Paragraph> *expected, quint64 Paragraph::*heldHash,
                             QVector<Paragraph> *held);
    static void addWords(const Paragraph &paragraph, QHash<QString, int> *counts);
    void addFootnote(const QTextCharFormat &format, QSet<QString> *known);
    QString textOf(const QTextBlock &block) const;
    QStringList lostWords() const;
    QStringList lostLinks() const;

    Target m_target;
    int m_documents = 0;
    Content m_expected;
    Content m_held;
};

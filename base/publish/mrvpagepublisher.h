#pragma once

#include "core/mrverror.h"
#include "document/mrvnumberedfiles.h"
#include "publish/mrvstagedfiles.h"
#include "util/mrvbase_export.h"
#include "xhtml/mrvtextxhtmlexporter.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

#include <map>

class QTextDocument;

/**
 * What the pages of one publication have in common.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVPageOptions
{
    MRVTextXhtmlExporter::ExportType type = MRVTextXhtmlExporter::Html;
    /** Whether the pages of a folder share "css/stylesheet.css"; for the types of e-books. */
    bool styleSheet = false;
    /** Whether pictures are written; else the pages refer to them as the documents do. */
    bool images = true;
    QString title; ///< empty: each document's own
    QString language; ///< a BCP 47 tag; empty: that of each document
};

/**
 * Writes documents as pages with their pictures and style sheets, all of them or none.
 *
 * The pictures of a page lie in a folder beside it, MRVTextXhtmlExporter::calcImageDir(). No
 * picture that is there already is replaced: one with the same bytes is used again, and beside
 * another the new picture gets a new name. A style sheet is replaced only when all pages that it
 * was written for, which its first line names, are replaced with it or are gone.
 *
 * See MRVStagedFiles for what a failure and a signal leave behind. Main thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVPagePublisher
{
    Q_DECLARE_TR_FUNCTIONS(MRVPagePublisher)

public:
    /** A publisher without pages, with @p options for all that add() gets. */
    explicit MRVPagePublisher(const MRVPageOptions &options = MRVPageOptions());

    /**
     * The text of a page that refers to pictures as the document does, without the writing of any
     * file. Empty for a null document.
     *
     * @param document its title is another one during the call where the options have one.
     * @param language that of the document; empty if unknown.
     */
    static QString pageText(const MRVPageOptions &options, QTextDocument *document,
                            const QString &language = QString());

    /** What follows each add(), from 0; nothing at first. */
    void setProgress(const MRVProgress &progress) { m_progress = progress; }

    /**
     * Prepares a page. Before publish(), only a hidden folder on the disk shows it.
     *
     * @param document its title is another one during the call where the options have one. It is
     *                 not needed afterwards.
     * @param language that of the document; empty if unknown.
     * @param file     the page to write, which is to be no other page's file. Its folder is made
     *                 where it is missing.
     * @param error    if given, receives one translated line that names a file on failure;
     *                 untouched on success.
     * @return false for a null document, and when the page or one of its pictures cannot be
     *         written. The object is of no more use then.
     */
    bool add(QTextDocument *document, const QString &language, const QString &file,
             MRVErrorSink error = nullptr);

    /**
     * What the pages lack of their documents, a translated line each that names the page; empty
     * where every word, link and picture was written. See MRVExportCheck.
     */
    QStringList losses() const { return m_losses; }

    /**
     * Says which file a page is made from. Links of this page then count from that file's folder,
     * and links of all such pages to that file lead to the page, under its new name; other links
     * stay as they are.
     *
     * @param file   as add() gets it.
     * @param source absolute, or relative to the current folder.
     */
    void setSource(const QString &file, const QString &source);

    /**
     * Puts all pages in place, or none. To be called once.
     *
     * @param written if given, receives the files that the pages consist of: pictures, also those
     *                that were there already, style sheets, pages. Untouched on failure.
     * @param error   if given, receives one translated line that names a file on failure;
     *                untouched on success.
     */
    bool publish(QStringList *written = nullptr, MRVErrorSink error = nullptr);

private:
    struct Folder // that pages are written to
    {
        QString path; // as it was first given
        MRVTextXhtmlExporter::StyleList styles;
        QStringList pages; // names
    };

    bool writePage(QTextDocument *document, const QString &language, const QString &page,
                   Folder *folder, MRVErrorSink error) const;
    bool addPictures(const QString &page, const Folder &folder, MRVErrorSink error);
    bool checkPage(const QTextDocument &document, const QString &page, const QString &file,
                   MRVErrorSink error);
    QString pictureTarget(const QString &staged, const QString &wanted);
    static bool mayReplaceSheet(const QString &sheet, const Folder &folder, MRVErrorSink error);
    bool addStyleSheet(const Folder &folder, MRVErrorSink error);
    QString newLink(const QString &link, const QString &page) const;

    const MRVPageOptions m_options;
    MRVProgress m_progress;
    MRVStagedFiles m_files;
    std::map<QString, Folder> m_folders; // by the real path, however it is written
    QHash<QString, QString> m_pictures; // what will lie, or lies, at a target
    MRVNumberedFiles m_numbered; // the targets of pictures
    QStringList m_written;
    QStringList m_losses;
    QVector<QPair<QString, QString>> m_pages; // staged file and target
    QHash<QString, QString> m_sources; // by the page
    QHash<QString, QString> m_targets; // pages by the identity of their source
};

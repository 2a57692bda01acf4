#pragma once

#include "publish/mrvstagedfiles.h"
#include "xhtml/mrvtextxhtmlexporter.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <map>

struct DocumentInput;

/** What the pages of one export have in common. */
struct PageOptions
{
    MRVTextXhtmlExporter::ExportType type = MRVTextXhtmlExporter::Html;
    bool styleSheet = false; // the pages of a folder share "css/stylesheet.css"
    bool images = true;
    QString title; // empty: each document's own
    QString language; // empty: what each document tells
};

/** The page as a text, with its pictures where the document refers to them. */
QString pageText(const PageOptions &options, const DocumentInput &input);

/**
 * Writes pages with their pictures and style sheets.
 *
 * No picture that is there already is replaced: one with the same bytes is used again, and beside
 * another one the new picture gets a new name. A style sheet is replaced only when all pages that
 * it was written for are replaced with it, or are gone.
 */
class PageExport
{
public:
    explicit PageExport(const PageOptions &options);

    /** Prepares the page @p file. Nothing is to be seen of it before publish(). */
    bool add(const DocumentInput &input, const QString &file, QString *error);

    /**
     * Puts all pages in place, or none.
     * @param written receives the files that the pages consist of: pictures, style sheets, pages.
     */
    bool publish(QStringList *written, QString *error);

private:
    struct Folder // that pages are written to
    {
        QString path; // as it was first given
        MRVTextXhtmlExporter::StyleList styles;
        QStringList pages; // names
    };

    bool writePage(const DocumentInput &input, const QString &page, Folder *folder,
                   QString *error) const;
    bool addPictures(const QString &page, const Folder &folder, QString *error);
    QString pictureTarget(const QString &staged, const QString &wanted);
    bool addStyleSheet(const Folder &folder, QString *error);

    const PageOptions m_options;
    MRVStagedFiles m_files;
    std::map<QString, Folder> m_folders; // by the real path, however it is written
    QHash<QString, QString> m_pictures; // what will lie, or lies, at a target
    QStringList m_written;
    QVector<QPair<QString, QString>> m_pages; // staged file and target
};

#pragma once

#include <core/mrverror.h>
#include <epub/mrvepubmetadata.h>
#include <pdf/mrvprintoptions.h>
#include <screenplay/mrvfountain.h>
#include <scriptmode/mrvscriptmode.h>
#include <util/mrvprogress.h>

#include <QCoreApplication>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVector>

class QTextDocument;

/** What an export is to make. */
struct ExportOptions
{
    int format = 0; ///< an index into Exporter::formats()
    QString path; ///< of the file, which is replaced
    QString title;
    QStringList authors;
    QString language; ///< a BCP 47 tag; empty if unknown
    QString cover; ///< the path of a picture; empty for none
    QSizeF paper; ///< in points; empty for what is usual
    bool hasComments = false; ///< whether comments are exported as notes
};

/** Writes a manuscript in the formats that the library has. */
class Exporter
{
    Q_DECLARE_TR_FUNCTIONS(Exporter)

public:
    /** What a format has a use for. */
    enum Use {
        Title = 0x1,
        Authors = 0x2,
        Language = 0x4,
        Cover = 0x8,
        Paper = 0x10,
        Comments = 0x20,
        Script = 0x40, ///< it is for scripts only
    };
    struct Format
    {
        const char *name; ///< to be translated
        const char *suffix;
        int uses;
        bool (Exporter::*write)(MRVError *error);
    };
    /** In the order in which they are offered. */
    static QVector<Format> formats();

    /**
     * @param document to live as long; another title during run() is all that changes.
     * @param source   its file, from which its links count; empty if it has none.
     * @param mode     of a script, as its formats have it; without elements for other manuscripts.
     */
    Exporter(QTextDocument *document, const QString &source, const MRVScriptMode &mode);

    /** What follows run(), and may cancel it; nothing at first. */
    void setProgress(const MRVProgress &progress) { m_progress = progress; }
    /** @return false on failure, with the file as it was. */
    bool run(const ExportOptions &options, MRVError *error);
    /** What the file lacks of the manuscript, a line each; known after run(). */
    QStringList notes() const { return m_notes; }

private:
    bool writeEPub2(MRVError *error);
    bool writeEPub3(MRVError *error);
    bool writePackage(MRVEPubVersion version, MRVError *error);
    bool writeBookPdf(MRVError *error);
    bool writeManuscriptPdf(MRVError *error);
    bool writePdf(MRVPrintOptions::Layout layout, MRVError *error);
    bool writePage(MRVError *error);
    bool writeMarkdown(MRVError *error);
    bool writeText(MRVError *error);
    bool writeFountain(MRVError *error);
    bool writeFinalDraft(MRVError *error);
    bool writeScriptPdf(MRVError *error);
    bool writeScriptBook(MRVError *error);

    MRVProgress progressOf(int from, int to) const;
    MRVFountainScript script();
    bool writeBytes(const QByteArray &bytes, MRVError *error) const;

    QTextDocument *m_document;
    const QString m_source;
    const MRVScriptMode m_mode;
    MRVProgress m_progress;
    ExportOptions m_options;
    QStringList m_notes;
};

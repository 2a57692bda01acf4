#pragma once

#include <archive/mrvdocumentarchive.h>
#include <markdown/mrvmarkdownhead.h>
#include <screenplay/mrvscriptfile.h>
#include <scriptmode/mrvscriptmode.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QTextDocument>

#include <memory>

struct MRVError;

/** A manuscript on the disk: what it is, and what it was when it was last read or saved. */
class ManuscriptFile
{
    Q_DECLARE_TR_FUNCTIONS(ManuscriptFile)

public:
    enum Format { Unknown, Native, Html, Markdown, Text, Fountain, FinalDraft };

    /** A manuscript that was never saved. */
    ManuscriptFile() = default;

    QString path() const { return m_path; } ///< empty until it was saved
    /**
     * The file that a manuscript is to be saved to which was read from a copy of it.
     *
     * @param copied when the copy was made: what was written later is somebody else's.
     */
    void setOrigin(const QString &path, const QDateTime &copied);
    /** What it says of itself. */
    const MRVMarkdownHead &head() const { return m_head; }
    /** What the last writing has told. */
    QStringList notes() const { return m_notes; }
    /** What a Morvane document of it holds besides the text. */
    MRVDocumentArchive archive(const MRVScriptMode &mode) const;
    /** The factory mode or user's mode with that name; without elements where it is missing. */
    static MRVScriptMode scriptMode(const QString &name);
    Format format() const { return m_format; }
    /** The manuscript's name for title bars and proposals of file names. */
    QString name() const;

    /** Whether the format holds a script, of which the elements are those of a mode. */
    static bool isScript(Format format) { return format == Fountain || format == FinalDraft; }
    /** The format that the suffix of a file says; Unknown for one that is none of them. */
    static Format formatOf(const QString &path);
    /** For file dialogs: all that can be opened, and what can be saved. */
    static QString openFilters();
    static QString saveFilters();
    /** The suffix of the format of one of saveFilters(); that of Morvane documents for others. */
    static QString suffixOf(const QString &filter);

    /**
     * Reads a file.
     *
     * @param mode  with which a script is shown; receives that of a document that has one.
     * @param notes receives what the writer should know about the reading.
     * @return null on failure, with the reason in @p error and this as it was.
     */
    std::unique_ptr<QTextDocument> read(const QString &path, MRVScriptMode *mode,
                                        QStringList *notes, MRVError *error);
    /**
     * Writes a file, which this then is. On failure the old file stands.
     *
     * @param mode with which a script was written.
     */
    bool write(QTextDocument *document, const QString &path, const MRVScriptMode &mode,
               MRVError *error);
    /**
     * What a file with this path would lack of the document and its metadata, and of what the file
     * held that it replaces, a line each.
     *
     * @param mode with which a script was written.
     */
    QStringList losses(const QTextDocument &document, const QString &path,
                       const MRVScriptMode &mode) const;
    /** Whether somebody else has changed or removed the file since it was read or saved. */
    bool isChangedOutside() const;

private:
    QByteArray scriptBytes(const QTextDocument &document, const QString &path,
                           const MRVScriptMode &mode, bool *isInPlace = nullptr) const;
    static QByteArray digestOf(const QString &path);

    MRVDocumentArchive m_archive; // what a Morvane document holds besides the text
    MRVMarkdownHead m_head; // what it says of itself: authors, language, date
    MRVScriptFile m_script; // as it lies on the disk
    MRVScriptMode m_mode; // of a script, with which it was read
    bool m_isForeignPage = false; // HTML by another program
    QStringList m_notes;
    QString m_path;
    Format m_format = Unknown;
    QByteArray m_digest;
};

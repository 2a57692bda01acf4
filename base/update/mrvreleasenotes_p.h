#pragma once

#include "core/mrverror.h"
#include "update/mrvnotescopy_p.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QTextDocument>

/** What a server has sent as release notes: a page of HTML, Markdown or plain text. */
class MRVReleaseNotes
{
    Q_DECLARE_TR_FUNCTIONS(MRVCheckForUpdatesDialog)

public:
    /**
     * Takes what was downloaded.
     *
     * @param contentType the server's; with none, or a type of binary files, the suffix ".md" of
     *                    @p page says that it is Markdown.
     * @param error       receives a translated text on failure.
     * @return false for what is no text, and for a page that could take long to read.
     */
    bool read(const QByteArray &bytes, const QString &contentType, const QUrl &page,
              MRVErrorSink error);
    /** Takes a message to show in place of notes. */
    void setMessage(const QString &message);
    /** Replaces the content of @p document, which then holds nothing that could be opened. */
    void write(const MRVNotesLook &look, QTextDocument *document) const;

private:
    static bool tooMuch(MRVErrorSink error);

    // Never laid out, so that nothing that it names is looked for.
    QTextDocument m_page;
};

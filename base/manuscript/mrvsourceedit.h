#pragma once

#include "core/mrverror.h"
#include "manuscript/mrvsourcemisfit.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>
#include <QVector>

struct MRVManuscript;

/**
 * Changes the text of a manuscript in its source, so that all else stays as it is byte for byte:
 * markup, comments, style sheets, spelling of entities, line ends, byte-order mark.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVSourceEdit
{
    Q_DECLARE_TR_FUNCTIONS(MRVSourceEdit)

public:
    MRVSourceEdit() = delete;

    enum Mode {
        KeepMarkup, ///< changes the text alone
        WriteWhole, ///< writes the whole document; what it does not hold, as style sheets, is lost
    };

    /**
     * The bytes of a manuscript, in its format and encoding, after changes to its text.
     *
     * The result is read once more, and its text is that of the document with these changes;
     * paragraphs that they have emptied may be gone. A change that would make another text of it
     * is a misfit, as is one that does not fit into the markup, such as a new paragraph in HTML, or
     * that the encoding has no characters for. Of formats, bold, italic and backgrounds have markup
     * in HTML and Markdown. The manuscript itself is not changed.
     *
     * @param manuscript its document is as it was read.
     * @param changes    of MRVTextReplacer::preview() for that document, in document order; some
     *                   may be left out.
     * @param bytes      receives the result; untouched on failure.
     * @param error      if given, receives a translated reason on failure, which does not name the
     *                   file; untouched on success.
     * @param misfits    if given, receives the changes that are left out since they do not fit, in
     *                   document order; else one of them is a failure.
     * @param brokenLinks if given, receives the addresses ("#name") of links that lead nowhere now,
     *                   since the heading that they led to has another text, in document order.
     * @return false when a change does not fit, when one has a format and something else than HTML
     *         is written as a whole, when the changes overlap or belong to another text,
     *         when the bytes are not what their encoding would write, and where
     *         MRVManuscript::isConverted().
     */
    static bool changedBytes(const MRVManuscript &manuscript, const QVector<MRVTextChange> &changes,
                             Mode mode, QByteArray *bytes, MRVErrorSink error = nullptr,
                             QVector<MRVSourceMisfit> *misfits = nullptr,
                             QStringList *brokenLinks = nullptr);
};

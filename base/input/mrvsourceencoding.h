#pragma once

#include "input/mrvtextdecoder.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QString>

class QTextCodec;

/**
 * The encoding of a text from outside, to write the text back so that the bytes change only where
 * it has.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVSourceEncoding
{
public:
    /** UTF-8 without a byte-order mark. */
    MRVSourceEncoding();

    /**
     * Finds the encoding, byte-order mark included, in which @p text is @p bytes.
     *
     * @param bytes       of a file.
     * @param declaration what names the encoding where no byte-order mark does; a name that is not
     *                    known counts as UTF-8.
     * @param text        what MRVTextDecoder has made of the bytes.
     * @return false, with UTF-8, where the encoding has several forms for one text, and the bytes
     *         are of another form than the one that would be written.
     */
    bool find(const QByteArray &bytes, MRVTextDecoder::Declaration declaration,
              const QString &text);

    /** The bytes of @p text, with the byte-order mark of find(). */
    QByteArray encode(const QString &text) const;

    /** The @p text with numeric references, as XML has them, for what the encoding lacks. */
    QString withReferences(const QString &text) const;

private:
    const QTextCodec *m_codec;
    QByteArray m_mark; // of the byte order
};

#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/**
 * Where and why a text from outside is refused.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVTextFault
{
    Q_DECLARE_TR_FUNCTIONS(MRVTextFault)

public:
    /** The fault @p message at @p offset of @p text, or at its end. Only line feeds end lines. */
    static MRVTextFault at(const QString &text, int offset, const QString &message);

    /** "line 3: " and the message, translated. */
    QString toString() const;

    QString message; // translated, without its place
    int line = -1; // from 1; -1 where the fault has no place
    int column = -1; // from 1, in QChars
};

/**
 * Finds the encoding of texts from outside, and decodes them so that no byte is lost.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextDecoder
{
public:
    /** What names the encoding where no byte-order mark does. */
    enum Declaration {
        Undeclared, /**< nothing: it is UTF-8 */
        XmlDeclaration, /**< the XML declaration; UTF-16 is known without one, by its first "<" */
        HtmlDeclaration /**< the XML declaration, or a meta element in the first KiB */
    };

    MRVTextDecoder() = delete;

    /**
     * The name of the encoding of @p bytes: that of the byte-order mark, or the declared one, or
     * else "UTF-8". A declaration that can be read byte by byte is not in the wide encoding that it
     * may name, which then does not count.
     *
     * @return a name that QTextCodec may not know, as declared ones are given as they stand.
     */
    static QByteArray encodingOf(const QByteArray &bytes, Declaration declaration);

    /**
     * Decodes @p bytes of the named @p encoding; a byte-order mark counts for more than the name,
     * and is not part of the text.
     *
     * @param text  receives the text; untouched on failure.
     * @param fault if given, receives the place of the first byte that cannot be read, counted in
     *              the text before it; untouched on success.
     * @return false when some bytes are not of that encoding, or it is unknown.
     */
    static bool decode(const QByteArray &bytes, const QByteArray &encoding, QString *text,
                       MRVTextFault *fault = nullptr);
};

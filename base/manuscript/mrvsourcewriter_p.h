#pragma once

#include "util/mrvsourceplace.h"

#include <QString>
#include <QTextCharFormat>

class QTextCodec;
struct MRVManuscript;

/** Writes new text as the format and the encoding of a source need it. */
class MRVSourceWriter
{
public:
    MRVSourceWriter(const MRVManuscript &manuscript, const QString &source);

    /**
     * @p text as the source has it at @p place.
     *
     * @return false where the encoding has no way to write a character there.
     */
    bool write(const QString &text, const MRVSourcePlace &place, QString *written) const;
    /**
     * The same with a backslash before all that could mean anything to Markdown, also where what
     * stands beside the place decides that, as before a link or at the end of a heading.
     */
    bool writeEscaped(const QString &text, const MRVSourcePlace &place, QString *written) const;
    /**
     * Where a backslash keeps a line from beginning a heading, a list or a quotation, when @p text
     * comes before the source from @p after on; -1 where no such begins.
     */
    int escapeAfter(const QString &text, int start, int after) const;
    /**
     * Puts the markup of a format around what write() has written.
     *
     * @param prefersElements in Markdown elements of HTML are always understood, asterisks only
     *                        where they touch the words as they should.
     * @return false where the syntax has no markup for a property of the format.
     */
    static bool mark(const QTextCharFormat &format, MRVSourcePlace::Syntax syntax,
                     bool prefersElements, QString *written);

    /** That of the source. */
    const QString &lineEnd() const { return m_lineEnd; }
    /**
     * Puts references of HTML in the place of what the encoding lacks.
     *
     * @return false where it lacks something and @p syntax has no references.
     */
    bool encode(MRVSourcePlace::Syntax syntax, QString *text) const;

private:
    QString asPage(const QString &text) const;
    bool isAtLineStart(int at) const;

    const QString &m_source;
    const QTextCodec *const m_codec;
    const QString m_lineEnd;
};

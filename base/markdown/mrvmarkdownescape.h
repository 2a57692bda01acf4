#pragma once

#include "util/mrvbase_export.h"

#include <QFlags>
#include <QString>
#include <QStringView>

/**
 * Text as Markdown has to write it, so that it reads back as text.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVMarkdownEscape
{
public:
    MRVMarkdownEscape() = delete;

    /** Where a text is to stand, and for whom. */
    enum Option {
        Inline = 0,
        /** At the beginning of a line, where it could begin a heading, a list or a quotation. */
        LineStart = 1,
        /**
         * Also for the options of MRVMarkdown and for other readers: what could be a bare link, an
         * id of a heading, or raised, lowered or deleted text, and a "!" that a link may follow.
         */
        Portable = 2
    };
    Q_DECLARE_FLAGS(Options, Option)

    /**
     * @p text with a backslash before each character that would be markup, as far as the text alone
     * shows that. At its ends, anything may stand beside it.
     *
     * @param text without ends of lines; blanks at its ends are left as they are.
     */
    static QString escaped(const QString &text, Options options = Inline);
    /** @p text with a backslash before all ASCII punctuation, wherever it is to stand. */
    static QString fullyEscaped(const QString &text);
    /**
     * The place of the character that needs a backslash so that a line does not begin a heading, a
     * list, a table or a quotation; -1 where it begins none.
     *
     * @param line may begin with blanks.
     */
    static int blockMark(const QString &line);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MRVMarkdownEscape::Options)

#pragma once

#include "util/mrvbase_export.h"

#include <QString>

class QUrl;

/**
 * Texts that a server has a say in, made fit for labels and boxes.
 *
 * A label takes a second to lay out a megabyte, one word of it makes a window wider than the
 * screen, and characters that change the direction of text make an address look like another one.
 * The results are plain text: a label that shows them must not take them for markup.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVServerText
{
public:
    /** The most that is shown of a name, a reason or an address, in QChars. */
    static constexpr int Longest = 200;
    /** The most that is shown of a message in which such texts stand. */
    static constexpr int LongestMessage = 800;

    MRVServerText() = delete;

    /**
     * @p text without what a label should not get: control characters become blanks, and those
     * that change the direction of text, or cannot be seen, are left out. Line feeds stay, except
     * those beyond the tenth, which become blanks.
     *
     * @param longest the length of the result in QChars, at most, and 3 at least; the middle of a
     *                longer text gives way to an ellipsis, as names stand at its beginning and
     *                reasons at its end.
     */
    static QString shortened(const QString &text, int longest = Longest);

    /**
     * An address without its password, at most Longest QChars long, or as long as scheme and host
     * are: those are always shown. The middle of what follows the host gives way to an ellipsis.
     */
    static QString address(const QUrl &url);

    /**
     * @p text with a zero width space in every word of more than 60 QChars, so that lines can be
     * broken there. Words end at white space.
     */
    static QString breakable(const QString &text);
};

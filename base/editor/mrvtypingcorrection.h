#pragma once

#include "autoreplace/mrvautoreplacelist.h"
#include "util/mrvbase_export.h"

#include <QPair>
#include <QString>

class MRVOptions;
class QTextCursor;

/**
 * What is corrected while somebody types.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVTypingOptions
{
    /** Nothing. */
    MRVTypingOptions() = default;
    /** What the user's preferences say; read them again when they change. */
    explicit MRVTypingOptions(const MRVOptions &options);

    MRVAutoReplaceList replacements;
    QPair<QString, QString> singleQuotes; ///< null where quotes stay straight
    QPair<QString, QString> doubleQuotes; ///< likewise
    bool emDashes = false; ///< of two hyphens
    bool ellipses = false; ///< of three full stops
    bool capitalizeSentences = false; ///< the first letter, once its word is complete
};

/**
 * Corrects the text before a cursor, of which the last character has just been typed. It is an undo
 * step of its own, so that one Undo brings back what was typed. The best match of the replacements
 * goes before all else; only the last 200 characters of the paragraph are looked at. Formats stay
 * as mrvReplaceText() keeps them. An editor calls it after each character:
 *
 * @code
 * class Editor : public QTextEdit
 * {
 * protected:
 *     void keyPressEvent(QKeyEvent *event) override
 *     {
 *         QTextEdit::keyPressEvent(event);
 *         if (!event->text().isEmpty()) {
 *             mrvCorrectTyping(textCursor(), m_typing);
 *         }
 *     }
 *
 * private:
 *     MRVTypingOptions m_typing;
 * };
 * @endcode
 *
 * @param cursor  null does nothing; a selection does not count. Cursors after the text move with
 *                it.
 * @param options what is corrected.
 * @return whether something was.
 * @since 1.0
 */
MRVBASE_EXPORT bool mrvCorrectTyping(const QTextCursor &cursor, const MRVTypingOptions &options);

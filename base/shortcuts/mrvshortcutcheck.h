#pragma once

#include "shortcuts/mrvshortcut.h"
#include "shortcuts/mrvshortcutinfo.h"
#include "shortcuts/mrvshortcutscheme.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QKeySequence>
#include <QList>
#include <QString>

/**
 * What is wrong with the keys of a shortcut scheme, and how two schemes differ.
 *
 * Keys are compared as the scheme has them. What a keyboard layout makes of them is not known here:
 * where "+" is Shift and "=", Ctrl++ and Ctrl+Shift+= are the same keys, which is not found.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVShortcutCheck
{
    Q_DECLARE_TR_FUNCTIONS(MRVShortcutCheck)

public:
    using Id = MRVShortcut::Id;

    enum Kind : int {
        SameKey = 0, ///< two commands have one key sequence, so neither is carried out
        Prefix = 1, ///< a chord begins with another command's keys, and is never reached
        DesktopKey = 2, ///< a key that usual desktops or input methods take for themselves
        TypingKey = 3, ///< begins with a key that is needed for writing: a letter, Return, an arrow
        UnnamedKey = 4, ///< a key without a portable text, which is lost when the scheme is stored
    };

    /** Two commands whose keys do not work together, or one whose key does not work. */
    struct Conflict
    {
        Kind kind;
        Id id; ///< the command; of two, the one that has the shorter keys or else the lower number
        Id other; ///< the second command; NoId for the kinds of one command

        friend bool operator==(const Conflict &a, const Conflict &b)
        {
            return a.kind == b.kind && a.id == b.id && a.other == b.other;
        }
    };

    /** A command that two schemes treat differently. The side without an entry has NoId. */
    struct Difference
    {
        Id id;
        MRVShortcutInfo before;
        MRVShortcutInfo after;
    };

    MRVShortcutCheck() = delete;

    /**
     * The name of @p kind for files and scripts: "same-key", "prefix", "desktop-key", "typing-key",
     * "unnamed-key".
     */
    static QString toString(Kind kind);

    /**
     * All conflicts of a scheme, in the order of the commands, those of two commands once. None for
     * commands without a key.
     */
    static QList<Conflict> conflicts(const MRVShortcutScheme &scheme);

    /**
     * The conflicts that @p id would have if it had the keys @p sequence, in place of what the
     * scheme gives it.
     */
    static QList<Conflict> conflicts(const MRVShortcutScheme &scheme, Id id,
                                     const QKeySequence &sequence);

    /** A translated sentence with the commands' texts and keys, to be shown to the user. */
    static QString describe(const Conflict &conflict, const MRVShortcutScheme &scheme);

    /** A translated text of what has changed, without the command: "Ctrl+S -> F2". */
    static QString describe(const Difference &difference);

    /**
     * For programs: "kind", as toString() gives it; "command" and "keys", and where there are two
     * commands "other" and "otherKeys"; "message", what describe() gives.
     */
    static QJsonObject toJson(const Conflict &conflict, const MRVShortcutScheme &scheme);
    /**
     * For programs: "command"; "before" and "after", as MRVShortcutInfo::toJson() gives them, or
     * null.
     */
    static QJsonObject toJson(const Difference &difference);

    /**
     * The commands that have just the keys @p sequence, in the order of their numbers: one in a
     * valid scheme, none for an empty sequence.
     */
    static QList<Id> owners(const MRVShortcutScheme &scheme, const QKeySequence &sequence);

    /** Whether a desktop or input method takes one of the keys of @p sequence. */
    static bool isDesktopKey(const QKeySequence &sequence);

    /** Whether @p sequence begins with a key that is needed for writing. */
    static bool isTypingKey(const QKeySequence &sequence);

    /** Whether @p sequence has a key without a portable text. */
    static bool isUnnamedKey(const QKeySequence &sequence);

    /**
     * The commands whose keys or texts differ between @p before and @p after, or that only one of
     * the schemes has, in the order of their numbers. The schemes' names do not count.
     */
    static QList<Difference> differences(const MRVShortcutScheme &before,
                                         const MRVShortcutScheme &after);
};

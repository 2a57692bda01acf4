#pragma once

#include "shortcuts/mrvshortcut.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QKeySequence>
#include <QString>

/**
 * One entry of a shortcut scheme.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVShortcutInfo
{
    Q_DECLARE_TR_FUNCTIONS(MRVShortcutInfo)

public:
    MRVShortcut::Id id = MRVShortcut::NoId;
    QKeySequence sequence; ///< up to four keys to be pressed one after the other; empty for none
    QString text; ///< the command as menus show it

    /**
     * Whether the text, the key sequence as native text, or the command's label holds @p filter in
     * whatever case. An empty filter fits every entry.
     */
    bool matchFilter(const QString &filter) const;

    /** The key sequence as native text; a translated "no key" where it is empty. */
    QString keysText() const;

    /** For programs: "command", the name of the id; "group"; "text"; "keys", as portable text. */
    QJsonObject toJson() const;

    friend bool operator==(const MRVShortcutInfo &a, const MRVShortcutInfo &b)
    {
        return a.id == b.id && a.sequence == b.sequence && a.text == b.text;
    }
    friend bool operator!=(const MRVShortcutInfo &a, const MRVShortcutInfo &b) { return !(a == b); }
};

Q_DECLARE_TYPEINFO(MRVShortcutInfo, Q_MOVABLE_TYPE);

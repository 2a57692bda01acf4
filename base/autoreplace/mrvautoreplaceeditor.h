#pragma once

#include "autoreplace/mrvautoreplacelist.h"
#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QString>

/**
 * Changes of an auto-replace list as the user makes them: without entries that could never apply,
 * and with the ordinals, which each list has.
 *
 * Each change is made as a whole or refused, with a translated line in @p error if that is given.
 * It is untouched on success.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVAutoReplaceEditor
{
    Q_DECLARE_TR_FUNCTIONS(MRVAutoReplaceEditor)

public:
    /** Changes a copy of @p list. */
    explicit MRVAutoReplaceEditor(const MRVAutoReplaceList &list);

    /** The list with the changes. */
    const MRVAutoReplaceList &list() const { return m_list; }
    /** The entries that the last change has added, removed, enabled or disabled. */
    const MRVAutoReplaceList &changed() const { return m_changed; }

    /**
     * Appends @p entry. Refused are one that is in the list already, enabled or not; one that is
     * enabled while another one with its match is; and a match with the end of a paragraph in it.
     */
    bool add(const MRVAutoReplace &entry, MRVErrorSink error = nullptr);
    /**
     * Removes the entries with just this @p match and, unless it is null, this @p replacement.
     * Refused where there are none, and for ordinals, which would come back.
     */
    bool remove(const QString &match, const QString &replacement, MRVErrorSink error = nullptr);
    /**
     * Enables or disables, as @p isEnabled says, the entries with just this @p match and, unless it
     * is null, this @p replacement. Refused where there are none; and to enable several, or one
     * beside an enabled one of its match.
     */
    bool setEnabled(const QString &match, const QString &replacement, bool isEnabled,
                    MRVErrorSink error = nullptr);

private:
    MRVAutoReplaceList m_list;
    MRVAutoReplaceList m_changed;
};

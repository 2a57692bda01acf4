#pragma once

#include "autoreplace/mrvautoreplace.h"
#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QVector>

#include <initializer_list>
#include <memory>

class MRVAutoReplaceIndex;

/**
 * The entries that are replaced as the user types, in the order in which the user sees them.
 * Several entries may have the same match.
 *
 * It is a QList, with one thing to know: a long list keeps an index beside it, so that bestMatch()
 * takes about the same time for ten thousand entries as for thirty. The index is made again after a
 * change. While somebody may hold a reference into the list (a non-const operator[], begin(),
 * first() and the like gave one away), changes cannot be noticed: such a list is searched entry by
 * entry. A copy of it, or the list after clear() or an assignment, has an index again. References
 * and iterators that were got through a QList & must not be held over a call of bestMatch().
 *
 * Stored form (QDataStream, big-endian): qint32 version, always 1; qint32 number of entries; for
 * each one byte 0 or 1 for `enabled`, then `match` and `replacement`, each as quint32 length in
 * bytes (or 0xFFFFFFFF for a null text) and UTF-16 units. The entries carry no version of their own
 * here.
 *
 * GUI thread only: bestMatch() fills the index, const or not.
 *
 * @code
 * MRVAutoReplaceList list = MRVAutoReplaceList::defaultReplacements();
 * list.append({true, QStringLiteral("=>"), QString(QChar(0x21d2))});
 *
 * // After each key that is typed: does what stands before the caret end with a match?
 * const QString before = cursor.block().text().left(cursor.positionInBlock());
 * const MRVAutoReplace entry = list.bestMatch(before);
 * if (!entry.match.isEmpty()) {
 *     cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, entry.match.size());
 *     cursor.insertText(entry.replacement);
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVAutoReplaceList : public QList<MRVAutoReplace>
{
    Q_DECLARE_TR_FUNCTIONS(MRVAutoReplaceList)

public:
    using List = QList<MRVAutoReplace>;

    /**
     * @name As those of QList
     *
     * A copy shares the entries, but neither the index nor the mark that somebody holds a
     * reference. What is moved from is empty.
     */
    //@{
    MRVAutoReplaceList();
    MRVAutoReplaceList(std::initializer_list<MRVAutoReplace> entries);
    MRVAutoReplaceList(const List &entries);
    MRVAutoReplaceList(const MRVAutoReplaceList &other);
    MRVAutoReplaceList(MRVAutoReplaceList &&other) noexcept;
    ~MRVAutoReplaceList();
    MRVAutoReplaceList &operator=(const MRVAutoReplaceList &other);
    MRVAutoReplaceList &operator=(MRVAutoReplaceList &&other) noexcept;
    //@}

    /**
     * The entry to apply to @p text, which ends at the caret: of the enabled entries whose match
     * ends the text the one with the longest match, the first in the list if there are several of
     * them. Word ends are not looked at. An entry that is disabled and has no texts if none
     * applies.
     */
    MRVAutoReplace bestMatch(const QString &text) const;

    /** Whether an entry, enabled or not, has just this match. */
    bool containsMatch(const QString &match) const;
    /**
     * Whether an enabled entry has just this match. Of several such entries only the first applies.
     */
    bool containsEnabled(const QString &match) const;
    /**
     * The entries, enabled or not, with just this match and, unless that is null, just this
     * replacement: their indexes from 0, ascending.
     */
    QVector<int> indexesOf(const QString &match, const QString &replacement = QString()) const;
    /** Whether an entry, enabled or not, has just this match and this replacement. */
    bool containsReplacement(const QString &match, const QString &replacement) const;

    /** The stored form of all entries. */
    QByteArray toByteArray() const;
    /**
     * Replaces the list by what is stored in @p data. Entries without any text are left out.
     * Another version than 1 gives an empty list; data that end early or are damaged give what
     * stands before, where of a last entry the replacement may be missing.
     *
     * @param error if given, receives a translated reason when not all of @p data could be read;
     *              untouched otherwise.
     */
    void fromByteArray(const QByteArray &data, MRVErrorSink error = nullptr);

    /**
     * Appends those entries of MRVAutoReplace::ordinals() whose match and replacement no entry of
     * the list has together. Nothing for null.
     */
    static void appendMissingOrdinals(MRVAutoReplaceList *list);
    /** Signs and arrows, which are enabled, then fractions and ordinals, which are not. */
    static MRVAutoReplaceList defaultReplacements();
    /** The same in its stored form. */
    static QByteArray defaultReplacementsByteArray();

    /**
     * @name As those of QList
     *
     * The functions that are not const give references away, which the class comment explains,
     * except clear() and swap(), which exchanges the index as well. Those that are const give
     * copies, which share their texts, so that an entry outlives a list that is a temporary.
     */
    //@{
    void clear();
    void swap(MRVAutoReplaceList &other) noexcept;

    // clang-format off
    MRVAutoReplace &operator[](int i) { giveAway(); return List::operator[](i); }
    MRVAutoReplace operator[](int i) const { return at(i); }
    MRVAutoReplace &first() { giveAway(); return List::first(); }
    MRVAutoReplace first() const { return List::first(); }
    MRVAutoReplace &last() { giveAway(); return List::last(); }
    MRVAutoReplace last() const { return List::last(); }
    MRVAutoReplace &front() { return first(); }
    MRVAutoReplace front() const { return first(); }
    MRVAutoReplace &back() { return last(); }
    MRVAutoReplace back() const { return last(); }
    iterator begin() { giveAway(); return List::begin(); }
    const_iterator begin() const { return List::begin(); }
    iterator end() { giveAway(); return List::end(); }
    const_iterator end() const { return List::end(); }
    reverse_iterator rbegin() { return reverse_iterator(end()); }
    const_reverse_iterator rbegin() const { return List::rbegin(); }
    reverse_iterator rend() { return reverse_iterator(begin()); }
    const_reverse_iterator rend() const { return List::rend(); }
    //@}
    // clang-format on

private:
    void giveAway();
    MRVAutoReplace scan(const QString &text) const;

    mutable std::shared_ptr<const MRVAutoReplaceIndex> m_index;
    bool m_givenAway = false; // somebody may change entries without our noticing
};

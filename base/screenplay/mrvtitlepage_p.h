#pragma once

#include <QHash>
#include <QString>
#include <Qt>

// How a printed title page shows what an entry is: by its place, or else by its key before it.

/** The keys of a title page's entries, in any case. */
class MrvTitleKeys
{
public:
    void append(const QString &key);
    /** The first entry with a key; -1 where there is none. */
    int indexOf(const QString &key) const;

private:
    QHash<QString, int> m_first;
    int m_count = 0;
};

/** Where entries with this key stand: in the middle of the page, at its right or at its left. */
Qt::AlignmentFlag mrvTitleAlignment(const QString &key);

/** Whether an entry is shown as "Key: value", since its place does not tell what it is. */
bool mrvIsTitleKeyShown(const QString &key);

/** Whether an entry with this key is printed: readers of Fountain ignore keys they do not know. */
bool mrvIsTitleKeyPrinted(const QString &key);

/** The text to put before an entry's value on the page: "Copyright: ", or nothing. */
QString mrvTitleLabel(const QString &key);

/**
 * The length of the key that a line of a title page begins with, without ": "; 0 without a key. In
 * the middle only the keys that belong there count: "Space: A Story" is a title.
 */
int mrvShownTitleKeyLength(Qt::AlignmentFlag alignment, const QString &line);

/** What a line without a key is, judging by its place, its words, and the entries so far. */
QString mrvGuessedTitleKey(Qt::AlignmentFlag alignment, const QString &line,
                           const MrvTitleKeys &before);

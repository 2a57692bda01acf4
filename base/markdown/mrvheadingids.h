#pragma once

#include "util/mrvbase_export.h"

#include <QHash>
#include <QString>

/**
 * The ids that MRVMarkdown gives to the headings of a text which have none of their own.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVHeadingIds
{
public:
    /** The id of the next heading, in order: see MRVMarkdown::toHtml(). May be empty. */
    QString next(const QString &heading);
    /** Keeps @p id from being given to a heading. */
    void take(const QString &id) { m_used.insert(id, 0); }

private:
    QHash<QString, int> m_used; // an id, and the last number that was put after it
};

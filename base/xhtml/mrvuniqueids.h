#pragma once

#include "util/mrvbase_export.h"

#include <QHash>
#include <QSet>
#include <QString>

/**
 * Makes identifiers of names that may hold anything: each valid in XML, and none given twice.
 *
 * An identifier is an XML name (XML 1.0, section 2.3), limited to the characters that all editions
 * allow. The same names in the same order give the same identifiers. Many equal names take linear
 * time.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVUniqueIds
{
public:
    /**
     * An identifier that was not given before: @p name with "_" for each character that it must
     * not hold, and a number after it where that is taken.
     *
     * @param name not empty.
     */
    QString idFor(const QString &name);
    /** Keeps @p id for the caller: idFor() never gives it. */
    void reserve(const QString &id) { m_used.insert(id); }

private:
    QSet<QString> m_used;
    QHash<QString, int> m_numbers; // the last one tried for a name
};

#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QHash>
#include <QMultiHash>
#include <QString>

#include <functional>

/**
 * Finds places for files of which many want the same name: a number that is free, or a file that
 * holds the same bytes.
 *
 * Each number of a name is looked at once, and each file that was there is read once, whatever the
 * count of files that want the name.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVNumberedFiles
{
public:
    /** What the caller knows of files and paths. */
    struct Rules
    {
        /**
         * Where the bytes lie that a path has, or will have; null for a path that is free, and
         * empty for one that is taken by what must not be used again.
         */
        std::function<QString(const QString &path)> holder;
        /** The digestOf() of what wants a place; asked for once, where the name is taken. */
        std::function<QByteArray()> digest;
        /** Whether a file with that digest may be used; after a no it is not asked for again. */
        std::function<bool(const QString &path)> mayUse;
    };
    /** A path, and whether nothing is there yet. */
    struct Place
    {
        QString path;
        bool isFree;
    };

    /**
     * The place for a file.
     *
     * @param wanted its path; numbers are added as MRVCoreUtil::NumberedFileName() does.
     * @param rules  all three are set.
     */
    Place find(const QString &wanted, const Rules &rules);

    /** The digest of bytes, for find(). */
    static QByteArray digestOf(const QByteArray &bytes);
    /** The digest of a file; empty for what is no file, and for one that cannot be read. */
    static QByteArray digestOf(const QString &path);

private:
    /** What is known of the numbers of one name. */
    struct Name
    {
        int next = 0; // the first one that was not looked at, or is free
        QMultiHash<QByteArray, QString> held; // paths, by the digest of what they hold
    };
    QHash<QString, Name> m_names; // by the path that was wanted
};

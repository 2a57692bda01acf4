#pragma once

#include "core/mrverror.h"
#include "settings/mrvsettingstext_p.h"

#include <QLockFile>

/**
 * A file of settings, which is read whole or not at all, and replaced whole or not at all.
 *
 * A file that could not be read is never taken for an empty one, and one that is damaged is copied
 * to its name and ".damaged" before it is replaced; reading writes nothing.
 */
class MRVSettingsFile
{
public:
    /** @param path absolute; of a file that need not exist. */
    explicit MRVSettingsFile(const QString &path)
        : m_path(path)
    {
    }

    /** Reads the file, unless it is the same as before. Of a failure, all stays as it was. */
    bool read(MRVErrorSink error);
    /** Puts values in place of what was read last, or written. */
    bool replace(const MRVSettingsMap &values, MRVErrorSink error);

    const QString &path() const { return m_path; }
    bool exists() const { return m_exists; }
    const MRVSettingsText &text() const { return m_text; }

private:
    bool keepDamaged(MRVErrorSink error) const;

    QString m_path;
    bool m_exists = false;
    QByteArray m_bytes;
    MRVSettingsText m_text;
};

/**
 * The lock that QSettings takes for a file while it writes, for the life of the object. Waits for
 * up to ten seconds.
 */
class MRVSettingsLock
{
public:
    explicit MRVSettingsLock(const QString &path);

    /** @return false, with the reason in @p error, where the file must not be written. */
    bool isHeld(MRVErrorSink error) const;

private:
    QString m_path;
    QLockFile m_lock;
};

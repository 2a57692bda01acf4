#pragma once

#include "core/mrverror.h"
#include "settings/mrvsettingsfile_p.h"

#include <QMap>
#include <QSettings>
#include <QStringList>

#include <functional>
#include <memory>

/**
 * The values of one file, which all stores on it in this process share.
 *
 * They are kept in a QSettings that has no file. What the file held when it was last read or
 * written is known, so that each side's changes can be told and merged.
 */
class MRVSettingsStorage
{
public:
    /** The storage of a file, which is read when its first store is made. */
    static std::shared_ptr<MRVSettingsStorage> of(const QString &path);

    explicit MRVSettingsStorage(const QString &path);
    ~MRVSettingsStorage();

    /** The path without links at its end or before it: all names of a file have one storage. */
    static QString realPath(const QString &path);
    QString path() const { return m_file.path(); }

    /**
     * A name for QSettings under which it keeps values, shared with all others of this name, and
     * makes no system call: nothing can be written among the resources, so it never tries.
     */
    QString memoryName() const { return memoryName(m_file.path()); }

    /** By the keys of the whole file. */
    MRVSettingsMap values() const;
    /** What was left out when the file was read or written the last time. */
    const QMap<QString, QString> &unreadable() const { return m_file.text().unreadable; }
    /** Sets a value, or removes a key for an invalid one. @return the keys that this changes. */
    QStringList set(const QString &key, const QVariant &value);
    /** Whether something is not saved. */
    bool isChanged() const;
    /** Reads what others have saved. Under the lock of the file, if anything is to be saved. */
    bool read(MRVErrorSink error);
    /** read(), and saves what is not saved yet. */
    bool save(MRVErrorSink error);
    /** Goes back to what the file held when it was last read or written. */
    void revert() { take(m_known); }

    QSettings::Status status() const;
    /** Why the file could not be read or written the last time; empty where it could. */
    const MRVError &error() const { return m_error; }

    /** Is told the keys, in the whole file, of values that were changed by others. */
    using Listener = std::function<void(const QStringList &keys)>;
    void addStore(const void *store, const Listener &listener) { m_stores[store] = listener; }
    void removeStore(const void *store) { m_stores.remove(store); }
    bool hasStores() const { return !m_stores.isEmpty(); }
    /** Whether changes of one store are news to another. */
    bool isShared() const { return m_stores.size() > 1; }
    /** Tells all stores but @p by, which may be null, of changes. */
    void announce(const QStringList &keys, const void *by) const;
    /** What QSettings removes with a key: it and those below it; of an empty one, all. */
    QStringList keysOf(const QString &key) const;

private:
    static QString memoryName(const QString &path);

    bool exchange(bool mayWrite, MRVErrorSink error);
    void take(const MRVSettingsMap &values);

    MRVSettingsFile m_file;
    QSettings m_memory;
    MRVSettingsMap m_known;
    MRVError m_error;
    QMap<const void *, Listener> m_stores;
};

/** The keys of @p theirs, with what @p mine has changed since both were @p base. */
MRVSettingsMap mrvMergedSettings(const MRVSettingsMap &mine, const MRVSettingsMap &base,
                                 const MRVSettingsMap &theirs);

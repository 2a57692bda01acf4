#pragma once

#include <QByteArray>
#include <QMap>
#include <QSettings>
#include <QString>
#include <QVariant>

#include <functional>

using MRVSettingsMap = QMap<QString, QVariant>;

/** All that @p settings have in the group that is open. */
MRVSettingsMap mrvValuesOf(const QSettings &settings);

/**
 * What the bytes of a settings file hold, keys with their groups.
 *
 * QSettings remembers files, and tells changed ones by length and time alone; so the bytes are read
 * from memory, under a time that no other file had.
 *
 * @return false where they cannot be read.
 */
bool mrvReadSettings(const QByteArray &bytes, QSettings::Format format, MRVSettingsMap *values);

/** Whether a value that was stored as @p wanted may come back from a file as @p found. */
bool mrvIsStoredAs(const QVariant &wanted, const QVariant &found);

/** Whether @p found has all of @p wanted. */
bool mrvHolds(const MRVSettingsMap &found, const MRVSettingsMap &wanted);

/**
 * The bytes of a settings file after @p edit.
 *
 * @param error receives a translated line on failure.
 * @return empty where the folder for temporary files has no room.
 */
QByteArray mrvEditedSettings(const QByteArray &before, const std::function<void(QSettings *)> &edit,
                             QString *error);

/** Keeps the file as it is beside the one that takes its place, for the life of the object. */
class MRVOldSettingsFile
{
public:
    /** @param bytes what is in the file; none where it does not exist. */
    MRVOldSettingsFile(const QString &path, const QByteArray &bytes);
    ~MRVOldSettingsFile();
    MRVOldSettingsFile(const MRVOldSettingsFile &) = delete;
    MRVOldSettingsFile &operator=(const MRVOldSettingsFile &) = delete;

    /** Needs no room on the disk, except on one that has no hard links. */
    bool putBack() const;

private:
    QByteArray m_bytes;
    QString m_path; ///< without links
    QString m_kept; ///< empty where nothing is kept
};

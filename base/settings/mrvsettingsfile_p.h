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

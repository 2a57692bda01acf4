#pragma once

#include <QByteArray>
#include <QLockFile>
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

/**
 * Whether bytes are those of an INI file, or nothing but comments. QSettings itself takes any text
 * for settings that it could not understand in part, and would write over it.
 */
bool mrvIsSettings(const QByteArray &bytes);

/** The error where the disk has no space even for a temporary file. */
QString mrvNoRoomText();

/** Whether a value that was stored as @p wanted may come back from a file as @p found. */
bool mrvIsStoredAs(const QVariant &wanted, const QVariant &found);

/** Whether @p found has all of @p wanted. */
bool mrvHolds(const MRVSettingsMap &found, const MRVSettingsMap &wanted);

/**
 * The bytes of a settings file after @p edit.
 *
 * @param error receives a translated line on failure.
 * @return empty where the folder for temporary files has no space left.
 */
QByteArray mrvEditedSettings(const QByteArray &before, const std::function<void(QSettings *)> &edit,
                             QString *error);

/** The same settings without a UTF-8 mark, all in ASCII; @p bytes where there is none. */
QByteArray mrvWithoutUtf8Mark(const QByteArray &bytes, QString *error);

/** The lock that QSettings takes for a file, for the life of the object. */
class MRVSettingsLock
{
public:
    explicit MRVSettingsLock(const QString &path);

    /**
     * After ten seconds of waiting. On a full or read-only disk the lock cannot be made either; the
     * lock does not report that.
     */
    bool isHeldByOther() const { return m_isHeldByOther; }

    /**
     * A process that was killed between making its lock and writing its name into it leaves an
     * empty one, for which QSettings would wait half a minute.
     */
    static void removeDead(const QString &path);

private:
    QLockFile m_lock;
    bool m_isHeldByOther;
};

QString mrvLockedText(const QString &path);
QString mrvDamagedText(const QString &path);

/** Keeps the file as it is beside the one that takes its place, for the life of the object. */
class MRVOldSettingsFile
{
public:
    /** @param bytes what is in the file; none where it does not exist. */
    MRVOldSettingsFile(const QString &path, const QByteArray &bytes);
    ~MRVOldSettingsFile();
    MRVOldSettingsFile(const MRVOldSettingsFile &) = delete;
    MRVOldSettingsFile &operator=(const MRVOldSettingsFile &) = delete;

    /** Needs no disk space, except on a file system without hard links. */
    bool putBack() const;

private:
    QByteArray m_bytes;
    QString m_path; ///< without links
    QString m_kept; ///< empty where nothing is kept
};

#pragma once

#include "core/mrverror.h"
#include "presets/mrvtextpresetscheme.h"
#include "shortcuts/mrvshortcutscheme.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QColor>
#include <QDateTime>
#include <QFont>
#include <QImage>
#include <QList>
#include <QMap>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QVariant>
#include <QVector>

#include <functional>
#include <memory>

class MRVSettingsStorage;
class MRVSettingsWatcher;

/**
 * The typed settings store of the application.
 *
 * A subclass names its settings by enumerators, of one enumeration a type, and says for each of
 * them under which key it is stored and what it is worth where it is not stored. The store keeps
 * values that QSettings has no text for in fixed forms, tells what has changed, once a pass of the
 * event loop, and sees to it that what is saved is saved whole.
 *
 * A stored value that cannot be read as its type (a file edited by hand, a damaged format) gives
 * the default. In a file edited by hand, letters beyond ASCII are written as "\\xe4", or the file
 * begins with a UTF-8 mark. What was stored as an int, a bool or a list of one text comes back from
 * a file as a text, and an empty list as nothing; the typed functions take both.
 *
 * The base class keeps the values, but never opens the file: the store reads and writes it, in the
 * INI form of QSettings, which QSettings itself can read. NativeFormat and IniFormat are the same;
 * other formats are not supported, and setIniCodec() has no effect. fileName(), status(), sync()
 * and the other functions that this class has, too, are to be called on the class itself: through a
 * QSettings pointer they know of no file, and changes made there are saved but not announced. A
 * QSettings that is opened on the same file is as one of another process, and sees what was saved.
 *
 * Saving. Changes are in memory at once and are saved in the next pass of the event loop, by sync()
 * and saveNow(), and when the store is destroyed. A file is read again before it is written, and
 * replaced whole: several processes and stores may have it open, and each adds its own changes to
 * what the others have saved. A file that cannot be read is not replaced, see saveNow(). Values
 * that cannot be decoded safely are left out; before such a file is replaced, it is copied to its
 * name and ".damaged". Stores on one file in a process share their values.
 *
 * GUI thread only.
 *
 * @code
 * constexpr auto Copies = MRVSettings::IntSetting(0);
 * class PrintSettings : public MRVSettings
 * {
 * public:
 *     using MRVSettings::MRVSettings;
 *     QString keyText(IntSetting setting) const override
 *     {
 *         return setting == Copies ? QStringLiteral("Print/copies") : QString();
 *     }
 * };
 *
 * PrintSettings settings(QStringLiteral("print.ini"), QSettings::IniFormat);
 * QObject::connect(&settings, &MRVSettings::groupsChanged, window, [](const QStringList &groups) {
 *     qDebug() << "changed:" << groups;
 * });
 * settings.setValue(Copies, 2);
 * QString error;
 * if (!settings.saveNow(&error)) {
 *     qWarning() << error;
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVSettings : public QSettings
{
    Q_OBJECT

public:
    // The enumerators belong to the subclass. The type is fixed, since a number that is no
    // enumerator may be given to an enumeration only then.
    enum FlagSetting : int {}; ///< bool
    enum IntSetting : int {}; ///< int
    enum RealSetting : int {}; ///< qreal
    enum StringSetting : int {}; ///< QString
    enum StringListSetting : int {}; ///< QStringList
    enum ColorSetting : int {}; ///< QColor
    enum DateTimeSetting : int {}; ///< QDateTime
    enum FontSetting : int {}; ///< QFont
    enum IntListSetting : int {}; ///< QList<int>
    enum ByteArraySetting : int {}; ///< QByteArray
    enum TextCharFormat : int {}; ///< QTextCharFormat
    enum TextBlockFormat : int {}; ///< QTextBlockFormat
    /** What colour settings are grouped by for the user. */
    enum ColorSettingGroup : int {};

    /** A store on the INI file @p fileName; see the class about @p format. */
    MRVSettings(const QString &fileName, Format format, QObject *parent = nullptr);
    /**
     * A store on the file that QSettings has for @p organization and its @p application, with the
     * same fallbacks, which are read once. Without an organisation it has no file.
     */
    MRVSettings(Format format, Scope scope, const QString &organization,
                const QString &application = QString(), QObject *parent = nullptr);
    /**
     * The same in the native format, of the user: of @p organization and, unless that is empty,
     * @p application.
     */
    explicit MRVSettings(const QString &organization, const QString &application = QString(),
                         QObject *parent = nullptr)
        : MRVSettings(NativeFormat, UserScope, organization, application, parent)
    {
    }
    /** Saves what is not saved yet. A pending announcement is lost. */
    ~MRVSettings() override;

    /** As those of QSettings; of the store's file. */
    QString fileName() const { return m_fileName; }
    /** Empty for a store on a file that was named. */
    QString organizationName() const { return m_organization; }
    /** Empty for a store on a file that was named, or of all applications. */
    QString applicationName() const { return m_application; }
    /** UserScope for a store on a file that was named. */
    Scope scope() const { return m_scope; }
    /** Whether the file, or a folder for it, may be written. Makes neither. */
    bool isWritable() const;
    /**
     * AccessError while the file could not be read or written the last time that was tried,
     * FormatError when it holds something else than settings. Single lines that are no settings are
     * damage: the file is copied before it is replaced.
     */
    Status status() const;
    /** Why status() is AccessError, as a translated line; else no error. */
    MRVError lastError() const;
    /** The text of lastError(). */
    QString errorText() const;

    /**
     * What a setting is worth where it is not stored. Of this class: false, 0, an empty text, list,
     * array or format, an invalid colour, a null date, and the application's font.
     */
    virtual bool defaultValue(FlagSetting setting) const;
    virtual int defaultValue(IntSetting setting) const;
    virtual qreal defaultValue(RealSetting setting) const;
    virtual QString defaultValue(StringSetting setting) const;
    virtual QStringList defaultValue(StringListSetting setting) const;
    virtual QColor defaultValue(ColorSetting setting) const;
    virtual QDateTime defaultValue(DateTimeSetting setting) const;
    virtual QFont defaultValue(FontSetting setting) const;
    virtual QList<int> defaultValue(IntListSetting setting) const;
    virtual QByteArray defaultValue(ByteArraySetting setting) const;
    virtual QTextCharFormat defaultValue(TextCharFormat setting) const;
    virtual QTextBlockFormat defaultValue(TextBlockFormat setting) const;

    /**
     * The key of a setting, relative to the open group; "General/saveInterval", say. An empty key,
     * which is all that this class gives, means that there is no such setting: it reads as its
     * default, and setting it does nothing and returns false.
     */
    virtual QString keyText(FlagSetting setting) const;
    virtual QString keyText(IntSetting setting) const;
    virtual QString keyText(RealSetting setting) const;
    virtual QString keyText(StringSetting setting) const;
    virtual QString keyText(StringListSetting setting) const;
    virtual QString keyText(ColorSetting setting) const;
    virtual QString keyText(DateTimeSetting setting) const;
    virtual QString keyText(FontSetting setting) const;
    virtual QString keyText(TextCharFormat setting) const;
    virtual QString keyText(TextBlockFormat setting) const;
    virtual QString keyText(IntListSetting setting) const;
    virtual QString keyText(ByteArraySetting setting) const;

    /**
     * Leaves all groups that are open and, unless @p group is empty, opens it. All keys are
     * relative to it from then on.
     */
    void setGroup(const QString &group);
    /**
     * As that of QSettings: the value of @p key in the store's file, else in a fallback, else
     * @p defaultValue.
     */
    QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const;
    /** As that of QSettings: whether the file or a fallback has @p key. */
    bool contains(const QString &key) const;
    /** As that of QSettings: the keys in the open group and below, those of fallbacks included. */
    QStringList allKeys() const;
    /** As that of QSettings: the keys in the open group that are no groups. */
    QStringList childKeys() const;
    /** As that of QSettings: the groups in the open group. */
    QStringList childGroups() const;
    /**
     * The values in the open group that the file has but the store has left out, since they cannot
     * be decoded safely: the text in the file by key.
     */
    QMap<QString, QString> unreadableValues() const;
    /** The file that a value comes from; empty where it is not stored. */
    QString originOf(const QString &key) const;

    /**
     * The value of a setting: what is stored, or defaultValue() where nothing is, or nothing that
     * can be read as the type.
     */
    bool value(FlagSetting setting) const;
    int value(IntSetting setting) const;
    qreal value(RealSetting setting) const;
    QString value(StringSetting setting) const;
    QStringList value(StringListSetting setting) const;
    QColor value(ColorSetting setting) const;
    QDateTime value(DateTimeSetting setting) const;
    QFont value(FontSetting setting) const;
    QList<int> value(IntListSetting setting) const;
    QByteArray value(ByteArraySetting setting) const;
    QTextCharFormat value(TextCharFormat setting) const;
    QTextBlockFormat value(TextBlockFormat setting) const;

    /**
     * Sets a value and records the change for groupsChanged(). The setting's group is the text
     * before the last "/" of the key. Not recorded are keys without a group or that begin with "/",
     * changes made while the signals of the store are blocked, and changes made while a group
     * inside the one of setGroup() is open.
     *
     * Stored are numbers, texts, bytes and bits, colours, dates and times, points, sizes, lines and
     * rectangles, fonts, URLs, locales, identifiers, key sequences, and lists and maps of those.
     * What else there is, Qt cannot read from a damaged file safely: it is not set, with a warning.
     * A date of a time zone that this machine does not know is stored in UTC.
     *
     * @param key relative to the open group; an empty one sets nothing.
     * @param value of one of these types; invalid stores an invalid variant, which reads as the
     *              default.
     * @return whether the value was set and status() is NoError. Nothing is saved yet, so this
     * tells of earlier failures; for this value's own, see saveNow().
     */
    bool setValue(const QString &key, const QVariant &value);
    bool setValue(FlagSetting setting, bool value);
    bool setValue(IntSetting setting, int value);
    bool setValue(RealSetting setting, qreal value);
    bool setValue(StringSetting setting, const QString &value);
    bool setValue(StringListSetting setting, const QStringList &value);
    bool setValue(ColorSetting setting, const QColor &value);
    bool setValue(DateTimeSetting setting, const QDateTime &value);
    /** Stored as QFont::toString(). */
    bool setValue(FontSetting setting, const QFont &value);
    /** Stored as the decimal numbers, with a blank between two: "1 20 3". */
    bool setValue(IntListSetting setting, const QList<int> &value);
    bool setValue(ByteArraySetting setting, const QByteArray &value);
    /**
     * Stored as toByteArray().
     *
     * @param setting whose keyText() is the key; false for one without a key.
     */
    bool setValue(TextCharFormat setting, const QTextCharFormat &value);
    bool setValue(TextBlockFormat setting, const QTextBlockFormat &value);

    /**
     * Removes a key with all that lies below it; an empty key, all of the open group. Recorded like
     * setValue().
     */
    void remove(const QString &key);
    /** Removes all of the open group, and emits settingsReset(). */
    void resetToDefaults();

    /**
     * The format stored under @p key, through applyFontHinting(); @p def as it is where there is
     * none.
     */
    QTextCharFormat textCharFormat(const QString &key, const QTextCharFormat &def) const;
    /** The paragraph format stored under @p key; @p def where it does not exist. */
    QTextBlockFormat textBlockFormat(const QString &key, const QTextBlockFormat &def) const;
    /** A copy of @p format with full font hinting or none, as the flag setting number 12 says. */
    QTextCharFormat applyFontHinting(const QTextCharFormat &format) const;

    /**
     * The shortcuts stored under @p key. Where there are none, or nothing of them can be read, @p
     * def, and where that is null, MRVShortcutScheme::morvane().
     */
    MRVShortcutScheme shortcutScheme(const QString &key, const MRVShortcutScheme &def) const;
    bool setShortcutScheme(const QString &key, const MRVShortcutScheme &scheme);

    /**
     * The presets stored under @p key; @p def where there are none. A scheme without presets is a
     * scheme. Of a damaged one, the presets before the damage.
     */
    MRVTextPresetScheme textPresets(const QString &key, const MRVTextPresetScheme &def) const;
    bool setTextPresets(const QString &key, const MRVTextPresetScheme &scheme);

    /** The stored form of a format: MRVTextFormat's. */
    static QByteArray toByteArray(const QTextCharFormat &format);
    static QByteArray toByteArray(const QTextBlockFormat &format);
    /** A default format where @p bytes are empty or damaged. */
    static QTextCharFormat toTextCharFormat(const QByteArray &bytes);
    /** The same for a paragraph format. */
    static QTextBlockFormat toTextBlockFormat(const QByteArray &bytes);
    /**
     * The picture as a JPEG file of quality 50, so without transparency; empty for a null image.
     */
    static QByteArray toByteArray(const QImage &image);
    /** A null image where @p bytes hold no picture. */
    static QImage toImage(const QByteArray &bytes);

    /**
     * Saves what is not saved yet, by MRVFileWriter and under the lock that QSettings takes. Keys
     * that others have saved meanwhile stay, and are taken over.
     *
     * Where the file cannot be read, is no regular file or cannot be replaced, it stays as it was.
     * The changes then stay in memory, and are tried again with the next one.
     *
     * @param error if given, receives a translated line on failure; untouched on success.
     * @return whether the file holds all that the store does; also when there was nothing to save.
     */
    bool saveNow(MRVErrorSink error = nullptr);
    /** saveNow(), whose failure saveFailed() tells. Also reads what others have saved. */
    void sync();
    /** Forgets all changes that are not saved, which otherwise are tried again. */
    void revert();

    /**
     * Reads the file whenever it has changed, while the event loop runs, until it is switched off.
     * Without that, what others have saved is read by sync() and saveNow() only.
     */
    void setWatched(bool isWatched);
    /** Whether the file is read whenever it has changed; not so at first. */
    bool isWatched() const { return bool(m_watcher); }

    /**
     * Copies the open group into an INI file, whose group of that name it replaces; other groups
     * stay. The file is written whole through MRVFileWriter or not at all, under the lock that
     * QSettings takes.
     *
     * @param error if given, receives a translated line on failure; untouched on success.
     * @param fileName of an INI file, which is made where it does not exist.
     * @return false where the file cannot be read or written, or holds something else.
     */
    bool saveToFile(const QString &fileName, MRVErrorSink error = nullptr);
    /**
     * Puts the values that an INI file has in the group that is open here in place of all that this
     * store has in it, and emits settingsReset(). A file that cannot be read has none: the group is
     * then empty.
     */
    void loadFromFile(const QString &fileName);

Q_SIGNALS:
    /**
     * Once for all changes of a pass of the event loop: each group once, in the order of first
     * change. Changes that others have made to the file come when it is read, those of another
     * store of this process at once; of those, the ones outside of the group of setGroup() do not
     * count.
     */
    void groupsChanged(const QStringList &groups);
    /** After resetToDefaults() and loadFromFile(): any setting may have changed. */
    void settingsReset();
    /**
     * What was changed could not be saved when its turn came; @p error says why. Not emitted for a
     * call of saveNow(), which returns it.
     */
    void saveFailed(const QString &error);

protected:
    void timerEvent(QTimerEvent *event) override;
    bool event(QEvent *event) override;

    /**
     * Sets @p value under @p key in the whole file, whatever group is open; an invalid one removes
     * the key with all that lies below it. Announced and saved like other changes.
     */
    void setInFile(const QString &key, const QVariant &value);

private:
    struct Fallback
    {
        QString path;
        QMap<QString, QVariant> values;
    };

    MRVSettings(const QString &fileName, const std::shared_ptr<MRVSettingsStorage> &storage,
                Format format, QObject *parent);
    /** value() of one look-up; invalid for an empty key. */
    QVariant stored(const QString &key) const
    {
        return key.isEmpty()        ? QVariant()
            : m_fallbacks.isEmpty() ? QSettings::value(key)
                                    : value(key);
    }
    bool isOpenGroup() const;
    void recordChange(const QString &key);
    void recordForeignChanges(const QStringList &keys);
    void addChangedGroup(const QStringRef &group);
    QString inFile(const QString &key) const;
    const Fallback *fallbackOf(const QString &key) const;
    QStringList withFallbacks(QStringList keys, const std::function<QString(QString)> &part) const;

    int m_timerId = -1;
    QStringList m_changedGroups;
    QString m_group;
    QString m_fileName;
    QString m_organization;
    QString m_application;
    Scope m_scope = UserScope;
    QVector<Fallback> m_fallbacks;
    bool m_isDirty = false; ///< this store has changed something since it was saved
    std::shared_ptr<MRVSettingsStorage> m_storage;
    std::unique_ptr<MRVSettingsWatcher> m_watcher;
};

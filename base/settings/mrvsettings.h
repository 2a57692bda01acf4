#pragma once

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
 * begins with a UTF-8 mark: it then is rewritten in ASCII when it is opened. What was stored as an
 * int, a bool or a list of one text comes back from a file as a text, and an empty list as nothing;
 * the typed functions take both.
 *
 * Saving. Changes are in memory at once and are saved in the next pass of the event loop, by sync()
 * and saveNow(), and when the store is destroyed. A disk that fills up while QSettings writes would
 * leave a file that ends in the middle of a value, without an error; so the store reads what was
 * written, and repairs it or puts the old file back, see saveNow(). Several processes may write to
 * one file: each adds its own changes to what the others have saved. Call sync() and the functions
 * that change something on the class itself; through a QSettings pointer they are Qt's, which
 * neither announce nor check.
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

    using QSettings::QSettings;
    /** Saves what is not saved yet. A pending announcement is lost. */
    ~MRVSettings() override;

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
     * default, and setting it does nothing.
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
     * As those of QSettings. The store leaves the groups for a moment while it saves, and comes
     * back; so groups must be opened here, and nothing is saved while an array is open or a group
     * was opened through a QSettings pointer.
     */
    void beginGroup(const QString &prefix);
    /** Leaves the group that was opened last; see beginGroup(). */
    void endGroup();

    using QSettings::value;
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
     *
     * @param key relative to the open group.
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
     * Saves what is not saved yet, and makes sure that it is: the file is read again, and each
     * value in it compared with the one in memory.
     *
     * Where what was written is not whole, as on a disk that has filled up, the file is written
     * once more through MRVFileWriter, else the old file is put back. What is no regular file is
     * not written to. Changes that could not be saved stay in memory, and are tried again with the
     * next one.
     *
     * @param error if given, receives a translated line on failure; untouched on success.
     * @return whether the file holds all that the store does; also when there was nothing to save.
     */
    bool saveNow(QString *error = nullptr);
    /** saveNow(), and reads what others have saved. */
    void sync();

    /**
     * Copies the open group into an INI file, whose group of that name it replaces; other groups
     * stay. The file is written whole through MRVFileWriter or not at all, under the lock that
     * QSettings takes.
     *
     * @param error if given, receives a translated line on failure; untouched on success.
     * @param fileName of an INI file, which is made where it does not exist.
     * @return false where the file cannot be written.
     */
    bool saveToFile(const QString &fileName, QString *error = nullptr);
    /**
     * Puts the values that an INI file has in the group that is open here in place of all that this
     * store has in it, and emits settingsReset(). A file that cannot be read has none: the group is
     * then empty.
     */
    void loadFromFile(const QString &fileName);

Q_SIGNALS:
    /**
     * Once for all changes of a pass of the event loop: each group once, in the order of first
     * change.
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

    /** Leaves all groups and the fallbacks while it lives: keys are those of the whole file. */
    class MRVBASE_EXPORT WholeFile
    {
    public:
        /** Leaves the groups of @p settings, which must outlive this. */
        explicit WholeFile(MRVSettings *settings);
        ~WholeFile();
        WholeFile(const WholeFile &) = delete;
        WholeFile &operator=(const WholeFile &) = delete;
        /** False where an array is open, which cannot be left and entered again. */
        bool isOpen() const { return m_isOpen; }

    private:
        MRVSettings *m_settings;
        QStringList m_groups;
        bool m_hasFallbacks;
        bool m_isOpen;
    };

private:
    enum class Saving { MayBeRepeated, Last };

    bool isOpenGroup() const;
    void recordChange(const QString &key);
    void replaceGroupIn(QSettings *file) const;
    bool save(Saving saving, QString *error);
    bool saveWhole(Saving saving, QString *error);
    void stall();
    void setAgain(const QMap<QString, QVariant> &old, const QMap<QString, QVariant> &wanted);

    int m_timerId = -1;
    QStringList m_changedGroups;
    QString m_group;
    QStringList m_openGroups; ///< as they were opened
    QString m_openPath; ///< what group() is while only those are open
    bool m_isDirty = false; ///< something may not be saved
    bool m_isStalled = false; ///< QSettings believes that its turn to save is still to come
};

#pragma once

#include "core/mrverror.h"
#include "presets/mrvtextpreset.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QMap>
#include <QString>
#include <QStringList>

/**
 * The text presets of a writer by name, ordered as QString orders its texts (by UTF-16 unit, so
 * capitals come before small letters).
 *
 * @code
 * QTextCharFormat large;
 * large.setFontPointSize(18);
 * MRVTextPresetScheme scheme = MRVTextPresetScheme::defaultScheme();
 * scheme.setPreset(QStringLiteral("Motto"),
 *                  MRVTextPreset(large, QTextBlockFormat(), MRVTextPreset::ApplyCharFormat));
 *
 * const QByteArray stored = MRVTextPresetScheme::toByteArray(scheme);
 * QString error;
 * const MRVTextPresetScheme read = MRVTextPresetScheme::fromByteArray(stored, &error);
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextPresetScheme
{
    Q_DECLARE_TR_FUNCTIONS(MRVTextPresetScheme)

public:
    /** Adds a preset, or puts it in the place of the one called @p name, which may be any text. */
    void setPreset(const QString &name, const MRVTextPreset &preset);
    /** @return false where there is no preset of that name. */
    bool deletePreset(const QString &name);

    /**
     * Gives the preset called @p oldName another name.
     *
     * @return false, with nothing done, where there is no such preset, or another one is called
     * @p newName.
     */
    bool renamePreset(const QString &oldName, const QString &newName);

    /** Adds all presets of @p other, each in the place of one of the same name. */
    void merge(const MRVTextPresetScheme &other);

    /** Whether there is a preset of exactly that name. */
    bool contains(const QString &name) const { return m_presets.contains(name); }
    /** The preset of that name, or one that does nothing. */
    MRVTextPreset preset(const QString &name) const { return m_presets.value(name); }
    /**
     * @name All presets
     *
     * Names are in the order of the scheme.
     */
    //@{
    QStringList names() const { return m_presets.keys(); }
    int count() const { return m_presets.size(); }
    bool isEmpty() const { return m_presets.isEmpty(); }
    //@}

    /** Whether bytes can be read whole as the stored form; see MRVFileKind. */
    static bool isStoredForm(const QByteArray &bytes);

    /** The stored form, as the stream operator below writes it. */
    static QByteArray toByteArray(const MRVTextPresetScheme &scheme);
    /**
     * The scheme in @p bytes, which may be any; empty where they are empty. What follows the scheme
     * is ignored.
     *
     * @param error if given, receives a translated line where the bytes are damaged or of another
     *              version; untouched on success, which empty bytes are. The presets that stand
     *              before the damage are returned.
     */
    static MRVTextPresetScheme fromByteArray(const QByteArray &bytes, MRVErrorSink error = nullptr);

    /**
     * The scheme in the file @p path.
     *
     * @param error if given, receives a translated line that names the file when it cannot be read,
     *              or is empty or damaged; untouched on success.
     * @return what could be read.
     */
    static MRVTextPresetScheme load(const QString &path, MRVErrorSink error = nullptr);
    /**
     * Writes the stored form to the file @p path, whole or not at all.
     *
     * @param error if given, receives a translated line that names the file on failure; untouched
     *              on success.
     */
    bool save(const QString &path, MRVErrorSink error = nullptr) const;

    /**
     * The six presets that a new user finds: "Block Quote", "Body", "Essay Block Quote
     * (Preserved)", "Heading", "Sub-heading" and "Title". They set no font family, so that the text
     * keeps its own.
     */
    static MRVTextPresetScheme defaultScheme();

    friend bool operator==(const MRVTextPresetScheme &a, const MRVTextPresetScheme &b)
    {
        return a.m_presets == b.m_presets;
    }
    friend bool operator!=(const MRVTextPresetScheme &a, const MRVTextPresetScheme &b)
    {
        return !(a == b);
    }

private:
    QMap<QString, MRVTextPreset> m_presets;
};

Q_DECLARE_TYPEINFO(MRVTextPresetScheme, Q_MOVABLE_TYPE);

/** The stored form: version 1 and the number of presets as qint32, then name and preset of each. */
MRVBASE_EXPORT QDataStream &operator<<(QDataStream &stream, const MRVTextPresetScheme &scheme);
/**
 * Reads the stored form from any bytes, in any order of names. Where it is damaged, @p scheme holds
 * the presets that stand before the damage and the status is not Ok; of another version than 1
 * nothing more is read, and the scheme is empty.
 */
MRVBASE_EXPORT QDataStream &operator>>(QDataStream &stream, MRVTextPresetScheme &scheme);

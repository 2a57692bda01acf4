#pragma once

#include "core/mrverror.h"
#include "shortcuts/mrvshortcut.h"
#include "shortcuts/mrvshortcutinfo.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QKeySequence>
#include <QList>
#include <QString>
#include <QStringList>

class QDataStream;

/**
 * A named set of keyboard shortcuts: which key sequence each command has.
 *
 * Stored form (QDataStream, version Qt_5_15): QString "1.0", QString name, qint32 number of
 * entries, and for each entry QByteArray name of the identifier, QString key sequence as portable
 * text, QString text. Entries are written in the order of the identifiers and read in any; of two
 * for one command the later counts. An entry for a command that this version does not know is
 * skipped.
 *
 * A key that has no portable text, such as an unknown one, is not stored: its entry comes back
 * without a key. MRVShortcutCheck reports those.
 *
 * Any bytes can be read. A form of another version is not read at all. Where the bytes end too
 * early or are damaged, what was read whole before that place stays. A key text that names an
 * unknown key gives an entry without a key.
 *
 * @code
 * MRVShortcutScheme scheme = MRVShortcutScheme::morvane();
 * scheme.setName(QStringLiteral("Mine"));
 * const QKeySequence keys(QStringLiteral("Ctrl+Alt+B"));
 * if (!scheme.contains(keys)) {
 *     scheme.setShortcut(MRVShortcut::Bold, keys);
 * }
 * QString error;
 * if (!scheme.save(QStringLiteral("mine.shortcuts"), &error)) {
 *     qWarning() << error;
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVShortcutScheme
{
    Q_DECLARE_TR_FUNCTIONS(MRVShortcutScheme)

public:
    using Id = MRVShortcut::Id;
    using Shortcuts = QHash<Id, MRVShortcutInfo>;

    /** The version text of the stored form. */
    static constexpr char version_1_0[] = "1.0";

    /** A null scheme. */
    MRVShortcutScheme() = default;
    /** A scheme without entries that is null only where @p name is. */
    explicit MRVShortcutScheme(const QString &name);
    /** Takes the entries as mergeShortcuts() does. */
    MRVShortcutScheme(const QString &name, const Shortcuts &shortcuts);

    /**
     * Reads the stored form.
     *
     * @param mergeDefaults whether commands that the data lack get what morvane() has for them,
     *                      such as those that are newer than the data.
     * @param data any bytes; see fromByteArray().
     */
    MRVShortcutScheme(const QByteArray &data, bool mergeDefaults);

    /** Whether the name is a null string and there are no entries. */
    bool isNull() const { return m_name.isNull() && m_shortcuts.isEmpty(); }
    /** The opposite of isNull(). */
    bool isValid() const { return !isNull(); }

    /** What lists of schemes call it; translated for predefined schemes. */
    QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    /** All entries by command; their own ids are those of the keys. */
    Shortcuts shortcuts() const { return m_shortcuts; }

    /** All entries in the order of their identifiers. */
    QList<MRVShortcutInfo> sortedShortcuts() const;

    /** The entry of @p id; one with NoId where there is none. */
    MRVShortcutInfo shortcutInfo(Id id) const;

    /** The key sequence of @p id; empty where it has none or there is no entry. */
    QKeySequence shortcut(Id id) const;

    /**
     * Whether an entry has just this key sequence; the beginning of a chord does not count.
     * An empty sequence is found when a command has no key.
     */
    bool contains(const QKeySequence &sequence) const;

    /**
     * Gives an entry another key sequence, or none.
     *
     * @return false, with nothing done, where @p id has no entry: what commands a scheme has
     *         changes only by whole entries and by merging.
     */
    bool setShortcut(Id id, const QKeySequence &sequence);

    /**
     * Replaces or adds an entry, whatever id stands in @p info; false where @p id is no command.
     */
    bool setShortcut(Id id, const MRVShortcutInfo &info);

    /**
     * Adds the entries of commands that have none here. The key of the hash tells the command,
     * whatever id stands in the entry; what is no command is left out.
     */
    void mergeMissingShortcuts(const Shortcuts &shortcuts);

    /** Adds all entries, in place of those that are here; see mergeMissingShortcuts(). */
    void mergeShortcuts(const Shortcuts &shortcuts);

    /** Merges the entries of @p other, which win, and takes its name. */
    void mergeCopy(const MRVShortcutScheme &other);

    /**
     * The entries that fit a filter (MRVShortcutInfo::matchFilter()), in the order of their ids.
     */
    QList<MRVShortcutInfo> findShortcuts(const QString &filter) const;
    /**
     * The same of any entries.
     *
     * @param filter see MRVShortcutInfo::matchFilter().
     */
    static QList<MRVShortcutInfo> findShortcuts(const QString &filter, const Shortcuts &shortcuts);

    /** The entries of a translated menu group, compared exactly, in the order of their ids. */
    QList<MRVShortcutInfo> groupShortcuts(const QString &group) const;
    /**
     * The same of any entries.
     *
     * @param group as for the other one.
     */
    static QList<MRVShortcutInfo> groupShortcuts(const QString &group, const Shortcuts &shortcuts);

    /** The translated menu groups that have entries here, each once, in ascending order. */
    QStringList shortcutGroups() const;

    /**
     * The key sequence that a portable text such as "Ctrl+G, Ctrl+N" names. Empty where one of its
     * keys is unknown, and for a text of more than 1024 characters.
     */
    static QKeySequence toSequence(const QString &portableText);

    /** The entries by their ids; of two with one id the later counts. */
    static Shortcuts toHash(const QList<MRVShortcutInfo> &infos);

    /** The stored form. */
    QByteArray toByteArray() const;
    static QByteArray toByteArray(const MRVShortcutScheme &scheme);

    /**
     * Reads the stored form.
     *
     * @param error if given, receives a translated reason when not all of it could be read; the
     *              result holds what could. Untouched otherwise.
     * @param data any bytes.
     * @return a null scheme where nothing could be read.
     */
    static MRVShortcutScheme fromByteArray(const QByteArray &data, MRVErrorSink error = nullptr);

    /**
     * Writes the stored form to the file @p path, whole or not at all (MRVFileWriter).
     *
     * @param error if given, receives a translated line that names the file and the reason on
     *              failure; untouched on success.
     */
    bool save(const QString &path, MRVErrorSink error = nullptr) const;

    /**
     * Reads the file @p path that save() wrote.
     *
     * @param error if given, receives a translated line that names the file and the reason when it
     *              cannot be opened or not all of it could be read; untouched on success.
     * @return what could be read; a null scheme where nothing could.
     */
    static MRVShortcutScheme load(const QString &path, MRVErrorSink error = nullptr);

    /**
     * Writes a list for readers to the file @p path, in UTF-8: each menu group in upper case, and
     * below it each entry as two blanks, its text, ": " and its key sequence in native text; an
     * empty line between groups. White space in the text becomes single blanks.
     *
     * @param error as for save().
     */
    bool saveAsText(const QString &path, MRVErrorSink error = nullptr) const;

    /** The text that saveAsText() writes. */
    QString toText() const;

    /** Whether bytes can be read whole as the stored form; see MRVFileKind. */
    static bool isStoredForm(const QByteArray &bytes);
    /**
     * Whether bytes look like a text of saveAsText(), in whatever language: headings, and lines
     * with two blanks before and ": " within.
     */
    static bool isText(const QByteArray &bytes);

    /** The default scheme, with an entry for every command, though not a key for every one. */
    static MRVShortcutScheme morvane();
    /**
     * @name Other applications
     *
     * As long as they have no keys of their own, these have those of morvane(), under another
     * translated name.
     */
    //@{
    static MRVShortcutScheme macMorvane();
    static MRVShortcutScheme openOffice();
    static MRVShortcutScheme msWord();
    //@}

    /** morvane(), msWord(), openOffice() and macMorvane(). */
    static QList<MRVShortcutScheme> predefinedSchemes();

    /** The predefined scheme with this translated name, compared exactly; morvane() without one. */
    static MRVShortcutScheme predefinedScheme(const QString &name);
    /**
     * A predefined scheme, or else that of a file.
     *
     * @param nameOrPath the translated name of a scheme, whatever files are there, or a path.
     * @param error      as for load(); of an unknown name, it tells a similar one.
     * @return what could be read; a null scheme where nothing could.
     */
    static MRVShortcutScheme loadNamed(const QString &nameOrPath, MRVErrorSink error = nullptr);

    friend bool operator==(const MRVShortcutScheme &a, const MRVShortcutScheme &b)
    {
        return a.m_name == b.m_name && a.m_shortcuts == b.m_shortcuts;
    }
    friend bool operator!=(const MRVShortcutScheme &a, const MRVShortcutScheme &b)
    {
        return !(a == b);
    }

    /** Writes the stored form, with the version and byte order that the stream is set to. */
    friend MRVBASE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                  const MRVShortcutScheme &scheme);

    /**
     * Reads the stored form into @p scheme: its name is replaced, entries are replaced and added. A
     * form of another version changes nothing, and the stream then stands after the version. The
     * stream's status is not Ok where the bytes ended too early.
     */
    friend MRVBASE_EXPORT QDataStream &operator>>(QDataStream &stream, MRVShortcutScheme &scheme);

private:
    void read(QDataStream &stream, MRVErrorSink error);

    QString m_name;
    Shortcuts m_shortcuts;
};

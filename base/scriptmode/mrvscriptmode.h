#pragma once

#include "core/mrverror.h"
#include "scriptmode/mrvscriptelement.h"
#include "util/mrvbase_export.h"
#include "util/mrvunit.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class QTextBlock;

/**
 * A named set of script elements, such as a screenplay's, and the XML file that it is stored in.
 *
 * The file is a UTF-8 XML document with the root "MorvaneScriptFormat", version "1.0". Its lengths
 * are in the units that it names; in memory they are points. Factory modes are resources of the
 * application below ":/ScriptFormat/ScriptFormats" (MrvBase::ScriptFormats), and users keep their
 * own in the folder "ScriptFormats" of their data folder.
 *
 * Functions that take @p error put one translated line into it on failure, with the file and, where
 * a file's contents are at fault, the line; it is untouched on success.
 *
 * @code
 * MRVScriptMode mode;
 * QString error;
 * QStringList remarks;
 * if (!mode.load(QStringLiteral("mine.xml"), &error, &remarks)) {
 *     qWarning() << error;
 *     mode.loadFactoryDefaults();
 * }
 * // What the paragraph of the cursor is, and what Return begins after it.
 * const int index = mode.indexOf(cursor.block());
 * if (index >= 0) {
 *     const MRVScriptElement element = mode.elements().at(index);
 *     qDebug() << element.title() << element.actionElement(MRVScriptElement::ReturnAction);
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptMode
{
    Q_DECLARE_TR_FUNCTIONS(MRVScriptMode)

public:
    /** More elements than a mode may have are refused when it is read or saved. */
    static constexpr int MaxElements = 1000;
    /** A larger file is refused when it is read, and not written. In bytes. */
    static constexpr int MaxFileSize = 8 * 1024 * 1024;

    /** Named "Screenplay", in inches, without elements. */
    MRVScriptMode();

    /** By which lists of modes name it; also part of the file. */
    QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    /** What lengths are written in: MRVUnit::Inch, Centimeter or Point. */
    MRVUnit::Unit units() const { return m_units; }
    /** Any other unit becomes MRVUnit::Point. The elements, whose lengths are in points, stay. */
    void setUnits(MRVUnit::Unit units);

    /** In the order in which menus show them. */
    QList<MRVScriptElement> elements() const { return m_elements; }
    void setElements(const QList<MRVScriptElement> &elements) { m_elements = elements; }

    /** The index of the first element with this title, exactly so written, or -1. */
    int indexOf(const QString &title) const;
    /**
     * The index of the first element that MRVScriptElement::match() finds in a paragraph, or -1.
     */
    int indexOf(const QTextBlock &block) const;

    /**
     * Reads the file @p path. What the file does not say has its default: that of the constructor
     * here, that of a default MRVScriptElement there.
     *
     * Refused are what is not an XML document, another root element or one of a namespace, document
     * type declarations, elements within elements beyond 32 levels, tags of more than 64 attributes
     * or 16,384 characters, and what exceeds MaxElements or MaxFileSize. All else is read: unknown
     * elements and attributes are passed over, unknown words and texts that are not numbers leave
     * the default, lengths beyond 100,000 points, font sizes beyond 10,000 and parts of colours
     * beyond 0 to 1 are cut to that, and each of these is a remark.
     *
     * Families of fonts that other systems name are read as what stands for them here: "Courier" as
     * "Courier New", "Times" as "Times New Roman", "MS Shell Dlg" as "Arial", and of these and
     * "Arial" names such as "ArialMT" or "TimesNewRomanPSMT" as the family.
     *
     * @param remarks if given, receives a translated line such as "line 12: ..." for each thing
     *                that could not be read as it stands, a hundred at most.
     * @return false, with this mode as it was, on failure.
     */
    bool load(const QString &path, MRVErrorSink error = nullptr, QStringList *remarks = nullptr);
    /**
     * The same for the contents of a file, the bytes @p xml. The error begins with the line.
     *
     * @param remarks as for load().
     */
    bool fromXml(const QByteArray &xml, MRVErrorSink error = nullptr,
                 QStringList *remarks = nullptr);
    /** Whether bytes are those of a mode file; see MRVFileKind. */
    static bool isXml(const QByteArray &bytes) { return MRVScriptMode().fromXml(bytes); }
    /**
     * Replaces this mode by one of systemModes(), or else loads a file.
     *
     * @param nameOrPath the name of a mode in any case, or a path.
     * @param error      as for load(); of an unknown name, it tells a similar one.
     * @return false, with this mode as it was, on failure.
     */
    bool loadNamed(const QString &nameOrPath, MRVErrorSink error = nullptr);

    /**
     * Writes the mode through MRVFileWriter, so that a failure leaves the old file as it was.
     *
     * What is written, load() reads to an equal mode, with lengths rounded to the twentieth of a
     * point, line spacing to the thousandth, and less what files do not hold: underlines by word,
     * and double ones without a line in the character format; the direction of writing; the bit
     * Qt::AlignAbsolute of alignments; tab stops but the first, and of that the kind, which is read
     * as a left one; texts painted with a pattern or gradient; all families of a font but the
     * first, and that as load() reads it ("Times" as "Times New Roman"); and character and
     * paragraph properties for which the file has no word. Characters that XML forbids are left out
     * of texts.
     *
     * A mode that load() would refuse for its size, or for a family's name that is too long, is not
     * written.
     *
     * @param path of the file, which is replaced as a whole or, on failure, left as it was.
     */
    bool save(const QString &path, MRVErrorSink error = nullptr) const;
    /** What save() writes. Equal modes give equal bytes. */
    QByteArray toXml() const;

    /**
     * Replaces this mode by the built-in one, the US screenplay, which needs no resources: 12 point
     * "Courier New" in a column of six inches on Letter paper.
     */
    void loadFactoryDefaults();

    /** The factory modes that the application ships, by name. */
    static QMap<QString, MRVScriptMode> systemModes();
    /** The user's modes, by name. Their folder is made where it is missing. */
    static QMap<QString, MRVScriptMode> userModes();
    /**
     * Saves @p mode among the user's modes as MRV::cleanFileName() of @p name with ".xml" after it.
     * It keeps its own name, by which userModes() will know it.
     *
     * A mode that is there under that file name is replaced without a question, also where its name
     * differs in what cleanFileName() takes away: ask userModePath() beforehand.
     *
     * @return false where nothing is left of @p name, the folder cannot be made or the file cannot
     * be written.
     */
    static bool addToUserModes(const QString &name, MRVScriptMode &mode);
    /**
     * The file that addToUserModes() writes for @p name, whether or not it is there; the folder is
     * made where it is missing. Empty where addToUserModes() cannot write one.
     */
    static QString userModePath(const QString &name);

    /**
     * Gives each element that has the title of an earlier one the first free title of its series:
     * "Action", "Action-1", "Action-2", and "Act 9-1" after "Act 9". What goes on with a title goes
     * on with the first of them.
     */
    void makeElementsUnique();

    /**
     * The mode for an editor of Qt, which shows its elements where they stand on paper: see
     * MRVScriptElement::withMargins(). Documents that are formatted with it are read with it.
     */
    MRVScriptMode forEditor() const;

    /**
     * What keeps the mode from working although its file can be read, one translated line each:
     * titles that are missing, used twice or lead to no element, and elements whose paragraphs
     * look the same, so that match() finds the first only. Empty for a mode without faults.
     */
    QStringList faults() const;

    /** A length in units() as points, rounded to the nearest twentieth, halves away from zero. */
    double toPoints(double length) const;
    /** Points as a length in units(), not rounded. */
    double fromPoints(double points) const;

    bool operator==(const MRVScriptMode &other) const;
    bool operator!=(const MRVScriptMode &other) const { return !(*this == other); }

private:
    QString m_name;
    MRVUnit::Unit m_units = MRVUnit::Inch;
    QList<MRVScriptElement> m_elements;
};

/**
 * The modes of all files of a folder or resource folder, by name. Files that cannot be loaded are
 * left out, with a line in the log; what load() remarks of the others is logged, too. Of two modes
 * of one name, the file that is later in the order of names counts.
 *
 * @since 1.0
 */
MRVBASE_EXPORT QMap<QString, MRVScriptMode> mrv_loadPath(const QString &folder);

/** @p text in parentheses. @since 1.0 */
MRVBASE_EXPORT QString addBrackets(const QString &text);
/**
 * What stands between the parentheses that @p text begins and ends with. Deliberate: empty, and not
 * the text itself, where it does not. @since 1.0
 */
MRVBASE_EXPORT QString cleanBrackets(const QString &text);

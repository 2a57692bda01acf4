#pragma once

#include "util/mrvbase_export.h"

#include <QFlags>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * A piece of a script's text in one format.
 *
 * @since 1.0
 */
struct MRVFountainRun
{
    enum Kind {
        Text,
        Note, ///< stands in the text, but is a remark about it: [[ ]]
        Boneyard, ///< was cut out, but is kept: the text between slash and asterisk
    };
    enum Style {
        Italic = 1,
        Bold = 2,
        Underline = 4,
    };
    Q_DECLARE_FLAGS(Emphasis, Style)

    QString text; ///< lines are separated by '\n'
    Emphasis emphasis;
    Kind kind = Text;

    bool operator==(const MRVFountainRun &other) const
    {
        return kind == other.kind && emphasis == other.emphasis && text == other.text;
    }
    bool operator!=(const MRVFountainRun &other) const { return !(*this == other); }
};
Q_DECLARE_TYPEINFO(MRVFountainRun, Q_MOVABLE_TYPE);
Q_DECLARE_OPERATORS_FOR_FLAGS(MRVFountainRun::Emphasis)

using MRVFountainRuns = QVector<MRVFountainRun>;

/**
 * A paragraph of a script.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVFountainElement
{
    enum Kind {
        Action = 0, ///< without text it is an empty line
        SceneHeading = 1,
        Character = 2, ///< a cue: the name, and extensions such as "(V.O.)"
        Parenthetical = 3, ///< without its parentheses
        Dialogue = 4,
        Lyrics = 5,
        Transition = 6,
        Centered = 7,
        Note = 8, ///< a paragraph that is nothing but a note; runs without emphasis
        Boneyard = 9, ///< likewise, of what was cut out
        Section = 10, ///< a heading of the outline, which is not printed
        Synopsis = 11, ///< what a section or scene is about, not printed either
        PageBreak = 12, ///< has no text
    };
    static constexpr int KindCount = 13;

    Kind kind = Action;
    MRVFountainRuns runs;
    QString sceneNumber; ///< of a SceneHeading, such as "12A"; may be empty
    bool dual = false; ///< of a Character: speaks beside the one before
    bool apart = false; ///< of Lyrics right after a speech: no part of it
    int level = 1; ///< of a Section: 1 is the outermost, 255 the innermost

    /** An empty paragraph of action. */
    MRVFountainElement() = default;
    /**
     * An element of the kind @p elementKind with one piece of @p text, without emphasis, which
     * stands for itself: what looks like a mark in it is written with a backslash.
     */
    MRVFountainElement(Kind elementKind, const QString &text)
        : kind(elementKind)
        , runs{{text, {}, MRVFountainRun::Text}}
    {
    }

    /** The text without notes and boneyards within it. */
    QString text() const;
    /** Whether it belongs to a speech: what is said, sung or directed after a cue. */
    bool isSpoken() const
    {
        return kind == Dialogue || kind == Parenthetical || (kind == Lyrics && !apart);
    }

    bool operator==(const MRVFountainElement &other) const
    {
        return kind == other.kind && runs == other.runs && sceneNumber == other.sceneNumber
            && dual == other.dual && apart == other.apart && level == other.level;
    }
    bool operator!=(const MRVFountainElement &other) const { return !(*this == other); }
};
Q_DECLARE_TYPEINFO(MRVFountainElement, Q_MOVABLE_TYPE);

/**
 * An entry of the title page.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVFountainTitle
{
    QString key; ///< such as "Title" or "Draft date"
    MRVFountainRuns value;

    /** The value without notes, emphasis and boneyards; lines of a value stay apart. */
    QString text() const;

    bool operator==(const MRVFountainTitle &other) const
    {
        return key == other.key && value == other.value;
    }
    bool operator!=(const MRVFountainTitle &other) const { return !(*this == other); }
};
Q_DECLARE_TYPEINFO(MRVFountainTitle, Q_MOVABLE_TYPE);

/**
 * A script as Fountain knows it: plain text in which each paragraph's kind shows in how it is
 * typed.
 *
 * fromText() reads any text, and toText() writes any script so that it is read as the same. Three
 * things of the published syntax are read more widely: a scene heading needs no blank line after
 * it; "@NAME" is a cue whether or not something is said; and a number of a scene may have notes and
 * cut text after it. Four things are added, for what could not be written otherwise: dialogue that
 * nobody speaks follows a line with a mere "@"; a "!" before any line of action makes that line
 * action; a backslash takes the meaning not only from "*" and "_", but from any of
 * [ / # ^ < ( . ~ = as well, and within notes from "]"; and one after the period of a forced
 * heading lets it begin with anything. Backslashes before anything else are themselves, however
 * many they are. Emphasis ends at the end of a line at the latest, and may overlap.
 *
 * Sections and synopses may stand within any paragraph; dialogue after one is dialogue, but without
 * a cue. On the title page, lines without an indent go on with the entry before, and below Contact
 * even those that begin like a key that is not known; see printed() for those that are.
 *
 * Both take time linear in the text.
 *
 * @code
 * MRVFountainScript script = MRVFountainScript::fromText(
 *     QStringLiteral("INT. GAUGE HOUSE - NIGHT\n\nILSE\nHigh water.\n"));
 * for (const MRVFountainElement &element : qAsConst(script.elements)) {
 *     if (element.kind == MRVFountainElement::Character) {
 *         qDebug() << MRVFountainScript::cueName(element.text());
 *     }
 * }
 * script.elements.append(
 *     MRVFountainElement(MRVFountainElement::Transition, QStringLiteral("CUT TO:")));
 * const QString text = script.toText();
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVFountainScript
{
public:
    QVector<MRVFountainTitle> titles;
    QVector<MRVFountainElement> elements;

    bool operator==(const MRVFountainScript &other) const
    {
        return titles == other.titles && elements == other.elements;
    }
    bool operator!=(const MRVFountainScript &other) const { return !(*this == other); }

    /**
     * The text of the first title page entry with @p key, in any case; empty where there is none.
     */
    QString title(const QString &key) const;

    /**
     * Reads a Fountain text. There is no text that could not be read. The result is normalized().
     */
    static MRVFountainScript fromText(const QString &text);
    /**
     * The same, and where its elements stand.
     *
     * @param lines receives for each element the line of @p text that it begins on, from 1.
     */
    static MRVFountainScript fromText(const QString &text, QVector<int> *lines);

    /** The Fountain text, of lines that end with '\n'. Reading it gives normalized(). */
    QString toText() const;

    /**
     * The same as a revision of @p source, a Fountain text: what @p source says already keeps its
     * lines, as they were typed, and so do byte-order mark and line ends. Where there are as many
     * elements as before, just those are written again that are others. Where there are not, or
     * where lines as they were typed would be read in another way beside the new ones, the whole
     * text is.
     */
    QString toText(const QString &source) const;

    /**
     * The script less what Fountain cannot hold: blanks at the start of a line (but in action) and
     * at its end (but in action and dialogue), tabs, which become four blanks, emphasis of blanks
     * at the edges of an emphasised text, line breaks in headings, cues, parentheticals,
     * transitions, sections and synopses, which become blanks, empty lines of the title page and
     * around dialogue, notes without text within a paragraph, and scene headings, cues and dialogue
     * without text. Numbers of scenes keep their letters, digits, dashes and periods. Number, level
     * and marks are reset where they mean nothing; two Lyrics one after the other in a speech
     * cannot both be part of it.
     */
    MRVFountainScript normalized() const;

    /**
     * What is printed of the script: normalized(), and without notes, what is cut out, sections,
     * synopses, and entries of the title page whose keys are not known. These are Title, Credit,
     * Author, Authors, Source, Contact, Draft date, Date, Revision, Copyright and Notes, in any
     * case. A line or paragraph that holds nothing else goes with it, and so do the blanks that
     * would be doubled; dialogue that an outline has interrupted is one speech again.
     */
    MRVFountainScript printed() const;

    /** The name in a cue: "BOB" of "BOB (V.O.) (CONT'D)". */
    static QString cueName(const QString &cue);
    /** How many QChars of a cue are before its extensions: 4 of "BOB (V.O.)". */
    static int cueNameLength(const QString &cue);
    /** What stands after the name, with its parentheses: "(V.O.) (CONT'D)". */
    static QString cueExtension(const QString &cue);
    /** Whether Fountain takes a paragraph for a scene heading as it stands: "INT. HOUSE - DAY". */
    static bool isSceneHeading(const QString &text);
};

#pragma once

#include "screenplay/mrvfountain.h"

#include <QString>
#include <QVector>

// What the reader and the writer of Fountain must agree on: the writer asks how a line would be
// read before it decides to mark it. The line is given with each note and boneyard in it as one
// U+FFFC.

namespace MrvFountain {

enum LineKind {
    ActionLine,
    ForcedActionLine,
    HeadingLine,
    ForcedHeadingLine,
    CueLine,
    ForcedCueLine,
    LyricsLine,
    TransitionLine,
    ForcedTransitionLine,
    CenteredLine,
    SectionLine,
    SynopsisLine,
    PageBreakLine,
};

/** The characters that a backslash escapes; within notes only "]". */
constexpr char Escapable[] = "*_[/#^<(.~=";

inline bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}
bool isEscapable(QChar c);
bool isBlankLine(const QStringRef &line);
QStringRef trimmed(const QStringRef &line);
/** Without the blanks, emphasis marks and objects at both ends. */
QStringRef bare(const QStringRef &line);
/** Whether an odd number of backslashes stands before @p position. */
bool isEscaped(const QStringRef &line, int position);

/**
 * How a line that begins a paragraph is read; @p nextBlank tells whether the paragraph ends there,
 * too.
 */
LineKind lineKind(const QStringRef &line, bool nextBlank);
/** Whether lineKind() also holds for a line that continues action. */
bool interruptsAction(LineKind kind);
/** Whether a line within a speech is no part of it, wherever it stands. */
bool interruptsSpeech(LineKind kind);
bool isParenthetical(const QStringRef &line);
/** Where the extensions of a cue begin; its length where it has none. */
int extensionStart(const QStringRef &cue);

struct Range
{
    int start = 0;
    int end = 0;
    bool isEmpty() const { return start >= end; }
};
/**
 * The number of a scene with both its "#", at the end of a heading except for emphasis marks, notes
 * and boneyards.
 */
Range sceneNumber(const QStringRef &line);
bool isInSceneNumber(QChar c);

/** The length of a title page's key, or 0 where the line does not begin with one. */
int titleKeyLength(const QStringRef &line);
/** Whether a line is indented enough to go on with the value before. */
bool isTitleIndented(const QStringRef &line);
/** Whether a line without a key and an indent can go on with the value before, too. */
bool isTitleText(const QStringRef &line);
/** Whether lines without an indent that follow this key belong to it, unless their key is known. */
bool isAddressKey(const QString &key);
/** Whether a title page begins with @p line, followed by @p next. */
bool beginsTitlePage(const QStringRef &line, const QStringRef &next);

/** Where in a text the title page and the elements of its script stand, as whole lines. */
struct TextRanges
{
    Range titles;
    QVector<Range> elements;
};

/** The script in a text that plainText() gave. */
MRVFountainScript scriptOf(const QString &plain, TextRanges *ranges = nullptr);
/** The text of a script that is normalized. */
QString textOf(const MRVFountainScript &normal, TextRanges *ranges = nullptr);

/** A text as it is read: without a byte-order mark, and withPlainLineEnds(). */
QString plainText(const QString &text);
/**
 * With '\n' for every line ending of any system, and without characters that a document cannot
 * hold.
 */
QString withPlainLineEnds(const QString &text);

/**
 * Where in a plain text a note or boneyard begins or ends, but its other end is missing; positions
 * of "[[", "/ *", "]]" and "* /" (without the blanks), in order.
 */
QVector<int> unmatchedMarks(const QString &plain);

/**
 * The text of a script that is printed, with each element at its index; one that is not printed is
 * a note without text.
 */
MRVFountainScript withoutPrivateText(const MRVFountainScript &script);

MRVFountainElement normalizedElement(const MRVFountainElement &element);
/** Normalizes the entries of a title page; a single one without a value makes no title page. */
void normalizeTitles(QVector<MRVFountainTitle> *titles);
/**
 * Clears the mark of lyrics where they are separate anyway, and sets it where they must be.
 */
void normalizeLyrics(QVector<MRVFountainElement> *elements);
/** Whether something is left of a normalized element that Fountain can hold. */
bool isKept(const MRVFountainElement &element);
/** Runs separated at line breaks; at least one line. */
QVector<MRVFountainRuns> linesOf(const MRVFountainRuns &runs);

/**
 * A line's runs, from the characters between @p start and @p end; @p objects are those in between,
 * in order.
 */
struct Object
{
    int start;
    int end;
    MRVFountainRun::Kind kind;
    QString text;
};
MRVFountainRuns runsOf(const QString &text, int start, int end, const Object *objects);
/**
 * The characters of a line that runsOf() reads as these runs.
 *
 * @param escaped the position in the line's text, without objects, of a character that gets a
 *                backslash in any case if it is escapable; -1 for none.
 */
QString inlineText(const MRVFountainRuns &line, int escaped = -1);
QString objectText(const MRVFountainRun &run);
/** The text of a note without the backslashes that objectText() puts before its brackets. */
QString noteText(const QStringRef &text);

} // namespace MrvFountain

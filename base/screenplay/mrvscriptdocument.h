#pragma once

#include "screenplay/mrvfountain.h"
#include "util/mrvbase_export.h"

#include <QFlags>
#include <QString>

class MRVScriptMode;
class QTextDocument;

/**
 * Scripts as documents that are formatted with a script mode.
 *
 * Each paragraph of a script is one of the document, in the formats of the mode's element of that
 * kind, found by its title ("Scene Heading", "Dialogue", ...). So it is for the mode to say what a
 * script looks like, and documents that were written with a mode become scripts in the same way.
 * What elements do not tell is carried by formats, so that it goes where the text goes: through
 * copies of the document (except for an empty first paragraph, whose format Qt leaves behind),
 * fragments and undo.
 *
 * - Notes within a text: MRVTextFormat::InlineAnnotationProperty.
 * - Page breaks: the page break before the paragraph that follows.
 * - Line breaks: U+2028.
 * - Emphasis: bold, italic and underlined text, where the element is not so already.
 * - All else: the properties below. They are set only where they are needed. In character formats,
 *   they are those of a whole paragraph; in the block format where it has no text.
 *
 * GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptDocument
{
public:
    MRVScriptDocument() = delete;

    /** Property numbers. Saved documents carry them, so a number never changes its meaning. */
    enum Property {
        /** int, of a block format: what the paragraph is, where the mode has no element for it. */
        RoleProperty = 0x100201,
        SceneNumberProperty = 0x100202, ///< QString
        DualProperty = 0x100203, ///< bool, where the mode has no "Dual Character"
        SectionLevelProperty = 0x100204, ///< int, above 1
        TitleKeyProperty = 0x100205, ///< QString: the key of a title page's entry
        BoneyardProperty = 0x100206, ///< bool, of text that is cut out
        /** int: MRVFountainRun::Emphasis in an element that has the same already. */
        EmphasisProperty = 0x100207,
        NoteBorderProperty = 0x100208, ///< bool, of a note right after another one
        ApartProperty = 0x100209, ///< bool, of lyrics that are no part of the speech before them
    };

    /**
     * Replaces the contents of @p document by a script, with its title as the document's title.
     * What a mode has no element for looks as in the built-in mode. The undo history is empty then.
     * Null does nothing.
     */
    static void setScript(QTextDocument *document, const MRVFountainScript &script,
                          const MRVScriptMode &mode);

    /**
     * The same for what is printed alone, to be exported: MRVFountainScript::printed() with scene
     * numbers before the headings, with capitals where the mode wants them, and with lengths as
     * Qt's margins, of which 96 are an inch. Acts, which are centred lines like "ACT ONE" and
     * "TEASER", are headings of the first level, and scenes are of the second; of the first where
     * the script has no acts. It is no longer a document of the mode.
     */
    static void setPrintedScript(QTextDocument *document, const MRVFountainScript &script,
                                 const MRVScriptMode &mode);

    /**
     * The script in a document that was formatted with @p mode, normalized. Paragraphs of elements
     * that Fountain does not know ("Shot"), or of none, are action, centred ones centred text;
     * pictures are left out. Of an element called "Speech" or "Speaker", a paragraph is a cue up to
     * the first tab, and dialogue after it.
     */
    static MRVFountainScript script(const QTextDocument &document, const MRVScriptMode &mode);

    /** Where a character is renamed besides the cues. */
    enum RenameFlag {
        InCues = 0,
        InDialogue = 1, ///< in dialogue, parentheticals and lyrics
        InAction = 2, ///< in all other text but notes, what is cut out, and the title page
    };
    Q_DECLARE_FLAGS(RenameScope, RenameFlag)

    /**
     * Renames a character.
     *
     * A cue is renamed where @p from is its name, in any case, or one of several names that are
     * joined by "/", "&", "+", "," or "AND" (also in German, French and Spanish), and in "MARY'S
     * VOICE" where it is MARY; what is after the name stays. In other text, @p from is
     * looked for as a whole word: as it is given, in capitals, and with capital initials ("Ann
     * Lee"), so that "will" is not Will. The new name is written in capitals where the old one was,
     * and as given elsewhere; a name given in capitals becomes one with capital initials where the
     * old one was so. Formats stay, that of the first character for all of the name.
     *
     * One undo step; none where nothing is found. Takes time linear in the document.
     *
     * @return how many names were changed; 0 too where @p from or @p to is blank or holds a line
     *        break.
     */
    static int renameCharacter(QTextDocument *document, const MRVScriptMode &mode,
                               const QString &from, const QString &to, RenameScope scope);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MRVScriptDocument::RenameScope)

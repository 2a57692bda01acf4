#pragma once

#include "core/mrverror.h"
#include "screenplay/mrvfountain.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

/**
 * Scripts as Final Draft documents (.fdx), an XML format that script programs exchange.
 *
 * Written are paragraphs with their types, styles and alignment, scene numbers, page breaks, two
 * speeches side by side, notes as script notes, settings of the elements for Letter paper, and the
 * title page, each line a paragraph, with what does not stand in its middle at its foot. What was
 * cut out is a script note called "Omitted", sections are outline headings of four levels, and
 * synopses are outline text. Headings, cues and transitions have a style of capitals, except where
 * they are typed in small letters. Read again, it is the same script, except for deeper sections,
 * the mark of lyrics after a speech, the emphasis of notes, action that is nothing but a note, and
 * page breaks without a paragraph after them, which get one.
 *
 * The format does not say which line of a title page is what: reading it takes the first centred
 * one as the title, "written by" and the like as the credit, the one after as the author, other
 * centred ones as the source, those on the right as the date of the draft and the rest as contact,
 * unless they begin with a key: "Copyright: ...", or, where centred, one that belongs there:
 * "Source: ...". Keys are written where reading would not find out by itself.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVFinalDraft
{
    Q_DECLARE_TR_FUNCTIONS(MRVFinalDraft)

public:
    MRVFinalDraft() = delete;

    /** The document of a script, in UTF-8. Characters that XML forbids are left out. */
    static QByteArray toXml(const MRVFountainScript &script);

    /**
     * Reads a document.
     *
     * Paragraphs of types that Fountain does not know ("General", "Shot") are action, and the first
     * and last lines of acts centred text. Text is read as it is shown: in capitals where a style
     * or the settings of a type say so. Struck-out text and scenes that are omitted are cut text. A
     * scene's title, summary and what its characters go through become synopses after its heading,
     * alternatives notes. Notes that stand after the script ("ScriptNotes") go to the end of the
     * paragraphs that they are about, and those in paragraphs of their own on the title page stand
     * after the script.
     *
     * @param error if given, receives a translated line with the number of the line on failure.
     * @param losses if given, receives on success a translated line for each way in which the
     * script is less than the document, in a fixed order: types of paragraphs that became others,
     * alternatives, marks of revisions, styles, and sections whose text is not in the script, such
     * as "HeaderAndFooter" or "ListItems". Empty where the script says all of it; settings and
     * layout do not count.
     * @param xml the document's bytes, in the encoding that they name.
     * @return false, with @p script untouched, where it is not well-formed, has another root
     * element than "FinalDraft", elements within elements beyond 256 levels, or a tag with more
     * than 64 attributes, or where its document type declares entities or attributes.
     */
    static bool fromXml(const QByteArray &xml, MRVFountainScript *script,
                        MRVErrorSink error = nullptr, QStringList *losses = nullptr);

    /**
     * The document @p xml with @p script in place of the one that it holds.
     *
     * Only the characters of texts that have changed, word by word, and numbers of scenes are other
     * bytes than before; where a word was in several formats, the new one is in that of its first
     * character. Lists of names, such as those that completions are taken from, are no part of the
     * script and stay. The ranges of notes after the script are moved with the text, all of them,
     * where a note would otherwise be about another paragraph. New text is escaped as its place
     * needs it, with references for characters that the encoding lacks. The result has been read
     * again, and is the script. Takes time linear in the document.
     *
     * @param revised receives the bytes; untouched on failure.
     * @param error   if given, receives a translated line with the number of the line and the text
     *                on failure; untouched on success.
     * @return false where fromXml() fails, or where @p script has other paragraphs or formats than
     *         the document, which cannot be changed in place.
     */
    static bool revise(const QByteArray &xml, const MRVFountainScript &script, QByteArray *revised,
                       MRVErrorSink error = nullptr);
};

#pragma once

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
 * speeches side by side, notes as script notes, and the title page. What was cut out is a script
 * note called "Omitted", sections are outline headings of four levels, and synopses are outline
 * text. Read again, it is the same script, except for deeper sections, the mark of lyrics after a
 * speech, the emphasis of notes, action that is nothing but a note, and page breaks without a
 * paragraph after them, which get one.
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
     * Reads a document; paragraphs of types that Fountain does not know ("General", "Shot") are
     * action. A scene's title, summary and what its characters go through become synopses after its
     * heading, and notes that stand after the script ("ScriptNotes") go to the end of the
     * paragraphs that they are about, and those in paragraphs of their own on the title page stand
     * after the script.
     *
     * @param error if given, receives a translated line with the number of the line on failure.
     * @param leftOut if given, receives on success the tags of the other sections that hold text,
     * such as "HeaderAndFooter" or "ListItems", in the document's order: that text is not in the
     * script.
     * @param xml the document's bytes, in the encoding that they name.
     * @return false, with @p script untouched, where it is not well-formed, has another root
     * element than "FinalDraft", elements within elements beyond 256 levels, or a tag with more
     * than 64 attributes, or where its document type declares entities or attributes.
     */
    static bool fromXml(const QByteArray &xml, MRVFountainScript *script, QString *error = nullptr,
                        QStringList *leftOut = nullptr);
};

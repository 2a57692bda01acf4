#pragma once

#include "commandline.h"

#include "search/mrvtextfinder.h"
#include "search/mrvtextreplacer.h"
#include "text/mrvtextrange.h"

#include <QJsonObject>
#include <QString>

class QTextDocument;

/** The options that say how to search. */
constexpr Option searchOptions[] = {
    Option::flag("E regex", "TEXT is a regular expression (Perl syntax, Unicode letters)."),
    Option::flag("s case", "Match case."),
    Option::flag("w whole-word", "Match whole words only."),
    Option::flag("word-start", "Match only where a word begins."),
    Option::flag("word-end", "Match only where a word ends."),
    Option::flag("l loose",
                 "Match quotes of all kinds, hyphens and short dashes, kinds of spaces, composed "
                 "and decomposed accents, and ligatures and full-width letters and what they stand "
                 "for alike, and pass over soft hyphens and characters without width."),
    Option::flag("ignore-accents", "Match letters with and without accents alike."),
    Option::flag("across",
                 "Let matches go on over ends of paragraphs: \\n in an expression; ^ and $ are the "
                 "start and end of each paragraph."),
    Option::integer("time-limit", "SECONDS", 1, 86400,
                    "Give up when the search in an input takes longer. Default: no limit."),
    Option::flag("links", "Only text that is a link."),
    Option::flag("highlights", "Only highlighted text."),
    Option::name("colour color", "COLOUR",
                 "Only text in this colour (a name or #rrggbb); 'any' for any colour."),
    Option::name("highlight", "COLOUR", "Only text highlighted in this colour."),
    Option::flag("bold", "Only bold text (from weight 600 on), headings included."),
    Option::flag("italic", "Only italic text."),
    Option::flag("underline", "Only underlined text."),
    Option::flag("strike", "Only text that is struck out."),
};

/**
 * Takes up these options of a call. @return false, with a text, when they are wrong; the text to
 * look for is looked at too.
 */
bool readSearchOptions(const Call &call, MRVTextQuery *query, MRVErrorSink error);

/** Why a search is not complete. */
MRVError givenUp(const MRVSearchOutcome &outcome);

/** The error for what is not the name of a colour. */
QString unknownColor(const QString &name);

/**
 * Where a range lies, for programs: the paragraph and the column in it, from 1; the positions in
 * the document, from 0, the end not included; the text, with a line feed for each end of a line or
 * paragraph. All count UTF-16 units.
 */
QJsonObject toJson(const QString &path, QTextDocument *document, const MRVTextRange &range);

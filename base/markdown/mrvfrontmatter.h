#pragma once

#include "util/mrvbase_export.h"
#include "util/mrvmetadataentry.h"

#include <QString>
#include <QStringList>
#include <QVector>

struct MRVMarkdownHead;

/**
 * Metadata as the front matter of Markdown writes them: lines "key: value", which are YAML.
 *
 * A value is a text or a list, in any of YAML's ways, which the lines below may continue. Of a map,
 * as of an author, the name is read; its other keys are entries without values, such as
 * "author.affiliation". Other maps, lists in lists and aliases have no values. What is no YAML,
 * such as "title: Ahab: a Life", is a text as it stands, and a key whose value is null is left out.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVFrontMatter
{
public:
    MRVFrontMatter() = delete;

    /**
     * Reads a text that is metadata as a whole, with or without a line of "---" before them; after
     * them, such a line or "..." ends the reading.
     *
     * @param text    with any line ends.
     * @param entries receives them in order, also those before a line that is refused.
     * @return 0, or the first line, from 1, that is neither a key nor continues one.
     */
    static int read(const QString &text, QVector<MRVMetadataEntry> *entries);

    /**
     * What entries say of a text, from wherever they were read; the first that says it counts, and
     * each author once.
     */
    static MRVMarkdownHead head(const QVector<MRVMetadataEntry> &entries);

    /**
     * Metadata between two lines of "---", as a Markdown text begins with: title, authors,
     * description, language and date, and those of the entries that the other members do not have,
     * Ends of lines in them become blanks. Entries without a value or with a key that read() does
     * not take are left out. Empty where nothing is left by which MRVMarkdown would know metadata
     * from text: one of the five, or a usual key such as "publisher".
     */
    static QString write(const MRVMarkdownHead &head);

    /**
     * The keys, each once, of entries that write() leaves out in whole or in part, those whose
     * values read() has not understood among them.
     */
    static QStringList lostKeys(const MRVMarkdownHead &head);
};

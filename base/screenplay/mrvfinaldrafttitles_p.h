#pragma once

#include "screenplay/mrvfinaldraftparts_p.h"
#include "screenplay/mrvtitlepage_p.h"

/** Makes entries of the lines of a title page, of which the format does not tell what they mean. */
class MrvFinalDraftTitles
{
public:
    /** @param parts receives the entries, and as elements the notes that are lines. */
    explicit MrvFinalDraftTitles(MrvFinalDraftParts *parts)
        : m_parts(parts)
    {
    }

    /**
     * Adds the next line.
     *
     * @param alignment "Center", "Right", or anything else.
     * @param space     before the line, in points. A line without any continues the value of the
     *                  one right before it if that has some, or continues one that has.
     */
    void addLine(MrvFinalDraftParagraph *line, const QString &alignment, double space);

private:
    void addNotes(const MrvFinalDraftPieces &pieces);

    MrvFinalDraftParts *m_parts;
    MrvTitleKeys m_keys; // of the entries
    Qt::AlignmentFlag m_alignment = Qt::AlignLeft; // of the last line
    int m_last = -1; // the entry that the next line may continue
};

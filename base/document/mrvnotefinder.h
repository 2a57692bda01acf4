#pragma once

#include "document/mrvdocumentflow.h"
#include "util/mrvbase_export.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QVector>

/**
 * A note that a document has as paragraphs, with the marks in the text that lead to it.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVMarkedNote
{
    int begin = 0; ///< its first paragraph
    int end = 0; ///< the paragraph after the last one with a link back, or after the note itself
    bool isSaid = false; ///< the document says that it is a note, and where that ends
    QVector<int> marks; ///< where their links begin, in order
    QVector<int> backLinks; ///< where the links back begin, in order
};

/**
 * Finds the notes of a document: pairs of a mark and a paragraph or list item that links back.
 *
 * A mark is a short link in running text, such as "[12]" or a raised figure, or a link that is said
 * to be one (NoteLinkProperty), to the beginning of a paragraph after it. From there a link leads
 * back to the paragraph of the mark. The note begins with its label or that link, or ends with an
 * arrow. So entries of an index and numbers of pages are no notes. Paragraphs that are said to be a
 * note (MRVParagraphNoteProperty) need no link back.
 *
 * The document must not change, and it and its flow must live as long. GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVNoteFinder
{
public:
    /** Looks through all of @p flow once. */
    explicit MRVNoteFinder(const MRVDocumentFlow &flow);

    /** All notes, in order; each is looked for up to the next one, a heading or a rule. */
    QVector<MRVMarkedNote> notes() const;

    /** Where the marks begin that lead to a paragraph, by that paragraph. */
    const QMap<int, QVector<int>> &candidates() const { return m_candidates; }
    /**
     * Whether a paragraph of candidates() begins a note.
     *
     * @param paragraph by its number, from 0.
     * @param end       the paragraph up to which links back are looked for.
     * @param note      receives the note; changed on failure, too.
     */
    bool isNote(int paragraph, int end, MRVMarkedNote *note) const;
    /** Where a link leads within the document; -1 elsewhere. */
    int targetOf(const MRVFlowLink &link) const;
    /** The first link that begins at a position or after it. */
    QVector<MRVFlowLink>::const_iterator linkAt(int position) const;

private:
    /** What a format says about marks. */
    struct Format
    {
        bool isKnown = false;
        bool isRaised = false;
        bool isLink = false;
        bool isSaidToBeMark = false;
    };

    struct Reader;

    QStringView textOf(const MRVFlowLink &link) const;
    bool beginsWithLabel(int paragraph, int mark) const;
    int saidEnd(int paragraph, int limit) const;
    bool isArrowAtEnd(const MRVFlowLink &link, int paragraph) const;
    bool leadsBack(const MRVFlowLink &link, const QVector<int> &marks) const;

    const MRVDocumentFlow &m_flow;
    QHash<QString, int> m_places; // of anchors
    QMap<int, QVector<int>> m_candidates;
};

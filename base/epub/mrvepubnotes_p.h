#pragma once

#include "document/mrvdocumentflow.h"

#include <QHash>
#include <QVector>

class MRVEPubFormats;

/** A note and the marks in the text that lead to it. */
struct MRVEPubNote
{
    int begin; // paragraphs, up to end
    int end;
    QVector<int> marks; // where their links begin
    QString name; // of the anchor that they lead to
    int heading = -1; // the paragraph that heads the notes from this one on, and moves with it
    bool isMoved = false;
};

/**
 * The notes of a document that MRVNoteFinder finds, with all that belongs to them.
 *
 * What stands between two notes belongs to the first of them. Where it cannot be told how far a
 * note goes, all of its section stay as they are.
 */
class MRVEPubNotes
{
public:
    MRVEPubNotes(const MRVDocumentFlow &flow, MRVEPubFormats *formats);

    const QVector<MRVEPubNote> &all() const { return m_notes; }
    /** The note that a link at this position is a mark of; -1: none. */
    int ofMark(int position) const { return m_marks.value(position, -1); }
    /** Whether the link at this position leads from a note back to its mark. */
    bool isBackLink(int position) const { return m_backLinks.contains(position); }
    /** The note that begins with a paragraph; -1: none. */
    int beginningAt(int paragraph) const { return m_begins.value(paragraph, -1); }
    /** Whether a paragraph stands elsewhere, or nowhere, since notes leave their place. */
    bool isMoved(int paragraph) const { return !m_isMoved.isEmpty() && m_isMoved.at(paragraph); }

    /**
     * Decides which notes leave their place.
     *
     * @param pages the first paragraph of each page. Notes that make up a page of their own stay.
     */
    void place(const QVector<int> &pages);

private:
    struct Finder;

    bool isOnlyNotes(int begin, int end) const;
    void moveHeadings(int begin, int end);

    const MRVDocumentFlow &m_flow;
    QVector<MRVEPubNote> m_notes; // by their first paragraph
    QHash<int, int> m_marks;
    QHash<int, int> m_begins;
    QHash<int, bool> m_backLinks;
    QVector<bool> m_isMoved;
};

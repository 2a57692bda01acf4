#pragma once

#include "document/mrvdocumentflow.h"

#include <QSet>
#include <QString>
#include <QVector>

/** A note of a document, which is to stand at its end. */
struct MRVTextNote
{
    QString label; ///< that no other note has; letters, digits, hyphens
    int firstParagraph = -1; ///< of a note that has paragraphs of its own; else -1
    int endParagraph = -1;
    int begin = -1; ///< of a note that stands in the text
    int end = -1;
    int firstFragment = -1; ///< an index into MRVDocumentFlow::fragments
    int endFragment = -1; ///< after the last one
};

/** Text of a document that is not written in its place. */
struct MRVTextCut
{
    int begin; ///< where it begins in the document
    int end; ///< after it
    int note; ///< the note whose mark takes its place; -1 for nothing
};

/**
 * Finds what of a document moves to its end: notes that are linked with their marks, and notes
 * within the text. Notes in tables and frames stay where they are, and notes within other notes
 * that stand in paragraphs of their own.
 */
class MRVTextNotes
{
public:
    /** Whether preformatted text may have marks; without them, its notes stay where they are. */
    enum class Code { HasMarks, HasNoMarks };

    MRVTextNotes(const MRVDocumentFlow &flow, Code code);

    /** In the order of their marks. */
    const QVector<MRVTextNote> &all() const { return m_notes; }
    /** In order, without overlaps. */
    const QVector<MRVTextCut> &cuts() const { return m_cuts; }
    /** The first cut that ends at @p position or after it. */
    QVector<MRVTextCut>::const_iterator cutAt(int position) const;
    /** Those of cuts that are notes within the text themselves, in order. */
    const QVector<MRVTextCut> &innerCuts() const { return m_innerCuts; }
    /** The first of them that ends at @p position or after it. */
    QVector<MRVTextCut>::const_iterator innerCutAt(int position) const;
    /** Whether a link is the rest of one that was cut, and is text alone. */
    bool isText(const MRVFlowLink &link) const { return m_textLinks.contains(link.begin); }
    /** Whether a paragraph is part of a note, and not written in its place. */
    bool hasMoved(int paragraph) const { return m_moved.at(paragraph); }

private:
    struct Reader;

    QVector<MRVTextNote> m_notes;
    QVector<MRVTextCut> m_cuts;
    QVector<MRVTextCut> m_innerCuts;
    QSet<int> m_textLinks; // where they begin
    QVector<bool> m_moved; // by paragraph
};

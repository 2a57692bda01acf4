#pragma once

#include "document/mrvdocumentflow.h"
#include "textexport/mrvtextnotes_p.h"

#include <QHash>

#include <vector>

/** A part of a document as other forms of text nest them. */
struct MRVTextBlock
{
    enum Kind { Body, Paragraph, Heading, Code, Rule, Quote, List, Item, Table, Cell };

    explicit MRVTextBlock(Kind which)
        : kind(which)
    {
    }

    Kind kind;
    int first = -1; ///< the first paragraph of a paragraph, heading or code
    int end = -1; ///< the paragraph after it, and after code
    int number = 1; ///< of an item; the level of a heading
    bool isNumbered = false; ///< of a list
    bool isOther = false; ///< of a list that follows another one of its kind, by turns
    QTextTable *table = nullptr;
    int row = 0; ///< of a cell, and so with those that follow
    int column = 0;
    int rowSpan = 1;
    int columnSpan = 1;
    bool isHeader = false;
    std::vector<MRVTextBlock> children;
};

/**
 * Makes blocks of the paragraphs of a document.
 *
 * Paragraphs know how deeply they are quoted and indented, but not in what order. Quotations are
 * put around lists, except where an item that has begun goes on with one.
 */
class MRVTextBlockReader
{
public:
    MRVTextBlockReader(const MRVDocumentFlow &flow, const MRVTextNotes &notes);

    /** The document without the notes that stand at its end. */
    MRVTextBlock document();
    /** A note that has paragraphs of its own. */
    MRVTextBlock note(const MRVTextNote &note);

private:
    // A quotation or an item that the next paragraph may belong to.
    struct Open
    {
        MRVTextBlock *block;
        MRVTextBlock *list; // of an item
        int object; // of the list
        int indent;
    };
    // Of a paragraph's format.
    struct Place
    {
        bool isKnown = false;
        int quotes = 0;
        int indent = 0;
        int level = 0; // of an item in its list
        bool isCode = false;
    };
    using Frames = QVector<int>;

    void read(int begin, int end, const Frames &frames, Frames::const_iterator *frame,
              MRVTextBlock *body);
    void readParagraph(int paragraph);
    void readTable(const MRVFlowFrame &frame);
    MRVTextBlock *parentAt(const Place &place, int list);
    MRVTextBlock *newItem(MRVTextBlock *parent, MRVTextBlock *list, const Place &place, int object);
    Place placeOf(int paragraph);
    void addCode(int paragraph, MRVTextBlock *parent);

    const MRVDocumentFlow &m_flow;
    const MRVTextNotes &m_notes;
    QVector<Place> m_places; // by format
    QHash<const QTextFrame *, Frames> m_frames; // by the frame around, as indexes
    std::vector<Open> m_open;
    MRVTextBlock *m_body = nullptr; // what is outside of all that is open
    bool m_isNote = false;
};

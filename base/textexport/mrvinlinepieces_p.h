#pragma once

#include "document/mrvdocumentflow.h"
#include "textexport/mrvtextnotes_p.h"

#include <QHash>
#include <QString>
#include <QTextCharFormat>
#include <QVector>

/** What text can be in other forms of text than rich text; each a bit. */
enum MRVInlineMark : unsigned {
    MRVLinkMark = 1,
    MRVStrongMark = 2,
    MRVEmphasisMark = 4,
    MRVStrikeMark = 8,
    MRVUnderlineMark = 16,
    MRVSuperscriptMark = 32,
    MRVSubscriptMark = 64,
    MRVSmallCapsMark = 128,
    MRVCodeMark = 256,
    /** Those that blanks show. */
    MRVMarksOfBlanks = MRVLinkMark | MRVStrikeMark | MRVUnderlineMark,
};

/** The marks of text of a format. */
unsigned mrvInlineMarks(const QTextCharFormat &format);

/** A comment in the margin. */
struct MRVInlineComment
{
    bool hasId; ///< by which its text belongs together; without one, only adjacent text does
    QString text; ///< a line a paragraph
    QString author;
    QString date;
};

/** A stretch of a paragraph that is written in one way. */
struct MRVInlinePiece
{
    /** NoteBegin and NoteEnd stand around a note that is written in its place. */
    enum Kind { Text, LineEnd, Picture, NoteMark, NoteBegin, NoteEnd };

    Kind kind = Text;
    int begin = 0; ///< in the document
    int end = 0;
    unsigned marks = 0; ///< of MRVInlineMark
    int link = -1; ///< an index into MRVDocumentFlow::links
    int format = -1; ///< of a picture, as an index into MRVDocumentFlow::formats
    int note = -1; ///< of a mark
    QStringList names; ///< of anchors at its beginning
    int comment = -1; ///< an index into MRVInlinePieces::comments()
    bool isKept = false; ///< a blank that is not to be taken for the end of a line
};

/** Takes paragraphs apart. */
class MRVInlinePieces
{
public:
    MRVInlinePieces(const MRVDocumentFlow &flow, const MRVTextNotes &notes);

    /**
     * The pieces of a paragraph. No format that blanks do not show ends with one, or begins in the
     * middle of a piece.
     */
    QVector<MRVInlinePiece> of(int paragraph);
    /** The same for a note that stands in the text. */
    QVector<MRVInlinePiece> of(const MRVTextNote &note);

    /** What is written for NoteBegin and NoteEnd: a bracket, and a blank that it needs. */
    QString bracket(const MRVInlinePiece &piece) const;
    /** Those that were met, in order. */
    const QVector<MRVInlineComment> &comments() const { return m_comments; }
    /** The comment of the first text after a paragraph; -1 without one. Notes have their own. */
    int commentAfter(int paragraph);
    /** Whether a piece begins with what most formats do not show in. */
    bool isBlank(const MRVInlinePiece &piece) const;

private:
    // What a format says.
    struct Format
    {
        bool isKnown = false;
        bool isPicture = false;
        bool isNote = false; // within the text
        unsigned marks = 0;
        QStringList names;
        int comment = -1;
    };

    const Format &formatOf(int index);
    int commentOf(const QTextFormat &format);
    void readFirstComments();
    QVector<MRVInlinePiece> read(int firstFragment, int begin, int end, bool isNote);
    MRVInlinePiece likeness(int index, QVector<MRVFlowLink>::const_iterator link);
    void setBracket(bool isOpen, int position, int comment, QVector<MRVInlinePiece> *pieces) const;
    void addText(int begin, int end, const MRVInlinePiece &like,
                 QVector<MRVInlinePiece> *pieces) const;
    void settleBlanks(QVector<MRVInlinePiece> *pieces) const;

    const MRVDocumentFlow &m_flow;
    const MRVTextNotes &m_notes;
    QVector<Format> m_formats;
    QVector<MRVInlineComment> m_comments;
    QHash<QStringList, int> m_commentIndexes; // by what formats say of them
    QVector<int> m_firstComments; // by paragraph, of its first text or the first one after it
};

#pragma once

#include "core/mrverror.h"
#include "screenplay/mrvfountain.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

#include <vector>

// A Final Draft document as the script that it holds, with the places of all its texts.

/** A stretch of a document's text, of one look. */
struct MrvFinalDraftPiece
{
    enum Form {
        Added, ///< does not stand in the document
        Content, ///< between tags
        Section, ///< a CDATA section
        Attribute, ///< an attribute's value
    };
    enum Capitals {
        AsTyped = 0,
        Shown = 1, ///< shown in capitals, however typed
        OfType = 2, ///< as the settings of the paragraph's type say, while they are not known
    };

    QString text; ///< as typed
    int start = 0; ///< where it stands in the decoded document
    int end = 0;
    int position = -1; ///< in the text as the ranges of notes count it; -1 where they do not
    Form form = Added;
    MRVFountainRun::Kind kind = MRVFountainRun::Text;
    MRVFountainRun::Emphasis emphasis;
    bool begins = false; ///< a note or a boneyard, which the ones after it continue
    Capitals capitals = AsTyped;
};
Q_DECLARE_TYPEINFO(MrvFinalDraftPiece, Q_MOVABLE_TYPE);
using MrvFinalDraftPieces = QVector<MrvFinalDraftPiece>;

/** A paragraph of the script, or an entry of the title page, by what it was made of. */
struct MrvFinalDraftParagraph
{
    MRVFountainElement element; ///< without runs, which the pieces become
    MrvFinalDraftPieces pieces;
    QString type; ///< as the document has it; of an entry of the title page, its key
    int tagStart = -1; ///< where its start tag stands in the decoded document; -1 without one
    int tagEnd = -1;
    std::vector<MrvFinalDraftParagraph> omitted; ///< a scene that was cut, whose boneyard this is
};

/** What of a document is not in the script, or is something else in it. */
struct MrvFinalDraftLosses
{
    Q_DECLARE_TR_FUNCTIONS(MRVFinalDraft)

public:
    QVector<QPair<QString, int>> types; ///< which are action now, with how many there are
    QStringList sections; ///< tags of those whose text is left out
    QStringList styles; ///< of text
    int revisions = 0; ///< texts that are marked as revised
    int alternatives = 0; ///< which are notes now

    /** The same as translated lines. */
    QStringList lines() const;
};

/** The range of the document's text that a note after the script is about. */
struct MrvFinalDraftRange
{
    int from = 0;
    int to = 0;
    int start = -1; ///< where these numbers stand in the decoded document
    int end = -1;
};

struct MrvFinalDraftParts
{
    std::vector<MrvFinalDraftParagraph> titles;
    std::vector<MrvFinalDraftParagraph> elements;
    QVector<MrvFinalDraftRange> ranges;
    MrvFinalDraftLosses losses;

    /** The script of all of these, one by one, not normalized. */
    MRVFountainScript script() const;
};

/**
 * Takes a document apart.
 *
 * @param xml   the bytes of the document.
 * @param text  receives the decoded document, in which the pieces stand.
 * @param parts receives the parts; untouched on failure, as is @p text.
 * @param error may be null: "line 3: reason".
 */
bool mrvReadFinalDraft(const QByteArray &xml, QString *text, MrvFinalDraftParts *parts,
                       MRVErrorSink error);

/** A text that does not stand in the document. */
MrvFinalDraftPiece mrvAddedPiece(const QString &text);
/** The text of pieces as it is typed, without notes and cut text. */
QString mrvTextOf(const MrvFinalDraftPieces &pieces);
/** The runs that pieces make, with capitals as they are shown. */
MRVFountainRuns mrvRunsOf(const MrvFinalDraftPieces &pieces);

/** Where the value of an attribute stands, between its quotes; both -1 without it. */
struct MrvAttributeRange
{
    int start = -1;
    int end = -1;
};
/** The attribute @p name of the start tag that stands in @p xml from @p start to @p end. */
MrvAttributeRange mrvAttributeRange(const QString &xml, int start, int end, const char *name);

#include "search/mrvtextfinder.h"

#include "search/mrvtextpieces_p.h"
#include "textformat/mrvtextformat.h"

#include <QSet>
#include <QTextDocument>

#include <algorithm>
#include <iterator>

namespace {

constexpr int CommentProperties[] = {
    MRVTextFormat::InspectorCommentProperty, MRVTextFormat::InspectorFootnoteProperty,
    MRVTextFormat::CommentData0, MRVTextFormat::CommentData1, MRVTextFormat::CommentData2};

bool isComment(const QTextCharFormat &format)
{
    return format.hasProperty(MRVTextFormat::CommentData0)
        || format.boolProperty(MRVTextFormat::InspectorCommentProperty);
}

bool isLink(const QTextCharFormat &format, bool withComments)
{
    return format.hasProperty(QTextFormat::AnchorHref)
        && (withComments
            || !(isComment(format)
                 || format.boolProperty(MRVTextFormat::InspectorFootnoteProperty)));
}

auto linkVerdicts(const QTextDocument *document, bool withComments)
{
    return MRVFormatVerdicts(document, [withComments](const QTextCharFormat &format) {
        return isLink(format, withComments);
    });
}

auto commentVerdicts(const QTextDocument *document)
{
    return MRVFormatVerdicts(document, isComment);
}

/// The whole link that a fragment belongs to.
MRVTextRange wholeLink(const QTextDocument *document, const MRVTextPiece &piece,
                       const QTextCharFormat &format, bool withComments)
{
    const QString href = format.anchorHref();
    MRVFormatVerdicts same(document, [&](const QTextCharFormat &other) {
        return isLink(other, withComments) && other.anchorHref() == href;
    });
    return mrvGrown(document, MRVTextRange(piece.start, piece.end), same);
}

/// The whole comment that a fragment belongs to.
MRVTextRange wholeComment(const QTextDocument *document, const MRVTextRange &range,
                          const QTextCharFormat &format)
{
    MRVFormatVerdicts same(document, [&](const QTextCharFormat &other) {
        return std::all_of(std::begin(CommentProperties), std::end(CommentProperties),
                           [&](int id) { return other.property(id) == format.property(id); });
    });
    return mrvGrown(document, range, same);
}

/// The format of the character at @p position, if it is an anchor with an address; else empty.
QTextCharFormat anchorAt(const QTextDocument *document, int position)
{
    const MRVTextPiece piece = mrvPieceAt(document, position);
    if (piece.format < 0) {
        return QTextCharFormat();
    }
    const QTextCharFormat format = document->allFormats().at(piece.format).toCharFormat();
    return format.isAnchor() && format.hasProperty(QTextFormat::AnchorHref) ? format
                                                                            : QTextCharFormat();
}

} // namespace

QTextCharFormat MRVTextFinder::findAnchorFormat(const QTextCursor &cursor)
{
    return cursor.isNull() ? QTextCharFormat()
                           : anchorAt(cursor.document(), cursor.selectionStart());
}

bool MRVTextFinder::isAnchorStart(const QTextCursor &cursor)
{
    return findAnchorFormat(cursor).isAnchor();
}

bool MRVTextFinder::isAnchorTight(const QTextCursor &cursor)
{
    return cursor.hasSelection() && isAnchorStart(cursor)
        && anchorAt(cursor.document(), cursor.selectionEnd() - 1).isAnchor();
}

QTextCursor MRVTextFinder::findAnchor(const QTextCursor &from, bool withComments)
{
    if (from.isNull()) {
        return QTextCursor();
    }
    const QTextDocument *document = from.document();
    auto verdicts = linkVerdicts(document, withComments);
    for (MRVPieceWalker walker(document, from.selectionEnd()); walker.isValid(); walker.next()) {
        const MRVTextPiece piece = walker.piece();
        if (verdicts(piece.format)) {
            return mrvSelect(
                document, wholeLink(document, piece, verdicts.format(piece.format), withComments));
        }
    }
    return QTextCursor();
}

QTextCursor MRVTextFinder::anchorForCursor(const QTextCursor &cursor, bool withComments)
{
    if (cursor.isNull()) {
        return QTextCursor();
    }
    const QTextDocument *document = cursor.document();
    auto verdicts = linkVerdicts(document, withComments);
    const int start = cursor.selectionStart();
    for (int position = start; position >= start - (cursor.hasSelection() ? 0 : 1); --position) {
        const MRVTextPiece piece = mrvPieceAt(document, position);
        if (piece.format >= 0 && verdicts(piece.format)) {
            return mrvSelect(
                document, wholeLink(document, piece, verdicts.format(piece.format), withComments));
        }
    }
    return QTextCursor();
}

bool MRVTextFinder::hasAnchor(const QTextCursor &cursor, bool withComments)
{
    // A cursor whose document was deleted is null, yet may report a selection.
    if (cursor.isNull()) {
        return false;
    }
    if (!cursor.hasSelection()) {
        return !anchorForCursor(cursor, withComments).isNull();
    }
    auto verdicts = linkVerdicts(cursor.document(), withComments);
    bool found = false;
    mrvEachSelected(cursor, verdicts, [&found](const MRVTextPiece &) { found = true; });
    return found;
}

QList<MRVTextRange> MRVTextFinder::findAllAnchors(const QTextCursor &cursor, bool withComments)
{
    QList<MRVTextRange> links;
    if (cursor.isNull()) {
        return links;
    }
    if (!cursor.hasSelection()) {
        const QTextCursor link = anchorForCursor(cursor, withComments);
        return link.isNull() ? links : links << MRVTextRange(link);
    }
    const QTextDocument *document = cursor.document();
    auto verdicts = linkVerdicts(document, withComments);
    mrvEachSelected(cursor, verdicts, [&](const MRVTextPiece &piece) {
        if (links.isEmpty() || piece.start >= links.last().end()) {
            links << wholeLink(document, piece, verdicts.format(piece.format), withComments);
        }
    });
    return links;
}

int MRVTextFinder::anchorsCount(const QTextCursor &cursor, bool withComments)
{
    return findAllAnchors(cursor, withComments).size();
}

void MRVTextFinder::adjustContinuousAnchorCursor(QTextCursor *cursor, const QString &href)
{
    if (!cursor || cursor->isNull()) {
        return;
    }
    MRVFormatVerdicts same(cursor->document(), [&href](const QTextCharFormat &format) {
        return format.hasProperty(QTextFormat::AnchorHref) && format.anchorHref() == href;
    });
    const MRVTextRange range(*cursor);
    const MRVTextRange grown = mrvGrown(cursor->document(), range, same);
    if (grown != range) {
        *cursor = mrvSelect(cursor->document(), grown);
    }
}

QTextCursor MRVTextFinder::findCommentViaPos(const QTextDocument *document, int pos)
{
    return findCommentViaRange(document, pos, pos);
}

QTextCursor MRVTextFinder::findCommentViaStartPos(const QTextDocument *document, int pos)
{
    const QTextCursor comment = findCommentViaPos(document, pos);
    return !comment.isNull() && comment.selectionStart() == pos ? comment : QTextCursor();
}

QTextCursor MRVTextFinder::findCommentViaRange(const QTextDocument *document, int start, int end)
{
    if (!document || end < start || end < 0) {
        return QTextCursor();
    }
    auto verdicts = commentVerdicts(document);
    const int last = qMax(end - 1, start);
    for (MRVPieceWalker walker(document, start); walker.isValid() && walker.piece().start <= last;
         walker.next()) {
        const MRVTextPiece piece = walker.piece();
        if (verdicts(piece.format)) {
            return mrvSelect(document,
                             wholeComment(document, MRVTextRange(piece.start, piece.end),
                                          verdicts.format(piece.format)));
        }
    }
    return QTextCursor();
}

void MRVTextFinder::adjustContinuousCommentCursor(QTextCursor &cursor)
{
    if (cursor.isNull()) {
        return;
    }
    const QTextDocument *document = cursor.document();
    const MRVTextPiece piece = mrvPieceAt(document, cursor.selectionStart());
    if (piece.format < 0) {
        return;
    }
    const QTextCharFormat format = document->allFormats().at(piece.format).toCharFormat();
    if (!MRVTextFormat::hasAnyProperty(
            format, QSet<int>(std::begin(CommentProperties), std::end(CommentProperties)))) {
        return;
    }
    cursor = mrvSelect(document, wholeComment(document, MRVTextRange(cursor), format));
}

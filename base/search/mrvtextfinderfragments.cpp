#include "search/mrvtextfinder.h"

#include "search/mrvtextpieces_p.h"
#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextDocument>

#include <limits>

namespace {

auto verdictsOf(const QTextDocument *document, const QTextCharFormat &format, bool compareValues)
{
    return MRVFormatVerdicts(document, [format, compareValues](const QTextCharFormat &other) {
        return MRVTextFormat::formatsMatch(other, format, compareValues);
    });
}

QTextCharFormat formatOf(int property, const QVariant &value)
{
    QTextCharFormat format;
    // Setting no value would leave a format that everything matches. So a value that no text has
    // stands in; where values are not compared, only the presence of the property counts.
    format.setProperty(property, value.isValid() ? value : QVariant::fromValue<void *>(nullptr));
    return format;
}

/// The properties of @p pattern, as @p format sets them.
QTextCharFormat valuesIn(const QTextCharFormat &format, const QTextCharFormat &pattern)
{
    QTextCharFormat values;
    for (const int property : pattern.properties().keys()) {
        values.setProperty(property, format.property(property));
    }
    return values;
}

bool sameComment(const QTextCharFormat &a, const QTextCharFormat &b)
{
    for (const int property :
         {MRVTextFormat::InspectorCommentProperty, MRVTextFormat::InspectorFootnoteProperty,
          MRVTextFormat::CommentData0, MRVTextFormat::CommentData1, MRVTextFormat::CommentData2}) {
        if (a.property(property) != b.property(property)) {
            return false;
        }
    }
    return true;
}

template<typename Verdicts>
bool pieceInBlock(const QTextBlock &block, int from, bool acceptPartial, Verdicts &verdicts,
                  MRVTextRange *range)
{
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (!verdicts(fragment.charFormatIndex())) {
            continue;
        }
        const int start = fragment.position();
        const int end = start + fragment.length();
        if (end <= from || (start < from && !acceptPartial)) {
            continue;
        }
        *range = MRVTextRange(qMax(start, from), end);
        return true;
    }
    return false;
}

template<typename Verdicts>
bool firstPiece(const QTextDocument *document, int from, Verdicts &verdicts, MRVTextRange *range,
                int end = std::numeric_limits<int>::max())
{
    for (QTextBlock block = document->findBlock(from); block.isValid() && block.position() < end;
         block = block.next()) {
        if (pieceInBlock(block, from, true, verdicts, range)) {
            return true;
        }
    }
    return false;
}

/// What findContinuousFragment() finds from a position on.
bool continuousFrom(const QTextDocument *document, int from, const QTextCharFormat &format,
                    bool compareValues, bool inspector, MRVTextRange *range)
{
    auto verdicts = verdictsOf(document, format, compareValues);
    if (!firstPiece(document, from, verdicts, range)) {
        return false;
    }
    const QTextCharFormat found = verdicts.format(mrvPieceAt(document, range->start()).format);
    const QTextCharFormat values = valuesIn(found, format);
    MRVFormatVerdicts same(document, [&](const QTextCharFormat &other) {
        return MRVTextFormat::formatsMatch(other, values, true)
            && (!inspector || sameComment(other, found));
    });
    *range = mrvGrown(document, *range, same);
    return true;
}

QTextCursor findContinuous(const QTextCharFormat &format, const QTextCursor &from,
                           bool compareValues, bool inspector)
{
    MRVTextRange range;
    if (from.isNull()
        || !continuousFrom(from.document(), from.selectionEnd(), format, compareValues, inspector,
                           &range)) {
        return QTextCursor();
    }
    return mrvSelect(from.document(), range);
}

/// Whether the fragment of the character at @p position passes.
template<typename Verdicts>
bool passesAt(const QTextDocument *document, int position, Verdicts &verdicts)
{
    const MRVTextPiece piece = mrvPieceAt(document, position);
    return piece.format >= 0 && verdicts(piece.format);
}

/// How much of the text of a range carries a format.
enum class Share { NoText, None, Some, All };

// Of what is selected.
template<typename Verdicts>
Share shareOf(const QTextCursor &cursor, Verdicts &verdicts)
{
    int carried = 0;
    int all = 0;
    auto any = [](int) { return true; };
    mrvEachSelected(cursor, any, [&](const MRVTextPiece &piece) {
        ++all;
        carried += verdicts(piece.format) ? 1 : 0;
    });
    if (all == 0) {
        return Share::NoText;
    }
    return carried == 0 ? Share::None : carried < all ? Share::Some : Share::All;
}

} // namespace

bool MRVTextFinder::findInBlock(const QTextBlock &block, const QTextCharFormat &format, int offset,
                                QTextCursor &result, bool compareValues, bool acceptPartial)
{
    if (!block.isValid()) {
        return false;
    }
    auto verdicts = verdictsOf(block.document(), format, compareValues);
    MRVTextRange range;
    if (!pieceInBlock(block, block.position() + offset, acceptPartial, verdicts, &range)) {
        return false;
    }
    result = mrvSelect(block.document(), range);
    return true;
}

QTextCursor MRVTextFinder::findFragment(const QTextCharFormat &format, const QTextCursor &from,
                                        bool compareValues)
{
    if (from.isNull()) {
        return QTextCursor();
    }
    auto verdicts = verdictsOf(from.document(), format, compareValues);
    MRVTextRange range;
    if (!firstPiece(from.document(), from.selectionEnd(), verdicts, &range)) {
        return QTextCursor();
    }
    return mrvSelect(from.document(), range);
}

QTextCursor MRVTextFinder::findFragmentByProperty(int property, const QVariant &value,
                                                  const QTextCursor &from, bool compareValues)
{
    return findFragment(formatOf(property, value), from, compareValues);
}

QVector<MRVTextRange> MRVTextFinder::findAllFragments(const QTextDocument *document,
                                                      const QTextCharFormat &format,
                                                      bool compareValues)
{
    QVector<MRVTextRange> ranges;
    if (document) {
        auto verdicts = verdictsOf(document, format, compareValues);
        mrvEachPiece(document, MRVTextRange(0, document->characterCount()), verdicts,
                     [&](const MRVTextPiece &piece) {
                         ranges.append(MRVTextRange(piece.start, piece.end));
                     });
    }
    return ranges;
}

QTextCursor MRVTextFinder::findContinuousFragment(const QTextCharFormat &format,
                                                  const QTextCursor &from, bool compareValues)
{
    return findContinuous(format, from, compareValues, false);
}

QTextCursor MRVTextFinder::findContinuousInspectorFragment(const QTextCharFormat &format,
                                                           const QTextCursor &from,
                                                           bool compareValues)
{
    return findContinuous(format, from, compareValues, true);
}

int MRVTextFinder::continuousFragmentCount(const QTextCharFormat &format, const QTextCursor &from,
                                           bool compareValues)
{
    if (from.isNull()) {
        return 0;
    }
    const QTextDocument *document = from.document();
    auto verdicts = verdictsOf(document, format, compareValues);
    int count = 0;
    bool inRun = false;
    QTextCharFormat values; // of the run
    int lastFormat = -1;
    int lastEnd = -1;
    for (MRVPieceWalker walker(document, from.selectionEnd()); walker.isValid(); walker.next()) {
        const int index = walker.piece().format;
        inRun = inRun && mrvAdjoins(document, lastEnd, walker.piece().start);
        lastEnd = walker.piece().end;
        if (inRun
            && (index == lastFormat
                || MRVTextFormat::formatsMatch(verdicts.format(index), values, true))) {
            continue;
        }
        inRun = verdicts(index);
        if (inRun) {
            ++count;
            lastFormat = index;
            values = valuesIn(verdicts.format(index), format);
        }
    }
    return count;
}

QTextCursor MRVTextFinder::findFragmentInSelection(const QTextCharFormat &format,
                                                   const QTextCursor &selection, bool compareValues)
{
    if (selection.isNull()) {
        return QTextCursor();
    }
    const QTextDocument *document = selection.document();
    auto verdicts = verdictsOf(document, format, compareValues);
    const QVector<MRVTextRange> selected = MRVTextCursor::selectedRanges(selection);
    for (const MRVTextRange &part : selected) {
        MRVTextRange range;
        if (firstPiece(document, part.start(), verdicts, &range, part.end())
            && range.start() < part.end()) {
            return mrvSelect(document, MRVTextRange(range.start(), qMin(range.end(), part.end())));
        }
    }
    return QTextCursor();
}

QTextCursor MRVTextFinder::findFragmentAround(const QTextCharFormat &format,
                                              const QTextCursor &cursor, bool compareValues)
{
    if (cursor.isNull()) {
        return QTextCursor();
    }
    const QTextDocument *document = cursor.document();
    const MRVTextRange selection(cursor);
    auto verdicts = verdictsOf(document, format, compareValues);
    MRVPieceWalker walker(document, selection.start());
    // The fragment after the start of the selection, then the one before it.
    for (int i = 0; i < 2; ++i, walker.previous()) {
        MRVTextRange run;
        if (walker.isValid() && verdicts(walker.piece().format)
            && continuousFrom(document, walker.piece().start, format, compareValues, false, &run)
            && run.start() <= selection.start() && selection.end() <= run.end()) {
            return mrvSelect(document, run);
        }
    }
    return QTextCursor();
}

QTextCursor MRVTextFinder::findFragmentAtPosition(const QTextCharFormat &format,
                                                  const QTextCursor &cursor, bool compareValues)
{
    if (cursor.isNull()) {
        return QTextCursor();
    }
    const QTextDocument *document = cursor.document();
    auto verdicts = verdictsOf(document, format, compareValues);
    const MRVTextPiece piece = mrvPieceAt(document, cursor.selectionStart());
    if (piece.format < 0 || !verdicts(piece.format)) {
        return QTextCursor();
    }
    return mrvSelect(document, MRVTextRange(piece.start, piece.end));
}

QTextCursor MRVTextFinder::findFragmentAtPositionGeneral(const QTextCharFormat &format,
                                                         const QTextCursor &cursor,
                                                         bool compareValues)
{
    const QTextCursor found = findFragmentAtPosition(format, cursor, compareValues);
    if (!found.isNull() || cursor.isNull() || cursor.selectionStart() == 0) {
        return found;
    }
    QTextCursor before = cursor;
    before.setPosition(cursor.selectionStart() - 1);
    return findFragmentAtPosition(format, before, compareValues);
}

QList<MRVTextRange> MRVTextFinder::findFragmentsByFormat(const QTextCursor &selection,
                                                         const QTextCharFormat &format)
{
    QList<MRVTextRange> ranges;
    if (!selection.isNull()) {
        auto verdicts = verdictsOf(selection.document(), format, true);
        mrvEachSelected(selection, verdicts, [&](const MRVTextPiece &piece) {
            ranges.append(MRVTextRange(piece.start, piece.end));
        });
    }
    return ranges;
}

int MRVTextFinder::formatCount(const QTextDocument *document, int property, const QVariant &value)
{
    return findAllFragments(document, formatOf(property, value), true).size();
}

int MRVTextFinder::formatLengthCount(const QTextDocument *document, int property,
                                     const QVariant &value)
{
    int length = 0;
    for (const MRVTextRange &range : findAllFragments(document, formatOf(property, value), true)) {
        length += range.end() - range.start();
    }
    return length;
}

bool MRVTextFinder::startsWithFormat(const QTextCursor &cursor, const QTextCharFormat &format,
                                     bool compareValues)
{
    return !findFragmentAtPosition(format, cursor, compareValues).isNull();
}

bool MRVTextFinder::startsWithFormatProperty(const QTextCursor &cursor, int property,
                                             const QVariant &value, bool compareValues)
{
    return startsWithFormat(cursor, formatOf(property, value), compareValues);
}

bool MRVTextFinder::isInFormat(const QTextCursor &cursor, const QTextCharFormat &format,
                               bool compareValues)
{
    if (cursor.isNull()) {
        return false;
    }
    const QTextDocument *document = cursor.document();
    auto verdicts = verdictsOf(document, format, compareValues);
    if (cursor.hasSelection()) {
        return shareOf(cursor, verdicts) == Share::All;
    }
    return passesAt(document, cursor.position() - 1, verdicts)
        && passesAt(document, cursor.position(), verdicts);
}

bool MRVTextFinder::isInFormatProperty(const QTextCursor &cursor, int property,
                                       const QVariant &value, bool compareValues)
{
    return isInFormat(cursor, formatOf(property, value), compareValues);
}

bool MRVTextFinder::isFormatChecked(const QTextCursor &cursor, const QTextCharFormat &format,
                                    bool compareValues)
{
    if (cursor.isNull()) {
        return false;
    }
    auto verdicts = verdictsOf(cursor.document(), format, compareValues);
    const Share share = shareOf(cursor, verdicts);
    if (share != Share::NoText) {
        return share == Share::All;
    }
    return MRVTextFormat::formatsMatch(cursor.charFormat(), format, compareValues);
}

bool MRVTextFinder::isFormatCheckedProperty(const QTextCursor &cursor, int property,
                                            const QVariant &value, bool compareValues)
{
    return isFormatChecked(cursor, formatOf(property, value), compareValues);
}

bool MRVTextFinder::hasFormat(const QTextCursor &cursor, const QTextCharFormat &format,
                              bool compareValues)
{
    if (cursor.hasSelection()) {
        return !findFragmentInSelection(format, cursor, compareValues).isNull();
    }
    return !findFragmentAtPositionGeneral(format, cursor, compareValues).isNull();
}

bool MRVTextFinder::hasFormatProperty(const QTextCursor &cursor, int property,
                                      const QVariant &value, bool compareValues)
{
    return hasFormat(cursor, formatOf(property, value), compareValues);
}

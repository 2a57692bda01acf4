#include "search/mrvtextreplacer.h"

#include "search/mrvquerysearch_p.h"
#include "search/mrvreplacementtext_p.h"
#include "text/mrvreplacetext.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

using Finder = MRVTextFinder;

/// Whether an operation would lose an object, which counts as a blank for the search.
bool losesObject(const QString &before, const QString &after)
{
    return before != after && before.contains(QChar(QChar::ObjectReplacementCharacter));
}

void select(QTextCursor *cursor, const MRVTextRange &range)
{
    cursor->setPosition(range.start());
    cursor->setPosition(range.end(), QTextCursor::KeepAnchor);
}

/// Replaces the selection; the cursor stands after the new text then.
void replaceSelection(QTextCursor *cursor, const QString &text, const QTextCharFormat &format)
{
    const int start = cursor->selectionStart();
    mrvReplaceText(*cursor, text);
    if (format.propertyCount() > 0) {
        const int end = cursor->position();
        select(cursor, MRVTextRange(start, end));
        cursor->mergeCharFormat(format);
        cursor->setPosition(end);
    }
}

} // namespace

QVector<MRVTextRange> MRVTextReplacer::findAll(const QTextDocument *document,
                                               const MRVTextQuery &query, MRVSearchOutcome *outcome)
{
    QVector<MRVTextRange> finds;
    if (!document) {
        return finds;
    }
    MRVQuerySearch search(document, query);
    if (query.isForRuns()) {
        finds = mrvRunsOfKinds(document, query);
        const auto isOutside = [&](const MRVTextRange &find) {
            return find.start() < search.range().start() || find.end() > search.range().end();
        };
        finds.erase(std::remove_if(finds.begin(), finds.end(), isOutside), finds.end());
        search.report(outcome);
        return finds;
    }
    search.eachFind(search.range(), [&](const MRVQueryFind &find) {
        finds.append(find.range);
        return true;
    });
    search.report(outcome);
    return finds;
}

int MRVTextReplacer::count(const QTextDocument *document, const MRVTextQuery &query,
                           MRVSearchOutcome *outcome)
{
    return findAll(document, query, outcome).size();
}

QTextCursor MRVTextReplacer::find(const QTextCursor &from, const MRVTextQuery &query,
                                  MRVSearchOutcome *outcome)
{
    QTextCursor result;
    if (from.isNull()) {
        return result;
    }
    const QTextDocument *document = from.document();
    MRVQuerySearch search(document, query);
    const bool backward = query.flags & Finder::FindBackward;
    const MRVTextRange own(from);
    MRVTextRange last(-1, -1);
    const auto take = [&](const MRVQueryFind &find) {
        if (find.range == own && !from.hasSelection()) {
            return true;
        }
        last = find.range;
        return backward;
    };
    if (!backward && own.end() <= search.range().end()) {
        search.eachFind(mrvClipped(search.range(), own.end(), search.range().end()), take);
    }
    const MRVTextRange part = mrvClipped(search.range(), 0, own.start());
    if (backward && query.acrossParagraphs) {
        search.eachFind(part, take);
    } else if (backward) {
        // From paragraph to paragraph; of each, the last match.
        for (QTextBlock block = document->findBlock(part.end()); block.isValid() && last.start() < 0
             && block.position() + block.length() > part.start() && search.outcome().isComplete();
             block = block.previous()) {
            search.eachFind(
                mrvClipped(part, block.position(), block.position() + block.length() - 1), take);
        }
    }
    search.report(outcome);
    return last.start() < 0 ? result : mrvSelect(document, last);
}

QVector<MRVTextChange> MRVTextReplacer::preview(const QTextDocument *document,
                                                const MRVTextQuery &query,
                                                const MRVTextReplacement &replacement,
                                                MRVSearchOutcome *outcome)
{
    QVector<MRVTextChange> changes;
    if (!document) {
        return changes;
    }
    MRVQuerySearch search(document, query);
    MRVReplacementText texts(replacement);
    MRVTextQuery formatted;
    formatted.format = replacement.format;
    MRVQueryFilter hasFormat(document, formatted);
    search.eachFind(search.range(), [&](const MRVQueryFind &find) {
        const QString before = find.before();
        if (!replacement.keepsText && losesObject(before, QString())) {
            return true;
        }
        const QString after = texts.next(find);
        if (before != after || !hasFormat.accepts(find.text, find.range)) {
            changes.append({find.range, before, after, replacement.format});
        }
        return true;
    });
    // Half of the changes would be more trouble than none.
    return search.report(outcome) ? changes : QVector<MRVTextChange>();
}

int MRVTextReplacer::replaceAll(QTextDocument *document, const MRVTextQuery &query,
                                const MRVTextReplacement &replacement, MRVSearchOutcome *outcome)
{
    const QVector<MRVTextChange> changes = preview(document, query, replacement, outcome);
    if (changes.isEmpty()) {
        return 0;
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    // From the last to the first, so that the positions of the others stay valid.
    for (auto change = changes.crbegin(); change != changes.crend(); ++change) {
        select(&cursor, change->range);
        replaceSelection(&cursor, change->after, change->format);
    }
    cursor.endEditBlock();
    return changes.size();
}

int MRVTextReplacer::apply(QTextDocument *document, const QVector<MRVTextChange> &changes)
{
    if (!document || changes.isEmpty()) {
        return 0;
    }
    QVector<const MRVTextChange *> order;
    for (const MRVTextChange &change : changes) {
        order.append(&change);
    }
    std::stable_sort(order.begin(), order.end(),
                     [](const auto *a, const auto *b) { return b->range < a->range; });
    QTextCursor cursor(document);
    int made = 0;
    int limit = document->characterCount() - 1;
    for (const MRVTextChange *change : qAsConst(order)) {
        const MRVTextRange &range = change->range;
        if (range.start() < 0 || range.end() > limit
            || (change->before == change->after && change->format.propertyCount() == 0)) {
            continue;
        }
        select(&cursor, range);
        if (cursor.selectedText() != change->before) {
            continue;
        }
        if (made++ == 0) {
            cursor.beginEditBlock();
        }
        replaceSelection(&cursor, change->after, change->format);
        limit = range.start();
    }
    if (made > 0) {
        cursor.endEditBlock();
    }
    return made;
}

bool MRVTextReplacer::replace(QTextCursor &cursor, const MRVTextQuery &query,
                              const MRVTextReplacement &replacement, MRVSearchOutcome *outcome)
{
    if (cursor.isNull()) {
        return false;
    }
    const MRVTextRange own(cursor);
    MRVQuerySearch search(cursor.document(), query);
    const MRVTextRange all = search.range();
    if (own.start() < all.start() || own.end() > all.end()) {
        return false;
    }
    bool isFind = false;
    QString after;
    // First from the selection itself; an expression that requires text before the match without
    // including it (\K) needs the paragraph from its start.
    const int paragraph =
        query.acrossParagraphs ? 0 : cursor.document()->findBlock(own.start()).position();
    for (int from : {own.start(), qMax(all.start(), paragraph)}) {
        if (isFind) {
            break;
        }
        search.eachFind(MRVTextRange(from, own.end()), [&](const MRVQueryFind &find) {
            if (find.range == own) {
                after = MRVReplacementText(replacement).next(find);
                isFind = !losesObject(find.before(), after);
            }
            return find.range.start() < own.start();
        });
    }
    if (isFind) {
        cursor.beginEditBlock();
        replaceSelection(&cursor, after, replacement.format);
        cursor.endEditBlock();
        if (query.flags & Finder::FindBackward) {
            cursor.setPosition(own.start());
        }
    }
    search.report(outcome);
    return isFind;
}

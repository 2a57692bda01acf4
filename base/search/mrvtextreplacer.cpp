#include "search/mrvtextreplacer.h"

#include "search/mrvquerysearch_p.h"
#include "text/mrvreplacetext.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

using Finder = MRVTextFinder;

/// The text that a replacement stands for, given the groups of a match.
class Replacement
{
public:
    Replacement(const QString &text, const MRVQueryFind &find)
        : m_text(text)
        , m_find(find)
        , m_groups(find.expression->groupCount())
    {
    }

    QString expanded()
    {
        QString result;
        while (m_at < m_text.size()) {
            const QChar c = m_text.at(m_at++);
            if (c != QLatin1Char('\\') && c != QLatin1Char('$')) {
                result += c;
            } else if (!takeGroup(&result) && !takeCharacter(c, &result)
                       && !(c == QLatin1Char('$') && takeNamed(&result))) {
                result += c;
            }
        }
        return result;
    }

private:
    QString group(int number) const
    {
        const MRVTextMatch part = m_find.expression->captured(number);
        return part ? m_find.text.original(part) : QString();
    }

    int digitAt(int at) const
    {
        const ushort c = at < m_text.size() ? m_text.at(at).unicode() : 0;
        return c >= '0' && c <= '9' ? c - '0' : -1;
    }

    bool takeGroup(QString *result)
    {
        int number = digitAt(m_at);
        if (number < 0 || number > m_groups) {
            return false;
        }
        ++m_at;
        const int second = digitAt(m_at);
        if (number > 0 && second >= 0 && number * 10 + second <= m_groups) {
            number = number * 10 + second;
            ++m_at;
        }
        *result += group(number);
        return true;
    }

    bool takeCharacter(QChar sign, QString *result)
    {
        const QChar c = m_at < m_text.size() ? m_text.at(m_at) : QChar();
        const bool backslash = sign == QLatin1Char('\\');
        if (c == sign) {
            *result += c;
        } else if (backslash && c == QLatin1Char('n')) {
            *result += QChar(QChar::ParagraphSeparator);
        } else if (backslash && c == QLatin1Char('t')) {
            *result += QLatin1Char('\t');
        } else if (!backslash && c == QLatin1Char('&')) {
            *result += group(0);
        } else {
            return false;
        }
        ++m_at;
        return true;
    }

    bool takeNamed(QString *result)
    {
        const int end = m_text.indexOf(QLatin1Char('}'), m_at);
        if (end < 0 || m_text.at(m_at) != QLatin1Char('{')) {
            return false;
        }
        const QString name = m_text.mid(m_at + 1, end - m_at - 1);
        bool isNumber = false;
        int number = name.toInt(&isNumber);
        if (!isNumber) {
            number = m_find.expression->groupNamed(name);
        }
        if (number < 0 || number > m_groups) {
            return false;
        }
        m_at = end + 1;
        *result += group(number);
        return true;
    }

    const QString &m_text;
    const MRVQueryFind &m_find;
    const int m_groups;
    int m_at = 0;
};

QString replacementFor(const MRVQueryFind &find, const QString &replacement)
{
    return find.expression ? Replacement(replacement, find).expanded() : replacement;
}

bool holdsObject(const QString &text)
{
    return text.contains(QChar(QChar::ObjectReplacementCharacter));
}

void select(QTextCursor *cursor, const MRVTextRange &range)
{
    cursor->setPosition(range.start());
    cursor->setPosition(range.end(), QTextCursor::KeepAnchor);
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
                                                const QString &replacement,
                                                MRVSearchOutcome *outcome)
{
    QVector<MRVTextChange> changes;
    if (!document) {
        return changes;
    }
    MRVQuerySearch search(document, query);
    search.eachFind(search.range(), [&](const MRVQueryFind &find) {
        const QString before = find.before();
        const QString after = replacementFor(find, replacement);
        if (before != after && !holdsObject(before)) {
            changes.append({find.range, before, after});
        }
        return true;
    });
    // Half of the changes would be more trouble than none.
    return search.report(outcome) ? changes : QVector<MRVTextChange>();
}

int MRVTextReplacer::replaceAll(QTextDocument *document, const MRVTextQuery &query,
                                const QString &replacement, MRVSearchOutcome *outcome)
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
        mrvReplaceText(cursor, change->after);
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
        if (range.start() < 0 || range.end() > limit || change->before == change->after) {
            continue;
        }
        select(&cursor, range);
        if (cursor.selectedText() != change->before) {
            continue;
        }
        if (made++ == 0) {
            cursor.beginEditBlock();
        }
        mrvReplaceText(cursor, change->after);
        limit = range.start();
    }
    if (made > 0) {
        cursor.endEditBlock();
    }
    return made;
}

bool MRVTextReplacer::replace(QTextCursor &cursor, const MRVTextQuery &query,
                              const QString &replacement, MRVSearchOutcome *outcome)
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
                isFind = !holdsObject(find.before());
                after = replacementFor(find, replacement);
            }
            return find.range.start() < own.start();
        });
    }
    if (isFind) {
        mrvReplaceText(cursor, after);
        if (query.flags & Finder::FindBackward) {
            cursor.setPosition(own.start());
        }
    }
    search.report(outcome);
    return isFind;
}

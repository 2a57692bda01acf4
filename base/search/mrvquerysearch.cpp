#include "search/mrvquerysearch_p.h"

#include <algorithm>
#include <iterator>

namespace {

using Finder = MRVTextFinder;

Qt::CaseSensitivity caseOf(const MRVTextQuery &query)
{
    return query.flags & Finder::FindCaseSensitively ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

std::variant<MRVLiteralMatcher, MRVRegularExpressionMatcher> matcherOf(const MRVTextQuery &query,
                                                                       MRVSearchGuard *guard)
{
    if (query.syntax == MRVTextQuery::PlainText) {
        const QString text =
            query.ignoreTypography ? MRVFoldedText::foldPattern(query.text) : query.text;
        if (MRVLiteralMatcher::canMatch(text, caseOf(query))) {
            return MRVLiteralMatcher(text, caseOf(query));
        }
    }
    return MRVRegularExpressionMatcher(mrvExpressionOf(query), guard);
}

QVector<MRVTextRange> intersection(const QVector<MRVTextRange> &first,
                                   const QVector<MRVTextRange> &second)
{
    QVector<MRVTextRange> common;
    for (int i = 0, j = 0; i < first.size() && j < second.size();) {
        const int start = qMax(first[i].start(), second[j].start());
        const int end = qMin(first[i].end(), second[j].end());
        if (start < end) {
            common.append(MRVTextRange(start, end));
        }
        first[i].end() < second[j].end() ? ++i : ++j;
    }
    return common;
}

} // namespace

MRVSearchedText::MRVSearchedText(int position, const QString &original, bool fold)
    : m_position(position)
    , m_isFolded(fold)
    , m_original(original)
    , m_folded(fold ? original : QString())
    , m_searched(fold ? m_folded.text() : original)
{
}

int MRVSearchedText::fromOriginal(int offset) const
{
    return m_isFolded ? m_folded.fromOriginal(offset) : offset;
}

MRVTextMatch MRVSearchedText::toOriginal(MRVTextMatch match) const
{
    if (!m_isFolded) {
        return match;
    }
    const int from = m_folded.toOriginalStart(match.start);
    const int to = match.length > 0 ? m_folded.toOriginalEnd(match.end()) : from;
    return {from, to - from};
}

QString MRVSearchedText::original(MRVTextMatch match) const
{
    const MRVTextMatch part = toOriginal(match);
    return m_original.mid(part.start, part.length);
}

QRegularExpression mrvExpressionOf(const MRVTextQuery &query)
{
    QString pattern = query.text;
    if (query.syntax == MRVTextQuery::PlainText) {
        pattern = QRegularExpression::escape(
            query.ignoreTypography ? MRVFoldedText::foldPattern(pattern) : pattern);
    } else if (query.ignoreTypography) {
        pattern = MRVFoldedText::foldExpression(pattern);
    }
    return QRegularExpression(pattern,
                              caseOf(query) == Qt::CaseSensitive
                                  ? QRegularExpression::NoPatternOption
                                  : QRegularExpression::CaseInsensitiveOption);
}

bool MRVTextQuery::isValid(QString *error) const
{
    if (syntax == PlainText) {
        return true;
    }
    const MRVExpression expression(mrvExpressionOf(*this));
    if (!expression.isValid() && error) {
        *error = QCoreApplication::translate("MRVTextQuery", "%1 (at character %2)")
                     .arg(expression.errorString(), QString::number(expression.errorOffset() + 1));
    }
    return expression.isValid();
}

MRVQueryMatcher::MRVQueryMatcher(const MRVTextQuery &query, MRVSearchGuard *guard)
    : m_matcher(matcherOf(query, guard))
    , m_hasGroups(query.syntax == MRVTextQuery::RegularExpression)
{
}

bool MRVQueryMatcher::isEmpty() const
{
    return std::visit([](const auto &matcher) { return matcher.isEmpty(); }, m_matcher);
}

void MRVQueryMatcher::prepare(QString *text) const
{
    std::visit([text](const auto &matcher) { matcher.prepare(text); }, m_matcher);
}

MRVTextMatch MRVQueryMatcher::next(const QString &text, int offset, MRVEmptyMatch empty) const
{
    return std::visit([&](const auto &matcher) { return matcher.next(text, offset, empty); },
                      m_matcher);
}

MRVTextMatch MRVQueryMatcher::last(const QString &text, int offset) const
{
    return std::visit([&](const auto &matcher) { return matcher.last(text, offset); }, m_matcher);
}

const MRVExpression *MRVQueryMatcher::expression() const
{
    return m_hasGroups ? &std::get<MRVRegularExpressionMatcher>(m_matcher).expression() : nullptr;
}

QVector<MRVTextRange> mrvRunsOfKinds(const QTextDocument *document, const MRVTextQuery &query)
{
    const MRVTextRange all(0, document->characterCount() - 1);
    QVector<MRVTextRange> common{MRVTextRange(0, document->characterCount())};
    for (const MRVTextQuery::Kind &kind : query.kinds) {
        // A run would join links side by side.
        const bool isLink = kind.type == Finder::FindLink
            && kind.value.toInt() == (Finder::ExternalLinks | Finder::InternalLinks);
        common = intersection(common,
                              isLink ? Finder::findAllAnchors(mrvSelect(document, all)).toVector()
                                     : Finder::findAllRuns(document, kind.type, kind.value));
        if (common.isEmpty()) {
            break;
        }
    }
    return common;
}

MRVQueryFilter::MRVQueryFilter(const QTextDocument *document, const MRVTextQuery &query)
    : m_verdicts(document, Test{query})
    , m_all(query.format.propertyCount() == 0)
    , m_hasKinds(!query.kinds.isEmpty())
    , m_ofKinds(m_hasKinds ? mrvRunsOfKinds(document, query) : QVector<MRVTextRange>())
{
}

bool MRVQueryFilter::accepts(const QTextBlock &block, const MRVTextRange &find)
{
    if (m_hasKinds && !isOfKinds(find)) {
        return false;
    }
    if (m_all) {
        return true;
    }
    if (block != m_block) {
        load(block);
    }
    while (m_next < m_runs.size() && m_runs.at(m_next).end() < find.end()) {
        ++m_next;
    }
    return m_next < m_runs.size() && m_runs.at(m_next).start() <= find.start();
}

bool MRVQueryFilter::isOfKinds(const MRVTextRange &find) const
{
    const auto after = std::upper_bound(
        m_ofKinds.cbegin(), m_ofKinds.cend(), find.start(),
        [](int position, const MRVTextRange &run) { return position < run.start(); });
    return after != m_ofKinds.cbegin() && find.end() <= std::prev(after)->end();
}

void MRVQueryFilter::load(const QTextBlock &block)
{
    m_block = block;
    m_runs.resize(0);
    m_next = 0;
    const int start = block.position();
    const MRVTextRange text(start, start + block.length() - 1);
    mrvEachPiece(block.document(), text, m_verdicts, [this](const MRVTextPiece &piece) {
        const bool adjoins = !m_runs.isEmpty() && m_runs.last().end() == piece.start;
        const int from = adjoins ? m_runs.takeLast().start() : piece.start;
        m_runs.append(MRVTextRange(from, piece.end));
    });
}

MRVQuerySearch::MRVQuerySearch(const QTextDocument *document, const MRVTextQuery &query)
    : m_document(document)
    , m_query(query)
    , m_range(mrvClipped(query.range, 0, document->characterCount()))
    , m_guard(query.timeLimit, query.isCancelled)
    , m_matcher(query, &m_guard)
{
    if (!query.kinds.isEmpty() || query.format.propertyCount() > 0) {
        m_filter = std::make_unique<MRVQueryFilter>(document, query);
    }
}

bool MRVQuerySearch::report(MRVSearchOutcome *outcome) const
{
    if (outcome) {
        *outcome = m_outcome;
    }
    return m_outcome.isComplete();
}

bool MRVQuerySearch::accepts(const QTextBlock &block, const MRVTextRange &find)
{
    return !m_filter || m_filter->accepts(block, find);
}

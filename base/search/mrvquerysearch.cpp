#include "search/mrvquerysearch_p.h"

#include "util/mrvfailure.h"

#include <algorithm>
#include <iterator>

namespace {

using Finder = MRVTextFinder;

Qt::CaseSensitivity caseOf(const MRVTextQuery &query)
{
    return query.flags & Finder::FindCaseSensitively ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

MRVFoldedText::Options foldingOf(const MRVTextQuery &query)
{
    MRVFoldedText::Options folding;
    folding.setFlag(MRVFoldedText::Accents, query.ignoreAccents);
    folding.setFlag(MRVFoldedText::Typography, query.ignoreTypography);
    folding.setFlag(MRVFoldedText::Case,
                    query.ignoreTypography && caseOf(query) == Qt::CaseInsensitive);
    return folding;
}

QRegularExpression compiled(const MRVTextQuery &query, const QString &pattern)
{
    QRegularExpression::PatternOptions options;
    options.setFlag(QRegularExpression::CaseInsensitiveOption,
                    caseOf(query) == Qt::CaseInsensitive);
    options.setFlag(QRegularExpression::MultilineOption, query.acrossParagraphs);
    return QRegularExpression(pattern, options);
}

std::variant<MRVLiteralMatcher, MRVRegularExpressionMatcher> matcherOf(const MRVTextQuery &query,
                                                                       MRVSearchGuard *guard)
{
    const auto folding = foldingOf(query);
    if (query.syntax == MRVTextQuery::RegularExpression) {
        const QString pattern = MRVFoldedText::foldExpression(query.text, folding);
        return MRVRegularExpressionMatcher(compiled(query, pattern), guard);
    }
    const QString text = MRVFoldedText(query.text, folding).text();
    if (MRVLiteralMatcher::canMatch(text, caseOf(query))) {
        return MRVLiteralMatcher(text, caseOf(query));
    }
    return MRVRegularExpressionMatcher(compiled(query, QRegularExpression::escape(text)), guard);
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

MRVSearchedText::MRVSearchedText(int position, const QString &original,
                                 MRVFoldedText::Options folding)
    : m_position(position)
    , m_original(original)
    , m_folded(original, folding)
    , m_searched(m_folded.text())
{
}

MRVTextMatch MRVSearchedText::toOriginal(MRVTextMatch match) const
{
    const int from = m_folded.toOriginalStart(match.start);
    const int to = match.length > 0 ? m_folded.toOriginalEnd(match.end()) : from;
    return {from, to - from};
}

QString MRVSearchedText::original(MRVTextMatch match) const
{
    const MRVTextMatch part = toOriginal(match);
    return m_original.mid(part.start, part.length);
}

bool MRVSearchedText::isOfWholeLetters(MRVTextMatch match) const
{
    return m_folded.isBoundary(match.start) && m_folded.isBoundary(match.end());
}

bool MRVTextQuery::isValid(MRVErrorSink error) const
{
    if (syntax == PlainText) {
        return true;
    }
    // First as it was given, so that the place of a fault is the one that the user knows.
    for (const QString &pattern : {text, MRVFoldedText::foldExpression(text, foldingOf(*this))}) {
        const MRVExpression expression(compiled(*this, pattern));
        if (expression.isValid()) {
            continue;
        }
        return MRV::fail(
            error,
            QCoreApplication::translate("MRVTextQuery", "%1 (at character %2)")
                .arg(expression.errorString(), QString::number(expression.errorOffset() + 1)));
    }
    return true;
}

MRVQueryMatcher::MRVQueryMatcher(const MRVTextQuery &query, MRVSearchGuard *guard)
    : m_matcher(matcherOf(query, guard))
    , m_hasGroups(query.syntax == MRVTextQuery::RegularExpression)
    , m_isAcross(query.acrossParagraphs)
{
}

bool MRVQueryMatcher::isEmpty() const
{
    return std::visit([](const auto &matcher) { return matcher.isEmpty(); }, m_matcher);
}

void MRVQueryMatcher::prepare(QString *text) const
{
    if (m_isAcross) {
        text->replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    }
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
    if (query.accepts) {
        MRVFormatVerdicts verdicts(document, query.accepts);
        common = intersection(common, mrvAllRuns(document, verdicts));
    }
    return common;
}

MRVQueryFilter::MRVQueryFilter(const QTextDocument *document, const MRVTextQuery &query)
    : m_document(document)
    , m_verdicts(document, Test{query})
    , m_all(query.format.propertyCount() == 0)
    , m_hasKinds(!query.kinds.isEmpty() || query.accepts)
    , m_ofKinds(m_hasKinds ? mrvRunsOfKinds(document, query) : QVector<MRVTextRange>())
{
}

bool MRVQueryFilter::accepts(const MRVSearchedText &text, const MRVTextRange &find)
{
    if (m_hasKinds && !isOfKinds(find)) {
        return false;
    }
    if (m_all) {
        return true;
    }
    if (text.position() != m_loaded) {
        load(text);
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

void MRVQueryFilter::load(const MRVSearchedText &text)
{
    m_loaded = text.position();
    m_runs.resize(0);
    m_next = 0;
    const MRVTextRange all(m_loaded, m_loaded + text.original().size());
    mrvEachPiece(m_document, all, m_verdicts, [this](const MRVTextPiece &piece) {
        const bool adjoins =
            !m_runs.isEmpty() && mrvAdjoins(m_document, m_runs.last().end(), piece.start);
        const int from = adjoins ? m_runs.takeLast().start() : piece.start;
        m_runs.append(MRVTextRange(from, piece.end));
    });
}

MRVQuerySearch::MRVQuerySearch(const QTextDocument *document, const MRVTextQuery &query)
    : m_document(document)
    , m_query(query)
    , m_folding(foldingOf(query))
    , m_range(mrvClipped(query.range, 0, document->characterCount()))
    , m_guard(query.timeLimit, query.isCancelled)
    , m_matcher(query, &m_guard)
{
    if (!query.kinds.isEmpty() || query.accepts || query.format.propertyCount() > 0) {
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

bool MRVQuerySearch::accepts(const MRVSearchedText &text, const MRVTextRange &find)
{
    return !m_filter || m_filter->accepts(text, find);
}

bool MRVQuerySearch::goesOn(int position)
{
    if (m_guard.goesOn()) {
        return true;
    }
    m_outcome.reason = m_guard.reason();
    m_outcome.paragraph = m_document->findBlock(position).blockNumber();
    return false;
}

// All paragraphs around a position up to the borders of the cell or frame that they are in.
MRVSearchedText MRVQuerySearch::textAcross(int position) const
{
    const auto continues = [this](const QTextBlock &next) {
        return next.isValid() && next.position() > 0
            && m_document->characterAt(next.position() - 1) == QChar::ParagraphSeparator;
    };
    QTextBlock block = m_document->findBlock(position);
    while (continues(block)) {
        block = block.previous();
    }
    const int start = block.position();
    QString text = block.text();
    for (block = block.next(); continues(block); block = block.next()) {
        text += QChar(QChar::ParagraphSeparator) + block.text();
    }
    return MRVSearchedText(start, text, m_folding);
}

#include "autoreplace/mrvautoreplaceeditor.h"

#include "util/mrvfailure.h"

#include <utility>

namespace {

bool failToFind(MRVErrorSink error, const QString &match, const QString &replacement)
{
    return MRV::fail(
        error, MRVErrorKind::NotFound,
        replacement.isNull()
            ? MRVAutoReplaceEditor::tr("no such entry: \u201c%1\u201d").arg(match)
            : MRVAutoReplaceEditor::tr("no such entry: \u201c%1\u201d -> \u201c%2\u201d")
                  .arg(match, replacement));
}

bool failOfEnabled(MRVErrorSink error, const QString &match)
{
    return MRV::fail(error,
                     MRVAutoReplaceEditor::tr(
                         "an entry for \u201c%1\u201d is enabled already; disable or remove it "
                         "first")
                         .arg(match));
}

bool isOrdinal(const MRVAutoReplace &entry)
{
    return MRVAutoReplace::ordinals().containsReplacement(entry.match, entry.replacement);
}

} // namespace

MRVAutoReplaceEditor::MRVAutoReplaceEditor(const MRVAutoReplaceList &list)
    : m_list(list)
{
}

bool MRVAutoReplaceEditor::add(const MRVAutoReplace &entry, MRVErrorSink error)
{
    if (entry.match.contains(u'\n') || entry.match.contains(QChar::ParagraphSeparator)) {
        return MRV::fail(error, tr("a match cannot go over the end of a paragraph"));
    }
    if (m_list.containsReplacement(entry.match, entry.replacement)) {
        return MRV::fail(error,
                         tr("\u201c%1\u201d -> \u201c%2\u201d is in the list already; it can be "
                            "enabled or disabled")
                             .arg(entry.match, entry.replacement));
    }
    if (entry.enabled && m_list.containsEnabled(entry.match)) {
        return failOfEnabled(error, entry.match);
    }
    m_list.append(entry);
    m_changed = {entry};
    return true;
}

bool MRVAutoReplaceEditor::remove(const QString &match, const QString &replacement,
                                  MRVErrorSink error)
{
    const QVector<int> entries = m_list.indexesOf(match, replacement);
    if (entries.isEmpty()) {
        return failToFind(error, match, replacement);
    }
    MRVAutoReplaceList left;
    MRVAutoReplaceList removed;
    for (int i = 0, next = 0; i < m_list.size(); ++i) {
        const bool isRemoved = next < entries.size() && entries.at(next) == i;
        next += isRemoved ? 1 : 0;
        if (isRemoved && isOrdinal(m_list.at(i))) {
            return MRV::fail(
                error, tr("ordinals stay in each list; disable \u201c%1\u201d instead").arg(match));
        }
        (isRemoved ? removed : left).append(m_list.at(i));
    }
    m_list = left;
    m_changed = removed;
    return true;
}

bool MRVAutoReplaceEditor::setEnabled(const QString &match, const QString &replacement,
                                      bool isEnabled, MRVErrorSink error)
{
    const QVector<int> entries = m_list.indexesOf(match, replacement);
    if (entries.isEmpty()) {
        return failToFind(error, match, replacement);
    }
    if (isEnabled && entries.size() > 1) {
        return MRV::fail(error,
                         tr("%n entries have the match \u201c%1\u201d, and only one can apply; add "
                            "its replacement",
                            nullptr, entries.size())
                             .arg(match));
    }
    if (isEnabled && !m_list.at(entries.constFirst()).enabled && m_list.containsEnabled(match)) {
        return failOfEnabled(error, match);
    }
    m_changed.clear();
    for (const int i : entries) {
        MRVAutoReplace entry = m_list.at(i);
        entry.enabled = isEnabled;
        m_list.replace(i, entry);
        m_changed.append(entry);
    }
    return true;
}

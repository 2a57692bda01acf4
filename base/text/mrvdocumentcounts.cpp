#include "text/mrvdocumentcounts.h"

#include <QElapsedTimer>
#include <QTextBlock>
#include <QTextBoundaryFinder>

namespace {

bool isObject(QChar character)
{
    return character == QChar::ObjectReplacementCharacter;
}

bool isOfWord(QStringView segment)
{
    for (int i = 0; i < segment.size(); ++i) {
        const bool isPair = segment[i].isHighSurrogate() && i + 1 < segment.size();
        const uint character =
            isPair ? QChar::surrogateToUcs4(segment[i], segment[i + 1]) : segment[i].unicode();
        if (QChar::isLetterOrNumber(character)) {
            return true;
        }
    }
    return false;
}

} // namespace

MRVTextCounts MRVTextCounts::of(const QString &text)
{
    MRVTextCounts counts;
    for (const QChar character : text) {
        if (!character.isLowSurrogate() && !isObject(character)
            && character != QChar::ParagraphSeparator) {
            ++counts.characters;
            counts.charactersWithoutSpaces += character.isSpace() ? 0 : 1;
        }
    }
    // StartOfItem alone would not do: Qt sets it for symbols that begin a segment, too.
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, text);
    for (int start = 0, end = finder.toNextBoundary(); end >= 0;
         start = end, end = finder.toNextBoundary()) {
        counts.words += isOfWord(QStringView(text).mid(start, end - start)) ? 1 : 0;
    }
    return counts;
}

MRVTextCounts &MRVTextCounts::operator+=(const MRVTextCounts &other)
{
    words += other.words;
    characters += other.characters;
    charactersWithoutSpaces += other.charactersWithoutSpaces;
    return *this;
}

MRVTextCounts &MRVTextCounts::operator-=(const MRVTextCounts &other)
{
    words -= other.words;
    characters -= other.characters;
    charactersWithoutSpaces -= other.charactersWithoutSpaces;
    return *this;
}

MRVDocumentCounts::MRVDocumentCounts(QTextDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    if (document) {
        connect(document, &QTextDocument::contentsChange, this, &MRVDocumentCounts::followEdit);
        connect(document, &QTextDocument::contentsChanged, this, &MRVDocumentCounts::followAnyEdit);
    }
}

bool MRVDocumentCounts::isComplete() const
{
    return !m_document || m_counted == m_document->blockCount();
}

bool MRVDocumentCounts::advance(int milliseconds)
{
    if (!m_document) {
        restart();
        return true;
    }
    QElapsedTimer timer;
    timer.start();
    m_paragraphs.resize(m_document->blockCount());
    QTextBlock block = m_document->findBlockByNumber(m_counted);
    for (; block.isValid(); block = block.next()) {
        m_paragraphs[m_counted] = MRVTextCounts::of(block.text());
        m_total += m_paragraphs.at(m_counted);
        ++m_counted;
        if (timer.hasExpired(milliseconds)) {
            break;
        }
    }
    return isComplete();
}

void MRVDocumentCounts::restart()
{
    m_paragraphs.clear();
    m_counted = 0;
    m_total = MRVTextCounts();
}

void MRVDocumentCounts::followEdit(int position, int removed, int added)
{
    Q_UNUSED(removed)
    m_isFollowed = true;
    // Qt also counts the separator at the document's end, which is no position of a paragraph.
    const int last = m_document->characterCount() - 1;
    QTextBlock block = m_document->findBlock(qBound(0, position, last));
    const int first = block.blockNumber();
    const int end = m_document->findBlock(qBound(0, position + added, last)).blockNumber() + 1;
    const int before = end - first - (m_document->blockCount() - m_paragraphs.size());
    if (first < 0 || before < 0 || first + before > m_paragraphs.size()) {
        restart();
    } else if (first + before > m_counted) {
        while (m_counted > first) {
            m_total -= m_paragraphs.at(--m_counted);
        }
        m_paragraphs.resize(m_document->blockCount());
    } else {
        for (int i = first; i < first + before; ++i) {
            m_total -= m_paragraphs.at(i);
        }
        if (end - first > before) {
            m_paragraphs.insert(first + before, end - first - before, MRVTextCounts());
        } else {
            m_paragraphs.remove(end, before - (end - first));
        }
        m_counted += end - first - before;
        for (int i = first; i < end; ++i, block = block.next()) {
            m_paragraphs[i] = MRVTextCounts::of(block.text());
            m_total += m_paragraphs.at(i);
        }
    }
    Q_EMIT changed();
}

// Qt does not say where a document without a layout was edited.
void MRVDocumentCounts::followAnyEdit()
{
    if (!m_isFollowed) {
        restart();
        Q_EMIT changed();
    }
    m_isFollowed = false;
}

#include "search/mrvtextpieces_p.h"

MRVPieceWalker::MRVPieceWalker(const QTextDocument *document, int position)
    : m_block(document->findBlock(qMax(0, position)))
{
    if (!m_block.isValid()) {
        m_block = document->lastBlock();
    }
    load(m_block);
    while (m_index < m_pieces.size() && m_pieces.at(m_index).end <= position) {
        ++m_index;
    }
    if (m_index == m_pieces.size()) {
        --m_index;
        next();
    }
}

void MRVPieceWalker::load(const QTextBlock &block)
{
    m_block = block;
    m_pieces.resize(0);
    int position = block.position(); // a fragment would search a tree for it
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const int end = position + fragment.length();
        m_pieces.append(MRVTextPiece{position, end, fragment.charFormatIndex()});
        position = end;
    }
}

void MRVPieceWalker::next()
{
    ++m_index;
    while (m_index >= m_pieces.size()) {
        const QTextBlock block = m_block.next();
        if (!block.isValid()) {
            return;
        }
        load(block);
        m_index = 0;
    }
}

void MRVPieceWalker::previous()
{
    --m_index;
    while (m_index < 0) {
        const QTextBlock block = m_block.previous();
        if (!block.isValid()) {
            return;
        }
        load(block);
        m_index = m_pieces.size() - 1;
    }
}

bool mrvAdjoins(const QTextDocument *document, int end, int start)
{
    while (end < start && document->characterAt(end) == QChar::ParagraphSeparator) {
        ++end;
    }
    return end >= start;
}

MRVTextPiece mrvPieceAt(const QTextDocument *document, int position)
{
    const QTextBlock block = document->findBlock(position);
    for (auto it = block.begin(); block.isValid() && !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const int start = fragment.position();
        if (position >= start && position < start + fragment.length()) {
            return {start, start + fragment.length(), fragment.charFormatIndex()};
        }
    }
    return MRVTextPiece();
}

QTextCursor mrvSelect(const QTextDocument *document, const MRVTextRange &range)
{
    QTextCursor cursor(document->begin());
    cursor.setPosition(range.start());
    cursor.setPosition(range.end(), QTextCursor::KeepAnchor);
    return cursor;
}

MRVTextRange mrvClipped(const MRVTextRange &range, int start, int end)
{
    const int from = qBound(start, range.start(), end);
    return MRVTextRange(from, qBound(from, range.end(), end));
}

#include "markdown/mrvsmartpunctuation_p.h"

#include "markdown/mrvmarkdowntree_p.h"

#include <QString>
#include <QVector>

namespace {

/** What of a block's text one node holds. */
struct Piece
{
    cmark_node *node; // null for what only separates or joins texts
    QString text;
};

/** The place of a single quote that a later one may close. */
struct Place
{
    int piece = -1;
    int at = 0;
};

/** Whether a quote between these two, either may be null, opens a quotation. */
bool opens(QChar before, QChar after)
{
    if (after.isNull() || after.isSpace()) {
        return false;
    }
    switch (before.category()) {
    case QChar::Punctuation_Open:
    case QChar::Punctuation_InitialQuote:
    case QChar::Punctuation_Dash:
        return true;
    default:
        return before.isNull() || before.isSpace();
    }
}

QString dashes(int hyphens)
{
    const QChar en(0x2013);
    const QChar em(0x2014);
    const int ens = hyphens % 3 == 0 ? 0
        : hyphens % 2 == 0           ? hyphens / 2
        : hyphens % 3 == 2           ? 1
                                     : 2;
    return hyphens == 1 ? QString(u'-') : QString((hyphens - 2 * ens) / 3, em) + QString(ens, en);
}

/** The text of one block. */
class BlockText
{
public:
    void add(cmark_node *node, const QString &text) { m_pieces.append({node, text}); }

    void smarten()
    {
        m_before = QChar();
        m_opening = Place();
        for (m_piece = 0; m_piece < m_pieces.size(); ++m_piece) {
            if (!m_pieces.at(m_piece).node) {
                m_before = m_pieces.at(m_piece).text.at(0);
                continue;
            }
            const QString text = m_pieces.at(m_piece).text;
            m_result.clear();
            for (int i = 0; i < text.size();) {
                i += take(text, i);
            }
            m_pieces[m_piece].text = m_result;
        }
        for (const Piece &piece : qAsConst(m_pieces)) {
            if (piece.node) {
                cmark_node_set_literal(piece.node, piece.text.toUtf8().constData());
            }
        }
        m_pieces.clear();
    }

private:
    /** Adds what the characters at @p i become, and gives their number. */
    int take(const QString &text, int i)
    {
        const QChar c = text.at(i);
        const QChar next = i + 1 < text.size() ? text.at(i + 1) : firstAfterPiece();
        int length = 1;
        if (c == u'\\' && i + 1 < text.size() && QStringView(u"\"'-.").contains(next)) {
            m_result += next;
            length = 2;
        } else if (c == u'"') {
            m_result += QChar(opens(m_before, next) ? 0x201c : 0x201d);
        } else if (c == u'\'') {
            takeSingleQuote(next);
            return length;
        } else if (c == u'-') {
            while (i + length < text.size() && text.at(i + length) == u'-') {
                ++length;
            }
            m_result += dashes(length);
        } else if (text.midRef(i, 3) == QLatin1String("...")) {
            m_result += QChar(0x2026);
            length = 3;
        } else {
            m_result += c;
        }
        m_before = m_result.back();
        return length;
    }

    // Most are apostrophes, so one opens a quotation only where another one can close it.
    void takeSingleQuote(QChar next)
    {
        const bool opening = opens(m_before, next);
        if (opening) {
            m_opening = {m_piece, m_result.size()};
        } else if (m_opening.piece >= 0
                   && !(m_before.isLetterOrNumber() && next.isLetterOrNumber())) {
            QString &text = m_opening.piece == m_piece ? m_result : m_pieces[m_opening.piece].text;
            text[m_opening.at] = QChar(0x2018);
            m_opening = Place();
        }
        m_result += QChar(0x2019);
        m_before = QChar(opening ? 0x2018 : 0x2019);
    }

    QChar firstAfterPiece() const
    {
        for (int i = m_piece + 1; i < m_pieces.size(); ++i) {
            if (!m_pieces.at(i).text.isEmpty()) {
                return m_pieces.at(i).text.at(0);
            }
        }
        return QChar();
    }

    QVector<Piece> m_pieces;
    QString m_result; // of the piece that is being read
    QChar m_before; // as it is shown
    Place m_opening;
    int m_piece = 0;
};

bool isBlock(cmark_node *node)
{
    return (cmark_node_get_type(node) & CMARK_NODE_TYPE_MASK) == CMARK_NODE_TYPE_BLOCK;
}

/** Whether a text is the address that its link was made of. */
bool isBareLink(cmark_node *text)
{
    cmark_node *const link = cmark_node_parent(text);
    return cmark_node_get_type(link) == CMARK_NODE_LINK
        && QByteArray(cmark_node_get_url(link)).endsWith(cmark_node_get_literal(text));
}

} // namespace

void mrvSmartenPunctuation(cmark_node *root)
{
    BlockText text;
    mrvVisitMarkdownTree(root, [&text](cmark_node *node, bool) {
        const cmark_node_type type = cmark_node_get_type(node);
        if (isBlock(node)) {
            text.smarten();
        } else if (type == CMARK_NODE_TEXT && !isBareLink(node)) {
            text.add(node, QString::fromUtf8(cmark_node_get_literal(node)));
        } else if (type == CMARK_NODE_SOFTBREAK || type == CMARK_NODE_LINEBREAK) {
            text.add(nullptr, QStringLiteral(" "));
        } else if (type == CMARK_NODE_TEXT || type == CMARK_NODE_CODE) {
            text.add(nullptr, QStringLiteral("x"));
        }
    });
}

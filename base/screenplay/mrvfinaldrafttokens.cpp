#include "screenplay/mrvfinaldrafttokens_p.h"

#include <algorithm>

namespace {

using Piece = MrvFinalDraftPiece;
using Pieces = MrvFinalDraftPieces;

} // namespace

// A text is only known to end when the reader has seen the "<" after it.
QXmlStreamReader::TokenType MrvFinalDraftTokens::next()
{
    const QXmlStreamReader::TokenType token = m_xml.readNext();
    m_start = m_end;
    m_end = int(m_xml.characterOffset());
    if (token == QXmlStreamReader::Characters && m_end > 0 && m_end <= m_text.size()
        && m_text.at(m_end - 1) == u'<') {
        --m_end;
    }
    return token;
}

bool MrvFinalDraftTokens::nextChild()
{
    while (!atEnd()) {
        const QXmlStreamReader::TokenType token = next();
        if (token == QXmlStreamReader::StartElement || token == QXmlStreamReader::EndElement) {
            return token == QXmlStreamReader::StartElement;
        }
    }
    return false;
}

MrvFinalDraftPiece MrvFinalDraftTokens::characters() const
{
    Piece piece;
    piece.text = m_xml.text().toString();
    piece.start = m_start;
    piece.end = m_end;
    piece.form = m_xml.isCDATA() ? Piece::Section : Piece::Content;
    return piece;
}

MrvFinalDraftPiece MrvFinalDraftTokens::attributePiece(const char *name) const
{
    const MrvAttributeRange range = mrvAttributeRange(m_text, m_start, m_end, name);
    Piece piece;
    piece.text = attribute(name);
    piece.start = range.start;
    piece.end = range.end;
    piece.form = Piece::Attribute;
    return piece;
}

QVector<MrvFinalDraftPieces> MrvFinalDraftTokens::readParagraphs()
{
    QVector<Pieces> paragraphs(1);
    Pieces name;
    int textDepth = 0; // of the outermost text that is open
    for (int depth = 1; depth > 0 && !atEnd();) {
        const QXmlStreamReader::TokenType token = next();
        if (token == QXmlStreamReader::StartElement) {
            ++depth;
            textDepth = textDepth == 0 && is("Text") ? depth : textDepth;
            if (is("Paragraph") || m_xml.name().startsWith(QLatin1String("Alt"))) {
                paragraphs.append(Pieces());
            } else if (is("CharacterArcBeat")) {
                name = {attributePiece("Name"), mrvAddedPiece(QStringLiteral(": "))};
            }
        } else if (token == QXmlStreamReader::EndElement) {
            textDepth = depth == textDepth ? 0 : textDepth;
            --depth;
            name = is("CharacterArcBeat") ? Pieces() : name;
        } else if (token == QXmlStreamReader::Characters && textDepth > 0) {
            Pieces &last = paragraphs.last();
            last += last.isEmpty() ? name : Pieces();
            last.append(characters());
        }
    }
    const auto isEmpty = [](const Pieces &pieces) { return pieces.isEmpty(); };
    paragraphs.erase(std::remove_if(paragraphs.begin(), paragraphs.end(), isEmpty),
                     paragraphs.end());
    return paragraphs;
}

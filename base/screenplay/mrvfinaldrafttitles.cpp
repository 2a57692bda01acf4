#include "screenplay/mrvfinaldrafttitles_p.h"

#include "screenplay/mrvfountainsyntax_p.h"

#include <algorithm>

namespace {

using Run = MRVFountainRun;
using Piece = MrvFinalDraftPiece;

Qt::AlignmentFlag alignmentNamed(const QString &name)
{
    return name == QLatin1String("Center") ? Qt::AlignHCenter
        : name == QLatin1String("Right")   ? Qt::AlignRight
                                           : Qt::AlignLeft;
}

} // namespace

void MrvFinalDraftTitles::addLine(MrvFinalDraftParagraph *line, const QString &alignment,
                                  double space)
{
    const QString text = mrvTextOf(line->pieces);
    const Qt::AlignmentFlag side = alignmentNamed(alignment);
    const bool continues = m_last >= 0 && space == 0 && side == m_alignment
        && std::any_of(text.cbegin(), text.cend(),
                       [](QChar c) { return !MrvFountain::isBlank(c) && c != u'\n'; });
    if (!continues && text.trimmed().isEmpty()) {
        addNotes(line->pieces);
        m_last = -1;
        return;
    }
    int entry = m_last;
    if (!continues) {
        Piece &first = line->pieces.first();
        const int length = first.kind == Run::Text ? mrvShownTitleKeyLength(side, first.text) : 0;
        line->type = length > 0 ? first.text.left(length) : mrvGuessedTitleKey(side, text, m_keys);
        first.text.remove(0, length > 0 ? length + 2 : 0);
        // A value may go on in a further paragraph.
        entry = length > 0 ? -1 : m_keys.indexOf(line->type);
    }
    if (entry >= 0) {
        MrvFinalDraftPieces &value = m_parts->titles[size_t(entry)].pieces;
        value.append(mrvAddedPiece(QStringLiteral("\n")));
        value += line->pieces;
    } else {
        entry = int(m_parts->titles.size());
        m_keys.append(line->type);
        m_parts->titles.push_back(*line);
    }
    m_last = continues || space > 0 ? entry : -1;
    m_alignment = side;
}

// Paragraphs of their own, after the script.
void MrvFinalDraftTitles::addNotes(const MrvFinalDraftPieces &pieces)
{
    for (const Piece &piece : pieces) {
        if (piece.kind == Run::Text) {
            continue;
        }
        if (piece.begins) {
            MrvFinalDraftParagraph note;
            note.element.kind =
                piece.kind == Run::Note ? MRVFountainElement::Note : MRVFountainElement::Boneyard;
            m_parts->elements.push_back(note);
        }
        m_parts->elements.back().pieces.append(piece);
    }
}

#include "textexport/mrvinlinepieces_p.h"

#include "textformat/mrvtextformat.h"

#include <QFont>
#include <QTextCharFormat>

#include <algorithm>

namespace {

bool isCodeFamily(const QTextCharFormat &format)
{
    const QStringList families = format.fontFamilies().toStringList();
    const QString family = families.isEmpty() ? format.fontFamily() : families.constFirst();
    return family.compare(QLatin1String("monospace"), Qt::CaseInsensitive) == 0;
}

bool isSame(const MRVInlinePiece &one, const MRVInlinePiece &other)
{
    return one.kind == MRVInlinePiece::Text && other.kind == MRVInlinePiece::Text
        && one.end == other.begin && one.marks == other.marks && one.link == other.link
        && other.names.isEmpty() && one.comment == other.comment;
}

} // namespace

unsigned mrvInlineMarks(const QTextCharFormat &format)
{
    if (format.isImageFormat()) {
        return format.anchorHref().isEmpty() ? 0U : unsigned(MRVLinkMark);
    }
    const bool isLink = !format.anchorHref().isEmpty();
    const auto alignment = format.verticalAlignment();
    unsigned marks = 0;
    const auto add = [&marks](unsigned mark, bool isSet) { marks |= isSet ? mark : 0; };
    add(MRVLinkMark, isLink);
    add(MRVStrongMark, format.fontWeight() >= QFont::DemiBold);
    add(MRVEmphasisMark, format.fontItalic());
    add(MRVStrikeMark, format.fontStrikeOut());
    // Links are underlined anyway.
    add(MRVUnderlineMark, format.fontUnderline() && !isLink);
    add(MRVSuperscriptMark, alignment == QTextCharFormat::AlignSuperScript);
    add(MRVSubscriptMark, alignment == QTextCharFormat::AlignSubScript);
    add(MRVSmallCapsMark, format.fontCapitalization() == QFont::SmallCaps);
    add(MRVCodeMark, isCodeFamily(format));
    return marks;
}

MRVInlinePieces::MRVInlinePieces(const MRVDocumentFlow &flow, const MRVTextNotes &notes)
    : m_flow(flow)
    , m_notes(notes)
    , m_formats(flow.formats.size())
{
}

const MRVInlinePieces::Format &MRVInlinePieces::formatOf(int index)
{
    Format &format = m_formats[index];
    if (!format.isKnown) {
        const QTextCharFormat full = m_flow.formats.at(index).toCharFormat();
        format.isKnown = true;
        format.isPicture = full.isImageFormat();
        format.isNote = full.boolProperty(MRVTextFormat::InlineFootnoteProperty);
        format.marks = mrvInlineMarks(full);
        format.names = full.anchorNames();
        format.names.removeAll(QString());
        format.comment = commentOf(full);
    }
    return format;
}

int MRVInlinePieces::commentOf(const QTextFormat &format)
{
    const QVariant data = format.property(MRVTextFormat::CommentData0);
    const QString text = data.toString();
    if (data.userType() != QMetaType::QString || text.isEmpty()
        || format.boolProperty(MRVTextFormat::InspectorFootnoteProperty)) {
        return -1;
    }
    const QString id = format.property(MRVTextFormat::CommentData1).toString();
    const QStringList origin = format.property(MRVTextFormat::CommentData2).toStringList();
    const QStringList key{id, text, origin.value(0), origin.value(1)};
    const auto known = m_commentIndexes.constFind(key);
    if (known != m_commentIndexes.constEnd()) {
        return *known;
    }
    m_commentIndexes.insert(key, m_comments.size());
    m_comments.append({!id.isEmpty(), text, origin.value(0), origin.value(1)});
    return m_comments.size() - 1;
}

int MRVInlinePieces::commentAfter(int paragraph)
{
    if (m_firstComments.isEmpty()) {
        readFirstComments();
    }
    const int next = paragraph + 1;
    const bool isAdjacent =
        next < m_flow.count() && m_notes.hasMoved(next) == m_notes.hasMoved(paragraph);
    return isAdjacent ? m_firstComments.at(next) : -1;
}

void MRVInlinePieces::readFirstComments()
{
    m_firstComments.resize(m_flow.count());
    for (int i = m_flow.count() - 1; i >= 0; --i) {
        const int first = m_flow.paragraphs.at(i).firstFragment;
        const bool isEmpty = first == m_flow.paragraphs.at(i + 1).firstFragment;
        m_firstComments[i] =
            isEmpty ? commentAfter(i) : formatOf(m_flow.fragments.at(first).format).comment;
    }
}

QVector<MRVInlinePiece> MRVInlinePieces::of(int paragraph)
{
    const MRVFlowParagraph &flow = m_flow.paragraphs.at(paragraph);
    return read(flow.firstFragment, flow.position, flow.position + flow.length, false);
}

// A comment on the text around the note, too, is written there.
QVector<MRVInlinePiece> MRVInlinePieces::of(const MRVTextNote &note)
{
    const int paragraph = m_flow.paragraphAt(note.begin);
    const int first = m_flow.paragraphs.at(paragraph).firstFragment;
    const int end = m_flow.paragraphs.at(paragraph + 1).firstFragment;
    const auto commentAt = [&](int fragment) {
        return fragment >= first && fragment < end
            ? formatOf(m_flow.fragments.at(fragment).format).comment
            : -1;
    };
    const int before = commentAt(note.firstFragment - 1);
    const int after = commentAt(note.endFragment);
    QVector<MRVInlinePiece> pieces = read(note.firstFragment, note.begin, note.end, true);
    for (MRVInlinePiece &piece : pieces) {
        const bool isAround = piece.comment == before || piece.comment == after;
        piece.comment = isAround ? -1 : piece.comment;
    }
    return pieces;
}

QString MRVInlinePieces::bracket(const MRVInlinePiece &piece) const
{
    const MRVFlowParagraph &paragraph = m_flow.paragraphs.at(m_flow.paragraphAt(piece.begin));
    const int end = paragraph.position + paragraph.length;
    if (piece.kind == MRVInlinePiece::NoteBegin) {
        const bool isApart =
            piece.begin == paragraph.position || m_flow.text.at(piece.begin - 1).isSpace();
        return isApart ? QStringLiteral("[") : QStringLiteral(" [");
    }
    const bool isInWord = piece.begin < end && m_flow.text.at(piece.begin).isLetterOrNumber();
    return isInWord ? QStringLiteral("] ") : QStringLiteral("]");
}

void MRVInlinePieces::setBracket(bool isOpen, int position, int comment,
                                 QVector<MRVInlinePiece> *pieces) const
{
    MRVInlinePiece bracket;
    bracket.kind = isOpen ? MRVInlinePiece::NoteBegin : MRVInlinePiece::NoteEnd;
    bracket.begin = bracket.end = position;
    bracket.comment = comment;
    pieces->append(bracket);
}

// A piece without its place; @p link is the one at it or after it.
MRVInlinePiece MRVInlinePieces::likeness(int index, QVector<MRVFlowLink>::const_iterator link)
{
    const Format &format = formatOf(index);
    MRVInlinePiece like;
    like.kind = format.isPicture ? MRVInlinePiece::Picture : MRVInlinePiece::Text;
    like.marks = format.marks;
    like.format = index;
    like.comment = format.comment;
    like.names = format.names;
    if ((like.marks & MRVLinkMark) && link != m_flow.links.end()) {
        const bool isText = m_notes.isText(*link);
        like.marks &= isText ? ~unsigned(MRVLinkMark) : ~0U;
        like.link = isText ? -1 : int(link - m_flow.links.begin());
    }
    return like;
}

QVector<MRVInlinePiece> MRVInlinePieces::read(int firstFragment, int begin, int end, bool isNote)
{
    QVector<MRVInlinePiece> pieces;
    auto cut = isNote ? m_notes.innerCutAt(begin) : m_notes.cutAt(begin);
    const auto endCut = isNote ? m_notes.innerCuts().constEnd() : m_notes.cuts().constEnd();
    auto link =
        std::lower_bound(m_flow.links.begin(), m_flow.links.end(), begin,
                         [](const MRVFlowLink &one, int place) { return one.end <= place; });
    const auto takeCuts = [&](int at) {
        int past = at;
        for (; cut != endCut && cut->begin <= at && cut->begin <= end; ++cut) {
            if (cut->note >= 0) {
                MRVInlinePiece mark;
                mark.kind = MRVInlinePiece::NoteMark;
                mark.begin = mark.end = cut->begin;
                mark.note = cut->note;
                pieces.append(mark);
            }
            past = qMax(past, cut->end);
        }
        return past;
    };
    int at = begin;
    int skipped = begin;
    bool isOpen = isNote;
    const auto setOpen = [&](bool open, int position, int comment) {
        if (!isNote && open != isOpen) {
            setBracket(open, position, comment, &pieces);
            isOpen = open;
        }
    };
    for (int i = firstFragment; at < end; ++i) {
        const MRVFlowFragment &fragment = m_flow.fragments.at(i);
        const Format &format = formatOf(fragment.format);
        const int last = qMin(at + fragment.length, end);
        while (link != m_flow.links.end() && link->end <= at) {
            ++link;
        }
        MRVInlinePiece like = likeness(fragment.format, link);
        if (!format.isNote && !pieces.isEmpty()) {
            setOpen(false, at, pieces.constLast().comment);
        }
        for (int from = qMax(at, skipped); from < last; from = qMax(from, skipped)) {
            skipped = qMax(skipped, takeCuts(from));
            const int to = cut != endCut ? qMin(last, cut->begin) : last;
            if (skipped <= from && to > from) {
                setOpen(format.isNote, from, format.comment);
                addText(from, to, like, &pieces);
                like.names.clear();
                from = to;
            }
        }
        at += fragment.length;
    }
    takeCuts(end);
    if (!pieces.isEmpty()) {
        setOpen(false, end, pieces.constLast().comment);
    }
    settleBlanks(&pieces);
    return pieces;
}

// Pictures and line ends are pieces of their own.
void MRVInlinePieces::addText(int begin, int end, const MRVInlinePiece &like,
                              QVector<MRVInlinePiece> *pieces) const
{
    MRVInlinePiece piece = like;
    const auto add = [&](int from, int to, MRVInlinePiece::Kind kind) {
        piece.begin = from;
        piece.end = to;
        piece.kind = kind;
        pieces->append(piece);
        piece.names.clear();
    };
    int from = begin;
    for (int i = begin; i < end; ++i) {
        const QChar c = m_flow.text.at(i);
        const bool isObject = c == QChar::ObjectReplacementCharacter;
        const bool isBlank = c.isSpace();
        if (!isObject && c != QChar::LineSeparator
            && (i == from || isBlank == m_flow.text.at(i - 1).isSpace())) {
            continue;
        }
        if (i > from) {
            add(from, i, MRVInlinePiece::Text);
        }
        from = i;
        if (c == QChar::LineSeparator) {
            add(i, i + 1, MRVInlinePiece::LineEnd);
            from = i + 1;
        } else if (isObject) {
            if (like.kind == MRVInlinePiece::Picture) {
                add(i, i + 1, MRVInlinePiece::Picture);
            }
            from = i + 1;
        }
    }
    if (end > from) {
        add(from, end, MRVInlinePiece::Text);
    }
}

bool MRVInlinePieces::isBlank(const MRVInlinePiece &piece) const
{
    return piece.kind == MRVInlinePiece::LineEnd || piece.kind == MRVInlinePiece::NoteMark
        || (piece.kind == MRVInlinePiece::Text && m_flow.text.at(piece.begin).isSpace());
}

void MRVInlinePieces::settleBlanks(QVector<MRVInlinePiece> *pieces) const
{
    QVector<unsigned> next(pieces->size());
    unsigned marks = 0;
    for (int i = pieces->size() - 1; i >= 0; --i) {
        next[i] = marks;
        marks = isBlank(pieces->at(i)) ? marks : pieces->at(i).marks;
    }
    QVector<MRVInlinePiece> merged;
    marks = 0;
    for (int i = 0; i < pieces->size(); ++i) {
        MRVInlinePiece &piece = (*pieces)[i];
        if (isBlank(piece)) {
            piece.marks &= MRVMarksOfBlanks | (marks & next.at(i));
        } else {
            marks = piece.marks;
        }
        // A blank at the beginning of a format stays apart, so that the format may begin after it.
        if (!merged.isEmpty() && isSame(merged.constLast(), piece)
            && (!isBlank(merged.constLast()) || isBlank(piece))) {
            merged.last().end = piece.end;
        } else {
            piece.marks &= isBlank(piece) ? ~unsigned(MRVCodeMark) : ~0U;
            merged.append(piece);
        }
    }
    *pieces = merged;
}

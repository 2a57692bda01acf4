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
    return read(flow.firstFragment, flow.position, flow.position + flow.length,
                m_notes.cutAt(flow.position), m_notes.cuts().constEnd());
}

QVector<MRVInlinePiece> MRVInlinePieces::of(const MRVTextNote &note)
{
    const Cuts none = m_notes.cuts().constEnd();
    return read(note.firstFragment, note.begin, note.end, none, none);
}

QVector<MRVInlinePiece> MRVInlinePieces::read(int firstFragment, int begin, int end, Cuts cut,
                                              Cuts endCut)
{
    QVector<MRVInlinePiece> pieces;
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
    for (int i = firstFragment; at < end; ++i) {
        const MRVFlowFragment &fragment = m_flow.fragments.at(i);
        const Format &format = formatOf(fragment.format);
        const int last = qMin(at + fragment.length, end);
        while (link != m_flow.links.end() && link->end <= at) {
            ++link;
        }
        MRVInlinePiece like;
        like.kind = format.isPicture ? MRVInlinePiece::Picture : MRVInlinePiece::Text;
        like.marks = format.marks;
        like.format = fragment.format;
        like.comment = format.comment;
        like.link = like.marks & MRVLinkMark ? int(link - m_flow.links.begin()) : -1;
        like.names = format.names;
        for (int from = qMax(at, skipped); from < last; from = qMax(from, skipped)) {
            skipped = qMax(skipped, takeCuts(from));
            const int to = cut != endCut ? qMin(last, cut->begin) : last;
            if (skipped <= from && to > from) {
                addText(from, to, like, &pieces);
                like.names.clear();
                from = to;
            }
        }
        at += fragment.length;
    }
    takeCuts(end);
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

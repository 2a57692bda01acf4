#include "textexport/mrvinlinewriter_p.h"

#include "markdown/mrvmarkdownescape.h"
#include "util/mrvescape.h"

#include <QRegularExpression>
#include <QTextImageFormat>
#include <QUrl>

#include <algorithm>

namespace {

// In the order in which they are put around each other where they begin and end together.
struct MarkRow
{
    unsigned mark;
    const char *markup; // null: elements alone
    const char *start;
    const char *end;
};

constexpr MarkRow rows[] = {
    {MRVLinkMark, nullptr, nullptr, "</a>"},
    {MRVStrongMark, "**", "<strong>", "</strong>"},
    {MRVEmphasisMark, "*", "<em>", "</em>"},
    {MRVStrikeMark, "~~", "<del>", "</del>"},
    {MRVUnderlineMark, nullptr, "<u>", "</u>"},
    {MRVSuperscriptMark, nullptr, "<sup>", "</sup>"},
    {MRVSubscriptMark, nullptr, "<sub>", "</sub>"},
    {MRVSmallCapsMark, nullptr, "<span style=\"font-variant:small-caps\">", "</span>"},
};

const MarkRow &rowOf(unsigned mark)
{
    return *std::find_if(std::begin(rows), std::end(rows),
                         [mark](const MarkRow &row) { return row.mark == mark; });
}

// As asterisks see what stands beside them. Not all versions of the syntax take symbols for
// punctuation.
enum class Kind { Blank, Punctuation, Symbol, Other };

Kind kindOf(uint c)
{
    if (c == 0 || QChar::isSpace(c)) {
        return Kind::Blank;
    }
    if (QChar::isPunct(c) || (c < 0x80 && !QChar::isLetterOrNumber(c))) {
        return Kind::Punctuation;
    }
    return QChar::isSymbol(c) ? Kind::Symbol : Kind::Other;
}

/** Whether markup between two characters is seen to belong to the second one. */
bool leansOn(Kind away, Kind at)
{
    return at != Kind::Blank
        && (at != Kind::Punctuation || away == Kind::Blank || away == Kind::Punctuation);
}

// What an end of a line takes along.
bool isCollapsed(QChar c)
{
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

int longestRun(const QString &text, QChar c)
{
    int longest = 0;
    int run = 0;
    for (const QChar one : text) {
        run = one == c ? run + 1 : 0;
        longest = qMax(longest, run);
    }
    return longest;
}

uint lastCharacter(const QString &text)
{
    const int size = text.size();
    return size > 1 && text.at(size - 1).isLowSurrogate()
        ? QChar::surrogateToUcs4(text.at(size - 2), text.at(size - 1))
        : text.at(size - 1).unicode();
}

uint firstCharacter(const QString &text)
{
    return text.size() > 1 && text.at(0).isHighSurrogate()
        ? QChar::surrogateToUcs4(text.at(0), text.at(1))
        : text.at(0).unicode();
}

} // namespace

MRVInlineWriter::MRVInlineWriter(const MRVDocumentFlow &flow, const MRVTextNotes &notes,
                                 const QHash<QString, QString> &pictures)
    : m_flow(flow)
    , m_notes(notes)
    , m_pictures(pictures)
    , m_pieces(flow, notes)
{
}

QString MRVInlineWriter::paragraph(int number, Place place)
{
    QVector<MRVInlinePiece> pieces = m_pieces.of(number);
    if (!pieces.isEmpty()) {
        settleNames(number, pieces, &pieces.first().names);
    }
    return write(std::move(pieces), place, m_pieces.commentAfter(number));
}

QString MRVInlineWriter::note(const MRVTextNote &note)
{
    return write(m_pieces.of(note), Lines, -1);
}

bool MRVInlineWriter::isPlain(int number)
{
    const QVector<MRVInlinePiece> pieces = m_pieces.of(number);
    return std::all_of(pieces.begin(), pieces.end(), [](const MRVInlinePiece &piece) {
        return (piece.kind == MRVInlinePiece::Text || piece.kind == MRVInlinePiece::LineEnd)
            && (piece.marks & ~MRVCodeMark) == 0 && piece.names.isEmpty() && piece.comment < 0;
    });
}

// Leaves out the names that readers give to headings and notes by themselves.
void MRVInlineWriter::settleNames(int number, const QVector<MRVInlinePiece> &pieces,
                                  QStringList *names)
{
    if (m_notes.hasMoved(number)) {
        const auto isNotes = [](const QString &name) {
            return name.startsWith(QLatin1String("fn"));
        };
        names->erase(std::remove_if(names->begin(), names->end(), isNotes), names->end());
    } else if (m_flow.paragraphs.at(number).headingLevel > 0) {
        QString text;
        for (const MRVInlinePiece &piece : pieces) {
            if (piece.kind == MRVInlinePiece::Text) {
                text += QStringView(m_flow.text).mid(piece.begin, piece.end - piece.begin);
            }
        }
        names->removeAll(m_headingIds.next(text));
    }
}

QString MRVInlineWriter::write(QVector<MRVInlinePiece> pieces, Place place, int nextComment)
{
    m_place = place;
    m_tokens.clear();
    m_spans.clear();
    m_atLineStart = place != CodeHtml;
    if (place != CodeHtml) {
        trim(nextComment, &pieces);
    }
    joinComments(nextComment, &pieces);
    const bool isBold = place == Heading || place == HeaderCell || place == HeaderHtml;
    const unsigned implied = isBold ? MRVStrongMark : place == CodeHtml ? MRVCodeMark : 0U;
    for (MRVInlinePiece &piece : pieces) {
        piece.marks &= ~implied;
    }
    const QVector<Ends> ends = endsOf(pieces);
    for (int i = 0; i < pieces.size(); ++i) {
        moveTo(pieces.at(i), ends.at(i));
        moveToComment(pieces.at(i).comment);
        writePiece(pieces, i);
    }
    closeTo(0);
    if (nextComment != m_comment) {
        moveToComment(-1);
    }
    settleMarkup();
    QString text;
    for (const Token &token : qAsConst(m_tokens)) {
        text += textOf(token);
    }
    // A tag that fills a line begins HTML, which is no paragraph.
    static const QRegularExpression tag(QStringLiteral("^<[^<>]*>$"));
    return place == Lines && tag.match(text).hasMatch() ? text + QLatin1String("<!-- -->") : text;
}

// Blanks at the ends of lines have no meaning that could be written, unless it is a comment.
void MRVInlineWriter::trim(int nextComment, QVector<MRVInlinePiece> *pieces) const
{
    QVector<MRVInlinePiece> kept; // from the last to the first
    bool isAtEnd = true; // of a line
    for (int i = pieces->size() - 1; i >= 0; --i) {
        MRVInlinePiece piece = pieces->at(i);
        if (piece.kind == MRVInlinePiece::Text && isAtEnd) {
            while (piece.end > piece.begin && isCollapsed(m_flow.text.at(piece.end - 1))) {
                --piece.end;
            }
            isAtEnd = piece.begin == piece.end;
            const int next = kept.isEmpty() ? nextComment : kept.constLast().comment;
            if (isAtEnd && !keepComment(*pieces, i, next, &piece) && piece.names.isEmpty()) {
                continue;
            }
            isAtEnd = isAtEnd && !piece.isKept;
        } else {
            isAtEnd = piece.kind == MRVInlinePiece::LineEnd;
        }
        kept.append(piece);
    }
    std::reverse(kept.begin(), kept.end());
    *pieces = kept;
}

// A blank whose comment is on nothing else stays: without its text where the comment is read as one
// on the character before, else as a blank that ends no line.
bool MRVInlineWriter::keepComment(const QVector<MRVInlinePiece> &pieces, int index, int nextComment,
                                  MRVInlinePiece *blank) const
{
    const int comment = blank->comment;
    const int before = index > 0 ? pieces.at(index - 1).comment : m_comment;
    if (comment < 0 || comment == before || comment == nextComment) {
        return false;
    }
    const auto isTrimmed = [this](const MRVInlinePiece &piece) {
        const QStringView text = QStringView(m_flow.text).mid(piece.begin, piece.end - piece.begin);
        return piece.kind == MRVInlinePiece::Text
            && std::all_of(text.begin(), text.end(), isCollapsed);
    };
    int last = index - 1;
    while (last >= 0 && isTrimmed(pieces.at(last)) && pieces.at(last).comment < 0) {
        --last;
    }
    const bool hasCharacter = last >= 0 && pieces.at(last).comment < 0
        && (pieces.at(last).kind == MRVInlinePiece::Text
            || pieces.at(last).kind == MRVInlinePiece::Picture);
    blank->isKept = !hasCharacter;
    blank->end = hasCharacter ? blank->begin : blank->begin + 1;
    return true;
}

// Marks of notes belong to the comment around them, which would be two without them.
void MRVInlineWriter::joinComments(int nextComment, QVector<MRVInlinePiece> *pieces) const
{
    int next = nextComment;
    for (auto piece = pieces->rbegin(); piece != pieces->rend(); ++piece) {
        if (piece->kind == MRVInlinePiece::NoteMark) {
            piece->comment = next;
        }
        next = piece->comment;
    }
    int before = m_comment;
    for (MRVInlinePiece &piece : *pieces) {
        if (piece.kind == MRVInlinePiece::NoteMark && piece.comment != before) {
            piece.comment = -1;
        }
        before = piece.comment;
    }
}

QVector<MRVInlineWriter::Ends> MRVInlineWriter::endsOf(const QVector<MRVInlinePiece> &pieces)
{
    QVector<Ends> ends(pieces.size());
    for (int i = pieces.size() - 1; i >= 0; --i) {
        for (std::size_t k = 0; k < std::size(rows); ++k) {
            const bool goesOn = i + 1 < pieces.size() && (pieces.at(i + 1).marks & rows[k].mark)
                && (rows[k].mark != MRVLinkMark || pieces.at(i + 1).link == pieces.at(i).link);
            ends[i][k] = goesOn ? ends.at(i + 1)[k] : i;
        }
    }
    return ends;
}

// Closes what ends before a piece, and what would cut a link in two, and opens what begins there.
void MRVInlineWriter::moveTo(const MRVInlinePiece &piece, const Ends &ends)
{
    int depth = 0;
    while (depth < m_open.size() && goesOn(m_spans.at(m_open.at(depth)), piece, ends)) {
        ++depth;
    }
    closeTo(depth);
    const unsigned marks = m_pieces.isBlank(piece) ? piece.marks & MRVMarksOfBlanks : piece.marks;
    QVector<std::size_t> begun;
    for (std::size_t k = 0; k < std::size(rows); ++k) {
        const bool isOpen = std::any_of(m_open.begin(), m_open.end(), [&](int span) {
            return m_spans.at(span).mark == rows[k].mark;
        });
        if ((marks & rows[k].mark) && !isOpen) {
            begun.append(k);
        }
    }
    std::stable_sort(begun.begin(), begun.end(), [&ends](std::size_t one, std::size_t other) {
        return ends[one] > ends[other];
    });
    for (const std::size_t k : qAsConst(begun)) {
        m_open.append(m_spans.size());
        m_spans.append({rows[k].mark, piece.link, isHtml() || !rows[k].markup});
        m_tokens.append({QString(), m_open.constLast(), true});
    }
}

bool MRVInlineWriter::goesOn(const Span &span, const MRVInlinePiece &piece, const Ends &ends) const
{
    if (!(piece.marks & span.mark)) {
        return false;
    }
    if (span.mark == MRVLinkMark) {
        return span.link == piece.link;
    }
    const bool isInLink = std::any_of(m_open.begin(), m_open.end(), [&](int open) {
        return m_spans.at(open).mark == MRVLinkMark && m_spans.at(open).link == piece.link;
    });
    const auto row = std::size_t(&rowOf(span.mark) - rows);
    return piece.link < 0 || isInLink || ends[row] >= ends[0];
}

void MRVInlineWriter::closeTo(int depth)
{
    while (m_open.size() > depth) {
        m_tokens.append({QString(), m_open.takeLast(), false});
    }
}

void MRVInlineWriter::moveToComment(int comment)
{
    if (comment == m_comment) {
        return;
    }
    if (m_comment >= 0) {
        append(QStringLiteral("<mrv-comment end=\"%1\"></mrv-comment>")
                   .arg(m_commentNumbers.value(m_comment)));
    }
    m_comment = comment;
    if (comment >= 0) {
        const MRVInlineComment &begun = m_pieces.comments().at(comment);
        if (!begun.hasId || !m_commentNumbers.contains(comment)) {
            m_commentNumbers.insert(comment, ++m_commentCount);
        }
        QString tag =
            QStringLiteral("<mrv-comment begin=\"%1\"").arg(m_commentNumbers.value(comment));
        tag += begun.author.isEmpty() ? QString() : attribute("author", begun.author);
        tag += begun.date.isEmpty() ? QString() : attribute("date", begun.date);
        append(tag + attribute("text", begun.text) + QLatin1String("></mrv-comment>"));
    }
}

void MRVInlineWriter::writePiece(const QVector<MRVInlinePiece> &pieces, int index)
{
    const MRVInlinePiece &piece = pieces.at(index);
    for (const QString &name : piece.names) {
        append(QLatin1String("<span") + attribute("id", name) + QLatin1String("></span>"));
    }
    switch (piece.kind) {
    case MRVInlinePiece::Text:
        writeText(pieces, index);
        break;
    case MRVInlinePiece::LineEnd:
        writeLineEnd(pieces, index);
        break;
    case MRVInlinePiece::Picture:
        writePicture(piece);
        break;
    case MRVInlinePiece::NoteMark:
        append(QStringLiteral("[^%1]").arg(m_notes.all().at(piece.note).label));
        break;
    case MRVInlinePiece::NoteBegin:
    case MRVInlinePiece::NoteEnd: {
        const QString bracket = m_pieces.bracket(piece);
        append(isHtml() ? bracket
                        : MRVMarkdownEscape::escaped(bracket, MRVMarkdownEscape::Portable));
        break;
    }
    }
    m_atLineStart = piece.kind == MRVInlinePiece::LineEnd && m_place != CodeHtml;
}

void MRVInlineWriter::writeText(const QVector<MRVInlinePiece> &pieces, int index)
{
    const MRVInlinePiece &piece = pieces.at(index);
    if (piece.isKept) {
        append(QStringLiteral("&nbsp;"));
        return;
    }
    int begin = piece.begin;
    if (m_atLineStart) { // blanks would not be read, or begin code
        while (begin < piece.end && isCollapsed(m_flow.text.at(begin))) {
            const bool isSpace = m_flow.text.at(begin++) == u' ';
            append(isSpace ? QStringLiteral("&nbsp;") : QString());
        }
    }
    const QString text = m_flow.text.mid(begin, piece.end - begin);
    if (isAutolink(pieces, index)) {
        closeTo(m_open.size() - 1);
        m_tokens.resize(m_tokens.size() - 2); // the link itself
        append(u'<' + text + u'>');
    } else if (text.isEmpty()) {
        return;
    } else if (piece.marks & MRVCodeMark) {
        writeCode(text);
    } else if (isHtml()) {
        append(MRV::escape(text));
    } else {
        const bool beginsLine =
            m_place == Lines && (m_tokens.isEmpty() || m_tokens.constLast().text.endsWith(u'\n'));
        const QString escaped = MRVMarkdownEscape::escaped(
            text,
            MRVMarkdownEscape::Portable
                | (beginsLine ? MRVMarkdownEscape::LineStart : MRVMarkdownEscape::Inline));
        const bool followsNote = index > 0 && pieces.at(index - 1).kind == MRVInlinePiece::NoteMark;
        const bool isTail = followsNote && QStringView(u"(:").contains(text.at(0));
        append((isTail ? QStringLiteral("\\") : QString()) + escaped);
    }
}

// Whether a link is what it shows, and nothing else is to be said about it.
bool MRVInlineWriter::isAutolink(const QVector<MRVInlinePiece> &pieces, int index) const
{
    const MRVInlinePiece &piece = pieces.at(index);
    if (m_place != Lines || piece.marks != MRVLinkMark || !piece.names.isEmpty() || m_open.isEmpty()
        || m_spans.at(m_open.constLast()).mark != MRVLinkMark
        || m_tokens.constLast().span != m_open.constLast()) {
        return false;
    }
    const MRVFlowLink &link = m_flow.links.at(piece.link);
    static const QRegularExpression address(
        QStringLiteral("^(?:[A-Za-z][A-Za-z0-9.+-]{1,31}:[!#-;=?-\\[\\]_a-z~]*)$"));
    static const QRegularExpression mail(
        QStringLiteral("^mailto:[A-Za-z0-9._+-]+@[A-Za-z0-9-]+(?:\\.[A-Za-z0-9-]+)+$"));
    const QString text = m_flow.text.mid(piece.begin, piece.end - piece.begin);
    return link.begin == piece.begin && link.end == piece.end && link.title.isEmpty()
        && ((text == link.address && address.match(text).hasMatch())
            || (QLatin1String("mailto:") + text == link.address
                && mail.match(link.address).hasMatch()));
}

// In a table, bars end cells even within code.
void MRVInlineWriter::writeCode(const QString &text)
{
    if (isHtml() || (isInCell() && text.contains(u'|'))) {
        append(QLatin1String("<code>")
               + (isHtml() ? MRV::escape(text)
                           : MRVMarkdownEscape::escaped(text, MRVMarkdownEscape::Portable))
               + QLatin1String("</code>"));
        return;
    }
    const QString fence(longestRun(text, u'`') + 1, u'`');
    // A blank at both ends is not read, unless there is nothing else.
    const auto isEdge = [](QChar c) { return c == u'`' || c == u' '; };
    const bool isPadded = isEdge(text.front()) || isEdge(text.back());
    const QString space = isPadded && !text.trimmed().isEmpty() ? QStringLiteral(" ") : QString();
    append(fence + space + text + space + fence);
}

void MRVInlineWriter::writePicture(const MRVInlinePiece &piece)
{
    const QTextImageFormat format = m_flow.formats.at(piece.format).toImageFormat();
    const QString address = m_pictures.value(format.name(), format.name());
    const QString text = format.stringProperty(QTextFormat::ImageAltText);
    const QString title = format.stringProperty(QTextFormat::ImageTitle);
    const bool hasSize = format.width() > 0 || format.height() > 0;
    static const QRegularExpression lines(QStringLiteral("[\\r\\n\\t]|^ | $|  "));
    if (!isHtml() && !hasSize && !text.contains(lines) && hasPortableForm(title)) {
        const QString mark = text.startsWith(u'^') ? QStringLiteral("\\") : QString(); // of a note
        append(QLatin1String("![") + mark + MRVMarkdownEscape::escaped(text) + QLatin1String("](")
               + destination(address) + titleOf(title) + u')');
        return;
    }
    QString tag = QLatin1String("<img") + attribute("src", address) + attribute("alt", text);
    tag += title.isEmpty() ? QString() : attribute("title", title);
    tag += format.width() > 0 ? attribute("width", QString::number(format.width())) : QString();
    tag += format.height() > 0 ? attribute("height", QString::number(format.height())) : QString();
    append(tag + u'>');
}

// Only an end between two texts can be the end of a line of the source. The last one of a paragraph
// is not read unless another follows.
void MRVInlineWriter::writeLineEnd(const QVector<MRVInlinePiece> &pieces, int index)
{
    const auto isContent = [&pieces](int at) {
        return at >= 0 && at < pieces.size() && pieces.at(at).kind != MRVInlinePiece::LineEnd;
    };
    const bool isLast = index + 1 == pieces.size();
    if (m_place == Lines && isContent(index - 1) && isContent(index + 1)) {
        append(QStringLiteral("\\\n"));
    } else {
        append(isLast ? QStringLiteral("<br><br>") : QStringLiteral("<br>"));
    }
}

// Markup that would not be understood where it stands becomes elements, which always are. That
// changes what stands beside other markup.
void MRVInlineWriter::settleMarkup()
{
    constexpr int Rounds = 4;
    bool isSettled = false;
    for (int round = 0; round < Rounds && !isSettled; ++round) {
        isSettled = true;
        QHash<char, int> depths; // by the character
        for (int begin = 0; begin < m_tokens.size();) {
            int end = begin + 1;
            if (isMarkup(begin)) {
                while (end < m_tokens.size() && isSameMarkup(begin, end)) {
                    ++end;
                }
                isSettled = settleRun(begin, end, &depths[*markupOf(begin)]) && isSettled;
            }
            begin = end;
        }
    }
    for (Span &span : m_spans) {
        span.isElement = span.isElement || !isSettled;
    }
}

// @p depth is how many pairs of the character are open before the run; it becomes that after it.
bool MRVInlineWriter::settleRun(int begin, int end, int *depth)
{
    const bool isUnderstood = isRunUnderstood(begin, end, *depth);
    for (int i = begin; i < end; ++i) {
        const bool isOpening = m_tokens.at(i).isOpening;
        *depth += !isOpening ? -1 : isUnderstood ? 1 : 0;
        m_spans[m_tokens.at(i).span].isElement = !isUnderstood;
    }
    return isUnderstood;
}

// By the rules of the syntax for what opens and what closes. Markup that could do both is left
// alone only where nothing else can be mistaken for its other half.
bool MRVInlineWriter::isRunUnderstood(int begin, int end, int depth) const
{
    const bool isOpening = m_tokens.at(begin).isOpening;
    for (int i = begin; i < end; ++i) {
        if (m_tokens.at(i).isOpening != isOpening) {
            return false;
        }
    }
    const bool isAlone = end - begin == 1 && depth == (isOpening ? 0 : 1) && isPaired(begin);
    const auto isLeaning = [&](Kind before, Kind after) {
        const bool opens = leansOn(before, after);
        const bool closes = leansOn(after, before);
        return (isOpening ? opens : closes) && (!opens || !closes || isAlone);
    };
    // Some readers look past tildes for what stands beside asterisks.
    for (const bool skipsTildes : {false, true}) {
        const Kind before = kindOf(characterBefore(begin, skipsTildes));
        const Kind after = kindOf(characterAfter(end, skipsTildes));
        for (const Kind symbol : {Kind::Punctuation, Kind::Other}) {
            if (!isLeaning(before == Kind::Symbol ? symbol : before,
                           after == Kind::Symbol ? symbol : after)) {
                return false;
            }
        }
    }
    return true;
}

// Whether no other markup of its kind stands between a half and the other one.
bool MRVInlineWriter::isPaired(int half) const
{
    const int step = m_tokens.at(half).isOpening ? 1 : -1;
    int other = half + step;
    while (!isMarkup(other) || !isSameMarkup(half, other)) { // the other half at the latest
        other += step;
    }
    const int next = other + step;
    const bool isLast =
        next < 0 || next >= m_tokens.size() || !isMarkup(next) || !isSameMarkup(half, next);
    return m_tokens.at(other).span == m_tokens.at(half).span && isLast;
}

const char *MRVInlineWriter::markupOf(int token) const
{
    return rowOf(m_spans.at(m_tokens.at(token).span).mark).markup;
}

bool MRVInlineWriter::isMarkup(int token) const
{
    const int span = m_tokens.at(token).span;
    return span >= 0 && !m_spans.at(span).isElement && markupOf(token);
}

bool MRVInlineWriter::isSameMarkup(int token, int other) const
{
    return isMarkup(other) && *markupOf(token) == *markupOf(other);
}

uint MRVInlineWriter::characterBefore(int token, bool skipsTildes) const
{
    while (--token >= 0) {
        QString text = textOf(m_tokens.at(token));
        while (skipsTildes && text.endsWith(u'~')) {
            text.chop(1);
        }
        if (!text.isEmpty()) {
            return lastCharacter(text);
        }
    }
    return 0;
}

uint MRVInlineWriter::characterAfter(int token, bool skipsTildes) const
{
    for (; token < m_tokens.size(); ++token) {
        const QString text = textOf(m_tokens.at(token));
        int at = 0;
        while (skipsTildes && at < text.size() && text.at(at) == u'~') {
            ++at;
        }
        if (at < text.size()) {
            return firstCharacter(text.mid(at, 2));
        }
    }
    return 0;
}

QString MRVInlineWriter::textOf(const Token &token) const
{
    if (token.span < 0) {
        return token.text;
    }
    const Span &span = m_spans.at(token.span);
    const MarkRow &row = rowOf(span.mark);
    if (span.mark != MRVLinkMark) {
        return QString::fromLatin1(!span.isElement       ? row.markup
                                       : token.isOpening ? row.start
                                                         : row.end);
    }
    const MRVFlowLink &link = m_flow.links.at(span.link);
    if (isHtml() || !hasPortableForm(link.title)) {
        const QString title = link.title.isEmpty() ? QString() : attribute("title", link.title);
        return token.isOpening
            ? QLatin1String("<a") + attribute("href", link.address) + title + u'>'
            : QString::fromLatin1(row.end);
    }
    return token.isOpening
        ? QStringLiteral("[")
        : QLatin1String("](") + destination(link.address) + titleOf(link.title) + u')';
}

// Readers percent-encode what addresses must not hold. A backslash before a reference is of no use
// in addresses and titles.
QString MRVInlineWriter::destination(const QString &address) const
{
    QString written;
    for (int i = 0; i < address.size(); ++i) {
        const QChar c = address.at(i);
        const QChar next = i + 1 < address.size() ? address.at(i + 1) : QChar();
        const bool isReference = c == u'&' && (next.isLetter() || next == u'#');
        if (c.unicode() < ' ' || c.unicode() == 0x7f || (c == u'|' && isInCell())) {
            written += QString::fromLatin1(QUrl::toPercentEncoding(c));
            continue;
        }
        const bool isSpecial = c == u'\\' || c == u'<' || c == u'>';
        written += isSpecial ? QStringLiteral("\\") : QString();
        written += isReference ? QStringLiteral("&amp;") : QString(c);
    }
    static const QRegularExpression unsafe(QStringLiteral("[ ()]|^$"));
    return written.contains(unsafe) ? u'<' + written + u'>' : written;
}

// Readers disagree about a backslash at the end of a title, and some about others.
bool MRVInlineWriter::hasPortableForm(const QString &title)
{
    return !title.contains(u'\\');
}

QString MRVInlineWriter::titleOf(const QString &title) const
{
    if (title.isEmpty()) {
        return QString();
    }
    static const QRegularExpression lineEnds(QStringLiteral("[\\r\\n]+"));
    static const QRegularExpression special(QStringLiteral("([\"|])"));
    QString written = title;
    written.replace(lineEnds, QStringLiteral(" ")).replace(special, QStringLiteral("\\\\1"));
    written.replace(u'&', QLatin1String("&amp;"));
    written.replace(u'`', QLatin1String("&#96;")); // some readers take it for the beginning of code
    return QLatin1String(" \"") + written + u'"';
}

QString MRVInlineWriter::attribute(const char *name, const QString &value)
{
    QString escaped = MRV::escape(value);
    escaped.replace(u'|', QLatin1String("&#124;"));
    escaped.replace(u'\n', QLatin1String("&#10;")).replace(u'\r', QLatin1String("&#13;"));
    return u' ' + QLatin1String(name) + QLatin1String("=\"") + escaped + u'"';
}

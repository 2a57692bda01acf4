#include "screenplay/mrvfountainsyntax_p.h"

namespace MrvFountain {

namespace {

using Run = MRVFountainRun;
using Emphasis = MRVFountainRun::Emphasis;

constexpr struct
{
    Run::Style style;
    const char *mark;
} styles[] = {{Run::Italic, "*"}, {Run::Bold, "**"}, {Run::Underline, "_"}};

// A piece of text, an object, or a sequence of marks.
struct Piece
{
    enum Type { Text, Marks, Other };
    Type type = Text;
    QString text; // the marks, for Marks
    const Object *object = nullptr;
    bool canOpen = false;
    bool canClose = false;
    Emphasis styles; // that the marks stand for
    Emphasis opened;
    Emphasis closed;
};

// Reads the characters of one line.
class InlineReader
{
public:
    InlineReader(const QString &text, int start, int end, const Object *objects)
        : m_text(text)
        , m_start(start)
        , m_end(end)
        , m_object(objects)
    {
    }

    MRVFountainRuns runs()
    {
        readPieces();
        pairMarks();
        return styledRuns();
    }

private:
    void readPieces();
    int readBackslashes(int at);
    int readMarks(int at);
    void addText(const QStringRef &text);
    void pairMarks();
    MRVFountainRuns styledRuns() const;

    const QString &m_text;
    const int m_start;
    const int m_end;
    const Object *m_object; // the next one
    QVector<Piece> m_pieces;
};

void InlineReader::addText(const QStringRef &text)
{
    if (m_pieces.isEmpty() || m_pieces.constLast().type != Piece::Text) {
        m_pieces.append(Piece());
    }
    m_pieces.last().text += text;
}

void InlineReader::readPieces()
{
    int plain = m_start; // skipped, but not added yet
    int at = m_start;
    const auto takePlain = [&] {
        if (at > plain) {
            addText(m_text.midRef(plain, at - plain));
        }
    };
    while (at < m_end) {
        const QChar c = m_text.at(at);
        if (m_object && at == m_object->start) {
            takePlain();
            Piece piece;
            piece.type = Piece::Other;
            piece.object = m_object;
            m_pieces.append(piece);
            plain = at = m_object->end;
            ++m_object;
            m_object = m_object->start < m_end ? m_object : nullptr;
        } else if (c == u'\\') {
            takePlain();
            plain = at = readBackslashes(at);
        } else if (c == u'*' || c == u'_') {
            takePlain();
            plain = at = readMarks(at);
        } else {
            ++at;
        }
    }
    takePlain();
}

// Before a special character every second backslash escapes what follows.
int InlineReader::readBackslashes(int at)
{
    int end = at;
    while (end < m_end && m_text.at(end) == u'\\') {
        ++end;
    }
    const int count = end - at;
    if (end == m_end || !isEscapable(m_text.at(end))) {
        addText(m_text.midRef(at, count));
        return end;
    }
    addText(m_text.midRef(at, count / 2));
    if (count % 2 == 0) {
        return end;
    }
    addText(m_text.midRef(end, 1));
    return end + 1;
}

int InlineReader::readMarks(int at)
{
    const QChar mark = m_text.at(at);
    int end = at;
    while (end < m_end && m_text.at(end) == mark) {
        ++end;
    }
    Piece piece;
    piece.type = Piece::Marks;
    const int count = end - at;
    if (mark == u'_') {
        piece.styles = count == 1 ? Run::Underline : Emphasis();
    } else if (count <= 3) {
        piece.styles = Emphasis(count); // Deliberate: that is how the styles are numbered.
    }
    if (!piece.styles) {
        addText(m_text.midRef(at, count));
        return end;
    }
    piece.text = m_text.mid(at, count);
    piece.canOpen = end < m_end && !isBlank(m_text.at(end));
    piece.canClose = at > m_start && !isBlank(m_text.at(at - 1));
    m_pieces.append(piece);
    return end;
}

// A mark closes an open style if it can, and otherwise opens one. A mark that is never closed is
// plain text.
void InlineReader::pairMarks()
{
    for (const auto &row : styles) {
        int open = -1;
        for (int i = 0; i < m_pieces.size(); ++i) {
            Piece &piece = m_pieces[i];
            if (!piece.styles.testFlag(row.style)) {
                continue;
            }
            if (open < 0) {
                open = piece.canOpen ? i : -1;
            } else if (piece.canClose) {
                m_pieces[open].opened |= row.style;
                piece.closed |= row.style;
                open = -1;
            }
        }
    }
}

MRVFountainRuns InlineReader::styledRuns() const
{
    MRVFountainRuns runs;
    Emphasis emphasis;
    for (const Piece &piece : m_pieces) {
        if (piece.type == Piece::Other) {
            runs.append({piece.object->text, emphasis, piece.object->kind});
        } else if (piece.type == Piece::Text) {
            runs.append({piece.text, emphasis, Run::Text});
        } else {
            QString literal = piece.text;
            for (const auto &row : styles) {
                if ((piece.opened | piece.closed).testFlag(row.style)) {
                    literal.chop(int(qstrlen(row.mark)));
                }
            }
            emphasis &= ~piece.closed;
            if (!literal.isEmpty()) {
                runs.append({literal, emphasis, Run::Text});
            }
            emphasis |= piece.opened;
        }
    }
    return runs;
}

// Writes the characters of one line.
class InlineWriter
{
public:
    QString text(const MRVFountainRuns &line, int escaped);

private:
    void addMarks(Emphasis toggled);
    int plainMarks(const QString &text, int at, Emphasis toggledBehind) const;
    void addText(const QString &text, Emphasis toggledBehind, bool isNoteBehind);
    bool needsEscape(const QString &text, int at, Emphasis toggledBehind, bool isNoteBehind) const;
    void doubleBackslashes();

    QString m_text;
    Emphasis m_emphasis;
    bool m_isUnderlineInside = false; // of the styles before
    int m_backslashes = 0; // that the text ends with, and that stand for themselves
    int m_escaped = -1; // the position in the rest of the text
};

// Before a special character.
void InlineWriter::doubleBackslashes()
{
    m_text += QString(m_backslashes, u'\\');
    m_backslashes = 0;
}

void InlineWriter::addMarks(Emphasis toggled)
{
    if (!toggled) {
        return;
    }
    doubleBackslashes();
    const Emphasis stars = toggled & (Run::Bold | Run::Italic);
    const QString starMarks(int(stars), u'*');
    if (!toggled.testFlag(Run::Underline)) {
        m_text += starMarks;
        m_isUnderlineInside = m_isUnderlineInside && m_emphasis.testFlag(Run::Underline);
    } else if (m_emphasis.testFlag(Run::Underline)) {
        // Other readers need properly nested marks, so the style that was opened last is closed
        // first.
        m_text += m_isUnderlineInside ? u'_' + starMarks : starMarks + u'_';
    } else {
        m_isUnderlineInside = bool(m_emphasis & ~stars);
        m_text += u'_' + starMarks;
    }
    m_emphasis ^= toggled;
}

// Sequences of marks that are too long to mean anything, such as a line to be filled in.
int InlineWriter::plainMarks(const QString &text, int at, Emphasis toggledBehind) const
{
    const QChar mark = text.at(at);
    const bool isLine = mark == u'_';
    const QChar before = m_text.isEmpty() ? QChar() : m_text.at(m_text.size() - 1);
    if ((!isLine && mark != u'*') || m_backslashes > 0 || m_escaped == 0 || before == mark
        || before == u'/') {
        return 0;
    }
    int end = at;
    while (end < text.size() && text.at(end) == mark) {
        ++end;
    }
    const Emphasis same = isLine ? Emphasis(Run::Underline) : Run::Bold | Run::Italic;
    const bool isLong = end - at >= (isLine ? 2 : 4);
    return isLong && (end < text.size() || !(toggledBehind & same)) ? end - at : 0;
}

bool InlineWriter::needsEscape(const QString &text, int at, Emphasis toggledBehind,
                               bool isNoteBehind) const
{
    const QChar next = at + 1 < text.size() ? text.at(at + 1) : QChar();
    switch (text.at(at).unicode()) {
    case u'*':
    case u'_':
        return !isBlank(next) || !(m_text.isEmpty() || isBlank(m_text.at(m_text.size() - 1)));
    case u'[':
        return next == u'[' || m_text.endsWith(u'[') || (next.isNull() && isNoteBehind);
    case u'/':
        return next.isNull() && (toggledBehind & (Run::Bold | Run::Italic));
    default:
        return false;
    }
}

void InlineWriter::addText(const QString &text, Emphasis toggledBehind, bool isNoteBehind)
{
    for (int at = 0; at < text.size(); ++at) {
        const QChar c = text.at(at);
        if (const int marks = plainMarks(text, at, toggledBehind)) {
            m_text += QString(marks, c);
            at += marks - 1;
            m_escaped -= marks;
            continue;
        }
        const bool escapes = m_escaped-- == 0;
        if (c == u'\\') {
            m_text += c;
            ++m_backslashes;
            continue;
        }
        if (isEscapable(c)
            && (m_backslashes > 0 || escapes
                || needsEscape(text, at, toggledBehind, isNoteBehind))) {
            doubleBackslashes();
            m_text += u'\\';
        }
        m_text += c;
        m_backslashes = 0;
    }
}

QString InlineWriter::text(const MRVFountainRuns &line, int escaped)
{
    m_escaped = escaped;
    for (int i = 0; i < line.size(); ++i) {
        const Run &run = line.at(i);
        addMarks(m_emphasis ^ run.emphasis);
        const Run next = line.value(i + 1);
        if (run.kind == Run::Text) {
            addText(run.text, m_emphasis ^ next.emphasis, next.kind == Run::Note);
        } else {
            doubleBackslashes();
            m_text += objectText(run);
        }
    }
    addMarks(m_emphasis);
    return m_text;
}

} // namespace

MRVFountainRuns runsOf(const QString &text, int start, int end, const Object *objects)
{
    return InlineReader(text, start, end, objects).runs();
}

QString inlineText(const MRVFountainRuns &line, int escaped)
{
    return InlineWriter().text(line, escaped);
}

QString noteText(const QStringRef &text)
{
    QString plain;
    plain.reserve(text.size());
    int backslashes = 0;
    for (int i = 0; i <= text.size(); ++i) {
        // A bracket follows the text, too.
        const QChar c = i < text.size() ? text.at(i) : QChar(u']');
        if (c == u'\\') {
            ++backslashes;
            continue;
        }
        plain += QString(c == u']' ? backslashes / 2 : backslashes, u'\\');
        backslashes = 0;
        if (i < text.size()) {
            plain += c;
        }
    }
    return plain;
}

QString objectText(const MRVFountainRun &run)
{
    if (run.kind == Run::Boneyard) {
        return QLatin1String("/*") + run.text + QLatin1String("*/");
    }
    QString text = QStringLiteral("[[");
    int backslashes = 0;
    int lineStart = 2;
    for (int i = 0; i < run.text.size(); ++i) {
        const QChar c = run.text.at(i);
        if (c == u'\n') {
            // An empty line would end the note.
            text += text.size() == lineStart ? QLatin1String("  \n") : QLatin1String("\n");
            lineStart = text.size();
        } else if (c == u']') {
            const QChar next = run.text.size() > i + 1 ? run.text.at(i + 1) : QChar(u']');
            text += QString(next == u']' ? backslashes + 1 : backslashes, u'\\') + c;
        } else {
            text += c;
        }
        backslashes = c == u'\\' ? backslashes + 1 : 0;
    }
    return text + QString(backslashes, u'\\') + QLatin1String("]]");
}

} // namespace MrvFountain

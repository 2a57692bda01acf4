#include "html/mrvhtmlplaces_p.h"

#include "util/mrvmarkupcharacters.h"

#include <QHash>
#include <QRegularExpression>

namespace {

/** Offsets of a text in UTF-16, for offsets in UTF-8. */
class Offsets
{
public:
    explicit Offsets(const QByteArray &utf8)
        : m_utf8(utf8)
    {
        int units = 0;
        for (int at = 0; at < utf8.size(); ++at) {
            if (at % Step == 0) {
                m_units.append(units);
            }
            units += unitsAt(at);
        }
        m_units.append(units);
    }

    int unitsBefore(int offset) const
    {
        const int step = qMin(offset / Step, m_units.size() - 1);
        int units = m_units.at(step);
        for (int at = step * Step; at < offset; ++at) {
            units += unitsAt(at);
        }
        return units;
    }

private:
    static constexpr int Step = 1024;

    // Units of the character that begins there; none within one.
    int unitsAt(int at) const
    {
        const uchar byte = uchar(m_utf8.at(at));
        return (byte & 0xc0) == 0x80 ? 0 : byte >= 0xf0 ? 2 : 1;
    }

    const QByteArray &m_utf8;
    QVector<int> m_units; // before each step
};

/** Finds the places of the characters of text nodes in their page. */
class NodePlaces
{
public:
    explicit NodePlaces(const MRVHtmlTree &tree)
        : m_page(tree.source())
        , m_offsets(tree.source())
    {
    }

    /** Of each unit of the text of a node. */
    MRVSourcePlaces of(const MRVHtmlRun &run)
    {
        m_places.fill(MRVSourcePlace(), run.text.size());
        if (!run.node) {
            return m_places;
        }
        const GumboStringPiece &original = run.node->v.text.original_text;
        m_source = QString::fromUtf8(original.data, int(original.length));
        m_base = m_offsets.unitsBefore(int(original.data - m_page.constData()));
        m_at = 0;
        for (int i = 0; i < run.text.size() && m_at < m_source.size();) {
            const int taken = take(run.text, i);
            if (taken == 0 && !skip()) {
                break;
            }
            i += taken;
        }
        return m_places;
    }

private:
    // How many units of the text the source has there.
    int take(const QString &text, int i)
    {
        const QChar character = m_source.at(m_at);
        if (character == u'&') {
            const QString reference = referenceAt(m_at);
            const QString meant = meaningOf(reference);
            if (!meant.isEmpty() && text.midRef(i, meant.size()) == meant) {
                place(i, reference.size());
                for (int k = 1; k < meant.size(); ++k) {
                    place(i + k, 0);
                }
                return meant.size();
            }
        }
        // Not the "<" of a tag that means nothing there.
        const bool isOther = character == u'<' && i + 1 < text.size()
            && m_source.midRef(m_at + 1, 1) != text.midRef(i + 1, 1);
        if (character == text.at(i) && !isOther) {
            place(i, 1);
            return 1;
        }
        if (character == u'\r' && text.at(i) == u'\n') {
            place(i, m_source.midRef(m_at, 2) == QLatin1String("\r\n") ? 2 : 1);
            return 1;
        }
        return 0;
    }

    void place(int i, int length)
    {
        m_places[i] = {m_base + m_at, length, MRVSourcePlace::Page};
        m_at += length;
    }

    // Tags that mean nothing there, comments, and the line end that begins a <pre>.
    bool skip()
    {
        if (m_source.at(m_at) == u'<') {
            const bool isComment = m_source.midRef(m_at, 4) == QLatin1String("<!--");
            const QLatin1String ending(isComment ? "-->" : ">");
            const int end = m_source.indexOf(ending, m_at);
            m_at = end + ending.size();
            return end >= 0;
        }
        return m_source.at(m_at++).isSpace();
    }

    QString referenceAt(int at)
    {
        static const QRegularExpression pattern(
            QStringLiteral("&(?:#[0-9]+|#[xX][0-9a-fA-F]+|[A-Za-z][A-Za-z0-9]*);?"));
        const QString reference =
            pattern
                .match(m_source, at, QRegularExpression::NormalMatch,
                       QRegularExpression::AnchoredMatchOption
                           | QRegularExpression::DontCheckSubjectStringMatchOption)
                .captured();
        // Some names need no semicolon, and other letters may follow them.
        const QString meant = meaningOf(reference);
        for (int size = 2; size < reference.size() && !meant.isEmpty(); ++size) {
            const QString name = reference.left(size);
            const QString alone = meaningOf(name);
            if (!alone.isEmpty() && alone + reference.midRef(size) == meant) {
                return name;
            }
        }
        return reference;
    }

    // Empty for what is no reference.
    QString meaningOf(const QString &reference)
    {
        const auto known = m_meanings.constFind(reference);
        if (known != m_meanings.constEnd()) {
            return *known;
        }
        const QString meant =
            reference.isEmpty() ? QString() : mrvTextIn(MRVHtmlTree(reference).root());
        return *m_meanings.insert(reference, meant == reference ? QString() : meant);
    }

    const QByteArray &m_page;
    const Offsets m_offsets;
    MRVSourcePlaces m_places;
    QString m_source; // of the node
    int m_base = 0; // of m_source
    int m_at = 0; // in m_source
    QHash<QString, QString> m_meanings; // of references
};

/** Walks along the text of a document and what was written to it. */
class Alignment
{
public:
    explicit Alignment(const QString &text)
        : m_text(text)
        , m_places(text.size())
    {
    }

    // @return false where the two differ.
    bool add(const QString &text, const MRVSourcePlaces &places)
    {
        for (int i = 0; i < text.size(); ++i) {
            if (mrvIsMarkupBlank(text.at(i))) {
                m_blanks.append({text.at(i), places.at(i)});
            } else if (!mrvIsStructure(text.at(i))) {
                passBlanks();
                if (m_position >= m_text.size() || m_text.at(m_position) != text.at(i)) {
                    return false;
                }
                m_places[m_position++] = places.at(i);
            }
        }
        return true;
    }

    MRVSourcePlaces places()
    {
        passBlanks();
        return m_places;
    }

private:
    struct Blank
    {
        QChar character;
        MRVSourcePlace place;
    };

    // The blanks up to the next text: up to the first end of a line, and after the last one.
    void passBlanks()
    {
        const int begin = m_position;
        int firstEnd = -1;
        int lastEnd = -1;
        for (; m_position < m_text.size(); ++m_position) {
            if (mrvIsStructure(m_text.at(m_position))) {
                firstEnd = firstEnd < 0 ? m_position : firstEnd;
                lastEnd = m_position;
            } else if (!mrvIsMarkupBlank(m_text.at(m_position))) {
                break;
            }
        }
        if (firstEnd < 0) {
            pair(begin, m_position, 0, m_blanks.size());
        } else {
            pair(begin, firstEnd, 0, blanksBefore(firstEnd - begin));
            pair(lastEnd + 1, m_position, m_blanks.size() - blanksAfter(m_position - lastEnd - 1),
                 m_blanks.size());
        }
        m_blanks.clear();
    }

    int blanksBefore(int most) const
    {
        int count = 0;
        while (count < m_blanks.size() && count < most && m_blanks[count].character != u'\n') {
            ++count;
        }
        return count;
    }

    int blanksAfter(int most) const
    {
        int count = 0;
        while (count < m_blanks.size() && count < most
               && m_blanks[m_blanks.size() - 1 - count].character != u'\n') {
            ++count;
        }
        return count;
    }

    // Blanks of the document with those of the page: as many, or one for several side by side.
    void pair(int begin, int end, int from, int to)
    {
        if (end - begin == to - from) {
            for (int i = 0; i < to - from; ++i) {
                m_places[begin + i] = m_blanks[from + i].place;
            }
        } else if (end - begin == 1 && from < to) {
            MRVSourcePlace all = m_blanks[from].place;
            for (int i = from + 1; i < to && all.isKnown(); ++i) {
                const MRVSourcePlace &next = m_blanks[i].place;
                if (next.start != all.end()) {
                    return;
                }
                all.length += next.length;
            }
            m_places[begin] = all;
        }
    }

    const QString &m_text;
    MRVSourcePlaces m_places;
    QVector<Blank> m_blanks; // of the page, since the last text
    int m_position = 0; // in the document
};

} // namespace

MRVSourcePlaces mrvHtmlPlaces(const MRVHtmlTree &tree, const MRVHtmlRuns &runs, const QString &text)
{
    NodePlaces nodes(tree);
    Alignment alignment(text);
    for (const MRVHtmlRun &run : runs) {
        if (!alignment.add(run.text, nodes.of(run))) {
            break;
        }
    }
    return alignment.places();
}

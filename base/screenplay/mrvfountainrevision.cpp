#include "screenplay/mrvfountain.h"

#include "screenplay/mrvfountainsyntax_p.h"

#include <climits>

using namespace MrvFountain;

namespace {

struct Patch
{
    Range range; // of the plain text
    QString text;
};

// The line ending of the first line of a text.
QString lineEndOf(const QString &text)
{
    const int end = text.indexOf(u'\n');
    if (end < 0) {
        return text.contains(u'\r') ? QStringLiteral("\r") : QStringLiteral("\n");
    }
    return end > 0 && text.at(end - 1) == u'\r' ? QStringLiteral("\r\n") : QStringLiteral("\n");
}

// The characters that plainText() leaves out, except lone surrogates, which no file holds.
bool isLeftOut(QChar c)
{
    const ushort code = c.unicode();
    return (code < 0x20 && (code < u'\t' || code > u'\r')) || code >= 0xFFFE;
}

// Walks over the original text by positions of its plain form.
class Source
{
public:
    explicit Source(const QString &text)
        : m_text(text)
        , m_lineEnd(lineEndOf(text))
    {
        if (text.startsWith(QChar(QChar::ByteOrderMark))) {
            m_result += m_text.at(m_at++);
        }
    }

    void copyTo(int position)
    {
        const int start = m_at;
        skipTo(position);
        m_result += m_text.midRef(start, m_at - start);
    }
    void skipTo(int position)
    {
        while (m_position < position && m_at < m_text.size()) {
            const bool isPair = m_text.at(m_at) == u'\r' && m_at + 1 < m_text.size()
                && m_text.at(m_at + 1) == u'\n';
            m_position += isLeftOut(m_text.at(m_at)) ? 0 : 1;
            m_at += isPair ? 2 : 1;
        }
    }
    void add(QString text) { m_result += text.replace(u'\n', m_lineEnd); }
    const QString &result() const { return m_result; }

private:
    const QString &m_text;
    const QString m_lineEnd;
    QString m_result;
    int m_at = 0;
    int m_position = 0; // of the plain text
};

QVector<Patch> whole(const QString &text)
{
    return {{{0, INT_MAX}, text}};
}

QVector<Patch> patches(const MRVFountainScript &script, const QString &plain)
{
    TextRanges oldRanges;
    TextRanges newRanges;
    const MRVFountainScript old = scriptOf(plain, &oldRanges);
    const QString text = textOf(script, &newRanges);
    if (old.elements.size() != script.elements.size()) {
        return whole(text);
    }
    QVector<Patch> patches;
    const auto add = [&](const Range &range, const Range &with) {
        patches.append({range, text.mid(with.start, with.end - with.start)});
        // The last line may end with the text.
        if (range.end == plain.size() && !plain.endsWith(u'\n')
            && patches.constLast().text.endsWith(u'\n')) {
            patches.last().text.chop(1);
        }
    };
    if (old.titles != script.titles) {
        add(oldRanges.titles, newRanges.titles);
    }
    for (int i = 0; i < script.elements.size(); ++i) {
        if (old.elements.at(i) != script.elements.at(i)) {
            add(oldRanges.elements.at(i), newRanges.elements.at(i));
        }
    }
    return patches;
}

QString patched(const QString &source, const QVector<Patch> &patches)
{
    Source walk(source);
    for (const Patch &patch : patches) {
        walk.copyTo(patch.range.start);
        walk.skipTo(patch.range.end);
        walk.add(patch.text);
    }
    walk.copyTo(source.size());
    return walk.result();
}

} // namespace

QString MRVFountainScript::toText(const QString &source) const
{
    const MRVFountainScript normal = normalized();
    const QString plain = plainText(source);
    const QString revised = patched(source, patches(normal, plain));
    // How a line is read depends on the lines around it, so some cannot be changed alone.
    return fromText(revised) == normal ? revised : patched(source, whole(textOf(normal)));
}

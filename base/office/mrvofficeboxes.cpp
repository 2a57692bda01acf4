#include "office/mrvofficeboxes_p.h"

#include "office/mrvofficexml_p.h"

#include <QVector>

#include <algorithm>

namespace {

template<int Count>
bool isOneOf(const MRVOfficeTag &tag, const char *const (&names)[Count])
{
    return std::any_of(std::begin(names), std::end(names),
                       [&tag](const char *name) { return tag.is(name); });
}

// What holds paragraphs.
bool isBox(const MRVOfficeTag &tag)
{
    constexpr const char *names[] = {"w:txbxContent", "draw:text-box", "draw:custom-shape"};
    return isOneOf(tag, names);
}

// What boxes are in, and cannot stay in.
bool isHolder(const MRVOfficeTag &tag)
{
    constexpr const char *names[] = {"w:p", "text:p", "text:h", "draw:frame", "draw:g"};
    return isOneOf(tag, names);
}

/** Moves boxes. */
class BoxMover
{
public:
    explicit BoxMover(const QByteArray &xml)
        : m_xml(xml)
        , m_levels(1)
    {
    }

    QByteArray moved()
    {
        MRVOfficeTag tag;
        for (MRVOfficeTags tags(m_xml); tags.next(&tag);) {
            if (tag.is("mc:Fallback") && tag.kind != MRVOfficeTag::Empty) {
                m_fallbacks += tag.kind == MRVOfficeTag::Start ? 1 : -1;
            }
            if (m_fallbacks > 0 || tag.kind == MRVOfficeTag::Empty) {
                continue;
            }
            if (isBox(tag)) {
                tag.kind == MRVOfficeTag::Start ? beginBox(tag) : endBox(tag);
            } else if (isHolder(tag)) {
                copyUpTo(tag.end);
                tag.kind == MRVOfficeTag::Start ? void(++m_levels.last().holders) : endHolder();
            }
        }
        copyUpTo(m_xml.size());
        while (m_levels.size() > 1) {
            leaveLevel();
        }
        return m_levels.first().text + m_levels.first().waiting;
    }

private:
    /** The whole text, or a box. */
    struct Level
    {
        QByteArray text;
        QByteArray waiting; // boxes of what has not ended
        int holders = 0; // that have not ended
    };

    void copyUpTo(int end)
    {
        m_levels.last().text.append(m_xml.constData() + m_done, end - m_done);
        m_done = end;
    }

    void beginBox(const MRVOfficeTag &tag)
    {
        copyUpTo(tag.begin);
        m_done = tag.end;
        m_levels.append(Level());
    }

    void endBox(const MRVOfficeTag &tag)
    {
        copyUpTo(tag.begin);
        m_done = tag.end;
        if (m_levels.size() > 1) {
            leaveLevel();
        }
    }

    void leaveLevel()
    {
        const Level box = m_levels.takeLast();
        Level &outside = m_levels.last();
        (outside.holders > 0 ? outside.waiting : outside.text) += box.text + box.waiting;
    }

    void endHolder()
    {
        Level &level = m_levels.last();
        level.holders = std::max(0, level.holders - 1);
        if (level.holders == 0) {
            level.text += level.waiting;
            level.waiting.clear();
        }
    }

    const QByteArray &m_xml;
    QVector<Level> m_levels;
    int m_done = 0;
    int m_fallbacks = 0; // around this place
};

// What is inside of the first element with that name; empty without one.
QByteArray contentOf(const QByteArray &xml, const QByteArray &name)
{
    const int begin = xml.indexOf('>', xml.indexOf('<' + name + '>')) + 1;
    const int end = xml.indexOf("</" + name + '>', begin);
    return xml.contains('<' + name + '>') && end > begin ? xml.mid(begin, end - begin)
                                                         : QByteArray();
}

// A DOCX has the reading first, and both within a fragment of text, where no other may be.
QByteArray plainRuby(const QByteArray &ruby)
{
    const QByteArray before("<w:r><w:t>(</w:t></w:r>");
    const QByteArray after("<w:r><w:t>)</w:t></w:r>");
    return "</w:r>" + contentOf(ruby, "w:rubyBase") + before + contentOf(ruby, "w:rt") + after
        + "<w:r>";
}

} // namespace

QByteArray mrvWithBoxesAfterParagraphs(const QByteArray &xml)
{
    return BoxMover(xml).moved();
}

QByteArray mrvWithPlainRuby(const QByteArray &xml)
{
    QByteArray plain;
    int done = 0;
    int ruby = -1; // where one of a DOCX begins
    MRVOfficeTag tag;
    const auto replace = [&](int begin, const QByteArray &text) {
        plain += xml.mid(done, begin - done) + text;
        done = tag.end;
    };
    for (MRVOfficeTags tags(xml); tags.next(&tag);) {
        const bool isEnd = tag.kind == MRVOfficeTag::End;
        if (tag.is("text:ruby") || tag.is("text:ruby-base")) {
            replace(tag.begin, QByteArray());
        } else if (tag.is("text:ruby-text")) {
            replace(tag.begin, isEnd ? ")" : tag.kind == MRVOfficeTag::Start ? "(" : "");
        } else if (tag.is("w:ruby") && !isEnd) {
            ruby = tag.begin;
        } else if (tag.is("w:ruby") && ruby >= done) {
            replace(ruby, plainRuby(xml.mid(ruby, tag.begin - ruby)));
        }
    }
    return done > 0 ? plain + xml.mid(done) : xml;
}

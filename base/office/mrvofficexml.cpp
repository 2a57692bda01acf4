#include "office/mrvofficexml_p.h"

#include <cstring>

namespace {

bool endsName(char character)
{
    return strchr(" \t\r\n/>", character);
}

// After the ">" that ends the tag at @p at, which may also be in its attributes; -1 without one.
int endOfTag(const QByteArray &xml, int at)
{
    char quote = 0;
    for (; at < xml.size(); ++at) {
        const char character = xml.at(at);
        if (quote == 0 && character == '>') {
            return at + 1;
        }
        if (quote != 0) {
            quote = character == quote ? 0 : quote;
        } else if (character == '"' || character == '\'') {
            quote = character;
        }
    }
    return -1;
}

} // namespace

bool MRVOfficeTags::next(MRVOfficeTag *tag)
{
    for (int at = m_xml.indexOf('<', m_at); at >= 0; at = m_xml.indexOf('<', at)) {
        const bool isComment = m_xml.mid(at, 4) == "<!--";
        const bool isOther = m_xml.mid(at, 2) == "<!" || m_xml.mid(at, 2) == "<?";
        const int end = isComment ? m_xml.indexOf("-->", at) + 3 : endOfTag(m_xml, at);
        if (end < at) {
            break;
        }
        at = isOther ? end : at;
        if (isOther) {
            continue;
        }
        tag->begin = at;
        tag->end = end;
        tag->kind = m_xml.at(at + 1) == '/' ? MRVOfficeTag::End
            : m_xml.at(end - 2) == '/'      ? MRVOfficeTag::Empty
                                            : MRVOfficeTag::Start;
        const int name = at + (tag->kind == MRVOfficeTag::End ? 2 : 1);
        int nameEnd = name;
        while (nameEnd < end && !endsName(m_xml.at(nameEnd))) {
            ++nameEnd;
        }
        tag->name = QByteArray::fromRawData(m_xml.constData() + name, nameEnd - name);
        m_at = end;
        return true;
    }
    m_at = m_xml.size();
    return false;
}

QByteArray mrvOfficeAttribute(const QByteArray &tag, const QByteArray &name)
{
    const int begin = tag.indexOf(' ' + name + "=\"");
    const int value = begin + name.size() + 3;
    return begin < 0 ? QByteArray() : tag.mid(value, tag.indexOf('"', value) - value);
}

QByteArray mrvWithoutTags(const QByteArray &xml, const QByteArray &name)
{
    QByteArray rest;
    int done = 0;
    MRVOfficeTag tag;
    for (MRVOfficeTags tags(xml); tags.next(&tag);) {
        if (tag.name == name) {
            rest += xml.mid(done, tag.begin - done);
            done = tag.end;
        }
    }
    return done > 0 ? rest + xml.mid(done) : xml;
}

QByteArray mrvWithoutEntities(QByteArray text)
{
    return text.replace("&quot;", "\"")
        .replace("&apos;", "'")
        .replace("&lt;", "<")
        .replace("&gt;", ">")
        .replace("&amp;", "&");
}

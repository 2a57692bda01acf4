#include "dom/mrvdomblanks_p.h"

#include "dom/mrvxmltokens_p.h"

#include <QDomElement>
#include <QRegularExpression>
#include <QVector>

#include <algorithm>

namespace {

// Half of a surrogate pair stands in no XML text, and Qt's parser takes it for any character.
constexpr QChar Mark(0xD800);

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\n' || c == u'\t' || c == u'\r';
}

/** Follows the elements of a text and notes where marks belong. */
class BlankFinder
{
public:
    explicit BlankFinder(const QString &xml)
        : m_xml(xml)
        , m_tokens(xml)
    {
    }

    /** In ascending order. */
    QVector<int> marks()
    {
        while (m_tokens.next()) {
            addToken();
        }
        std::sort(m_marks.begin(), m_marks.end());
        return m_marks;
    }

private:
    struct Element
    {
        QVector<int> blanks; // where marks belong if the white space in it is text
        bool hasText = false;
        bool preserves = false;
    };

    void addText(int start, int end)
    {
        Element &element = m_open.last();
        const int known = element.blanks.size();
        bool isLayout = false;
        bool hasReference = false;
        element.blanks.append(start);
        for (int i = start; i < end; ++i) {
            const QChar c = m_xml[i];
            isLayout = isLayout || c == u'\n';
            if (c == u'&') {
                // The parser drops white space that is written by references, too.
                const int length = int(QStringView(m_xml).mid(i, end - i).indexOf(u';'));
                hasReference = true;
                i = length < 0 ? end : i + length;
                element.blanks.append(qMin(i + 1, end));
            } else if (!isBlank(c)) {
                element.hasText = true;
                // The parser also drops what only Unicode counts as white space.
                if (!c.isSpace()) {
                    element.blanks.resize(known);
                    return;
                }
            }
        }
        element.hasText = element.hasText || hasReference || !isLayout;
    }

    void addToken()
    {
        switch (m_tokens.kind()) {
        case MRVXmlTokens::Text:
            if (!m_open.isEmpty()) {
                addText(m_tokens.start(), m_tokens.end());
            }
            break;
        case MRVXmlTokens::Section:
            if (!m_open.isEmpty()) {
                m_open.last().hasText = true;
            }
            break;
        case MRVXmlTokens::StartTag:
            open(m_tokens.text());
            break;
        case MRVXmlTokens::EndTag:
            close();
            break;
        default:
            break;
        }
    }

    void open(QStringView tag)
    {
        Element element;
        element.preserves = !m_open.isEmpty() && m_open.last().preserves;
        if (tag.contains(QLatin1String("xml:space"))) {
            static const QRegularExpression space(
                QStringLiteral("\\sxml:space\\s*=\\s*[\"'](preserve|default)[\"']"));
            const QRegularExpressionMatch match = space.match(tag.toString());
            element.preserves = match.hasMatch() ? match.capturedRef(1) == QLatin1String("preserve")
                                                 : element.preserves;
        }
        m_open.append(element);
    }

    void close()
    {
        if (m_open.isEmpty()) {
            return;
        }
        const Element element = m_open.takeLast();
        if (element.hasText || element.preserves) {
            m_marks += element.blanks;
        }
    }

    const QString &m_xml;
    MRVXmlTokens m_tokens;
    QVector<Element> m_open;
    QVector<int> m_marks;
};

} // namespace

MRVDomContent mrvDomContentOf(const QDomNode &element)
{
    bool hasText = false;
    bool isStretch = false; // of white space, up to here
    bool hasLineEnd = false;
    for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isCDATASection() || node.isEntityReference()) {
            return MRVDomContent::Text;
        }
        if (!node.isText()) {
            if (isStretch && !hasLineEnd) {
                return MRVDomContent::Text;
            }
            isStretch = false;
            hasLineEnd = false;
            continue;
        }
        const QString text = node.nodeValue();
        hasText = true;
        // A carriage return is written as a reference.
        if (!text.isEmpty() && (!mrvIsBlankXml(text) || text.contains(u'\r'))) {
            return MRVDomContent::Text;
        }
        isStretch = isStretch || !text.isEmpty();
        hasLineEnd = hasLineEnd || text.contains(u'\n');
    }
    if (isStretch && !hasLineEnd) {
        return MRVDomContent::Text;
    }
    return hasText ? MRVDomContent::Lines : MRVDomContent::Elements;
}

QDomNode mrvFirstContent(const QDomNode &element)
{
    const QDomNode first = element.firstChild();
    const QDomNode second = first.nextSibling();
    const bool isLeading = first.nodeType() == QDomNode::TextNode && !second.isNull()
        && !second.isText() && mrvIsBlankXml(first.nodeValue());
    return isLeading ? second : first;
}

bool mrvPreservesBlanks(const QDomNode &element, bool outer)
{
    const QString space = element.toElement().attribute(QStringLiteral("xml:space"));
    return space == QLatin1String("preserve") || (outer && space != QLatin1String("default"));
}

bool mrvIsBlankXml(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.cbegin(), text.cend(), isBlank);
}

QString mrvMarkBlanks(const QString &xml)
{
    const QVector<int> marks = BlankFinder(xml).marks();
    if (marks.isEmpty()) {
        return xml;
    }
    QString marked;
    marked.reserve(xml.size() + marks.size());
    int done = 0;
    for (const int mark : marks) {
        marked += xml.midRef(done, mark - done);
        marked += Mark;
        done = mark;
    }
    return marked + xml.midRef(done);
}

void mrvRemoveMarks(QDomNode document)
{
    QDomNode node = document;
    while (!node.isNull()) {
        if (node.isText() && node.nodeValue().contains(Mark)) {
            node.setNodeValue(node.nodeValue().remove(Mark));
        }
        QDomNode next = node.firstChild();
        while (next.isNull() && !node.isNull()) {
            next = node.nextSibling();
            node = next.isNull() ? node.parentNode() : node;
        }
        node = next;
    }
}

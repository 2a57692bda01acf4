#include "dom/mrvxmltokens_p.h"

MRVXmlTokens::MRVXmlTokens(const QString &xml)
    : m_xml(xml)
{
}

bool MRVXmlTokens::next()
{
    m_start = m_end;
    if (m_start >= m_xml.size()) {
        return false;
    }
    if (m_xml[m_start] != u'<') {
        const int found = m_xml.indexOf(u'<', m_start);
        m_kind = Text;
        m_end = found < 0 ? m_xml.size() : found;
        return true;
    }
    if (pass(Comment, QLatin1String("<!--"), QLatin1String("-->"))
        || pass(Section, QLatin1String("<![CDATA["), QLatin1String("]]>"))
        || pass(Instruction, QLatin1String("<?"), QLatin1String("?>"))
        || pass(EndTag, QLatin1String("</"), QLatin1String(">"))) {
        return true;
    }
    if (QStringView(m_xml).mid(m_start).startsWith(QLatin1String("<!"))) {
        m_kind = DocumentType;
        passDocumentType();
    } else {
        passTag();
        m_kind = text().endsWith(QLatin1String("/>")) ? EmptyTag : StartTag;
    }
    return true;
}

// Passes what begins and ends as a kind of token does; false where another one stands.
bool MRVXmlTokens::pass(Kind kind, QLatin1String start, QLatin1String end)
{
    if (!QStringView(m_xml).mid(m_start).startsWith(start)) {
        return false;
    }
    const int found = m_xml.indexOf(end, m_start + start.size());
    m_end = found < 0 ? m_xml.size() : found + end.size();
    m_kind = kind;
    return true;
}

// Passes a tag, or a declaration up to its own declarations.
void MRVXmlTokens::passTag(QChar other)
{
    QChar quote;
    for (++m_end; m_end < m_xml.size(); ++m_end) {
        const QChar c = m_xml[m_end];
        if (!quote.isNull()) {
            quote = c == quote ? QChar() : quote;
        } else if (c == u'"' || c == u'\'') {
            quote = c;
        } else if (c == u'>' || c == other) {
            ++m_end;
            return;
        }
    }
}

void MRVXmlTokens::passDocumentType()
{
    passTag(u'[');
    if (m_xml[m_end - 1] != u'[') {
        return;
    }
    const auto passTo = [this](QLatin1String end) {
        const int found = m_xml.indexOf(end, m_end);
        m_end = found < 0 ? m_xml.size() : found + end.size();
    };
    while (m_end < m_xml.size() && m_xml[m_end] != u']') {
        const QStringView markup = QStringView(m_xml).mid(m_end);
        if (markup.startsWith(QLatin1String("<!--"))) {
            m_end += 4;
            passTo(QLatin1String("-->"));
        } else if (markup.startsWith(QLatin1String("<?"))) {
            passTo(QLatin1String("?>"));
        } else if (markup.startsWith(u'<')) {
            passTag();
        } else {
            ++m_end;
        }
    }
    passTo(QLatin1String(">"));
}

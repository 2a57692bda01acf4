#pragma once

#include <QString>
#include <QStringView>

/**
 * Goes from token to token through an XML text that keeps to MRVDomLimits. Together the tokens are
 * the text. What is not well-formed gives tokens, too, of which nothing is promised.
 */
class MRVXmlTokens
{
public:
    enum Kind {
        Text, /**< up to the next "<" */
        StartTag,
        EmptyTag, /**< of an element without an end tag */
        EndTag,
        Comment,
        Section, /**< CDATA */
        Instruction, /**< the XML declaration counts as one */
        DocumentType /**< with its own declarations */
    };

    /** Before the first token of @p xml, which has to outlive this object. */
    explicit MRVXmlTokens(const QString &xml);

    /** Goes to the next token; false at the end. */
    bool next();
    Kind kind() const { return m_kind; }
    /** The offset of its first character. */
    int start() const { return m_start; }
    /** The offset after its last character. */
    int end() const { return m_end; }
    QStringView text() const { return QStringView(m_xml).mid(m_start, m_end - m_start); }

private:
    bool pass(Kind kind, QLatin1String start, QLatin1String end);
    void passTag(QChar other = u'>');
    void passDocumentType();

    const QString &m_xml;
    Kind m_kind = Text;
    int m_start = 0;
    int m_end = 0;
};

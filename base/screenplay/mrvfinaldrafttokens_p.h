#pragma once

#include "screenplay/mrvfinaldraftparts_p.h"

#include <QString>
#include <QVector>
#include <QXmlStreamReader>

/** Reads the tokens of a Final Draft document and knows where each stands. */
class MrvFinalDraftTokens
{
public:
    /** Before the first token of @p text, which has to outlive this object. */
    explicit MrvFinalDraftTokens(const QString &text)
        : m_text(text)
        , m_xml(text)
    {
    }

    QXmlStreamReader::TokenType next();
    /** Goes to the next element in the current one; false, at its end, where that has no more. */
    bool nextChild();
    bool atEnd() const { return m_xml.atEnd(); }
    /** Ends the reading with an error. */
    void fail(const QString &error) { m_xml.raiseError(error); }
    /** To look at, not to go on with. */
    const QXmlStreamReader &xml() const { return m_xml; }

    /** Where the current token stands. */
    int start() const { return m_start; }
    int end() const { return m_end; }

    bool is(const char *tag) const { return m_xml.name() == QLatin1String(tag); }
    bool has(const char *attribute) const
    {
        return m_xml.attributes().hasAttribute(QLatin1String(attribute));
    }
    QString attribute(const char *name) const
    {
        return m_xml.attributes().value(QLatin1String(name)).toString();
    }
    /** The characters that are the current token. */
    MrvFinalDraftPiece characters() const;
    /** An attribute of the start tag that is the current token. */
    MrvFinalDraftPiece attributePiece(const char *name) const;

    /**
     * The paragraphs of the current element that hold text, up to its end. Those of what a
     * character goes through begin with the name.
     */
    QVector<MrvFinalDraftPieces> readParagraphs();

private:
    const QString &m_text;
    QXmlStreamReader m_xml;
    int m_start = 0;
    int m_end = 0;
};

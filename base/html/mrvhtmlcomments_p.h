#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QTextCharFormat>

/** A comment in the margin, as the element that begins it says. */
struct MRVHtmlComment
{
    int number = 0; ///< of it in the page
    QString author;
    QString date;
    QString text; ///< a line a paragraph
};

/**
 * The comment at a place of a document that is being written.
 *
 * A character has one comment. So a comment ends where another one begins in it, and those that
 * begin at the same character, as answers do, are one comment with all texts.
 */
class MRVHtmlComments
{
public:
    void begin(const MRVHtmlComment &comment);
    void end(int number);

    /** Whether the next character belongs to a comment. */
    bool isOpen() const { return !m_texts.isEmpty(); }
    /** Whether no character that is seen has got the comment yet. */
    bool isWaiting() const { return isOpen() && !m_isWritten; }
    /** Whether the comment has ended without a character, so that one is needed for it. */
    bool isPoint() const { return isOpen() && m_numbers.isEmpty(); }
    /** The format of text with the comment, after another one that it may have. */
    QTextCharFormat added(QTextCharFormat format) const;
    /** To be called after a character that is seen has got the comment. */
    void setWritten();
    /** How many have begun. */
    int count() const { return m_count; }

private:
    MRVHtmlComment m_first; // of those that have begun at one character
    QStringList m_texts;
    QSet<int> m_numbers; // of those that have not ended
    bool m_isWritten = false;
    int m_count = 0;
};

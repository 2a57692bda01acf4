#pragma once

#include <QString>
#include <QVector>

/**
 * A text in which characters that writers consider equal are equal: straight and curly quotes, the
 * kinds of hyphens, the kinds of blanks and objects, composed and decomposed letters.
 *
 * Letters are composed (NFC), so positions differ from those of the text that was given.
 */
class MRVFoldedText
{
public:
    explicit MRVFoldedText(const QString &original);

    const QString &text() const { return m_text; }
    /** The first place in text() that belongs to @p offset in the original, or to a later one. */
    int fromOriginal(int offset) const;
    /** Where in the original the character at @p index starts; text() may end there. */
    int toOriginalStart(int index) const;
    /** Where in the original a part of text() that ends at @p index ends. */
    int toOriginalEnd(int index) const;

    /** A text to search for, as it is found in folded texts. */
    static QString foldPattern(const QString &text);
    /** The same for a regular expression: no literal character becomes an operator. */
    static QString foldExpression(const QString &pattern);

private:
    void compose();

    QString m_text;
    QVector<int> m_starts; // of each character in the original; empty where all positions hold
    QVector<int> m_ends;
};

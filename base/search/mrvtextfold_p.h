#pragma once

#include <QFlags>
#include <QString>
#include <QVector>

/**
 * A text in which characters that writers consider equal are equal, with the places in the text
 * that was given.
 *
 * Letters are composed (NFC), so positions differ, as they do where one character becomes several
 * or none.
 */
class MRVFoldedText
{
public:
    enum Option {
        /**
         * Quotes, hyphens and blanks are of one kind each; ligatures, full-width letters and the
         * ellipsis are spelled out; soft hyphens and characters without width are left out.
         */
        Typography = 1,
        Accents = 2, ///< letters lose their accents
        /** Letters whose case folding is longer than one character, as the sharp s, are folded. */
        Case = 4,
    };
    Q_DECLARE_FLAGS(Options, Option)

    /** Without options the text stays as it is. */
    MRVFoldedText(const QString &original, Options options);

    const QString &text() const { return m_text; }
    /** The first place in text() that belongs to @p offset in the original, or to a later one. */
    int fromOriginal(int offset) const;
    /** Where in the original the character at @p index starts; text() may end there. */
    int toOriginalStart(int index) const;
    /** Where in the original a part of text() that ends at @p index ends. */
    int toOriginalEnd(int index) const;
    /** Whether a place in text() is between two letters of the original, or at an end. */
    bool isBoundary(int index) const;

    /** A regular expression for folded texts: no literal character becomes an operator. */
    static QString foldExpression(const QString &pattern, Options options);

private:
    void foldLetters(Options options);

    QString m_text;
    QVector<int> m_starts; // of each character in the original; empty where all positions hold
    QVector<int> m_ends;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MRVFoldedText::Options)

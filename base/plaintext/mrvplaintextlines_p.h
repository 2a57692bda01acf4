#pragma once

#include <QString>
#include <QVector>

/** A line of a plain text that is not blank. */
struct MRVPlainLine
{
    QString text; ///< without white space around it
    int number = 0; ///< in the text, from 1
    int indent = 0; ///< columns; a tabulator goes on to the next eighth

    int width() const { return indent + text.size(); }
    /** Whether its first letter, after quotes and the like, is one. */
    bool hasCapital() const;
};

/** Lines without a blank one between them. */
using MRVPlainGroup = QVector<MRVPlainLine>;

/** What the lines of a whole text have in common. */
struct MRVPlainLayout
{
    static constexpr int VerseWidth = 60; ///< most lines of verse are shorter

    int width = 0; ///< to which its lines were broken; 0: they were not
    int indent = 0; ///< of most groups
    bool hasBlankLines = false; ///< between its paragraphs, or its stanzas

    /**
     * Whether the line ends although the first word of the next one would have fit by @p slack
     * columns: on purpose, then.
     */
    bool endsEarly(const MRVPlainLine &line, const MRVPlainLine &next, int slack) const;
};

QVector<MRVPlainGroup> mrvPlainGroups(const QString &text);
MRVPlainLayout mrvPlainLayout(const QVector<MRVPlainGroup> &groups);

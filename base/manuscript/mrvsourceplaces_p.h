#pragma once

#include "manuscript/mrvmanuscript.h"

#include <QString>
#include <QVector>

/** Where a character of a document is in the source; a negative start: nowhere, or unknown. */
struct MRVSourcePlace
{
    int start = -1;
    int length = 0;

    int end() const { return start + length; }
};

/** By position in the document. */
using MRVSourcePlaces = QVector<MRVSourcePlace>;

/**
 * Where each character of @p text, the raw text of a document, is in the source that the document
 * was read from. Empty where the two do not match.
 */
MRVSourcePlaces mrvSourcePlaces(const QString &source, const QString &text,
                                MRVManuscript::Format format);

/** A character that markup takes for white space. */
inline bool mrvIsBlank(QChar character)
{
    return character == u' ' || (character >= u'\t' && character <= u'\r');
}

/** What a document holds between its text: ends of lines, paragraphs and cells, and pictures. */
inline bool mrvIsStructure(QChar character)
{
    return character == QChar::ParagraphSeparator || character == QChar::LineSeparator
        || character == QChar::ObjectReplacementCharacter || character == QChar(0xfdd0)
        || character == QChar(0xfdd1);
}

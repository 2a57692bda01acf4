#pragma once

#include <QChar>

/**
 * A character that markup takes for white space.
 *
 * @since 1.0
 */
inline bool mrvIsMarkupBlank(QChar character)
{
    return character == u' ' || (character >= u'\t' && character <= u'\r');
}

/**
 * What a document holds between its text: ends of lines, paragraphs, frames and cells, and
 * pictures.
 *
 * @since 1.0
 */
inline bool mrvIsStructure(QChar character)
{
    return character == QChar::ParagraphSeparator || character == QChar::LineSeparator
        || character == QChar::ObjectReplacementCharacter
        || (character >= QChar(0xfdd0) && character <= QChar(0xfdef));
}

#pragma once

#include "util/mrvbase_export.h"

#include <QVector>

struct MRVManuscript;

/**
 * Which lines of its source the text of a manuscript comes from.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVSourceLines
{
public:
    /**
     * Reads the source of @p manuscript once more, which takes about as long as reading it did. Its
     * document must be as it was read, for Editing.
     */
    explicit MRVSourceLines(const MRVManuscript &manuscript);

    /**
     * The line, from 1, of the character at @p position of the document, or of the next one that
     * the source has; 0 where it is not known, as in files of word processors.
     */
    int lineAt(int position) const;

private:
    QVector<int> m_places; // of each character in the source; of the next one where it is unknown
    QVector<int> m_lineEnds; // in the source
};

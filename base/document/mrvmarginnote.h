#pragma once

#include "text/mrvtextrange.h"
#include "util/mrvbase_export.h"

#include <QFlags>
#include <QString>

/**
 * A comment or footnote that stands in the margin beside the text that it is about.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVMarginNote
{
    enum Kind {
        None = 0, ///< there is no note
        Comment = 1, ///< for whoever works on the text
        Footnote = 2, ///< for the reader of the text
    };
    Q_DECLARE_FLAGS(Kinds, Kind)

    Kind kind = None;
    /**
     * From the first character of the text to after the last one. What lies between may belong to
     * other notes, or to none.
     */
    MRVTextRange range;
    QString text; ///< of the note, with a line feed between two paragraphs
    /**
     * What MRVMarginNotes::add() has returned. Text that was copied has the id of its original.
     * Notes of other origin may have none.
     */
    QString id;
    QString author; ///< may be empty
    QString date; ///< as add() got it; may be empty
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MRVMarginNote::Kinds)

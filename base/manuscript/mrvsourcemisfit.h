#pragma once

#include "search/mrvtextreplacer.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QString>

/**
 * A change that a source cannot take.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVSourceMisfit
{
    Q_DECLARE_TR_FUNCTIONS(MRVSourceMisfit)

public:
    MRVTextChange change; ///< as it was asked for
    int line = 0; ///< of the source, from 1, in which it would be or shortly before; 0: not known
    QString reason; ///< translated, the end of a sentence: "it does not fit into the markup"

    /** All that as a translated sentence without a full stop. */
    QString text() const;
};

#pragma once

#include "search/mrvquerysearch_p.h"
#include "search/mrvtextreplacement.h"

#include <QString>

/** The texts that take the places of finds, one after the other. */
class MRVReplacementText
{
public:
    /** @p replacement must live as long. */
    explicit MRVReplacementText(const MRVTextReplacement &replacement);

    /** The text for the next find. */
    QString next(const MRVQueryFind &find);

private:
    const MRVTextReplacement &m_replacement;
    int m_number;
};

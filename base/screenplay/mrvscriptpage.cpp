#include "screenplay/mrvscriptpage.h"

QString MRVScriptLine::text() const
{
    QString result;
    for (const MRVFountainRun &run : runs) {
        result += run.text;
    }
    return result;
}

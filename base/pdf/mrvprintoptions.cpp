#include "pdf/mrvprintoptions.h"

namespace {

constexpr const char *layoutNames[] = {"book", "manuscript"};

} // namespace

bool MRVPrintOptions::layoutNamed(const QString &name, Layout *layout)
{
    for (const Layout known : {Book, Manuscript}) {
        if (name == QLatin1String(layoutNames[known])) {
            *layout = known;
            return true;
        }
    }
    return false;
}

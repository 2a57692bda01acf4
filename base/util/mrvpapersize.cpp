#include "util/mrvpapersize.h"

QSizeF MRVPaperSize::named(const QString &name)
{
    struct Named
    {
        const char *name;
        QSizeF size;
    };
    constexpr Named all[] = {{"letter", Letter}, {"a4", A4}, {"a5", A5}};
    for (const Named &paper : all) {
        if (name == QLatin1String(paper.name)) {
            return paper.size;
        }
    }
    return {};
}

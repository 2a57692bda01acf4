#include "pdf/mrvprintoptions.h"

namespace {

struct PaperName
{
    const char *name;
    qreal width;
    qreal height;
};
constexpr PaperName papers[] = {{"letter", 612, 792},
                                {"a4", 595.2756, 841.8898},
                                {"a5", 419.5276, 595.2756}};

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

QSizeF MRVPrintOptions::paperNamed(const QString &name)
{
    for (const PaperName &paper : papers) {
        if (name == QLatin1String(paper.name)) {
            return {paper.width, paper.height};
        }
    }
    return {};
}

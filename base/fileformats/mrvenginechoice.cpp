#include "fileformats/mrvenginechoice.h"

#include <iterator>

namespace {

constexpr struct
{
    MRVEngineChoice::Reason reason;
    const char *name;
    const char *text; // %1: the stored engine
} reasons[] = {
    {MRVEngineChoice::NeitherSideRtf, "neitherSideRtf",
     QT_TRANSLATE_NOOP("MRVEngineChoice", "neither side is RTF, so no choice is kept")},
    {MRVEngineChoice::Default, "default",
     QT_TRANSLATE_NOOP("MRVEngineChoice", "it is the default, as nothing is stored")},
    {MRVEngineChoice::Stored, "stored",
     QT_TRANSLATE_NOOP("MRVEngineChoice", "it is the stored choice")},
    {MRVEngineChoice::Unlisted, "unlisted",
     QT_TRANSLATE_NOOP("MRVEngineChoice", "the stored choices do not include this format")},
    {MRVEngineChoice::Repaired, "repaired",
     QT_TRANSLATE_NOOP("MRVEngineChoice",
                       "the stored choice, %1, needs an application that is not available here")},
};

constexpr bool reasonsAreInOrder()
{
    for (int i = 0; i < int(std::size(reasons)); ++i) {
        if (reasons[i].reason != i) {
            return false;
        }
    }
    return std::size(reasons) == MRVEngineChoice::Repaired + 1;
}
static_assert(reasonsAreInOrder());

} // namespace

QString MRVEngineChoice::reasonText() const
{
    const QString text = tr(reasons[reason].text);
    return reason == Repaired ? text.arg(MRVImportExport::toString(stored)) : text;
}

const char *MRVEngineChoice::toString(Reason reason)
{
    return reasons[reason].name;
}

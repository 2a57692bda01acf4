#include "advice.h"

#include <QCoreApplication>

namespace {

struct Advice
{
    MRVErrorKind kind;
    const char *text;
};

// clang-format off
constexpr Advice advices[] = {
    {MRVErrorKind::NoSpace, QT_TRANSLATE_NOOP("Advice", "Free some space, or choose another disk.")},
    {MRVErrorKind::NoPermission, QT_TRANSLATE_NOOP("Advice", "Choose another folder.")},
    {MRVErrorKind::NotFound, QT_TRANSLATE_NOOP("Advice", "Check whether it was moved or has another name.")},
    {MRVErrorKind::InUse, QT_TRANSLATE_NOOP("Advice", "Close it in the other program, and try again.")},
    {MRVErrorKind::Damaged, QT_TRANSLATE_NOOP("Advice", "A backup of the file may help.")},
    {MRVErrorKind::TooLarge, QT_TRANSLATE_NOOP("Advice", "Divide it into several parts.")},
    {MRVErrorKind::ProgramMissing, QT_TRANSLATE_NOOP("Advice", "Install the program, and try again.")},
};
// clang-format on

} // namespace

QString adviceFor(MRVErrorKind kind)
{
    for (const Advice &advice : advices) {
        if (advice.kind == kind) {
            return QCoreApplication::translate("Advice", advice.text);
        }
    }
    return QString();
}

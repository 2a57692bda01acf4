#include "core/mrverror.h"

#include <QIODevice>

#include <cerrno>

namespace {

struct SystemError
{
    int number;
    MRVErrorKind kind;
};

constexpr SystemError SystemErrors[] = {
    {ENOSPC, MRVErrorKind::NoSpace},     {EDQUOT, MRVErrorKind::NoSpace},
    {EFBIG, MRVErrorKind::NoSpace},      {EACCES, MRVErrorKind::NoPermission},
    {EPERM, MRVErrorKind::NoPermission}, {EROFS, MRVErrorKind::NoPermission},
    {ENOENT, MRVErrorKind::NotFound},    {ENOTDIR, MRVErrorKind::NotFound},
    {EBUSY, MRVErrorKind::InUse},        {ETXTBSY, MRVErrorKind::InUse},
    {EWOULDBLOCK, MRVErrorKind::InUse},  {ECANCELED, MRVErrorKind::Cancelled},
};

template<typename Test>
MRVErrorKind kindWhere(Test isIt)
{
    for (const SystemError &error : SystemErrors) {
        if (isIt(error.number)) {
            return error.kind;
        }
    }
    return MRVErrorKind::Other;
}

} // namespace

MRVError MRVError::ofSystem(int number)
{
    return {kindWhere([number](int known) { return known == number; }), qt_error_string(number)};
}

MRVError MRVError::ofDevice(const QIODevice &device)
{
    // Of the system's error a QFileDevice keeps the text alone: error() is "OpenError" for a file
    // that is missing and for one that is forbidden, and errno may have changed since.
    const QString text = device.errorString();
    return {kindWhere([&text](int known) { return text == qt_error_string(known); }), text};
}

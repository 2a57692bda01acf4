#pragma once

#include "core/mrverror.h"

#include <cstddef>
#include <iterator>

/** A kind of failure, as JSON names it, and what it means. */
struct ErrorKindRow
{
    MRVErrorKind kind;
    const char *name;
    const char *means;
};

/** All kinds but None, in their order. */
constexpr ErrorKindRow errorKinds[] = {
    {MRVErrorKind::Other, "other", "Only the text says what it is."},
    {MRVErrorKind::NoSpace, "no-space",
     "The disk is full, or the user's share of it, or the file is longer than the disk takes."},
    {MRVErrorKind::NoPermission, "no-permission", "The system does not let this user do it."},
    {MRVErrorKind::NotFound, "not-found", "A file, folder or name that is needed does not exist."},
    {MRVErrorKind::InUse, "in-use", "Another program holds what is needed; later it may succeed."},
    {MRVErrorKind::Damaged, "damaged", "Contents are not what they should be, or break off."},
    {MRVErrorKind::Cancelled, "cancelled", "Somebody who may has ended it."},
    {MRVErrorKind::TooLarge, "too-large", "It is more than a limit of the tool allows."},
    {MRVErrorKind::Unsupported, "unsupported", "The format, version or encoding is not known."},
    {MRVErrorKind::ProgramMissing, "program-missing",
     "Another program does this work, and is not installed."},
    {MRVErrorKind::Network, "network",
     "A server cannot be reached, does not answer in time, or refuses."},
    {MRVErrorKind::Changed, "changed",
     "A file is not what it was when it was read; what others wrote would be lost."},
};

constexpr bool areErrorKindsInOrder()
{
    for (std::size_t i = 0; i < std::size(errorKinds); ++i) {
        if (std::size_t(errorKinds[i].kind) != i + 1) {
            return false;
        }
    }
    return std::size(errorKinds) == std::size_t(MRVErrorKind::Changed);
}
static_assert(areErrorKindsInOrder());

#pragma once

#include <core/mrverror.h>

#include <QString>

/** What users can do about a failure, a sentence or two; empty where nobody knows. */
QString adviceFor(MRVErrorKind kind);

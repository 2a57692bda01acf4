#pragma once

#include <QtGlobal>

#ifdef MRVCORE_BUILD
#define MRVCORE_EXPORT Q_DECL_EXPORT
#else
#define MRVCORE_EXPORT Q_DECL_IMPORT
#endif

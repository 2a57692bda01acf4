#pragma once

#include <QtGlobal>

#ifdef MRVBASE_BUILD
#define MRVBASE_EXPORT Q_DECL_EXPORT
#else
#define MRVBASE_EXPORT Q_DECL_IMPORT
#endif

#pragma once

#include <QtGlobal>

#ifdef MRVNETWORK_BUILD
#define MRVNETWORK_EXPORT Q_DECL_EXPORT
#else
#define MRVNETWORK_EXPORT Q_DECL_IMPORT
#endif

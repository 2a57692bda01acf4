#pragma once

#include <QtGlobal>

#ifdef MRVGUI_BUILD
#define MRVGUI_EXPORT Q_DECL_EXPORT
#else
#define MRVGUI_EXPORT Q_DECL_IMPORT
#endif

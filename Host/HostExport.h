#pragma once

#include <QtCore/QtGlobal>

#if defined(ZORVANE_STATIC)
#define ZORVANE_HOST_EXPORT
#elif defined(ZORVANE_HOST_BUILD)
#define ZORVANE_HOST_EXPORT Q_DECL_EXPORT
#else
#define ZORVANE_HOST_EXPORT Q_DECL_IMPORT
#endif

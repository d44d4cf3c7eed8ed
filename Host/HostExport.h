#pragma once

#include <QtCore/QtGlobal>

#ifdef ZORVANE_HOST_BUILD
#define ZORVANE_HOST_EXPORT Q_DECL_EXPORT
#else
#define ZORVANE_HOST_EXPORT Q_DECL_IMPORT
#endif

#pragma once

#include <QtCore/QtGlobal>

#if defined(ZORVANE_STATIC)
#define ZORVANE_UITOOLS_EXPORT
#elif defined(ZORVANE_UITOOLS_BUILD)
#define ZORVANE_UITOOLS_EXPORT Q_DECL_EXPORT
#else
#define ZORVANE_UITOOLS_EXPORT Q_DECL_IMPORT
#endif

#pragma once

#include <QtCore/QtGlobal>

#ifdef ZORVANE_UITOOLS_BUILD
#define ZORVANE_UITOOLS_EXPORT Q_DECL_EXPORT
#else
#define ZORVANE_UITOOLS_EXPORT Q_DECL_IMPORT
#endif

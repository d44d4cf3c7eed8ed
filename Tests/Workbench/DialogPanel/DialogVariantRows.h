#pragma once

#include "Tests/Support/TestCase.h"
#include "Workbench/DialogPanel/DialogRun.h"

// What rows of test data hold.
Q_DECLARE_METATYPE(Zorvane::Workbench::DialogVariant)

#pragma once

#include "Tests/Support/TestCase.h"
#include "Workbench/Stress/StressTree.h"

#include <vector>

// What rows of test data of trees under stress hold.
Q_DECLARE_METATYPE(Zorvane::Workbench::StressShape)
Q_DECLARE_METATYPE(Zorvane::Workbench::StressEdit)
Q_DECLARE_METATYPE(std::vector<Zorvane::Workbench::StressEdit>)

namespace Zorvane::Testing {

inline const std::vector<Workbench::StressEdit> allStressEdits{
    Workbench::StressEdit::Insert, Workbench::StressEdit::Remove, Workbench::StressEdit::Move,
    Workbench::StressEdit::Rename, Workbench::StressEdit::Shuffle};

} // namespace Zorvane::Testing

#include "Files/CopyProgress.h"

namespace Zorvane {

CopyProgress::CopyProgress() = default;
CopyProgress::~CopyProgress() = default;

} // namespace Zorvane

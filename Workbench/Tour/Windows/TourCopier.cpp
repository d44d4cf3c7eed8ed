#include "Workbench/Tour/TourCopier.h"

namespace Zorvane::Workbench {

FileCopierFactory tourCopiers(LookAtProgress)
{
    return {};
}

} // namespace Zorvane::Workbench

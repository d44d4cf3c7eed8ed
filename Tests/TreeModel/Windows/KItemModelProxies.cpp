#include "Tests/TreeModel/WatchingProxies.h"

namespace Zorvane::Testing {

std::vector<NamedProxy> proxiesOfKItemModels()
{
    return {};
}

} // namespace Zorvane::Testing

#include "TreeModel/ModelItemFilterInterface.h"

namespace Zorvane::GenericTreeViewModelHandling {

bool ModelItemFilterInterface::accept(const GUIdentifier& id)
{
    return accept(IDCombiner(id));
}

bool ModelItemFilterInterface::accept(const Identifier& id)
{
    return accept(IDCombiner(id));
}

void ModelItemFilterInterface::beginFiltering() {}

void ModelItemFilterInterface::endFiltering() {}

} // namespace Zorvane::GenericTreeViewModelHandling

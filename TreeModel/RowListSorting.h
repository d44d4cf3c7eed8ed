#pragma once

#include "TreeModel/ZVTreeItemDataProviderInterface.h"

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Sorts a list of rows ascending by id; the order among equal ids is not told. A list in order
 * costs one look at each row, a long list of identifiers a few passes over it.
 */
void sortById(ZVTreeItemDataProviderInterface::RowList& rows);

} // namespace Zorvane::GenericTreeViewModelHandling

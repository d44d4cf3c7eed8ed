#pragma once

namespace Zorvane {

class ZVTreeViewModel;

/** A host that announces each operation by itself. */
class ZVTreeViewModelBatch
{
public:
    explicit ZVTreeViewModelBatch(ZVTreeViewModel*) {}
    ~ZVTreeViewModelBatch() = default;
};

} // namespace Zorvane

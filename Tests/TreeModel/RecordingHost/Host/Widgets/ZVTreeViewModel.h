#pragma once

#include "Host/Widgets/ZVTreeViewItem.h"

namespace Zorvane {

class ZVTreeViewModel
{
public:
    ZVTreeViewItem* rootItem() const { return &m_root; }

private:
    mutable ZVTreeViewItem m_root;
};

} // namespace Zorvane

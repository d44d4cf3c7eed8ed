#include "TreeModel/TreeItemStaticDataProvider.h"

#include "Host/Widgets/ZVTreeViewItem.h"

#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

TreeItemStaticDataProvider::TreeItemStaticDataProvider(const std::vector<int>& columns, int role,
                                                       QVariant value)
    : m_columns(columns)
    , m_role(role)
    , m_value(std::move(value))
{}

Qt::ItemFlags TreeItemStaticDataProvider::getItemFlags()
{
    return Qt::NoItemFlags;
}

void TreeItemStaticDataProvider::addDataTo(const RowList& rows)
{
    for (const auto& [id, row] : rows) {
        for (const int column : m_columns)
            row->setData(column, m_role, m_value);
    }
}

} // namespace Zorvane::GenericTreeViewModelHandling

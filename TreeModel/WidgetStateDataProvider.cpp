#include "TreeModel/WidgetStateDataProvider.h"

#include "Host/Widgets/ZVTreeViewItem.h"

#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

WidgetStateDataProvider::WidgetStateDataProvider(int column, int role)
    : m_column(column)
    , m_role(role)
{}

void WidgetStateDataProvider::setStatiProviderFunction(StatiFunction function)
{
    m_statiFunction = std::move(function);
}

Qt::ItemFlags WidgetStateDataProvider::getItemFlags()
{
    return Qt::NoItemFlags;
}

void WidgetStateDataProvider::addDataTo(const RowList& rows)
{
    for (const auto& [id, row] : rows)
        row->setData(m_column, m_role, int(m_statiFunction(id, row)));
}

} // namespace Zorvane::GenericTreeViewModelHandling

#include "TreeModel/StaticTreeItemSingleIconProvider.h"

#include "Host/Widgets/ZVTreeViewItem.h"

#include <QtCore/QVariant>

namespace Zorvane::GenericTreeViewModelHandling {

StaticTreeItemSingleIconProvider::StaticTreeItemSingleIconProvider(int column, int role)
    : m_column(column)
    , m_role(role)
{}

void StaticTreeItemSingleIconProvider::setIcon(const QIcon& icon)
{
    m_icon = icon;
    callUpdateFunction();
}

Qt::ItemFlags StaticTreeItemSingleIconProvider::getItemFlags()
{
    return Qt::NoItemFlags;
}

void StaticTreeItemSingleIconProvider::addDataTo(const RowList& rows)
{
    const QVariant icon = m_icon;
    for (const auto& [id, row] : rows)
        row->setData(m_column, m_role, icon);
}

} // namespace Zorvane::GenericTreeViewModelHandling

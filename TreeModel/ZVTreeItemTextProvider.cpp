#include "TreeModel/ZVTreeItemTextProvider.h"

#include "Host/Widgets/ZVTreeViewItem.h"

#include <QtCore/QString>

#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

ZVTreeItemTextProvider::ZVTreeItemTextProvider(int column, int role)
    : m_column(column)
    , m_role(role)
{}

void ZVTreeItemTextProvider::setTextProvider(std::shared_ptr<ZVTextProviderInterface> textProvider)
{
    m_textProvider = std::move(textProvider);
    if (m_textProvider)
        m_textProvider->registerTextChangedCallback(
            m_life.guarded([this] { callUpdateFunction(); }));
}

Qt::ItemFlags ZVTreeItemTextProvider::getItemFlags()
{
    return Qt::NoItemFlags;
}

void ZVTreeItemTextProvider::addDataTo(const RowList& rows)
{
    if (!m_textProvider)
        return;
    for (const auto& [id, row] : rows)
        row->setData(m_column, m_role, QString::fromStdString(m_textProvider->getText(id)));
}

} // namespace Zorvane::GenericTreeViewModelHandling

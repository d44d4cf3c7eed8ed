#include "TreeModel/StaticTreeItemByIdIconProvider.h"

#include "Host/Widgets/ZVTreeViewItem.h"

#include <QtCore/QVariant>

#include <iterator>
#include <unordered_set>
#include <utility>

namespace Zorvane::GenericTreeViewModelHandling {

namespace {

template <typename Map, typename Predicate>
void eraseIf(Map& map, Predicate predicate)
{
    for (auto entry = map.begin(); entry != map.end();)
        entry = predicate(*entry) ? map.erase(entry) : std::next(entry);
}

} // namespace

StaticTreeItemByIdIconProvider::StaticTreeItemByIdIconProvider(int column, int role)
    : m_column(column)
    , m_role(role)
{}

void StaticTreeItemByIdIconProvider::setIcons(const std::vector<QIcon>& icons)
{
    m_icons = icons;
    eraseIf(m_iconIndexById, [this](const auto& entry) { return entry.second >= m_icons.size(); });
    callUpdateFunction();
}

void StaticTreeItemByIdIconProvider::setIdsForIcon(const std::vector<IDCombiner>& ids,
                                                   std::uint64_t index)
{
    const std::unordered_set<IDCombiner> members(ids.begin(), ids.end());
    eraseIf(m_iconIndexById, [&members, index](const auto& entry) {
        return entry.second == index && members.count(entry.first) == 0;
    });
    for (const IDCombiner& id : ids)
        m_iconIndexById[id] = index;
    callUpdateFunction();
}

void StaticTreeItemByIdIconProvider::setDefaultIcon(QIcon icon)
{
    m_defaultIcon = std::move(icon);
}

Qt::ItemFlags StaticTreeItemByIdIconProvider::getItemFlags()
{
    return Qt::NoItemFlags;
}

void StaticTreeItemByIdIconProvider::addDataTo(const RowList& rows)
{
    for (const auto& [id, row] : rows)
        row->setData(m_column, m_role, iconFor(id));
}

const QIcon& StaticTreeItemByIdIconProvider::iconFor(const IDCombiner& id) const
{
    const auto entry = m_iconIndexById.find(id);
    const bool found = entry != m_iconIndexById.end() && entry->second < m_icons.size();
    return found ? m_icons[entry->second] : m_defaultIcon;
}

} // namespace Zorvane::GenericTreeViewModelHandling

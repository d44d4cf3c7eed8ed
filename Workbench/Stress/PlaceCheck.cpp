#include "Workbench/Stress/PlaceCheck.h"

#include "Host/Widgets/ZVTreeViewModel.h"
#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"

#include <QtCore/QItemSelectionModel>
#include <QtWidgets/QTreeView>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

using GenericTreeViewModelHandling::ModelItemToZVTreeModelSyncronizer;
using Ids = std::vector<IDCombiner>;

bool contains(const Ids& sorted, const IDCombiner& id)
{
    return std::binary_search(sorted.begin(), sorted.end(), id);
}

Kept compared(const Ids& before, const Ids& now, const Ids& removed)
{
    Kept result;
    for (const IDCombiner& id : before) {
        if (contains(removed, id))
            continue;
        ++result.expected;
        result.kept += contains(now, id) ? 1 : 0;
    }
    return result;
}

} // namespace

PlaceCheck::PlaceCheck(const QTreeView& view, const ZVTreeViewModel& model)
    : m_view(view)
    , m_model(model)
{}

void PlaceCheck::remember()
{
    m_selected = selectedIds();
    m_expanded = expandedIds();
    m_current = idOf(m_view.currentIndex());
}

PlaceKept PlaceCheck::compare(const Ids& removed) const
{
    PlaceKept result;
    result.selection = compared(m_selected, selectedIds(), removed);
    result.expansion = compared(m_expanded, expandedIds(), removed);
    const IDCombiner current = idOf(m_view.currentIndex());
    result.current = contains(removed, m_current) ? current != IDCombiner() : current == m_current;
    return result;
}

IDCombiner PlaceCheck::idOf(const QModelIndex& index) const
{
    const IDCombiner* id =
        m_model.itemFromIndex(index)->id(ModelItemToZVTreeModelSyncronizer::DefaultIdRole);
    return index.isValid() && id ? *id : IDCombiner();
}

PlaceCheck::Ids PlaceCheck::selectedIds() const
{
    Ids ids;
    for (const QModelIndex& index : m_view.selectionModel()->selectedRows())
        ids.push_back(idOf(index));
    std::sort(ids.begin(), ids.end());
    return ids;
}

PlaceCheck::Ids PlaceCheck::expandedIds() const
{
    Ids ids;
    addExpanded({}, ids);
    std::sort(ids.begin(), ids.end());
    return ids;
}

void PlaceCheck::addExpanded(const QModelIndex& parent, Ids& ids) const
{
    for (int row = 0; row < m_model.rowCount(parent); ++row) {
        const QModelIndex index = m_model.index(row, 0, parent);
        if (!m_model.hasChildren(index))
            continue;
        if (m_view.isExpanded(index))
            ids.push_back(idOf(index));
        addExpanded(index, ids);
    }
}

} // namespace Zorvane::Workbench

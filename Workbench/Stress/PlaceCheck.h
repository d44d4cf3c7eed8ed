#pragma once

#include "Host/Identifiers/IDCombiner.h"

#include <vector>

QT_BEGIN_NAMESPACE
class QModelIndex;
class QTreeView;
QT_END_NAMESPACE

namespace Zorvane {
class ZVTreeViewModel;
}

namespace Zorvane::Workbench {

/** How many rows were meant to keep something, and how many did. */
struct Kept
{
    int expected = 0;
    int kept = 0;
};

struct PlaceKept
{
    Kept selection;
    Kept expansion;
    /** The current row stayed current or, when it went, another one became it. */
    bool current = true;
};

/**
 * Looks, row by row and by their ids, whether a view kept its place through a refresh. Trusts
 * neither the view's nor the model's bookkeeping. View and model must outlive it.
 *
 * Not supported: a view that shows the model through a proxy.
 */
class PlaceCheck
{
public:
    PlaceCheck(const QTreeView& view, const ZVTreeViewModel& model);

    void remember();
    /** Compares with what was remembered; `removed` are the sorted ids of rows that went. */
    PlaceKept compare(const std::vector<IDCombiner>& removed) const;

private:
    using Ids = std::vector<IDCombiner>;

    IDCombiner idOf(const QModelIndex& index) const;
    Ids selectedIds() const;
    Ids expandedIds() const;
    void addExpanded(const QModelIndex& parent, Ids& ids) const;

    const QTreeView& m_view;
    const ZVTreeViewModel& m_model;
    Ids m_selected;
    Ids m_expanded;
    IDCombiner m_current;
};

} // namespace Zorvane::Workbench

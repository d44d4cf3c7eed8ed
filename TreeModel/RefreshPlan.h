#pragma once

#include "Host/Widgets/ZVTreeViewRefresh.h"
#include "TreeModel/ModelItem.h"
#include "TreeModel/RowBuilder.h"
#include "TreeModel/RowIndex.h"

#include <memory>
#include <utility>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * What has to be done so that rows show items, found without touching the rows.
 *
 * Rows whose items are those that they show since an earlier refresh are not looked at, and nor are
 * the rows below them. See `remember`.
 */
class RefreshPlan
{
public:
    using Items = std::vector<std::shared_ptr<ModelItem>>;

    /** Rows and items have to outlive the plan. */
    RefreshPlan(ZVTreeViewItem* root, const Items& items, IdPlace place);
    RefreshPlan(const RefreshPlan&) = delete;
    RefreshPlan& operator=(const RefreshPlan&) = delete;
    /** Rows of a plan that was not completed forget what they show. */
    ~RefreshPlan();

    /** Makes the new rows, once. */
    void createRows(RowBuilder& builder);
    /**
     * Notes in the rows which items they will show, before the plan is applied: so a change that
     * others make meanwhile is not overlooked by the next refresh.
     */
    void remember();
    ZVTreeViewPlan takeSteps() { return std::move(m_steps); }
    void complete() { m_shown.clear(); }

private:
    struct NewItems
    {
        std::size_t list;
        std::vector<const ModelItem*> items;
    };

    void planList(ZVTreeViewItem* parent, const Items& items);
    void planChange(ZVTreeViewItem* parent, const Items& items, int kept);
    void planRow(ZVTreeViewItem* row, const ModelItem& item, bool isMoved);

    const IdPlace m_place;
    ZVTreeViewPlan m_steps;
    std::vector<NewItems> m_new;
    std::vector<std::pair<ZVTreeViewItem*, const Items*>> m_pending;
    /** Rows with children, and what they will show. */
    std::vector<std::pair<ZVTreeViewItem*, const ModelItem*>> m_shown;
    /** Rows that will differ from their items, or may do so unseen. */
    std::vector<ZVTreeViewItem*> m_different;
};

} // namespace Zorvane::GenericTreeViewModelHandling

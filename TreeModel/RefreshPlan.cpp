#include "TreeModel/RefreshPlan.h"

#include "TreeModel/ModelItemWalk.h"

#include <algorithm>

namespace Zorvane::GenericTreeViewModelHandling {

namespace {

std::size_t countBelow(const ModelItem& item)
{
    std::size_t count = 0;
    if (item.hasChildren())
        forEachSiblingList(item.getChildren(), [&](const auto& items) { count += items.size(); });
    return count;
}

} // namespace

RefreshPlan::RefreshPlan(ZVTreeViewItem* root, const Items& items, IdPlace place)
    : m_place(place)
    , m_pending{{root, &items}}
{
    // First come, first served: the order in which rows lie in memory.
    for (std::size_t next = 0; next < m_pending.size(); ++next) {
        const auto [parent, wanted] = m_pending[next];
        planList(parent, *wanted);
    }
}

RefreshPlan::~RefreshPlan()
{
    for (const auto& [row, item] : m_shown)
        row->forgetShownSerial();
}

void RefreshPlan::planList(ZVTreeViewItem* parent, const Items& items)
{
    const auto count = static_cast<std::size_t>(parent->childCount());
    const std::size_t most = std::min(count, items.size());
    std::size_t place = 0;
    for (; place < most; ++place) {
        ZVTreeViewItem* row = parent->child(static_cast<int>(place));
        const ModelItem& item = *items[place];
        if (!hasId(row, m_place, item.getId()))
            break;
        planRow(row, item, false);
    }
    if (place < count || place < items.size())
        planChange(parent, items, static_cast<int>(place));
}

/** From the first row on that does not stand where its item is. */
void RefreshPlan::planChange(ZVTreeViewItem* parent, const Items& items, int kept)
{
    ZVTreeViewPlan::List list{parent, kept, {}, {}};
    NewItems created{m_steps.lists.size(), {}};
    const auto first = items.begin() + kept;
    list.rest.reserve(static_cast<std::size_t>(items.end() - first));
    // Rows that no item is left for are not asked.
    RowIndex rows(parent, first == items.end() ? parent->childCount() : kept, m_place);
    for (auto item = first; item != items.end(); ++item) {
        const int front = rows.front();
        const int found = rows.take((*item)->getId());
        list.rest.push_back(found == RowIndex::None ? ZVTreeViewPlan::Created : found);
        if (found == RowIndex::None) {
            created.items.push_back(item->get());
        } else if (found != front && !(*item)->hasChildren() && rows.isLeaf(found)) {
            // It keeps its text for now, so the list is looked at again the next time.
            m_different.push_back(parent);
            (*item)->getSerial();
        } else {
            planRow(parent->child(found), **item, found != front);
        }
    }
    m_steps.lists.push_back(std::move(list));
    if (!created.items.empty())
        m_new.push_back(std::move(created));
}

void RefreshPlan::planRow(ZVTreeViewItem* row, const ModelItem& item, bool isMoved)
{
    const bool isPlain = typedId(row, m_place);
    const std::uint64_t serial = item.getSerial();
    const bool hasChildren = item.hasChildren() || row->childCount() > 0;
    if (isPlain && hasChildren && row->shownSerial() == serial)
        return;
    const bool hasText = isPlain && row->hasText(item.getName());
    // A row that moves keeps its text until it is found in place.
    if (!hasText && !isMoved)
        m_steps.texts.push_back({row, &item.getName()});
    if (!isPlain || (!hasText && isMoved))
        m_different.push_back(row);
    if (!hasChildren)
        return;
    m_shown.emplace_back(row, &item);
    m_pending.emplace_back(row, &item.getChildren());
}

void RefreshPlan::createRows(RowBuilder& builder)
{
    std::size_t count = 0;
    for (const NewItems& created : m_new) {
        for (const ModelItem* item : created.items)
            count += 1 + countBelow(*item);
    }
    builder.expect(count);
    for (const NewItems& created : m_new) {
        auto& rows = m_steps.lists[created.list].created;
        rows.reserve(created.items.size());
        for (const ModelItem* item : created.items)
            rows.push_back(builder.create(*item));
    }
}

void RefreshPlan::remember()
{
    for (const auto& [row, item] : m_shown)
        row->setShownSerial(item->getSerial());
    for (ZVTreeViewItem* row : m_different)
        row->forgetShownSerial();
}

} // namespace Zorvane::GenericTreeViewModelHandling

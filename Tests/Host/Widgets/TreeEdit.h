#pragma once

#include "Host/Widgets/ZVTreeViewModel.h"
#include "Host/Widgets/ZVTreeViewRefresh.h"
#include "Tests/Host/Widgets/TreeRows.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Zorvane::Testing {

/** Gathers changes of child lists, step by step, and makes them one plan. */
class TreeEdit
{
public:
    /** The number of children, after the changes so far. */
    int count(ZVTreeViewItem* parent) { return int(list(parent).size()); }

    TreeEdit& insert(ZVTreeViewItem* parent, int index, ZVTreeViewItem* row)
    {
        list(parent).insert(list(parent).begin() + index, row);
        return *this;
    }
    TreeEdit& insert(ZVTreeViewItem* parent, int index, const char* text)
    {
        return insert(parent, index, newRow(QString::fromUtf8(text)));
    }
    TreeEdit& remove(ZVTreeViewItem* parent, int index)
    {
        Rows& rows = list(parent);
        if (!rows[std::size_t(index)]->parent())
            delete rows[std::size_t(index)];
        rows.erase(rows.begin() + index);
        return *this;
    }
    TreeEdit& move(ZVTreeViewItem* parent, int from, int to)
    {
        Rows& rows = list(parent);
        ZVTreeViewItem* row = rows[std::size_t(from)];
        rows.erase(rows.begin() + from);
        rows.insert(rows.begin() + to, row);
        return *this;
    }
    TreeEdit& reverse(ZVTreeViewItem* parent)
    {
        std::reverse(list(parent).begin(), list(parent).end());
        return *this;
    }
    /** Takes rows off the front and puts them behind. */
    TreeEdit& rotate(ZVTreeViewItem* parent, int count)
    {
        std::rotate(list(parent).begin(), list(parent).begin() + count, list(parent).end());
        return *this;
    }
    TreeEdit& setText(ZVTreeViewItem* row, const std::string& text)
    {
        m_texts.emplace_back(row, text);
        return *this;
    }

    /** Once. */
    void applyTo(ZVTreeViewRefresh& refresh)
    {
        ZVTreeViewPlan plan;
        for (const auto& [row, text] : m_texts)
            plan.texts.push_back({row, &text});
        for (const auto& [parent, rows] : m_lists) {
            if (!stays(parent)) {
                for (ZVTreeViewItem* row : rows)
                    delete (row->parent() ? nullptr : row);
                continue;
            }
            plan.lists.push_back({parent, 0, {}, {}});
            ZVTreeViewPlan::List& planned = plan.lists.back();
            for (ZVTreeViewItem* row : rows) {
                planned.rest.push_back(row->parent() ? row->row() : ZVTreeViewPlan::Created);
                if (!row->parent())
                    planned.created.emplace_back(row);
            }
        }
        refresh.apply(std::move(plan));
    }
    void applyTo(ZVTreeViewModel* model)
    {
        ZVTreeViewRefresh refresh(model);
        applyTo(refresh);
    }

private:
    using Rows = std::vector<ZVTreeViewItem*>;

    Rows& list(ZVTreeViewItem* parent)
    {
        const auto [entry, isNew] = m_lists.try_emplace(parent);
        for (int row = 0; isNew && row < parent->childCount(); ++row)
            entry->second.push_back(parent->child(row));
        return entry->second;
    }

    /** Nothing is planned below a row that leaves. */
    bool stays(ZVTreeViewItem* row) const
    {
        ZVTreeViewItem* parent = row->parent();
        if (!parent)
            return true;
        const auto found = m_lists.find(parent);
        const bool isKept = found == m_lists.end() ||
                            std::count(found->second.begin(), found->second.end(), row) > 0;
        return isKept && stays(parent);
    }

    std::vector<std::pair<ZVTreeViewItem*, std::string>> m_texts;
    /** As they shall be; rows without a parent are new. */
    std::map<ZVTreeViewItem*, Rows> m_lists;
};

} // namespace Zorvane::Testing

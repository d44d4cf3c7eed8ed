#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "TreeModel/ModelItem.h"

#include <QtCore/QVariant>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Zorvane::Testing {

/**
 * The rules by which rows are brought in line with a model, stated as plainly as possible, on rows
 * that are nothing but data: every search walks the whole rest of the list, nothing is clever.
 * `Observer` hears of each operation in order.
 */
template <typename Observer>
class AlignmentRules
{
public:
    using Item = GenericTreeViewModelHandling::ModelItem;
    using Items = std::vector<std::shared_ptr<Item>>;

    struct Row
    {
        int serial = 0;
        std::optional<IDCombiner> id;
        std::string text;
        std::vector<std::unique_ptr<Row>> children;
    };

    AlignmentRules(Observer& observer, int lastSerial)
        : m_observer(observer)
        , m_lastSerial(lastSerial)
    {}

    void synchronize(Row& parent, const Items& items)
    {
        const std::size_t n = items.size();
        std::size_t i = 0;
        for (; n > 0 && i < parent.children.size() && i < n; ++i) {
            const Item& item = *items[i];
            const int found = firstMatch(parent, i, item.getId());
            if (found < 0)
                insertNew(parent, i, item);
            else if (std::size_t(found) != i)
                moveUp(parent, std::size_t(found), i, item);
            else
                keep(*parent.children[i], item);
        }
        if (i < n)
            appendNew(parent, items, i);
        while (parent.children.size() > n)
            removeLast(parent);
    }

    /** Serial numbers of the rows that were made, with their ids. */
    const std::vector<std::pair<IDCombiner, int>>& created() const { return m_created; }

    int lastSerial() const { return m_lastSerial; }

    static void identified(const Row& parent, std::vector<std::pair<IDCombiner, int>>& rows)
    {
        for (const auto& child : parent.children) {
            identified(*child, rows);
            if (child->id)
                rows.emplace_back(*child->id, child->serial);
        }
    }

private:
    static int firstMatch(const Row& parent, std::size_t from, const IDCombiner& id)
    {
        for (std::size_t k = from; k < parent.children.size(); ++k) {
            if (parent.children[k]->id && *parent.children[k]->id == id)
                return int(k);
        }
        return -1;
    }

    void insertNew(Row& parent, std::size_t i, const Item& item)
    {
        auto row = create(item);
        m_created.emplace_back(item.getId(), row->serial);
        // Children of a new row are found in place, so that changes nothing.
        m_observer.inserted(parent.serial, int(i), row->serial);
        parent.children.insert(parent.children.begin() + std::ptrdiff_t(i), std::move(row));
    }

    void moveUp(Row& parent, std::size_t from, std::size_t to, const Item& item)
    {
        std::unique_ptr<Row> row = std::move(parent.children[from]);
        parent.children.erase(parent.children.begin() + std::ptrdiff_t(from));
        m_observer.taken(parent.serial, int(from), row->serial);
        if (item.hasChildren() || !row->children.empty())
            synchronize(*row, item.getChildren());
        m_observer.inserted(parent.serial, int(to), row->serial);
        parent.children.insert(parent.children.begin() + std::ptrdiff_t(to), std::move(row));
    }

    void keep(Row& row, const Item& item)
    {
        m_observer.texted(row.serial);
        row.text = item.getName();
        if (item.hasChildren() || !row.children.empty())
            synchronize(row, item.getChildren());
    }

    void appendNew(Row& parent, const Items& items, std::size_t first)
    {
        std::vector<int> serials;
        std::vector<std::unique_ptr<Row>> rows;
        for (std::size_t k = first; k < items.size(); ++k) {
            rows.push_back(create(*items[k]));
            m_created.emplace_back(items[k]->getId(), rows.back()->serial);
            serials.push_back(rows.back()->serial);
        }
        m_observer.appended(parent.serial, serials);
        std::move(rows.begin(), rows.end(), std::back_inserter(parent.children));
    }

    void removeLast(Row& parent)
    {
        const std::unique_ptr<Row> row = std::move(parent.children.back());
        parent.children.pop_back();
        m_observer.taken(parent.serial, int(parent.children.size()), row->serial);
        m_observer.deleted(row->serial);
    }

    std::unique_ptr<Row> create(const Item& item)
    {
        auto row = std::make_unique<Row>();
        row->serial = ++m_lastSerial;
        m_observer.texted(row->serial);
        row->text = item.getName();
        row->id = item.getId();
        if (item.hasChildren())
            appendNew(*row, item.getChildren(), 0);
        return row;
    }

    Observer& m_observer;
    int m_lastSerial;
    std::vector<std::pair<IDCombiner, int>> m_created;
};

} // namespace Zorvane::Testing

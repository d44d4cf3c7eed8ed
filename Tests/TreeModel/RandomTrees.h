#pragma once

#include "TreeModel/ModelRoot.h"

#include <rapidcheck.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

namespace Zorvane::Testing {

/** What stands under the id role of a row. */
enum class StoredId
{
    Typed,
    None,
    Unreadable
};

/** A row to be made in a view before it is synchronized. */
struct RowPlan
{
    StoredId kind;
    int number;
    std::vector<RowPlan> children;
};

/** Random trees from a small stock of ids, so that rows match, repeat and change places often. */
class RandomTrees
{
public:
    explicit RandomTrees(unsigned seed)
        : m_random(seed)
    {}

    std::vector<RowPlan> rows(int depth = 0)
    {
        std::vector<RowPlan> plans(size(depth));
        for (RowPlan& plan : plans) {
            const int chance = below(20);
            plan.kind = chance == 0   ? StoredId::None
                        : chance == 1 ? StoredId::Unreadable
                                      : StoredId::Typed;
            plan.number = below(m_stock);
            if (depth < 3 && below(3) == 0)
                plan.children = rows(depth + 1);
        }
        return plans;
    }

    std::vector<std::shared_ptr<GenericTreeViewModelHandling::ModelItem>> items(int depth = 0)
    {
        using GenericTreeViewModelHandling::ModelItem;
        std::vector<std::shared_ptr<ModelItem>> made;
        for (std::size_t i = size(depth); i > 0; --i) {
            const int number = below(m_stock);
            const std::string name = "n" + std::to_string(below(4));
            made.push_back(std::make_shared<ModelItem>(idOf(number), name));
            if (depth < 3 && below(3) == 0)
                made.back()->setChildren(items(depth + 1));
        }
        return made;
    }

    /** The same rows in another order, with some gone and some new. */
    std::vector<std::shared_ptr<GenericTreeViewModelHandling::ModelItem>>
    variation(const std::vector<RowPlan>& plans)
    {
        using GenericTreeViewModelHandling::ModelItem;
        std::vector<std::shared_ptr<ModelItem>> made;
        for (const RowPlan& plan : plans) {
            if (below(8) == 0)
                continue;
            made.push_back(std::make_shared<ModelItem>(idOf(plan.number), "v"));
            made.back()->setChildren(variation(plan.children));
            if (below(8) == 0)
                made.push_back(std::make_shared<ModelItem>(idOf(below(m_stock)), "new"));
        }
        for (int swaps = below(4); swaps > 0 && made.size() > 1; --swaps)
            std::swap(made[std::size_t(below(int(made.size())))], made.back());
        return made;
    }

    int below(int bound) { return int(m_random() % unsigned(bound)); }

    /** Number 0 is the id that carries nothing. */
    static IDCombiner idOf(int number)
    {
        return number == 0 ? IDCombiner() : IDCombiner(Identifier(std::uint64_t(number)));
    }

private:
    std::size_t size(int depth)
    {
        // Long lists now and then, for the sake of the index.
        const bool isLong = depth == 0 && below(4) == 0;
        return std::size_t(below(isLong ? 120 : 8));
    }

    std::minstd_rand m_random;
    const int m_stock = std::vector<int>{6, 30, 400}[m_random() % 3];
};

} // namespace Zorvane::Testing

#pragma once

#include "TreeModel/ModelRoot.h"

#include <QtCore/QMetaType>
#include <QtCore/QVariant>

#include <rapidcheck.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace Zorvane::Testing {

/** What stands under the id role of a row. */
enum class StoredId
{
    Typed,
    None,
    Unreadable,
    /** A number, which a converter turns into the id. */
    Convertible
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

    /** From now on, rows and items have none below. */
    void drawListsOnly() { m_top = deepest; }

    std::vector<RowPlan> rows() { return rows(m_top); }
    std::vector<RowPlan> rows(int depth)
    {
        std::vector<RowPlan> plans(size(depth));
        for (RowPlan& plan : plans) {
            const int chance = below(20);
            plan.kind = chance == 0   ? StoredId::None
                        : chance == 1 ? StoredId::Unreadable
                        : chance == 2 ? StoredId::Convertible
                                      : StoredId::Typed;
            plan.number = below(m_stock);
            if (depth < deepest && below(3) == 0)
                plan.children = rows(depth + 1);
        }
        return plans;
    }

    std::vector<std::shared_ptr<GenericTreeViewModelHandling::ModelItem>> items(int depth)
    {
        using GenericTreeViewModelHandling::ModelItem;
        std::vector<std::shared_ptr<ModelItem>> made;
        for (std::size_t i = size(depth); i > 0; --i) {
            const int number = below(m_stock);
            const std::string name = "n" + std::to_string(below(4));
            made.push_back(std::make_shared<ModelItem>(idOf(number), name));
            if (depth < deepest && below(3) == 0)
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
        if (below(4) == 0)
            std::shuffle(made.begin(), made.end(), m_random);
        return made;
    }

    /** Items of either kind. */
    std::vector<std::shared_ptr<GenericTreeViewModelHandling::ModelItem>>
    refresh(const std::vector<RowPlan>& plans)
    {
        return below(3) == 0 ? items(m_top) : variation(plans);
    }

    /** Most items once more, others new with another name, gone, exchanged or changed in place. */
    std::vector<std::shared_ptr<GenericTreeViewModelHandling::ModelItem>>
    handedOn(const std::vector<std::shared_ptr<GenericTreeViewModelHandling::ModelItem>>& items)
    {
        return handedOn(items, m_top);
    }
    std::vector<std::shared_ptr<GenericTreeViewModelHandling::ModelItem>>
    handedOn(const std::vector<std::shared_ptr<GenericTreeViewModelHandling::ModelItem>>& items,
             int depth)
    {
        using GenericTreeViewModelHandling::ModelItem;
        std::vector<std::shared_ptr<ModelItem>> made;
        for (const auto& item : items) {
            const int chance = below(10);
            if (chance == 0)
                continue;
            if (chance > 3 || depth == deepest) {
                made.push_back(item);
                continue;
            }
            if (chance == 1) {
                std::shared_ptr<ModelItem> changed = item;
                for (int level = depth; changed->hasChildren() && level + 1 < deepest; ++level)
                    changed = changed->getChildren().front();
                changed->addChildren({std::make_shared<ModelItem>(idOf(below(m_stock)), "more")});
                made.push_back(item);
                continue;
            }
            const std::string name = "n" + std::to_string(below(4));
            made.push_back(std::make_shared<ModelItem>(item->getId(), name));
            made.back()->setChildren(handedOn(item->getChildren(), depth + 1));
        }
        if (below(3) == 0 && made.size() > 1)
            std::swap(made[std::size_t(below(int(made.size())))], made.back());
        return made;
    }

    int below(int bound) { return int(m_random() % unsigned(bound)); }

    /** Number 0 is the id that carries nothing. */
    static IDCombiner idOf(int number)
    {
        return number == 0 ? IDCombiner() : IDCombiner(Identifier(std::uint64_t(number)));
    }

    static void registerConverter()
    {
        QMetaType::registerConverter<qulonglong, IDCombiner>(
            [](qulonglong number) { return idOf(int(number)); });
    }
    /** What a row stores under the id role; invalid for nothing. */
    static QVariant storedValue(const RowPlan& plan)
    {
        switch (plan.kind) {
        case StoredId::Typed:
            return QVariant::fromValue(idOf(plan.number));
        case StoredId::Unreadable:
            return QStringLiteral("no id");
        case StoredId::Convertible:
            return qulonglong(plan.number);
        case StoredId::None:
            break;
        }
        return {};
    }
    /** The id that counts. */
    static std::optional<IDCombiner> readId(const RowPlan& plan)
    {
        if (plan.kind == StoredId::None)
            return std::nullopt;
        return plan.kind == StoredId::Unreadable ? IDCombiner() : idOf(plan.number);
    }

private:
    std::size_t size(int depth)
    {
        // Long lists now and then, for the sake of the index.
        const bool isLong = depth == m_top && below(4) == 0;
        return std::size_t(below(isLong ? 120 : 8));
    }

    /** Rows and items at this depth have none below. */
    static constexpr int deepest = 3;

    std::minstd_rand m_random;
    int m_top = 0;
    /** With the largest, nearly all ids of a tree differ. */
    const int m_stock = std::vector<int>{6, 30, 400, 1000000}[m_random() % 4];
};

} // namespace Zorvane::Testing

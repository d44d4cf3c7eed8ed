#pragma once

#include "TreeModel/ModelItem.h"
#include "TreeModel/RowBuilder.h"
#include "TreeModel/RowIndex.h"

#include <memory>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/**
 * Brings rows in line with items by the plain operations alone, row by row, each announced by
 * itself: for hosts whose models apply no plans.
 */
class PlainRefresh
{
public:
    using Items = std::vector<std::shared_ptr<ModelItem>>;

    PlainRefresh(IdPlace place, RowBuilder& builder)
        : m_place(place)
        , m_builder(builder)
    {}

    void align(ZVTreeViewItem* root, const Items& items);

private:
    /** A list that is being put in order, from the front. */
    struct List
    {
        List(ZVTreeViewItem* listParent, const Items& wanted, IdPlace place);
        List(List&&) = default;
        /** After an exception, the row that is out goes back. */
        ~List();

        ZVTreeViewItem* parent;
        const Items* items;
        RowIndex index;
        std::vector<ZVTreeViewItem*> rows;
        int next = 0;
        /** Found further on; it is inserted once its children are in order. */
        std::unique_ptr<ZVTreeViewItem> taken;
    };

    void step();
    void finish(List& list);

    const IdPlace m_place;
    RowBuilder& m_builder;
    std::vector<List> m_open;
};

} // namespace Zorvane::GenericTreeViewModelHandling

#pragma once

#include "Host/Widgets/ZVTreeViewItem.h"
#include "TreeModel/ModelItem.h"
#include "TreeModel/ZVTreeItemDataProviderInterface.h"

#include <QtCore/Qt>

#include <cstddef>
#include <memory>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

/** Makes detached rows, with all below them, and lists them for the data provider. */
class RowBuilder
{
public:
    using RowList = ZVTreeItemDataProviderInterface::RowList;

    RowBuilder(int idRole, Qt::ItemFlags flags)
        : m_idRole(idRole)
        , m_flags(flags)
    {}

    /** Reserves the list for so many rows more, which is best done for all rows at once. */
    void expect(std::size_t rows) { m_list.reserve(rows); }
    /** A row of the item, which may be the top of a tree of any depth. */
    std::unique_ptr<ZVTreeViewItem> create(const ModelItem& item);
    /** The rows made so far, in no order. */
    RowList takeList() { return std::move(m_list); }

private:
    /** An item whose children are being made. */
    struct Level
    {
        const ModelItem* item;
        std::unique_ptr<ZVTreeViewItem> row;
        std::vector<std::unique_ptr<ZVTreeViewItem>> children;
    };

    std::unique_ptr<ZVTreeViewItem> createRow(const ModelItem& item);
    static std::unique_ptr<ZVTreeViewItem> finished(Level level);

    const int m_idRole;
    const Qt::ItemFlags m_flags;
    RowList m_list;
};

} // namespace Zorvane::GenericTreeViewModelHandling

#include "TreeModel/PlainRefresh.h"

#include <QtCore/QString>
#include <QtCore/QVector>

namespace Zorvane::GenericTreeViewModelHandling {

PlainRefresh::List::List(ZVTreeViewItem* listParent, const Items& wanted, IdPlace place)
    : parent(listParent)
    , items(&wanted)
    , index(listParent, 0, place)
{
    for (int row = 0; row < parent->childCount(); ++row)
        rows.push_back(parent->child(row));
}

PlainRefresh::List::~List()
{
    if (taken)
        parent->insertChild(next, taken.release());
}

void PlainRefresh::align(ZVTreeViewItem* root, const Items& items)
{
    m_open.emplace_back(root, items, m_place);
    while (!m_open.empty())
        step();
}

void PlainRefresh::step()
{
    List& list = m_open.back();
    if (list.taken) {
        list.parent->insertChild(list.next++, list.taken.release());
        return;
    }
    if (list.next == static_cast<int>(list.items->size()) || list.index.isEmpty()) {
        finish(list);
        m_open.pop_back();
        return;
    }
    const ModelItem& item = *(*list.items)[static_cast<std::size_t>(list.next)];
    const int front = list.index.front();
    const int found = list.index.take(item.getId());
    if (found == RowIndex::None) {
        list.parent->insertChild(list.next++, m_builder.create(item).release());
        return;
    }
    ZVTreeViewItem* row = list.rows[static_cast<std::size_t>(found)];
    if (found == front) {
        row->setData(0, Qt::DisplayRole, QString::fromStdString(item.getName()));
        ++list.next;
    } else {
        list.parent->takeChild(row);
        list.taken.reset(row);
    }
    if (item.hasChildren() || row->childCount() > 0)
        m_open.emplace_back(row, item.getChildren(), m_place);
}

/** Appends rows for the items that none is left for, and deletes the rows that are left over. */
void PlainRefresh::finish(List& list)
{
    const auto count = static_cast<int>(list.items->size());
    QVector<ZVTreeViewItem*> rows;
    for (int place = list.next; place < count; ++place)
        rows.append(m_builder.create(*(*list.items)[static_cast<std::size_t>(place)]).release());
    if (!rows.isEmpty())
        list.parent->appendChildren(rows);
    for (int row = list.parent->childCount() - 1; row >= count; --row)
        list.parent->deleteChild(row);
}

} // namespace Zorvane::GenericTreeViewModelHandling

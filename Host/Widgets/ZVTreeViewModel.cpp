#include "Host/Widgets/ZVTreeViewModel.h"

#include "Host/Widgets/ValueIdentity.h"
#include "Host/Widgets/ZVTreeViewModelPrivate.h"

#include <algorithm>

namespace Zorvane {

namespace {

ZVTreeViewItem* rowOf(const QModelIndex& index)
{
    return static_cast<ZVTreeViewItem*>(index.internalPointer());
}

} // namespace

ZVTreeViewModel::ZVTreeViewModel(QObject* parent)
    : QAbstractItemModel(parent)
    , d(std::make_unique<ZVTreeViewModelPrivate>(this))
{}

ZVTreeViewModel::~ZVTreeViewModel() = default;

ZVTreeViewItem* ZVTreeViewModel::rootItem() const
{
    return &d->root;
}

ZVTreeViewItem* ZVTreeViewModel::itemFromIndex(const QModelIndex& index) const
{
    if (!index.isValid())
        return rootItem();
    return index.model() == this ? rowOf(index) : nullptr;
}

bool ZVTreeViewModel::isOwn(const QModelIndex& index) const
{
    return index.isValid() && index.model() == this;
}

QModelIndex ZVTreeViewModel::indexFromItem(const ZVTreeViewItem* item, int column) const
{
    if (!item || column < 0 || column >= columnCount() || item->owner() != d.get())
        return {};
    return d->indexOf(item, column);
}

void ZVTreeViewModel::setColumnCount(int count)
{
    const int wanted = std::max(count, 1);
    if (wanted == d->headers.size() || !d->canChangeStructure())
        return;
    // The reset: the columns of every row change at once, for which there is no announcement.
    beginResetModel();
    d->headers.resize(wanted);
    endResetModel();
}

void ZVTreeViewModel::setHorizontalHeaderLabels(const QStringList& labels)
{
    setColumnCount(labels.size());
    for (int section = 0; section < labels.size(); ++section)
        setHeaderData(section, Qt::Horizontal, labels.at(section));
}

QModelIndex ZVTreeViewModel::index(int row, int column, const QModelIndex& parent) const
{
    const ZVTreeViewItem* parentRow = itemFromIndex(parent);
    if (column < 0 || column >= d->headers.size() || parent.column() > 0 || !parentRow)
        return {};
    ZVTreeViewItem* child = parentRow->child(row);
    return child ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex ZVTreeViewModel::parent(const QModelIndex& index) const
{
    if (!isOwn(index))
        return {};
    return d->indexOf(rowOf(index)->parent());
}

QModelIndex ZVTreeViewModel::sibling(int row, int column, const QModelIndex& index) const
{
    if (!isOwn(index))
        return {};
    if (row == index.row() && column >= 0 && column < d->headers.size())
        return createIndex(row, column, rowOf(index));
    return QAbstractItemModel::sibling(row, column, index);
}

int ZVTreeViewModel::rowCount(const QModelIndex& parent) const
{
    const ZVTreeViewItem* row = itemFromIndex(parent);
    return parent.column() > 0 || !row ? 0 : row->childCount();
}

int ZVTreeViewModel::columnCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : d->headers.size();
}

bool ZVTreeViewModel::hasChildren(const QModelIndex& parent) const
{
    return rowCount(parent) > 0;
}

QVariant ZVTreeViewModel::data(const QModelIndex& index, int role) const
{
    return isOwn(index) ? rowOf(index)->data(index.column(), role) : QVariant();
}

bool ZVTreeViewModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!isOwn(index))
        return false;
    // The row, or a slot, may take it out of the tree.
    const QPersistentModelIndex lasting = index;
    if (!rowOf(index)->setData(index.column(), role, value))
        return false;
    if (lasting.isValid())
        Q_EMIT edited(lasting, value, role);
    return true;
}

Qt::ItemFlags ZVTreeViewModel::flags(const QModelIndex& index) const
{
    return isOwn(index) ? rowOf(index)->flags() : Qt::ItemFlags(Qt::NoItemFlags);
}

QVariant ZVTreeViewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= d->headers.size())
        return QAbstractItemModel::headerData(section, orientation, role);
    const QHash<int, QVariant>& values = d->headers.at(section);
    const int stored = role == Qt::EditRole ? int(Qt::DisplayRole) : role;
    if (stored == Qt::DisplayRole && !values.contains(stored))
        return QAbstractItemModel::headerData(section, orientation, role);
    return values.value(stored);
}

bool ZVTreeViewModel::setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                                    int role)
{
    if (orientation != Qt::Horizontal || section < 0 || section >= d->headers.size())
        return false;
    const int stored = role == Qt::EditRole ? int(Qt::DisplayRole) : role;
    const QVariant before = d->headers.at(section).value(stored);
    if (value.isValid())
        d->headers[section].insert(stored, value);
    else
        d->headers[section].remove(stored);
    if (!isCertainlySame(before, value))
        Q_EMIT headerDataChanged(orientation, section, section);
    return true;
}

void ZVTreeViewModel::setExact(bool exact)
{
    d->isExact = exact;
}

bool ZVTreeViewModel::isExact() const
{
    return d->isExact;
}

bool ZVTreeViewModel::isLeaving(const QModelIndex& index) const
{
    return isOwn(index) && d->isLeaving(rowOf(index));
}

} // namespace Zorvane

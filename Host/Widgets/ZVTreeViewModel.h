#pragma once

#include "Host/HostExport.h"
#include "Host/Widgets/ZVTreeViewItem.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QStringList>

#include <memory>

namespace Zorvane {

class ZVTreeViewModelPrivate;

/**
 * The model of a tree view, made of `ZVTreeViewItem` rows below an invisible root row.
 *
 * The model owns its rows. Any number of views and proxy models may show it at once. Rows announce
 * their changes themselves, so callers change rows and never call the model's notifications.
 * Dragging is off unless a row's flags turn it on.
 *
 * Not supported: columns that differ from row to row, dropping, use from several threads.
 */
class ZORVANE_HOST_EXPORT ZVTreeViewModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit ZVTreeViewModel(QObject* parent = nullptr);
    ~ZVTreeViewModel() override;

    /** The invisible row whose children are the top-level rows. Owned by the model. */
    ZVTreeViewItem* rootItem() const;
    /** The row an index shows; the root row for an invalid index, null for another model's. */
    ZVTreeViewItem* itemFromIndex(const QModelIndex& index) const;
    /** Where views find the row; invalid for the root, a foreign row or one not announced yet. */
    QModelIndex indexFromItem(const ZVTreeViewItem* item, int column = 0) const;

    /** At least one column, which is also the initial state. */
    void setColumnCount(int count);
    /** Titles of the columns; makes as many columns as there are titles. */
    void setHorizontalHeaderLabels(const QStringList& labels);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    QModelIndex sibling(int row, int column, const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    bool setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                       int role = Qt::EditRole) override;

    /**
     * How a `ZVTreeViewRefresh` announces a changed list: in a few ranges where rows keep their
     * order; else new rows are appended, one layout change that all lists share puts them in
     * order, and what leaves is removed. When very many short lists change their row counts at
     * once, which costs views more than starting over, the layout change alone announces them,
     * unless the model is exact. Qt's `QConcatenateTablesProxyModel` needs that; views and sorting
     * or filtering proxies do not.
     */
    void setExact(bool exact);
    bool isExact() const;

    /** During `aboutToPublish`: the row will be gone once the refresh is announced. */
    bool isLeaving(const QModelIndex& index) const;

Q_SIGNALS:
    /** A view or proxy has edited a value through `setData`; the row has it already. */
    void edited(const QModelIndex& index, const QVariant& value, int role);
    /** A `ZVTreeViewRefresh` is about to announce changes: rows stand where they were. */
    void aboutToPublish();
    /** It has ended, after everything was announced. */
    void published();

private:
    friend class ZVTreeViewItem;
    friend class ZVTreeViewModelPrivate;
    friend class ZVTreeViewRefresh;

    bool isOwn(const QModelIndex& index) const;

    const std::unique_ptr<ZVTreeViewModelPrivate> d;
};

} // namespace Zorvane

#include "Tests/TreeModel/WatchingProxies.h"

#include <KConcatenateRowsProxyModel>
#include <KDescendantsProxyModel>
#include <KExtraColumnsProxyModel>
#include <KRearrangeColumnsProxyModel>
#include <KSelectionProxyModel>

namespace Zorvane::Testing {

namespace {

class WithRowNumbers : public KExtraColumnsProxyModel
{
public:
    WithRowNumbers() { appendColumn(QStringLiteral("length")); }

    QVariant extraColumnData(const QModelIndex& parent, int row, int, int role) const override
    {
        return role == Qt::DisplayRole ? index(row, 0, parent).data().toString().size()
                                       : QVariant();
    }
};

std::unique_ptr<QAbstractItemModel> descendants(QAbstractItemModel* source, QItemSelectionModel*)
{
    auto proxy = std::make_unique<KDescendantsProxyModel>();
    proxy->setSourceModel(source);
    return proxy;
}

std::unique_ptr<QAbstractItemModel> rowsConcatenated(QAbstractItemModel* source,
                                                     QItemSelectionModel*)
{
    auto proxy = std::make_unique<KConcatenateRowsProxyModel>();
    proxy->addSourceModel(source);
    return proxy;
}

std::unique_ptr<QAbstractItemModel> selected(QAbstractItemModel* source,
                                             QItemSelectionModel* selection)
{
    auto proxy = std::make_unique<KSelectionProxyModel>(selection);
    proxy->setFilterBehavior(KSelectionProxyModel::SubTrees);
    proxy->setSourceModel(source);
    return proxy;
}

std::unique_ptr<QAbstractItemModel> rearranged(QAbstractItemModel* source, QItemSelectionModel*)
{
    auto proxy = std::make_unique<KRearrangeColumnsProxyModel>();
    // Trees hang on the first column.
    proxy->setSourceColumns({0, 1, 0});
    proxy->setSourceModel(source);
    return proxy;
}

std::unique_ptr<QAbstractItemModel> withMoreColumns(QAbstractItemModel* source,
                                                    QItemSelectionModel*)
{
    auto proxy = std::make_unique<WithRowNumbers>();
    proxy->setSourceModel(source);
    return proxy;
}

} // namespace

std::vector<NamedProxy> proxiesOfKItemModels()
{
    return {{"descendants", descendants},
            {"rows concatenated", rowsConcatenated, Source::List},
            {"selected", selected},
            {"columns rearranged", rearranged},
            {"more columns", withMoreColumns}};
}

} // namespace Zorvane::Testing

#include "Tests/TreeModel/WatchingProxies.h"

#include <QtCore/QConcatenateTablesProxyModel>
#include <QtCore/QIdentityProxyModel>
#include <QtCore/QSortFilterProxyModel>
#include <QtCore/QTransposeProxyModel>

namespace Zorvane::Testing {

namespace {

template <typename Proxy>
ProxyMaker plain()
{
    return [](QAbstractItemModel* source, QItemSelectionModel*) {
        auto proxy = std::make_unique<Proxy>();
        proxy->setSourceModel(source);
        return proxy;
    };
}

enum class Filter
{
    None,
    Rows,
    Recursive
};

ProxyMaker sortFilter(bool sorted, Filter filter)
{
    return [=](QAbstractItemModel* source, QItemSelectionModel*) {
        auto proxy = std::make_unique<QSortFilterProxyModel>();
        proxy->setRecursiveFilteringEnabled(filter == Filter::Recursive);
        if (filter != Filter::None)
            proxy->setFilterRegularExpression(QStringLiteral("[1-3v]"));
        proxy->setSourceModel(source);
        if (sorted)
            proxy->sort(0);
        return proxy;
    };
}

std::unique_ptr<QAbstractItemModel> concatenated(QAbstractItemModel* source, QItemSelectionModel*)
{
    auto proxy = std::make_unique<QConcatenateTablesProxyModel>();
    proxy->addSourceModel(source);
    return proxy;
}

std::vector<NamedProxy> allProxies()
{
    std::vector<NamedProxy> all{{"sorted", sortFilter(true, Filter::None), Source::AnyTree, true},
                                {"filtered", sortFilter(false, Filter::Rows)},
                                {"sorted and filtered recursively",
                                 sortFilter(true, Filter::Recursive), Source::AnyTree, true},
                                {"filtered recursively", sortFilter(false, Filter::Recursive)},
                                {"identity", plain<QIdentityProxyModel>()},
                                {"transposed", plain<QTransposeProxyModel>(), Source::List},
                                {"concatenated", concatenated, Source::ExactTree}};
    for (NamedProxy& more : proxiesOfKItemModels())
        all.push_back(std::move(more));
    return all;
}

/** All that a model shows; rows of one parent in the order of what they show, if so wanted. */
QString described(const QAbstractItemModel& model, bool isSorted, const QModelIndex& parent = {})
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        QString text;
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex index = model.index(row, column, parent);
            text += index.data().toString() + QLatin1Char(':');
            if (model.hasChildren(index))
                text += QLatin1Char('(') + described(model, isSorted, index) + QLatin1Char(')');
        }
        rows << text;
    }
    if (isSorted)
        rows.sort();
    return rows.join(QLatin1Char(' '));
}

bool isAscending(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        // Rows without a text come last.
        const QVariant text = index.data();
        const QVariant before = row > 0 ? model.index(row - 1, 0, parent).data() : QVariant();
        const bool isLess = text.isValid() && before.toString() > text.toString();
        if (isLess || !isAscending(model, index))
            return false;
    }
    return true;
}

} // namespace

WatchingProxies::WatchingProxies(QAbstractItemModel* model, Source source)
    : m_model(model)
    , m_selection(model)
{
    for (int row = 0; row < model->rowCount(); row += 3)
        m_selection.select(model->index(row, 0), QItemSelectionModel::Select);
    for (NamedProxy& kind : allProxies()) {
        if (kind.source > source)
            continue;
        Watcher watcher;
        watcher.proxy = kind.make(model, &m_selection);
        watcher.top = plain<QSortFilterProxyModel>()(watcher.proxy.get(), nullptr);
        watcher.mirror = std::make_unique<ModelMirror>(watcher.proxy.get());
        watcher.topMirror = std::make_unique<ModelMirror>(watcher.top.get());
        watcher.kind = std::move(kind);
        m_watchers.push_back(std::move(watcher));
    }
}

QString WatchingProxies::difference() const
{
    for (const Watcher& watcher : m_watchers) {
        const QString name = QString::fromLatin1(watcher.kind.name) + QStringLiteral(": ");
        if (const QString found = watcher.mirror->difference(); !found.isEmpty())
            return name + found;
        if (const QString found = watcher.topMirror->difference(); !found.isEmpty())
            return name + QStringLiteral("on top, ") + found;
        const bool isSorted = watcher.kind.isSorted;
        const QString shown = described(*watcher.proxy, isSorted);
        const auto fresh = watcher.kind.make(m_model, &m_selection);
        if (shown != described(*fresh, isSorted))
            return name + shown + QStringLiteral("\ninstead of ") + described(*fresh, isSorted);
        if (isSorted && !isAscending(*watcher.proxy))
            return name + QStringLiteral("out of order");
        if (described(*watcher.top, isSorted) != shown)
            return name + QStringLiteral("on top, ") + described(*watcher.top, isSorted);
    }
    return {};
}

} // namespace Zorvane::Testing

#pragma once

#include "Tests/Support/ModelMirror.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QItemSelectionModel>

#include <functional>
#include <memory>
#include <vector>

namespace Zorvane::Testing {

using ProxyMaker =
    std::function<std::unique_ptr<QAbstractItemModel>(QAbstractItemModel*, QItemSelectionModel*)>;

/** What a proxy is made for. */
enum class Source
{
    AnyTree,
    /** It takes every layout change to keep the row counts. */
    ExactTree,
    List
};

struct NamedProxy
{
    const char* name;
    ProxyMaker make;
    Source source = Source::AnyTree;
    /** By text; the order of equal ones is not defined. */
    bool isSorted = false;
};

/** Of another maker; none where the platform has no such library. */
std::vector<NamedProxy> proxiesOfKItemModels();

/**
 * Proxies of every kind that follow a model, each with another one on top. Whether they have
 * followed is seen twice: by a copy that hears only their signals, and by proxies made afresh.
 */
class WatchingProxies
{
public:
    WatchingProxies(QAbstractItemModel* model, Source source);

    /** Empty, or which proxy shows something else than it should. */
    QString difference() const;

private:
    struct Watcher
    {
        NamedProxy kind;
        std::unique_ptr<QAbstractItemModel> proxy;
        std::unique_ptr<QAbstractItemModel> top;
        std::unique_ptr<ModelMirror> mirror;
        std::unique_ptr<ModelMirror> topMirror;
    };

    QAbstractItemModel* const m_model;
    /** One of the proxies shows what is selected. */
    mutable QItemSelectionModel m_selection;
    std::vector<Watcher> m_watchers;
};

} // namespace Zorvane::Testing

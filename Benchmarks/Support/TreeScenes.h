#pragma once

#include "Host/Widgets/ZVTreeViewModel.h"
#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QTreeView>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Zorvane::Benchmarks {

using Items = std::vector<std::shared_ptr<GenericTreeViewModelHandling::ModelItem>>;

/** `fanOuts` children at each level, with scattered ids and names such as "Part 000123". */
Items makeTree(const std::vector<int>& fanOuts);

/** Long lists of which every other item has one and the same id, before and after a refresh. */
std::pair<Items, Items> makeDuplicates(int count);

/** The very same items, but for one new top-level item, with one other name below. */
Items handedOnTree(const Items& before);

/** The tree as one of the cases "same", "label", ... "shuffle" leaves it. */
Items changedTree(const Items& before, const std::string& change);

std::shared_ptr<GenericTreeViewModelHandling::ModelRoot> rootOf(const Items& items);

/** Something that follows a model: nothing, a view, a proxy. */
class Attachment
{
public:
    /**
     * `kind`: "none", "view", "proxy", "sorted", "deep" for a view with all rows expanded that have
     * children, or "deep-all" for one after `expandAll`, which takes leaves for expanded, too.
     */
    Attachment(const std::string& kind, QAbstractItemModel* model);
    ~Attachment();

    /** Sets the current row and selects 1 % where there is a view. */
    void prepare();
    /** Lets the follower finish what the model's announcements made it put off. */
    void settle();

private:
    const std::string m_kind;
    std::unique_ptr<QSortFilterProxyModel> m_proxy;
    std::unique_ptr<QTreeView> m_view;
};

/** Our side: a model that a synchronizer fills, with something attached. */
class SyncronizedScene
{
public:
    explicit SyncronizedScene(const std::string& attached, int columns = 1);

    void show(const Items& items);
    void prepare() { m_attachment.prepare(); }
    using Root = std::shared_ptr<GenericTreeViewModelHandling::ModelRoot>;
    void refresh(const Root& root);
    /** One after the other. */
    void refreshInTurn(const std::vector<Root>& roots);
    /** All rows get the value in columns 1 to 3. */
    void writeAll(const Root& root, const QVariant& value);
    ZVTreeViewModel& model() { return m_model; }

private:
    ZVTreeViewModel m_model;
    GenericTreeViewModelHandling::ModelItemToZVTreeModelSyncronizer m_syncronizer;
    Attachment m_attachment;
};

/** The peer: Qt's own model, cleared and filled again. */
class RebuiltScene
{
public:
    explicit RebuiltScene(const std::string& attached, int columns = 1);

    void rebuild(const Items& items);
    void writeAll(const QVariant& value);
    void prepare() { m_attachment.prepare(); }

private:
    QStandardItemModel m_model;
    Attachment m_attachment;
    const int m_columns;
};

} // namespace Zorvane::Benchmarks

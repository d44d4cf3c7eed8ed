#include "Workbench/Tree/DesignTree.h"

#include "Host/Widgets/ZVTreeViewPlaceKeeper.h"
#include "TreeModel/ModelItemFilterCombiner.h"
#include "TreeModel/ZVTreeItemDataProviderManager.h"
#include "Utilities/ReferenceIndicatorDelegate.h"
#include "Workbench/Design/DesignSession.h"
#include "Workbench/MeshView/PartIcon.h"
#include "Workbench/Tree/DesignTreeDelegate.h"
#include "Workbench/Tree/KindFilter.h"
#include "Workbench/Tree/NameFilter.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <utility>

namespace Zorvane::Workbench {

namespace {

using namespace GenericTreeViewModelHandling;

/** Facts of many meshes come faster than anybody reads; each refresh looks at every row. */
constexpr int s_soonMilliseconds = 60;
/** In digits. */
constexpr int s_widestTexts = 60;

std::shared_ptr<ModelItemFilterInterface>
combined(const std::vector<std::shared_ptr<ModelItemFilterInterface>>& filters)
{
    auto combiner =
        std::make_shared<ModelItemFilterCombiner>(ModelItemFilterCombiner::AllMustAccept);
    combiner->setFilterToCombine(filters);
    return combiner;
}

QModelIndex findRow(const QAbstractItemModel& model, const IDCombiner& id,
                    const QModelIndex& parent)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, TreeColumn::Name, parent);
        if (index.data(ModelItemToZVTreeModelSyncronizer::DefaultIdRole).value<IDCombiner>() == id)
            return index;
        const QModelIndex below = findRow(model, id, index);
        if (below.isValid())
            return below;
    }
    return {};
}

} // namespace

DesignTree::DesignTree(DesignSession& session, MeshLoader& loader, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_catalog(session, loader)
    , m_nameFilter(std::make_shared<NameFilter>(m_catalog))
    , m_kindFilter(std::make_shared<KindFilter>(m_catalog))
    , m_pipeline(session, combined({m_kindFilter, m_nameFilter}),
                 [this] { schedule(Scope::Rows, When::Next); })
    , m_decoration(session, m_catalog, m_pipeline)
    , m_refresh([this] { refreshNow(); })
{
    m_model.setHorizontalHeaderLabels(treeColumnTitles());
    for (int column = 0; column < m_model.columnCount(); ++column)
        m_model.setHeaderData(column, Qt::Horizontal, int(treeColumnAlignment(column)),
                              Qt::TextAlignmentRole);
    m_synchronizer.setDataProvider(m_decoration.provider());
    const std::shared_ptr<ZVTreeItemDataProviderInterface> rows = m_decoration.provider();
    // A refresh writes values itself; all else that changes meanwhile is shown by the next one.
    rows->registerUpdateCallback([this] {
        if (!m_busy)
            schedule(Scope::Values, When::Soon);
    });
    connect(&session, &DesignSession::changed, this, [this] { schedule(Scope::Rows, When::Next); });
    // A file that cannot be read, or can again, changes the row's state too, which only a full
    // refresh rewrites.
    connect(&loader, &MeshLoader::loaded, this, [this](const QString& path) {
        m_decoration.factsChanged();
        if (m_unreadable.remove(path))
            schedule(Scope::Rows, When::Soon);
    });
    connect(&loader, &MeshLoader::failed, this, [this](const QString& path) {
        m_unreadable.insert(path);
        schedule(Scope::Rows, When::Soon);
    });
    connect(&m_model, &ZVTreeViewModel::edited, this, &DesignTree::takeOverName);
    m_soon.setSingleShot(true);
    m_soon.setInterval(s_soonMilliseconds);
    connect(&m_soon, &QTimer::timeout, this, [this] { m_refresh.post(); });
    schedule(Scope::Rows, When::Next);
}

DesignTree::~DesignTree() = default;

void DesignTree::attach(QTreeView* view)
{
    m_view = view;
    view->setModel(&m_model);
    view->setItemDelegate(new DesignTreeDelegate(view));
    view->setItemDelegateForColumn(TreeColumn::UsedBy, new ReferenceIndicatorDelegate(view));
    view->setIconSize(partIconSize(s_rowIconSize));
    view->setUniformRowHeights(true);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
    view->setAllColumnsShowFocus(true);
    // Before the keeper hears of it: what is expanded above moves the rows in sight.
    connect(&m_model, &ZVTreeViewModel::published, this, &DesignTree::expandNewRows);
    new ZVTreeViewPlaceKeeper(view);
    connect(view, &QTreeView::expanded, this,
            [this](const QModelIndex& index) { noteExpansion(index, true); });
    connect(view, &QTreeView::collapsed, this,
            [this](const QModelIndex& index) { noteExpansion(index, false); });
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &DesignTree::currentChanged);
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (!m_busy)
            noteChoice();
    });
    // Also of the row that is current already.
    connect(view, &QTreeView::pressed, this, &DesignTree::noteChoice);
}

void DesignTree::setFilterText(const QString& text)
{
    m_nameFilter->setText(text);
}

void DesignTree::setKindShown(ObjectKind kind, bool shown)
{
    m_kindFilter->setShown(kind, shown);
}

void DesignTree::setToolSideShown(ToolSide side, bool shown)
{
    m_kindFilter->setToolSideShown(side, shown);
}

bool DesignTree::isFiltered() const
{
    return m_nameFilter->isActive() || m_kindFilter->isActive();
}

IDCombiner DesignTree::idAt(const QModelIndex& index) const
{
    return index.sibling(index.row(), TreeColumn::Name)
        .data(ModelItemToZVTreeModelSyncronizer::DefaultIdRole)
        .value<IDCombiner>();
}

QModelIndex DesignTree::indexOf(const IDCombiner& id) const
{
    return findRow(m_model, id, {});
}

IDCombiner DesignTree::currentId() const
{
    return m_view ? idAt(m_view->currentIndex()) : IDCombiner();
}

bool DesignTree::select(const IDCombiner& id)
{
    const QModelIndex index = indexOf(id);
    if (!m_view || !index.isValid())
        return false;
    noteChoice();
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
    return true;
}

bool DesignTree::editCurrent()
{
    if (!m_view)
        return false;
    const QModelIndex index =
        m_view->currentIndex().sibling(m_view->currentIndex().row(), TreeColumn::Name);
    if (!index.flags().testFlag(Qt::ItemIsEditable))
        return false;
    m_view->setCurrentIndex(index);
    m_view->edit(index);
    return true;
}

void DesignTree::expandAll()
{
    m_collapsed.clear();
    applyExpansion({});
}

void DesignTree::collapseAll()
{
    if (m_view)
        m_view->collapseAll();
}

void DesignTree::schedule(Scope scope, When when)
{
    m_scheduled = true;
    m_structureChanged = m_structureChanged || scope == Scope::Rows;
    if (when == When::Soon) {
        if (!m_soon.isActive())
            m_soon.start();
    } else {
        m_refresh.post();
    }
}

void DesignTree::refreshNow()
{
    if (!m_scheduled)
        return;
    m_scheduled = false;
    m_soon.stop();
    m_refresh.unpost();
    const QScopedValueRollback<bool> busy(m_busy, true);
    const bool isWhole = std::exchange(m_structureChanged, false);
    m_expansionDue = isWhole;
    const IDCombiner chosen = currentId();
    if (isWhole) {
        m_decoration.objectsChanged();
        m_synchronizer.syncronizeAndUpdateViewModel(&m_model, m_pipeline.provideModel());
    } else {
        m_synchronizer.updateViewModelItems(&m_model);
    }
    // There may have been nothing to announce, and yet another filter.
    expandNewRows();
    if (isWhole) {
        widenForNewObjects();
        keepChoice(chosen);
    }
    Q_EMIT refreshed();
}

void DesignTree::expandNewRows()
{
    // Another refresh, of values only, is none that brings rows.
    if (!m_busy || !m_expansionDue)
        return;
    applyExpansion({});
    m_expansionDue = false;
}

void DesignTree::applyExpansion(const QModelIndex& parent)
{
    if (!m_view)
        return;
    const QScopedValueRollback<bool> busy(m_busy, true);
    for (int row = 0; row < m_model.rowCount(parent); ++row) {
        const QModelIndex index = m_model.index(row, TreeColumn::Name, parent);
        if (!m_model.hasChildren(index))
            continue;
        m_view->setExpanded(index, m_nameFilter->isActive() || m_collapsed.count(idAt(index)) == 0);
        applyExpansion(index);
    }
}

void DesignTree::noteChoice()
{
    m_standIn = IDCombiner();
}

void DesignTree::keepChoice(const IDCombiner& before)
{
    // Another row would take the name that is being typed for finished.
    if (m_view && m_view->isPersistentEditorOpen(m_view->currentIndex()))
        return;
    // Else nobody has chosen anything since the last refresh.
    if (before != m_standIn)
        m_choice = before;
    if (m_session.designs().empty() && m_session.looseParts().empty())
        m_choice = IDCombiner();
    if (m_choice != IDCombiner() && m_choice != currentId())
        chooseAgain();
    m_standIn = currentId();
}

void DesignTree::chooseAgain()
{
    const QModelIndex index = indexOf(m_choice);
    if (!m_view || !index.isValid())
        return;
    // By itself the view opens what the user has closed above the current row.
    const bool scrolls = m_view->hasAutoScroll();
    m_view->setAutoScroll(false);
    m_view->setCurrentIndex(index);
    m_view->setAutoScroll(scrolls);
    if (!m_view->visualRect(index).isEmpty())
        m_view->scrollTo(index);
}

void DesignTree::noteExpansion(const QModelIndex& index, bool expanded)
{
    if (m_busy || m_nameFilter->isActive())
        return;
    if (expanded)
        m_collapsed.erase(idAt(index));
    else
        m_collapsed.insert(idAt(index));
}

void DesignTree::widenForNewObjects()
{
    if (!m_view)
        return;
    std::set<GUIdentifier> now;
    for (const Design& design : m_session.designs())
        now.insert(design.id);
    for (const Part& part : m_session.looseParts())
        now.insert(part.id);
    const std::set<GUIdentifier> before = std::exchange(m_fitted, std::move(now));
    if (std::includes(before.begin(), before.end(), m_fitted.begin(), m_fitted.end()))
        return;
    const int widest = s_widestTexts * m_view->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    // The view keeps its own answer from others, the views' common base does not.
    const QAbstractItemView& view = *m_view;
    for (const int column : {TreeColumn::Name, TreeColumn::Kind}) {
        const int wanted = std::min(view.sizeHintForColumn(column), widest);
        if (wanted > m_view->columnWidth(column))
            m_view->setColumnWidth(column, wanted);
    }
}

void DesignTree::takeOverName(const QModelIndex& index, const QVariant& value, int role)
{
    const IDCombiner id = idAt(index);
    if (index.column() != TreeColumn::Name || (role != Qt::EditRole && role != Qt::DisplayRole) ||
        !id.hasCombinedPart())
        return;
    const QString refusal = m_session.rename(id.getCombinedPart(), value.toString());
    // Also on success: the session trims what was typed.
    m_model.itemFromIndex(index)->setText(m_session.name(id.getCombinedPart()).toStdString());
    noteChoice();
    if (!refusal.isEmpty())
        Q_EMIT renameRefused(value.toString(), refusal);
}

} // namespace Zorvane::Workbench

#pragma once

#include "Host/Widgets/ZVTreeViewModel.h"
#include "TreeModel/ModelItemToZVTreeModelSyncronizer.h"
#include "Workbench/Tree/DesignCatalog.h"
#include "Workbench/Tree/DesignPipeline.h"
#include "Workbench/Tree/PostedCall.h"
#include "Workbench/Tree/RowDecoration.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtCore/QTimer>

#include <memory>
#include <set>

QT_BEGIN_NAMESPACE
class QTreeView;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

class DesignSession;
class KindFilter;
class NameFilter;

/**
 * Shows a session in a tree view and keeps it in step: whatever changes in the session or the
 * filters is gathered and shown once the current event has been handled, facts of meshes a few
 * times a second, with selection, expansion and scroll position kept. Names edited in the view go
 * to the session; a refused one is put back.
 *
 * Rows with children are expanded unless the user has collapsed them, and always while a text
 * filters. What is opened finds the column of names wide enough for them, within reason, as
 * fonts differ; nothing makes it narrower but the user. Session, loader and view must outlive it.
 * Not supported: more than one view, sorting by a column.
 */
class DesignTree : public QObject
{
    Q_OBJECT

public:
    DesignTree(DesignSession& session, MeshLoader& loader, QObject* parent = nullptr);
    ~DesignTree() override;

    /** Sets up the view for this tree. Once. */
    void attach(QTreeView* view);

    const ZVTreeViewModel& model() const { return m_model; }
    const DesignCatalog& catalog() const { return m_catalog; }
    const DesignPipeline& pipeline() const { return m_pipeline; }

    void setFilterText(const QString& text);
    void setKindShown(ObjectKind kind, bool shown);
    /** Of the tools, as far as they are shown at all. */
    void setToolSideShown(ToolSide side, bool shown);
    bool isFiltered() const;

    /** The id of a row; null for an invalid index. */
    IDCombiner idAt(const QModelIndex& index) const;
    /** Invalid unless the id is shown. */
    QModelIndex indexOf(const IDCombiner& id) const;
    IDCombiner currentId() const;
    /** Makes the row current and visible; false when it is not shown. */
    bool select(const IDCombiner& id);
    /** Edits the current row's name in place; false when it cannot be renamed. */
    bool editCurrent();
    void expandAll();
    void collapseAll();

    /** Does now what would be done once control returns to the event loop. */
    void refreshNow();

Q_SIGNALS:
    /** Another row, or none, is current. */
    void currentChanged();
    /** The view is in step again. */
    void refreshed();
    /** A new name was refused, and why; the row shows the old one again. */
    void renameRefused(const QString& name, const QString& reason);

private:
    enum class Scope
    {
        /** What asked for it in the rows there are. */
        Values,
        /** Rows, their order and everything in them. */
        Rows
    };
    enum class When
    {
        /** Once the current event has been handled. */
        Next,
        /** Together with what else happens shortly. */
        Soon
    };

    void schedule(Scope scope, When when);
    void expandNewRows();
    void applyExpansion(const QModelIndex& parent);
    /** What is current, or will be, is somebody's choice. */
    void noteChoice();
    /** A choice that a filter takes away is current again as soon as it is shown again. */
    void keepChoice(const IDCombiner& before);
    void chooseAgain();
    void noteExpansion(const QModelIndex& index, bool expanded);
    void widenForNewObjects();
    void takeOverName(const QModelIndex& index, const QVariant& value, int role);

    DesignSession& m_session;
    DesignCatalog m_catalog;
    std::shared_ptr<NameFilter> m_nameFilter;
    std::shared_ptr<KindFilter> m_kindFilter;
    DesignPipeline m_pipeline;
    RowDecoration m_decoration;
    ZVTreeViewModel m_model;
    GenericTreeViewModelHandling::ModelItemToZVTreeModelSyncronizer m_synchronizer;
    QPointer<QTreeView> m_view;
    std::set<IDCombiner> m_collapsed;
    /** Designs and mesh files whose names the column is wide enough for. */
    std::set<GUIdentifier> m_fitted;
    /** What was chosen last, shown or not. */
    IDCombiner m_choice;
    /** What the view had current after a refresh, unless it was chosen since. */
    IDCombiner m_standIn;
    QTimer m_soon;
    PostedCall m_refresh;
    /** Files that could not be read last time. */
    QSet<QString> m_unreadable;
    bool m_scheduled = false;
    bool m_structureChanged = false;
    bool m_expansionDue = false;
    bool m_busy = false;
};

} // namespace Zorvane::Workbench

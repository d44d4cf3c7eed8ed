#pragma once

#include "Workbench/Tree/DesignCatalog.h"

#include <QtCore/QStringList>

#include <memory>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {
class StaticTreeItemByIdIconProvider;
class ZVTreeItemDataProviderInterface;
class ZVTreeItemDataProviderManager;
} // namespace Zorvane::GenericTreeViewModelHandling

namespace Zorvane::Workbench {

class CatalogTextProvider;
class DesignPipeline;
class DesignSession;

/** The columns of the design tree. */
namespace TreeColumn {
enum Column
{
    Name,
    Kind,
    /** Patches of those that refer to a material or file. */
    UsedBy,
    Triangles,
    Size,
    Surface,
    Watertight,
    State
};
} // namespace TreeColumn

/** Figures stand to the right, short answers in the middle, texts to the left. */
Qt::Alignment treeColumnAlignment(int column);
/** Titles of the columns, translated. */
QStringList treeColumnTitles();

/** Pictures in front of names are this high, in logical pixels. */
constexpr int s_rowIconSize = 16;

/** Column 0: `ZVWidgetStatus::Stati` of the row as an int. */
constexpr int s_statiRole = Qt::UserRole + 1;

/**
 * The stack of data providers that fills the rows of the design tree: texts, icons, states, flags.
 * Session, catalog and pipeline must outlive it.
 */
class RowDecoration
{
public:
    RowDecoration(const DesignSession& session, const DesignCatalog& catalog,
                  const DesignPipeline& pipeline);
    ~RowDecoration();

    std::shared_ptr<GenericTreeViewModelHandling::ZVTreeItemDataProviderManager> provider() const
    {
        return m_manager;
    }
    /** The catalog's objects have changed: assigns the icons anew. */
    void objectsChanged();
    /** More meshes have been read: asks for a refresh of the columns that tell facts. */
    void factsChanged();

private:
    using Provider = GenericTreeViewModelHandling::ZVTreeItemDataProviderInterface;
    using Text = std::function<QString(const DesignCatalog&, const CatalogEntry&)>;

    std::shared_ptr<CatalogTextProvider> addText(int column, int role, Text text);
    void addNames();
    void addTexts();
    void addFactTexts();
    void addIcons();
    void addReferences();
    void addStates();
    void addLooks();
    void addForObjects(std::shared_ptr<Provider> provider);
    void addForGroups(std::shared_ptr<Provider> provider);

    const DesignSession& m_session;
    const DesignCatalog& m_catalog;
    const DesignPipeline& m_pipeline;
    std::shared_ptr<GenericTreeViewModelHandling::ZVTreeItemDataProviderManager> m_manager;
    std::shared_ptr<GenericTreeViewModelHandling::StaticTreeItemByIdIconProvider> m_icons;
    std::vector<std::shared_ptr<CatalogTextProvider>> m_factTexts;
};

} // namespace Zorvane::Workbench

#pragma once

#include <QtCore/QObject>

#include <memory>

namespace Zorvane {
class EditorRibbonDisplayHelper;
}

namespace Zorvane::Workbench {

class DesignTree;
class FilterBar;
class MeshView;
class WindowCommands;

/**
 * Lets the display toggles act: kinds of objects come and go in the tree, and with them in the mesh
 * view; the sheet's surfaces and sides come and go in the mesh view. The filter bar's kinds and the
 * toggles say the same at any time. Everything given must outlive it.
 */
class DisplayToggles : public QObject
{
    Q_OBJECT

public:
    DisplayToggles(const WindowCommands& commands, FilterBar& filterBar, DesignTree& tree,
                   MeshView& view, QObject* parent);
    ~DisplayToggles() override;

    /** Nothing can be toggled while nothing is open. */
    void setEnabled(bool enabled);

private:
    void connectKinds();
    void connectToolSides();
    void connectSides();
    void showSides();
    void showOnlyGeometry(bool only);

    const WindowCommands& m_commands;
    FilterBar& m_filterBar;
    DesignTree& m_tree;
    MeshView& m_view;
    /** While only the geometry is shown. */
    std::unique_ptr<EditorRibbonDisplayHelper> m_before;
};

} // namespace Zorvane::Workbench

#include "Workbench/Commands/DisplayToggles.h"

#include "Actions/EditorRibbonDisplayHelper.h"
#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/MeshView/MeshView.h"
#include "Workbench/Tree/DesignTree.h"
#include "Workbench/Tree/FilterBar.h"

namespace Zorvane::Workbench {

namespace {

using Main = ZVMainActions;

struct KindRow
{
    Main::Actions id;
    ObjectKind kind;
};

// clang-format off
constexpr KindRow s_kinds[] = {
    {Main::ShowCurrentParts,   ObjectKind::Part},
    {Main::ShowBlank,          ObjectKind::Blank},
    {Main::ShowTube,           ObjectKind::Blank},
    {Main::ShowCurrentOpTools, ObjectKind::Tool},
    {Main::ShowHydroOpTools,   ObjectKind::Tool},
    {Main::ShowTandrelTools,   ObjectKind::Tool},
};

constexpr Main::Actions s_upperTools[] = {Main::ShowCurrentUpperOpTools, Main::ShowTandrelUpperTools};
constexpr Main::Actions s_lowerTools[] = {Main::ShowCurrentLowerOpTools, Main::ShowTandrelLowerTools};
constexpr Main::Actions s_surfaces[] = {Main::ShowSheet, Main::ShowFormedTube};
constexpr Main::Actions s_sides[] = {Main::ShowMirroredSheet, Main::ShowBothSymmetricSides,
                                     Main::HidePrimarySymmetricSide, Main::HideSecondarySymmetricSide};
// clang-format on

} // namespace

DisplayToggles::DisplayToggles(const WindowCommands& commands, FilterBar& filterBar,
                               DesignTree& tree, MeshView& view, QObject* parent)
    : QObject(parent)
    , m_commands(commands)
    , m_filterBar(filterBar)
    , m_tree(tree)
    , m_view(view)
{
    connectKinds();
    connectToolSides();
    connectSides();
    connect(m_commands[WorkbenchActions::ShowOnlyGeometry], &QAction::toggled, this,
            &DisplayToggles::showOnlyGeometry);
}

DisplayToggles::~DisplayToggles() = default;

void DisplayToggles::connectKinds()
{
    for (const KindRow& row : s_kinds) {
        QAction* const action = m_commands[row.id];
        action->setChecked(true);
        connect(action, &QAction::toggled, this,
                [this, kind = row.kind](bool shown) { m_filterBar.setKindShown(kind, shown); });
        connect(&m_filterBar, &FilterBar::kindToggled, action,
                [action, mine = row.kind](ObjectKind kind, bool shown) {
                    if (kind == mine)
                        action->setChecked(shown);
                });
    }
}

void DisplayToggles::connectToolSides()
{
    const auto connectSide = [this](const auto& ids, ToolSide side) {
        for (const Main::Actions id : ids) {
            m_commands[id]->setChecked(true);
            connect(m_commands[id], &QAction::toggled, this, [this, &ids, side](bool shown) {
                for (const Main::Actions other : ids)
                    m_commands[other]->setChecked(shown);
                m_tree.setToolSideShown(side, shown);
            });
        }
    };
    connectSide(s_upperTools, ToolSide::Upper);
    connectSide(s_lowerTools, ToolSide::Lower);
}

void DisplayToggles::connectSides()
{
    for (const Main::Actions id : s_surfaces) {
        m_commands[id]->setChecked(true);
        connect(m_commands[id], &QAction::toggled, this, [this](bool shown) {
            for (const Main::Actions other : s_surfaces)
                m_commands[other]->setChecked(shown);
            m_view.setLook(shown ? MeshLook::Surfaces : MeshLook::Outlines);
        });
    }
    m_commands[Main::ShowBothSymmetricSides]->setChecked(true);
    // Hiding one side shows the other one, and showing both hides none.
    const auto turnsOff = [this](Main::Actions id, std::initializer_list<Main::Actions> others) {
        for (const Main::Actions other : others)
            connect(m_commands[id], &QAction::toggled, m_commands[other],
                    [action = m_commands[other]](bool on) {
                        if (on)
                            action->setChecked(false);
                    });
        connect(m_commands[id], &QAction::toggled, this, &DisplayToggles::showSides);
    };
    turnsOff(Main::ShowBothSymmetricSides,
             {Main::HidePrimarySymmetricSide, Main::HideSecondarySymmetricSide});
    turnsOff(Main::HidePrimarySymmetricSide, {Main::HideSecondarySymmetricSide});
    turnsOff(Main::HideSecondarySymmetricSide, {Main::HidePrimarySymmetricSide});
    turnsOff(Main::ShowMirroredSheet, {});
}

void DisplayToggles::showSides()
{
    const bool hidesPrimary = m_commands[Main::HidePrimarySymmetricSide]->isChecked();
    const bool hidesSecondary = m_commands[Main::HideSecondarySymmetricSide]->isChecked();
    m_commands[Main::ShowBothSymmetricSides]->setChecked(!hidesPrimary && !hidesSecondary);
    m_view.setSides(
        {!hidesPrimary, !hidesSecondary, m_commands[Main::ShowMirroredSheet]->isChecked()});
}

void DisplayToggles::setEnabled(bool enabled)
{
    for (const KindRow& row : s_kinds)
        m_commands[row.id]->setEnabled(enabled);
    const auto enable = [this, enabled](const auto& ids) {
        for (const Main::Actions id : ids)
            m_commands[id]->setEnabled(enabled);
    };
    enable(s_upperTools);
    enable(s_lowerTools);
    enable(s_surfaces);
    enable(s_sides);
    m_commands[WorkbenchActions::ShowOnlyGeometry]->setEnabled(enabled);
}

void DisplayToggles::showOnlyGeometry(bool only)
{
    if (!only) {
        m_before.reset();
        return;
    }
    m_before = std::make_unique<EditorRibbonDisplayHelper>(m_commands.main());
    m_before->showOnlyGeometry();
}

} // namespace Zorvane::Workbench

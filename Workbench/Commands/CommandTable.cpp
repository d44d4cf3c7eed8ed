#include "Workbench/Commands/CommandTable.h"

#include "Actions/ZVGlobalActions.h"
#include "Actions/ZVMainActions.h"
#include "Workbench/Commands/WorkbenchActions.h"

namespace Zorvane::Workbench {

namespace {

using Menu = CommandMenu;
using Bar = CommandBar;

constexpr auto s_forming = unsigned(WindowMode::Forming);
constexpr auto s_tube = unsigned(WindowMode::Tube);
constexpr auto s_tandrel = unsigned(WindowMode::Tandrel);
constexpr unsigned s_sheets = s_forming | s_tandrel;
constexpr unsigned s_all = s_forming | s_tube | s_tandrel;

Command main(Menu menu, ZVMainActions::Actions id, Bar bar = Bar::None, unsigned modes = s_all)
{
    return {menu, CommandSource::Main, id, bar, modes};
}

Command own(Menu menu, WorkbenchActions::Actions id, Bar bar = Bar::None)
{
    return {menu, CommandSource::Workbench, id, bar, s_all};
}

Command global(Menu menu, ZVGlobalActions::Actions id)
{
    return {menu, CommandSource::Global, id, Bar::None, s_all};
}

/** In a tool bar too, if one is named. */
Command separator(Menu menu, Bar bar = Bar::None)
{
    return {menu, CommandSource::Separator, 0, bar, s_all};
}

Command subMenu(Menu menu, CommandSubMenu id)
{
    return {menu, CommandSource::SubMenu, int(id), Bar::None, s_all};
}

std::vector<Command> createTable()
{
    using M = ZVMainActions;
    using W = WorkbenchActions;
    // clang-format off
    return {
        own(Menu::File, W::OpenFolder, Bar::File),
        main(Menu::File, M::Open, Bar::File),
        subMenu(Menu::File, CommandSubMenu::Recent),
        subMenu(Menu::File, CommandSubMenu::Samples),
        separator(Menu::File),
        own(Menu::File, W::Import),
        main(Menu::File, M::Export),
        separator(Menu::File),
        main(Menu::File, M::Save, Bar::File),
        main(Menu::File, M::SaveAs),
        own(Menu::File, W::SaveCopy),
        separator(Menu::File),
        main(Menu::File, M::ReOpen, Bar::File),
        own(Menu::File, W::ReopenAll),
        main(Menu::File, M::Close),
        own(Menu::File, W::CloseAll),
        separator(Menu::File),
        main(Menu::File, M::Exit),

        main(Menu::Edit, M::Undo, Bar::File),
        main(Menu::Edit, M::Redo, Bar::File),
        separator(Menu::Edit),
        own(Menu::Edit, W::Rename),
        own(Menu::Edit, W::Remove),
        own(Menu::Edit, W::Find),
        own(Menu::Edit, W::GoToReference),

        main(Menu::View, M::ViewFitToWindow, Bar::View),
        own(Menu::View, W::ZoomIn),
        own(Menu::View, W::ZoomOut),
        separator(Menu::View, Bar::View),
        subMenu(Menu::View, CommandSubMenu::Directions),
        main(Menu::Directions, M::ViewIsometricAndFitScene, Bar::View),
        main(Menu::Directions, M::ViewRotatedIsometricAndFitScene, Bar::View),
        main(Menu::Directions, M::ViewFromPosXAndFitScene, Bar::View),
        main(Menu::Directions, M::ViewFromNegXAndFitScene),
        main(Menu::Directions, M::ViewFromPosYAndFitScene),
        main(Menu::Directions, M::ViewFromNegYAndFitScene, Bar::View),
        main(Menu::Directions, M::ViewFromPosZAndFitScene, Bar::View),
        main(Menu::Directions, M::ViewFromNegZAndFitScene),
        separator(Menu::Directions),
        main(Menu::Directions, M::ViewFromXShortest),
        main(Menu::Directions, M::ViewFromYShortest),
        main(Menu::Directions, M::ViewFromZShortest),
        separator(Menu::View, Bar::View),
        main(Menu::View, M::RotateViewAroundZ, Bar::View),
        main(Menu::View, M::RotateViewAroundNegZ, Bar::View),
        main(Menu::View, M::ViewFlip, Bar::View),
        main(Menu::View, M::ViewLast, Bar::View),
        separator(Menu::View),
        own(Menu::View, W::ExpandAll),
        own(Menu::View, W::CollapseAll),
        separator(Menu::View),
        main(Menu::View, M::ToggleWhite3DViewBackground),
        main(Menu::View, M::FontSizeIncrease),
        main(Menu::View, M::FontSizeDecrease),
        subMenu(Menu::View, CommandSubMenu::Appearance),

        subMenu(Menu::Display, CommandSubMenu::Mode),
        separator(Menu::Display),
        main(Menu::Display, M::ShowCurrentParts, Bar::Display),
        main(Menu::Display, M::ShowBlank, Bar::Display, s_sheets),
        main(Menu::Display, M::ShowTube, Bar::Display, s_tube),
        main(Menu::Display, M::ShowSheet, Bar::Display, s_sheets),
        main(Menu::Display, M::ShowFormedTube, Bar::Display, s_tube),
        main(Menu::Display, M::ShowCurrentOpTools, Bar::Display, s_forming),
        main(Menu::Display, M::ShowCurrentUpperOpTools, Bar::Display, s_forming),
        main(Menu::Display, M::ShowCurrentLowerOpTools, Bar::Display, s_forming),
        main(Menu::Display, M::ShowHydroOpTools, Bar::Display, s_tube),
        main(Menu::Display, M::ShowTandrelTools, Bar::Display, s_tandrel),
        main(Menu::Display, M::ShowTandrelUpperTools, Bar::Display, s_tandrel),
        main(Menu::Display, M::ShowTandrelLowerTools, Bar::Display, s_tandrel),
        separator(Menu::Display, Bar::Display),
        main(Menu::Display, M::ShowMirroredSheet, Bar::Display, s_sheets),
        main(Menu::Display, M::ShowBothSymmetricSides, Bar::Display),
        main(Menu::Display, M::HidePrimarySymmetricSide, Bar::Display),
        main(Menu::Display, M::HideSecondarySymmetricSide, Bar::Display),
        separator(Menu::Display),
        own(Menu::Display, W::ShowOnlyGeometry),

        main(Menu::Tools, M::ComputeSimulation),
        own(Menu::Tools, W::StopSimulation),
        separator(Menu::Tools),
        own(Menu::Tools, W::ConvertMeshes),
        own(Menu::Tools, W::StressTree),
        own(Menu::Tools, W::FileDialogs),

        global(Menu::Help, ZVGlobalActions::HelpContents),
        separator(Menu::Help),
        own(Menu::Help, W::About),
        own(Menu::Help, W::AboutQt),
    };
    // clang-format on
}

} // namespace

const std::vector<Command>& commandTable()
{
    static const std::vector<Command> s_table = createTable();
    return s_table;
}

} // namespace Zorvane::Workbench

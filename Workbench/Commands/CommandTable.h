#pragma once

#include <vector>

namespace Zorvane::Workbench {

/** What one works on. Each mode has commands of its own, some of them under the same keys. */
enum class WindowMode : unsigned
{
    Forming = 1U << 0,
    Tube = 1U << 1,
    Tandrel = 1U << 2
};

enum class CommandMenu
{
    File,
    Edit,
    View,
    /** A menu in the one before it. */
    Directions,
    Display,
    Tools,
    Help
};

enum class CommandBar
{
    None,
    File,
    View,
    Display
};

/** Whose action a command is. */
enum class CommandSource
{
    Main,
    Global,
    Workbench,
    Separator,
    /** A menu in a menu; the window fills it, or other lines of the table do. */
    SubMenu
};

enum class CommandSubMenu
{
    Recent,
    Samples,
    Directions,
    Mode,
    Appearance
};

/** One line of a menu, and whether a tool bar has it too. */
struct Command
{
    CommandMenu menu;
    CommandSource source;
    /** An id of the source's table, or a `CommandSubMenu`. */
    int id;
    CommandBar bar;
    /** Of `WindowMode`. */
    unsigned modes;

    bool isIn(WindowMode mode) const { return (modes & unsigned(mode)) != 0; }
};

/** The commands of all modes in the order of the menus. */
const std::vector<Command>& commandTable();

} // namespace Zorvane::Workbench

#pragma once

namespace Zorvane::Workbench {

/** The table of the main actions lives as long as somebody holds one of these. */
class MainActionsScope
{
public:
    MainActionsScope();
    ~MainActionsScope();
    MainActionsScope(const MainActionsScope&) = delete;
    MainActionsScope& operator=(const MainActionsScope&) = delete;
};

} // namespace Zorvane::Workbench

#pragma once

#include "UiToolsExport.h"

namespace Zorvane {

class ZVMainActions;

/**
 * Keeps seven display toggles of the main actions: records which are on when it is created, and
 * restores them when it is destroyed. A toggle that has to change is triggered, as by a click, so
 * that everything connected to it follows; the others are left alone.
 *
 * The table must outlive it. Toggles that are disabled for the user are triggered all the same.
 * Not supported: the display toggles besides these seven.
 */
class ZORVANE_UITOOLS_EXPORT EditorRibbonDisplayHelper
{
public:
    explicit EditorRibbonDisplayHelper(ZVMainActions& actions);
    ~EditorRibbonDisplayHelper();
    EditorRibbonDisplayHelper(const EditorRibbonDisplayHelper&) = delete;
    EditorRibbonDisplayHelper& operator=(const EditorRibbonDisplayHelper&) = delete;

    /** Switches all seven off. */
    void showOnlyGeometry();

private:
    /** Whether each toggle is on; named and ordered as the values of `ZVMainActions::Actions`. */
    struct ToolBoxObjectsStates
    {
        bool ShowBlank = false;
        bool ShowCurrentOpTools = false;
        bool ShowSheetReference = false;
        bool ShowMirroredSheet = false;
        bool ShowSheet = false;
        bool HidePrimarySymmetricSide = false;
        bool HideSecondarySymmetricSide = false;
    };

    ToolBoxObjectsStates getObjectsStates(const ZVMainActions& actions);
    void setObjectStates(const ToolBoxObjectsStates& states, ZVMainActions& actions);

    ZVMainActions& m_actions;
    ToolBoxObjectsStates m_states;
};

} // namespace Zorvane

#include "Actions/EditorRibbonDisplayHelper.h"

#include "Actions/ZVMainActions.h"

#include <QtWidgets/QAction>

namespace Zorvane {

EditorRibbonDisplayHelper::EditorRibbonDisplayHelper(ZVMainActions& actions)
    : m_actions(actions)
    , m_states(getObjectsStates(actions))
{}

EditorRibbonDisplayHelper::~EditorRibbonDisplayHelper()
{
    setObjectStates(m_states, m_actions);
}

void EditorRibbonDisplayHelper::showOnlyGeometry()
{
    setObjectStates({}, m_actions);
}

EditorRibbonDisplayHelper::ToolBoxObjectsStates
EditorRibbonDisplayHelper::getObjectsStates(const ZVMainActions& actions)
{
    const auto isOn = [&actions](ZVMainActions::Actions id) { return actions[id]->isChecked(); };
    return {isOn(ZVMainActions::ShowBlank),
            isOn(ZVMainActions::ShowCurrentOpTools),
            isOn(ZVMainActions::ShowSheetReference),
            isOn(ZVMainActions::ShowMirroredSheet),
            isOn(ZVMainActions::ShowSheet),
            isOn(ZVMainActions::HidePrimarySymmetricSide),
            isOn(ZVMainActions::HideSecondarySymmetricSide)};
}

void EditorRibbonDisplayHelper::setObjectStates(const ToolBoxObjectsStates& states,
                                                ZVMainActions& actions)
{
    const auto put = [&actions](ZVMainActions::Actions id, bool on) {
        if (actions[id]->isChecked() != on)
            actions[id]->activate(QAction::Trigger);
    };
    put(ZVMainActions::ShowBlank, states.ShowBlank);
    put(ZVMainActions::ShowCurrentOpTools, states.ShowCurrentOpTools);
    put(ZVMainActions::ShowSheetReference, states.ShowSheetReference);
    put(ZVMainActions::ShowMirroredSheet, states.ShowMirroredSheet);
    put(ZVMainActions::ShowSheet, states.ShowSheet);
    put(ZVMainActions::HidePrimarySymmetricSide, states.HidePrimarySymmetricSide);
    put(ZVMainActions::HideSecondarySymmetricSide, states.HideSecondarySymmetricSide);
}

} // namespace Zorvane

#pragma once

#include "Actions/GenericMainActions.h"

namespace Zorvane::Workbench {

/** The Workbench's commands that the suite's tables don't have. */
class WorkbenchActions : public GenericMainActions
{
    Q_OBJECT

public:
    enum Actions
    {
        OpenFolder,
        Import,
        SaveCopy,
        ReopenAll,
        CloseAll,
        Rename,
        Remove,
        Find,
        GoToReference,
        ZoomIn,
        ZoomOut,
        ExpandAll,
        CollapseAll,
        ShowOnlyGeometry,
        StopSimulation,
        ConvertMeshes,
        StressTree,
        FileDialogs,
        About,
        AboutQt
    };
    Q_ENUM(Actions)

    explicit WorkbenchActions(QObject* parent);

private:
    void initActions();
};

} // namespace Zorvane::Workbench

#pragma once

#include <QtCore/QCoreApplication>

namespace Zorvane {
class FileDialogCallbackInterface;
class FileDialogConfiguration;
} // namespace Zorvane

namespace Zorvane::Workbench {

/** Controls of every kind for a file dialog: alone, in groups, prominent, disabled and hidden. */
class ExampleControls
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::ExampleControls)

public:
    enum Id
    {
        Recursive = 1,
        KeepUnits,
        Unit,
        Side,
        More,
        Disabled,
        Hidden,
        Act
    };

    static void addAll(FileDialogConfiguration& configuration);
    /** A check box that makes its variant do something. */
    static void addAct(FileDialogConfiguration& configuration, const QString& label);
    /** Enables and shows two of the controls with `More`, and takes them back. */
    static void follow(bool checked, int controlId, const FileDialogCallbackInterface& callbacks);
};

} // namespace Zorvane::Workbench

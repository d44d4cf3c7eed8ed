#pragma once

#include "FileDialogs/FileDialogCallbackInterface.h"
#include "Files/Windows/ComPointer.h"
#include "UiToolsExport.h"

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

/** Acts on an open dialog of the system, for the duration of one event. */
class ZORVANE_UITOOLS_EXPORT WinFileDialogCallbacks final : public FileDialogCallbackInterface
{
public:
    /** The dialog, or its customize interface; with null every operation does nothing. */
    explicit WinFileDialogCallbacks(IUnknown* dialog);
    ~WinFileDialogCallbacks() override;

    void setControlState(int controlId, int state) const override;
    void placeDialog(FileDialogConfiguration* configuration) const override;
    QRect getDialogGeometry() const override;

private:
    HWND window() const;

    ComPointer<IUnknown> m_dialog;
};

} // namespace Zorvane

#pragma once

#include "FileDialogs/FileDialogCallbackInterface.h"
#include "Files/Windows/ComPointer.h"
#include "UiToolsExport.h"

#include <memory>

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

class DialogGuard;

/** Acts on an open dialog of the system, for the duration of one event. */
class ZORVANE_UITOOLS_EXPORT WinFileDialogCallbacks final : public FileDialogCallbackInterface
{
public:
    /**
     * The dialog, or its customize interface; with null every operation does nothing. What has to
     * wait for the dialog asks for the guard, and is forgotten once that is gone.
     */
    WinFileDialogCallbacks(IUnknown* dialog, std::weak_ptr<DialogGuard> guard);
    ~WinFileDialogCallbacks() override;

    void setControlState(int controlId, int state) const override;
    void placeDialog(FileDialogConfiguration* configuration) const override;
    QRect getDialogGeometry() const override;

private:
    HWND window() const;

    ComPointer<IUnknown> m_dialog;
    std::weak_ptr<DialogGuard> m_guard;
};

} // namespace Zorvane

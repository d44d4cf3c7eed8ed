#pragma once

#include "Tests/Support/Windows/CallScript.h"
#include "Tests/Support/Windows/RegisteredClass.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <vector>

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane::Testing {

/** What a test says to fake file dialogs, and what it learns from them. */
struct ItemDialogScript
{
    CallScript calls;
    /** Options that a new dialog has. */
    DWORD options = 0x800;
    /** What the user has chosen when the dialog is closed. */
    QStringList results;
    QStringList selected;
    QString fileNameBox;
    /** What happens while the dialog is shown; its listeners in the order of their coming. */
    std::function<void(IFileDialog*, const std::vector<IFileDialogEvents*>&)> whileShown;
    /** What comes before, also where the dialog can't be shown. */
    std::function<void()> atShow;
    /** How showing the dialog ends. */
    HRESULT showResult = S_OK;
    /** Where the dialog's views are found; null where there are none. */
    IServiceProvider* services = nullptr;

    HWND owner = nullptr;
    HWND window = nullptr;
    /** Dialogs that were made. */
    int dialogs = 0;
    /** References that are left on listeners, folders and places after a dialog's end. */
    ULONG leftReferences = 0;
};

/**
 * In the place of the system's open and save dialogs as long as it lives: dialogs without windows
 * that write down every call.
 */
class FakeItemDialogs
{
public:
    explicit FakeItemDialogs(ItemDialogScript& script);

private:
    RegisteredClass m_openClass;
    RegisteredClass m_saveClass;
};

} // namespace Zorvane::Testing

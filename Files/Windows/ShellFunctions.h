#pragma once

#include "Files/Windows/SystemLibrary.h"
#include "UiToolsExport.h"

#include <windows.h>

#include <shlobj.h>
#include <shobjidl.h>

namespace Zorvane {

/**
 * The functions of the shell that we need, looked up at run time; those missing are null, and each
 * may be replaced by another.
 */
class ZORVANE_UITOOLS_EXPORT ShellFunctions
{
private:
    // Stands first: the functions are found in it.
    SystemLibrary m_library;

public:
    explicit ShellFunctions(const wchar_t* library = L"shell32.dll");

    decltype(&SHCreateItemFromParsingName) createItem;
    decltype(&SHParseDisplayName) parseName;
    decltype(&SHCreateShellItemArrayFromIDLists) createArray;

    /** Whether a copy can be made with what there is. */
    bool sufficeForCopying() const { return createItem && parseName && createArray; }
};

} // namespace Zorvane

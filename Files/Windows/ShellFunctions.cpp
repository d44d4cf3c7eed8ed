#include "Files/Windows/ShellFunctions.h"

#include <type_traits>

namespace Zorvane {

ShellFunctions::ShellFunctions(const wchar_t* library)
    : m_library(library)
    , createItem(m_library.find<std::remove_pointer_t<decltype(createItem)>>(
          "SHCreateItemFromParsingName"))
    , parseName(m_library.find<std::remove_pointer_t<decltype(parseName)>>("SHParseDisplayName"))
    , createArray(m_library.find<std::remove_pointer_t<decltype(createArray)>>(
          "SHCreateShellItemArrayFromIDLists"))
{}

} // namespace Zorvane

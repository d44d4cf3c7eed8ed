# 64-bit Windows programs made on Debian by its MinGW-w64. The libraries to build on lie in the
# folder ZORVANE_WINDOWS_KIT, which Tools/windows-kit fills.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# Those of POSIX threads: the others have no std::thread.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(ZORVANE_WINDOWS_KIT ${CMAKE_CURRENT_LIST_DIR}/../build/windows-kit CACHE PATH
    "Folder of Qt, assimp and Boost for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZORVANE_WINDOWS_KIT)
get_filename_component(kit ${ZORVANE_WINDOWS_KIT} ABSOLUTE)

set(CMAKE_FIND_ROOT_PATH ${kit}/qt ${kit}/assimp ${kit}/boost /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# How CTest starts what was built.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../Tools/wine)

# What every target of this project shares: language level, warnings, sanitizers, folders.

if(NOT CMAKE_CXX_STANDARD OR CMAKE_CXX_STANDARD LESS 17)
    set(CMAKE_CXX_STANDARD 17)
endif()
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ${PROJECT_IS_TOP_LEVEL})
if(NOT DEFINED BUILD_SHARED_LIBS)
    set(BUILD_SHARED_LIBS ON)
endif()
# Before 1.0 a new minor version may change interfaces, so programs must not load it unasked.
set(ZORVANE_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

# Headers are included by folder, and such folder names are too plain for a common include folder.
# The host's lie apart, since another host may take their place.
set(ZorvaneHost_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/zorvane-host)
set(ZorvaneUiTools_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/zorvane-uitools)

find_program(ZORVANE_CCACHE ccache)
if(ZORVANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${ZORVANE_CCACHE})
endif()

add_library(zorvane_settings INTERFACE)
target_compile_definitions(zorvane_settings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER
    QT_DEPRECATED_WARNINGS)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(zorvane_settings INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        $<$<BOOL:${ZORVANE_WARNINGS_ARE_ERRORS}>:-Werror>)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # GCC takes sources that are compiled together for headers and warns of their own types.
        target_compile_options(zorvane_settings INTERFACE
            $<$<BOOL:${CMAKE_UNITY_BUILD}>:-Wno-subobject-linkage>)
        # Nobody replaces single functions of our libraries, so they may be inlined inside them.
        target_compile_options(zorvane_settings INTERFACE
            $<$<CONFIG:Release>:-fno-semantic-interposition>)
    endif()
elseif(MSVC)
    target_compile_options(zorvane_settings INTERFACE /W4 /utf-8 /permissive-
        $<$<BOOL:${ZORVANE_WARNINGS_ARE_ERRORS}>:/WX>)
endif()
if(ZORVANE_SANITIZERS)
    add_compile_options(-fsanitize=${ZORVANE_SANITIZERS} -fno-omit-frame-pointer
        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ZORVANE_SANITIZERS})
endif()

# Nearly all of a compiler's time goes into Qt's and Boost's headers, so the presets compile the
# sources of a folder as one (CMAKE_UNITY_BUILD). Names in unnamed namespaces are therefore unique
# within a folder.

# zorvane_add_sources(TARGET file...)
# Adds files of this folder to a target of a folder above. They are compiled together with those
# that have the same ZORVANE_COMPILED_TOGETHER, by default with those of the folder.
function(zorvane_add_sources target)
    set(group ${ZORVANE_COMPILED_TOGETHER})
    if(NOT group)
        get_filename_component(group ${CMAKE_CURRENT_SOURCE_DIR} NAME)
    endif()
    target_sources(${target} PRIVATE ${ARGN})
    set_source_files_properties(${ARGN} TARGET_DIRECTORY ${target} PROPERTIES UNITY_GROUP ${group})
    set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
endfunction()

# zorvane_library(TARGET RESOURCES name...)
# What both libraries need where they are static. A linker leaves out of a static library what no
# code names, such as resources, so a source file that names them is compiled into its users.
function(zorvane_library target)
    cmake_parse_arguments(arg "" "" "RESOURCES" ${ARGN})
    if(BUILD_SHARED_LIBS)
        return()
    endif()
    target_compile_definitions(${target} PUBLIC ZORVANE_STATIC)
    set(calls)
    foreach(resource IN LISTS arg_RESOURCES)
        string(APPEND calls "    Q_INIT_RESOURCE(${resource});\n")
    endforeach()
    set(source ${target}Resources.cpp)
    file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${source} CONTENT
"#include <QtCore/QtGlobal>

static bool initialize${target}Resources()
{
${calls}    return true;
}

[[maybe_unused]] static const bool are${target}ResourcesThere = initialize${target}Resources();
")
    target_sources(${target} INTERFACE
        $<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}/${source}>
        $<INSTALL_INTERFACE:\${_IMPORT_PREFIX}/${${target}_INSTALL_INCLUDEDIR}/${source}>)
    if(ZORVANE_INSTALL)
        install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${source}
            DESTINATION ${${target}_INSTALL_INCLUDEDIR})
    endif()
endfunction()

# zorvane_add_subsystem(NAME SOURCES ... [USES target...] [PRIVATELY target...])
# One folder of the library: an object target that names what it may include.
function(zorvane_add_subsystem name)
    cmake_parse_arguments(arg "" "" "SOURCES;USES;PRIVATELY" ${ARGN})
    set(target ZorvaneUiTools_${name})
    add_library(${target} OBJECT ${arg_SOURCES})
    set_target_properties(${target} PROPERTIES UNITY_BUILD_BATCH_SIZE 0)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
    target_compile_definitions(${target} PRIVATE ZORVANE_UITOOLS_BUILD)
    target_link_libraries(${target} PUBLIC Zorvane::Host ${arg_USES}
        PRIVATE $<BUILD_INTERFACE:zorvane_settings> ${arg_PRIVATELY})
    set_property(GLOBAL APPEND PROPERTY ZORVANE_SUBSYSTEMS ${target})
    set_property(GLOBAL APPEND PROPERTY ZORVANE_SUBSYSTEM_FOLDERS ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()

# zorvane_internal_headers(header...)
# Headers of this folder that only its own library includes: they are not installed, and no header
# that is may include them, which Tools/check-layers sees to.
function(zorvane_internal_headers)
    list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE headers)
    set_property(GLOBAL APPEND PROPERTY ZORVANE_INTERNAL_HEADERS ${headers})
endfunction()

# The one library made of all subsystem folders.
function(zorvane_link_subsystems library)
    get_property(subsystems GLOBAL PROPERTY ZORVANE_SUBSYSTEMS)
    set(objects)
    foreach(subsystem IN LISTS subsystems)
        list(APPEND objects $<TARGET_OBJECTS:${subsystem}>)
    endforeach()
    add_library(${library} ${objects})
    add_library(Zorvane::UiTools ALIAS ${library})
    set_target_properties(${library} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${ZORVANE_SOVERSION} EXPORT_NAME UiTools
        LINKER_LANGUAGE CXX AUTOMOC OFF INSTALL_RPATH "$ORIGIN")
    target_include_directories(${library} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<INSTALL_INTERFACE:${${library}_INSTALL_INCLUDEDIR}>)
    target_link_libraries(${library} PUBLIC Zorvane::Host)
    zorvane_library(${library} RESOURCES zorvane_catalogues)
    foreach(subsystem IN LISTS subsystems)
        get_target_property(private_libraries ${subsystem} LINK_LIBRARIES)
        list(FILTER private_libraries EXCLUDE REGEX "zorvane_settings|ZorvaneUiTools_")
        target_link_libraries(${library} PRIVATE ${private_libraries})
    endforeach()
endfunction()

# A host that comes as a package brings headers of the same names as those of Host/, which every
# target would find in the source folder first. A folder's own include path stands before that.
macro(zorvane_prefer_headers_of host)
    get_target_property(host_headers ${host} INTERFACE_INCLUDE_DIRECTORIES)
    set_target_properties(${host} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "")
    include_directories(BEFORE ${host_headers})
endmacro()

# CMake's moc step looks again when a file that it knows changes, but not when a sub-folder adds
# files to a target of its parent. Called last, this makes it look whenever a target's list of
# files is not the one of the last configure run.
function(zorvane_renew_moc_of_folder folder)
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    get_property(binary_folder DIRECTORY ${folder} PROPERTY BINARY_DIR)
    foreach(target IN LISTS targets)
        get_target_property(has_moc_step ${target} AUTOMOC)
        if(has_moc_step)
            zorvane_renew_moc(${target} ${binary_folder})
        endif()
    endforeach()
    get_property(children DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(child IN LISTS children)
        zorvane_renew_moc_of_folder(${child})
    endforeach()
endfunction()

function(zorvane_renew_moc target binary_folder)
    get_target_property(sources ${target} SOURCES)
    set(known_list ${binary_folder}/${target}_sources.txt)
    set(known)
    if(EXISTS ${known_list})
        file(READ ${known_list} known)
    endif()
    if(NOT "${known}" STREQUAL "${sources}")
        file(REMOVE ${binary_folder}/${target}_autogen/timestamp)
        file(WRITE ${known_list} "${sources}")
    endif()
endfunction()

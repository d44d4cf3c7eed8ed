# What `cmake --install` leaves: two packages, ZorvaneHost with the target Zorvane::Host and
# ZorvaneUiTools with Zorvane::UiTools, and the headers as they lie in the source folders,
# except internal ones.

include(CMakePackageConfigHelpers)

# zorvane_install_package(PACKAGE TARGET FOLDERS folder...)
function(zorvane_install_package package target)
    cmake_parse_arguments(arg "" "" "FOLDERS" ${ARGN})
    set(destination ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
    install(TARGETS ${target} EXPORT ${package}Targets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(EXPORT ${package}Targets NAMESPACE Zorvane:: DESTINATION ${destination})
    get_property(internal_headers GLOBAL PROPERTY ZORVANE_INTERNAL_HEADERS)
    set(exclude_internal)
    foreach(header IN LISTS internal_headers)
        file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR} ${header})
        list(APPEND exclude_internal PATTERN ${name} EXCLUDE)
    endforeach()
    install(DIRECTORY ${arg_FOLDERS} DESTINATION ${${target}_INSTALL_INCLUDEDIR}
        FILES_MATCHING PATTERN "*.h"
        REGEX "/(Windows|Portable)$" EXCLUDE ${exclude_internal})

    set(config ${PROJECT_BINARY_DIR}/${package}Config.cmake)
    set(version ${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/${package}Config.cmake.in ${config}
        INSTALL_DESTINATION ${destination})
    write_basic_package_version_file(${version} COMPATIBILITY SameMinorVersion)
    install(FILES ${config} ${version} DESTINATION ${destination})
endfunction()

if(NOT ZORVANE_HOST_FROM_PACKAGE)
    zorvane_install_package(ZorvaneHost ZorvaneHost FOLDERS Host)
endif()
get_property(subsystem_folders GLOBAL PROPERTY ZORVANE_SUBSYSTEM_FOLDERS)
zorvane_install_package(ZorvaneUiTools ZorvaneUiTools FOLDERS ${subsystem_folders})
install(FILES UiToolsExport.h DESTINATION ${ZorvaneUiTools_INSTALL_INCLUDEDIR})

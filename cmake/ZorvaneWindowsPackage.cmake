# What `cpack` makes of a Windows build: a zip of the Workbench with all that it needs besides
# Windows itself, to be unpacked and started anywhere.

set(component Workbench)

# Under what terms a library in the zip may be passed on: the first of the files that is there.
function(zorvane_install_license library)
    foreach(file ${ARGN})
        if(EXISTS ${file})
            install(FILES ${file} DESTINATION licenses RENAME ${library}.txt
                COMPONENT ${component})
            return()
        endif()
    endforeach()
    message(WARNING "The zip will hold ${library} without its license: none of ${ARGN}")
endfunction()

install(TARGETS workbench ZorvaneUiTools RUNTIME DESTINATION bin COMPONENT ${component})
if(NOT ZORVANE_HOST_FROM_PACKAGE)
    install(TARGETS ZorvaneHost RUNTIME DESTINATION bin COMPONENT ${component})
endif()
install(DIRECTORY ${PROJECT_BINARY_DIR}/samples DESTINATION . COMPONENT ${component})
install(FILES README.md CHANGELOG.md DESTINATION . COMPONENT ${component})

# Folders that use it find it for themselves only.
find_package(Qt5 5.15 REQUIRED COMPONENTS Svg)
foreach(library Core Gui Widgets Svg)
    install(FILES $<TARGET_FILE:Qt5::${library}> DESTINATION bin COMPONENT ${component})
endforeach()
get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
get_filename_component(qt_folder ${qmake}/../.. ABSOLUTE)
foreach(plugin platforms/qwindows styles/qwindowsvistastyle imageformats/qsvg iconengines/qsvgicon)
    get_filename_component(kind ${plugin} DIRECTORY)
    install(FILES ${qt_folder}/plugins/${plugin}.dll
        DESTINATION bin/${kind} COMPONENT ${component})
endforeach()
zorvane_install_license(Qt ${qt_folder}/LICENSE.LGPL3 ${qt_folder}/LICENSE.LGPLv3
    ${qt_folder}/../Licenses/LICENSE)

# assimp's own needs lie beside it.
find_package(assimp REQUIRED)
install(DIRECTORY $<TARGET_FILE_DIR:assimp::assimp>/ DESTINATION bin COMPONENT ${component}
    FILES_MATCHING PATTERN "*.dll")
get_filename_component(assimp_folder ${assimp_DIR}/../../.. ABSOLUTE)
zorvane_install_license(assimp ${assimp_folder}/LICENSE ${assimp_folder}/share/assimp/copyright)

# Of what is built into them, such as Qt's font engine.
foreach(folder ${qt_folder} ${assimp_folder})
    if(EXISTS ${folder}/licenses)
        install(DIRECTORY ${folder}/licenses/ DESTINATION licenses COMPONENT ${component})
    else()
        message(WARNING "The zip will lack the licenses of what is built into ${folder}")
    endif()
endforeach()

if(MINGW)
    foreach(library libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}.dll
            OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
        # Debian's hold all of their symbols, which is most of their size.
        set(stripped ${PROJECT_BINARY_DIR}/runtime/${library}.dll)
        file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/runtime)
        execute_process(COMMAND ${CMAKE_STRIP} -o ${stripped} ${file})
        install(FILES ${stripped} DESTINATION bin COMPONENT ${component})
    endforeach()
    zorvane_install_license(GCC /usr/share/doc/gcc-mingw-w64-base/copyright)
    zorvane_install_license(MinGW-w64 /usr/share/doc/mingw-w64-common/copyright)
else()
    set(CMAKE_INSTALL_SYSTEM_RUNTIME_COMPONENT ${component})
    include(InstallRequiredSystemLibraries)
endif()

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_NAME ZorvaneWorkbench)
set(CPACK_PACKAGE_VENDOR Zorvane)
set(CPACK_PACKAGE_FILE_NAME ZorvaneWorkbench-${PROJECT_VERSION}-win64)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_COMPONENTS_ALL ${component})
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_STRIP_FILES ON)
include(CPack)

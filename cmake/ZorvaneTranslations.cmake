# Compiles catalogues of texts into a resource.
find_program(ZORVANE_LRELEASE NAMES lrelease lrelease-qt5)

# zorvane_compile_catalogues(OUTPUT NAME PREFIX language...)
# Sets OUTPUT to a source file with the catalogues <NAME>_<language>.ts of Translations/, as a
# resource <NAME>_catalogues with the files :/<PREFIX>/<NAME>_<language>.qm. Without lrelease the
# resource is empty, and all texts stay in English.
function(zorvane_compile_catalogues output name prefix)
    set(files "")
    set(compiled_catalogues "")
    if(ZORVANE_LRELEASE)
        foreach(language IN LISTS ARGN)
            set(source ${PROJECT_SOURCE_DIR}/Translations/${name}_${language}.ts)
            set(catalogue ${CMAKE_CURRENT_BINARY_DIR}/${name}_${language}.qm)
            add_custom_command(OUTPUT ${catalogue}
                COMMAND ${ZORVANE_LRELEASE} -silent ${source} -qm ${catalogue}
                DEPENDS ${source} VERBATIM)
            string(APPEND files "<file>${name}_${language}.qm</file>")
            list(APPEND compiled_catalogues ${catalogue})
        endforeach()
    else()
        message(STATUS "No lrelease here: ${name} is built without translations")
    endif()
    set(list ${CMAKE_CURRENT_BINARY_DIR}/${name}_catalogues.qrc)
    file(CONFIGURE OUTPUT ${list} CONTENT
        "<RCC><qresource prefix=\"/${prefix}\">${files}</qresource></RCC>\n")
    set(compiled ${CMAKE_CURRENT_BINARY_DIR}/${name}_catalogues.cpp)
    add_custom_command(OUTPUT ${compiled}
        COMMAND Qt5::rcc --name ${name}_catalogues --output ${compiled} ${list}
        DEPENDS ${list} ${compiled_catalogues} VERBATIM)
    set_source_files_properties(${compiled} PROPERTIES SKIP_AUTOGEN ON)
    set(${output} ${compiled} PARENT_SCOPE)
endfunction()

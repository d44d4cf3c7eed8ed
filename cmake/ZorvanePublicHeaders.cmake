# The target public-headers compiles every header of the library and the host alone, each as the
# only line of a source file, so that none leans on what its users happen to include before it.
# Not part of the default build.

set(public_headers)
foreach(folder Host TreeModel Files FileDialogs Actions Dialogs Utilities)
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
        ${PROJECT_SOURCE_DIR}/${folder}/*.h)
    list(APPEND public_headers ${headers})
endforeach()
list(FILTER public_headers EXCLUDE REGEX "(^|/)(Windows|Portable)/")

set(alone_sources)
foreach(header IN LISTS public_headers ITEMS UiToolsExport.h)
    set(source ${CMAKE_BINARY_DIR}/public-headers/${header}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${header}\"\n" @ONLY)
    list(APPEND alone_sources ${source})
endforeach()

add_library(public-headers OBJECT EXCLUDE_FROM_ALL ${alone_sources})
set_target_properties(public-headers PROPERTIES AUTOMOC OFF AUTORCC OFF)
target_link_libraries(public-headers PRIVATE Zorvane::UiTools Zorvane::Host zorvane_settings)
target_compile_options(public-headers PRIVATE $<$<CXX_COMPILER_ID:GNU,Clang>:-Werror;-O0;-g0>)

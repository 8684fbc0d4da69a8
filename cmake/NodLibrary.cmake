# nod_core_library(name SOURCES... [DEPENDS libs...]) declares a subsystem library without GUI (Qt Core; Qt Network where it talks to a server).
# nod_ui_library(name SOURCES... [DEPENDS libs...]) declares a dialog library on top of Qt Widgets.
#
# Subsystem libraries are static building blocks, compiled position-independent with every symbol hidden.
# Each registers itself in NOD_CORE_LIBRARIES or NOD_UI_LIBRARIES, and nod_shared_libraries() (top
# CMakeLists) gathers their objects into the two shared libraries that are installed: NodRutinas::Core
# and NodRutinas::Widgets. What those export is what the public headers declare inside
# `namespace nod NOD_CORE_EXPORT {` (or NOD_WIDGETS_EXPORT for a dialog library's header), the macros of
# the generated headers nod_core_export.h and nod_widgets_export.h.
include(GenerateExportHeader)
include(GNUInstallDirs)
set(NOD_CORE_LIBRARIES "" CACHE INTERNAL "")
set(NOD_UI_LIBRARIES "" CACHE INTERNAL "")
set(NOD_EXPORT_INCLUDE_DIR ${PROJECT_BINARY_DIR}/include)

function(_nod_library name kind)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR} ${NOD_EXPORT_INCLUDE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_DEPENDS})
    set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden
                                             VISIBILITY_INLINES_HIDDEN ON)
    if(kind STREQUAL "core")
        target_link_libraries(${name} PUBLIC Qt6::Core)
        set(NOD_CORE_LIBRARIES ${NOD_CORE_LIBRARIES} ${name} CACHE INTERNAL "")
    else()
        target_link_libraries(${name} PUBLIC Qt6::Widgets)
        set(NOD_UI_LIBRARIES ${NOD_UI_LIBRARIES} ${name} CACHE INTERNAL "")
    endif()
    # At the end of the subsystem's folder, the packages it found (find_package there) are made visible
    # to the whole tree, so that the shared library can link them too.
    cmake_language(EVAL CODE "cmake_language(DEFER CALL _nod_global_imports ${name})")
endfunction()

function(_nod_global_imports name)
    get_target_property(deps ${name} INTERFACE_LINK_LIBRARIES)
    foreach(dep IN LISTS deps)
        # A library linked privately shows as $<LINK_ONLY:target>.
        string(REGEX REPLACE "^\\$<LINK_ONLY:(.*)>$" "\\1" dep "${dep}")
        if(TARGET ${dep})
            get_target_property(imported ${dep} IMPORTED)
            get_target_property(global ${dep} IMPORTED_GLOBAL)
            get_target_property(carpeta ${dep} SOURCE_DIR)
            if(imported AND NOT global AND carpeta STREQUAL CMAKE_CURRENT_SOURCE_DIR)
                set_target_properties(${dep} PROPERTIES IMPORTED_GLOBAL TRUE)
            endif()
        endif()
    endforeach()
endfunction()

macro(nod_core_library name)
    _nod_library(${name} core ${ARGN})
endmacro()

macro(nod_ui_library name)
    _nod_library(${name} ui ${ARGN})
endmacro()

# nod_export_headers(core_target widgets_target) writes nod_core_export.h and nod_widgets_export.h for
# these two library targets into NOD_EXPORT_INCLUDE_DIR.
function(nod_export_headers core widgets)
    generate_export_header(${core} BASE_NAME nod_core EXPORT_FILE_NAME ${NOD_EXPORT_INCLUDE_DIR}/nod_core_export.h)
    generate_export_header(${widgets} BASE_NAME nod_widgets
                           EXPORT_FILE_NAME ${NOD_EXPORT_INCLUDE_DIR}/nod_widgets_export.h)
endfunction()

# nod_gather_objects(shared libs...) puts the objects of the subsystem libraries `libs` into the shared
# library `shared`, with their outside dependencies (Qt publicly, since the headers include it; the rest
# privately). A dependency on another subsystem library is left out: it is in this shared library, or in
# NodRutinas::Core, which NodRutinas::Widgets links.
function(nod_gather_objects shared)
    foreach(lib IN LISTS ARGN)
        target_sources(${shared} PRIVATE $<TARGET_OBJECTS:${lib}>)
        get_target_property(deps ${lib} INTERFACE_LINK_LIBRARIES)
        foreach(dep IN LISTS deps)
            string(REGEX REPLACE "^\\$<LINK_ONLY:(.*)>$" "\\1" dep "${dep}")
            if(dep IN_LIST NOD_CORE_LIBRARIES OR dep IN_LIST NOD_UI_LIBRARIES)
                continue()
            elseif(dep MATCHES "^Qt6::")
                target_link_libraries(${shared} PUBLIC ${dep})
            else()
                target_link_libraries(${shared} PRIVATE ${dep})
            endif()
        endforeach()
        add_dependencies(${shared} ${lib})
    endforeach()
endfunction()

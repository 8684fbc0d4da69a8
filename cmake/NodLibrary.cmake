# nod_core_library(name SOURCES... [DEPENDS libs...]) declares a subsystem library that links Qt Core only.
# nod_ui_library(name SOURCES... [DEPENDS libs...]) declares a dialog library on top of Qt Widgets.
# Both register themselves in the umbrella targets NodRutinas::Core and NodRutinas::Widgets.
set(NOD_CORE_LIBRARIES "" CACHE INTERNAL "")
set(NOD_UI_LIBRARIES "" CACHE INTERNAL "")

function(_nod_library name kind)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_DEPENDS})
    set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    if(kind STREQUAL "core")
        target_link_libraries(${name} PUBLIC Qt6::Core)
        set(NOD_CORE_LIBRARIES ${NOD_CORE_LIBRARIES} ${name} CACHE INTERNAL "")
    else()
        target_link_libraries(${name} PUBLIC Qt6::Widgets)
        set(NOD_UI_LIBRARIES ${NOD_UI_LIBRARIES} ${name} CACHE INTERNAL "")
    endif()
endfunction()

macro(nod_core_library name)
    _nod_library(${name} core ${ARGN})
endmacro()

macro(nod_ui_library name)
    _nod_library(${name} ui ${ARGN})
endmacro()

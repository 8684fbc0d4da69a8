# What is installed (GNUInstallDirs), the CMake and pkg-config packages that programs of the suite find
# the library with, and the Debian packages CPack builds from the same rules:
#   runtime      the two shared libraries                          libnodrutinas<SONAME version>
#   development  headers, link names, CMake and pkg-config files   libnodrutinas-dev
#   tools        nodrim, nodrim-demo and the sample office          nodrutinas-tools
include(CMakePackageConfigHelpers)
set(NOD_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/nodrutinas)
set(NOD_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/NodRutinas)
set(NOD_PKGCONFIGDIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS nodrutinas_core nodrutinas_widgets EXPORT NodRutinasTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)

# The headers of every folder that holds a subsystem library, under include/nodrutinas/<subsystem>/, so
# that `#include <text/letras.h>` reads as it does inside the tree; private headers (*_p.h) stay out.
set(NOD_PUBLIC_HEADER_DIRS "")
foreach(lib IN LISTS NOD_CORE_LIBRARIES NOD_UI_LIBRARIES)
    get_target_property(carpeta ${lib} SOURCE_DIR)
    list(APPEND NOD_PUBLIC_HEADER_DIRS ${carpeta})
endforeach()
list(REMOVE_DUPLICATES NOD_PUBLIC_HEADER_DIRS)
foreach(carpeta IN LISTS NOD_PUBLIC_HEADER_DIRS)
    file(RELATIVE_PATH subsistema ${PROJECT_SOURCE_DIR} ${carpeta})
    install(DIRECTORY ${carpeta}/ DESTINATION ${NOD_INCLUDEDIR}/${subsistema} COMPONENT development
            FILES_MATCHING PATTERN "*.h" PATTERN "*.def" PATTERN "*_p.h" EXCLUDE)
endforeach()
install(FILES ${NOD_EXPORT_INCLUDE_DIR}/nod_core_export.h ${NOD_EXPORT_INCLUDE_DIR}/nod_widgets_export.h
        DESTINATION ${NOD_INCLUDEDIR} COMPONENT development)

# The programs find the libraries beside them wherever the tree is put (a staged prefix, an unpacked
# package), and the sample office in share/nodrutinas (companion/config.cpp).
set_target_properties(nodrim nodrim-demo PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
install(TARGETS nodrim nodrim-demo RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
# nodrim's helpers, the form layer and the PDF module, where nodrim looks for them (apps/nodrim).
file(RELATIVE_PATH NOD_LIBDIR_DESDE_AUXILIARES ${CMAKE_INSTALL_PREFIX}/${NOD_AUXILIARES}
     ${CMAKE_INSTALL_FULL_LIBDIR})
set_target_properties(nodrim-formularios nodrim_pdf PROPERTIES INSTALL_RPATH "$ORIGIN/${NOD_LIBDIR_DESDE_AUXILIARES}")
install(TARGETS nodrim-formularios nodrim_pdf RUNTIME DESTINATION ${NOD_AUXILIARES} COMPONENT tools
        LIBRARY DESTINATION ${NOD_AUXILIARES} COMPONENT tools)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/sample-office/ DESTINATION ${CMAKE_INSTALL_DATADIR}/nodrutinas/sample-office
        COMPONENT tools)

# The Qt modules the libraries link publicly: the CMake package finds them, pkg-config requires them.
set(NOD_QT_COMPONENTS "")
foreach(destino nodrutinas_core nodrutinas_widgets)
    get_target_property(deps ${destino} INTERFACE_LINK_LIBRARIES)
    foreach(dep IN LISTS deps)
        if(dep MATCHES "^Qt6::(.+)$")
            list(APPEND NOD_QT_COMPONENTS ${CMAKE_MATCH_1})
            list(APPEND NOD_PC_REQUIRES_${destino} Qt6${CMAKE_MATCH_1})
        endif()
    endforeach()
endforeach()
list(REMOVE_DUPLICATES NOD_QT_COMPONENTS)
list(REMOVE_DUPLICATES NOD_PC_REQUIRES_nodrutinas_core)
list(REMOVE_DUPLICATES NOD_PC_REQUIRES_nodrutinas_widgets)
list(JOIN NOD_QT_COMPONENTS " " NOD_QT_COMPONENTS)

install(EXPORT NodRutinasTargets NAMESPACE NodRutinas:: DESTINATION ${NOD_CMAKEDIR} COMPONENT development)
configure_package_config_file(cmake/NodRutinasConfig.cmake.in ${PROJECT_BINARY_DIR}/NodRutinasConfig.cmake
                              INSTALL_DESTINATION ${NOD_CMAKEDIR})
# 0.x versions break compatibility at each minor version, as the SONAME does.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/NodRutinasConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/NodRutinasConfig.cmake ${PROJECT_BINARY_DIR}/NodRutinasConfigVersion.cmake
        DESTINATION ${NOD_CMAKEDIR} COMPONENT development)

# pkg-config files, relative to their own folder so that a staged or unpacked tree works as well.
file(RELATIVE_PATH NOD_PC_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" NOD_PC_PREFIX "${NOD_PC_PREFIX}")
set(NOD_PC_DESCRIPTION_core "Routines of the Nodrim notary's office suite (Qt Core and Network, no GUI)")
set(NOD_PC_DESCRIPTION_widgets "Dialogs of the Nodrim notary's office suite")
foreach(componente core widgets)
    set(NOD_PC_NAME nodrutinas-${componente})
    set(NOD_PC_DESCRIPTION ${NOD_PC_DESCRIPTION_${componente}})
    list(JOIN NOD_PC_REQUIRES_nodrutinas_${componente} " " NOD_PC_REQUIRES)
    if(componente STREQUAL "widgets")
        string(PREPEND NOD_PC_REQUIRES "nodrutinas-core = ${PROJECT_VERSION} ")
    endif()
    configure_file(cmake/nodrutinas.pc.in ${PROJECT_BINARY_DIR}/${NOD_PC_NAME}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${NOD_PC_NAME}.pc DESTINATION ${NOD_PKGCONFIGDIR} COMPONENT development)
endforeach()

# Debian packages: `cpack -G DEB` in the build folder (README). dpkg-shlibdeps computes each package's
# library dependencies; the libraries of this build are found in the build folder meanwhile.
set(NOD_DEB_RUNTIME libnodrutinas${NOD_SOVERSION})
set(NOD_DEB_DEVELOPMENT libnodrutinas-dev)
set(NOD_DEB_TOOLS nodrutinas-tools)
foreach(componente runtime development tools)
    string(TOUPPER ${componente} COMPONENTE)
    install(FILES ${PROJECT_SOURCE_DIR}/docs/copyright
            DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${NOD_DEB_${COMPONENTE}} COMPONENT ${componente})
    set(CPACK_DEBIAN_${COMPONENTE}_PACKAGE_NAME ${NOD_DEB_${COMPONENTE}})
endforeach()
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME nodrutinas)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Routines and dialogs of the Nodrim notary's office suite")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development tools)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "NodRutinas developers <nodrutinas@example.com>")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_TOOLS_DEPENDS runtime)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
# The dialogs are designed for Arial, served by Liberation Sans; the headers need Qt's.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "fonts-liberation")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qt6-base-dev (>= 6.4)")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "Shared libraries NodRutinas::Core (routines, no GUI: Qt Core and Network) and NodRutinas::Widgets (dialogs)")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, CMake package and pkg-config files of NodRutinas")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "nodrim (the routines from the shell and from scripts), nodrim-demo and the sample office")
include(CPack)

# SPDX-License-Identifier: MIT
# Installing: libraries, headers, the packages for CMake and pkg-config; and what cpack makes of them: a
# tarball, and Debian packages with the spreadsheet's helper apart, as it alone needs LibreOffice.
# The installed tree may be moved as a whole.

include(CMakePackageConfigHelpers)
set(dir_paquete ${CMAKE_INSTALL_LIBDIR}/cmake/Qlt4_Tabla)
set(dir_pkgconfig ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH TABLA_DESDE_PKGCONFIG ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})

# tabla_instala_biblioteca(<target> <exported name>)
function(tabla_instala_biblioteca objetivo nombre)
  install(TARGETS ${objetivo} EXPORT Qlt4_Tabla${nombre}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT biblioteca NAMELINK_COMPONENT desarrollo
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT desarrollo
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT biblioteca)
  install(EXPORT Qlt4_Tabla${nombre} NAMESPACE Qlt4_Tabla:: DESTINATION ${dir_paquete}
    FILE Qlt4_Tabla${nombre}.cmake COMPONENT desarrollo)
  get_target_property(cabeceras ${objetivo} TABLA_CABECERAS_PUBLICAS)
  foreach(cabecera IN LISTS cabeceras)
    get_filename_component(carpeta ${cabecera} DIRECTORY)
    install(FILES ${PROJECT_SOURCE_DIR}/${cabecera}
      DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Qlt4_Tabla/${carpeta} COMPONENT desarrollo)
  endforeach()
  configure_file(${TABLA_DIR_CMAKE}/${objetivo}.pc.in ${PROJECT_BINARY_DIR}/${objetivo}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${objetivo}.pc DESTINATION ${dir_pkgconfig} COMPONENT desarrollo)
endfunction()

get_target_property(tipo qlt4_tabla_nucleo TYPE)
tabla_instala_biblioteca(qlt4_tabla_nucleo Nucleo)
if(TARGET qlt4_tabla)
  tabla_instala_biblioteca(qlt4_tabla Tabla)
endif()
install(FILES ${PROJECT_BINARY_DIR}/incluye/version/Qlt4_Tabla/version.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Qlt4_Tabla COMPONENT desarrollo)

set(TABLA_ESTATICA OFF)
if(tipo STREQUAL "STATIC_LIBRARY")
  set(TABLA_ESTATICA ON)
endif()
configure_package_config_file(${TABLA_DIR_CMAKE}/config.cmake.in ${PROJECT_BINARY_DIR}/Qlt4_TablaConfig.cmake
  INSTALL_DESTINATION ${dir_paquete} NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/Qlt4_TablaConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/Qlt4_TablaConfig.cmake ${PROJECT_BINARY_DIR}/Qlt4_TablaConfigVersion.cmake
  DESTINATION ${dir_paquete} COMPONENT desarrollo)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE RENAME copyright
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/qlt4-tabla COMPONENT biblioteca)

if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()
set(CPACK_GENERATOR TGZ DEB)
set(CPACK_PACKAGE_NAME qlt4-tabla)
set(CPACK_PACKAGE_VENDOR "Qlt4_Tabla")
set(CPACK_PACKAGE_CONTACT "The Qlt4_Tabla developers <qlt4-tabla@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Embeddable table component for desktop engineering programs")
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_STRIP_FILES ON)
set(CPACK_THREADS 0)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
# One tarball; of the Debian packages one for each group.
set(CPACK_PROJECT_CONFIG_FILE ${TABLA_DIR_CMAKE}/cpack_por_generador.cmake)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_TABLA_PACKAGE_NAME qlt4-tabla)
set(CPACK_DEBIAN_TABLA_PACKAGE_RECOMMENDS qt6-base-dev)
set(CPACK_DEBIAN_TABLA_PACKAGE_SUGGESTS qlt4-tabla-hoja)
set(CPACK_DEBIAN_HOJA_PACKAGE_NAME qlt4-tabla-hoja)
set(CPACK_DEBIAN_HOJA_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_HOJA_PACKAGE_DEPENDS "libreoffice-calc")
set(CPACK_COMPONENT_GROUP_HOJA_DESCRIPTION "Helper that hands tables of Qlt4_Tabla to LibreOffice Calc")
include(CPack)
cpack_add_component_group(tabla)
cpack_add_component_group(hoja)
foreach(componente biblioteca desarrollo disenador herramientas)
  cpack_add_component(${componente} GROUP tabla)
endforeach()
cpack_add_component(hoja GROUP hoja)

# SPDX-License-Identifier: MIT
# Installing: libraries, headers, the packages for CMake and pkg-config; and what cpack makes of them: a
# tarball, and Debian packages: the libraries for programs, what is needed to build such programs, the plugin of
# Qt Designer, the command-line program, and the spreadsheet's helper, which alone needs LibreOffice.
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
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/qlt4-tabla COMPONENT licencia)

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
set(CPACK_PROJECT_CONFIG_FILE ${TABLA_DIR_CMAKE}/cpack_por_generador.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${TABLA_DIR_CMAKE}/cpack_debian.cmake)
# One tarball; of the Debian packages one for each component that has files.
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})

# tabla_paquete_debian(<component> <package> <section> <what it is> [<packages it depends on>])
function(tabla_paquete_debian componente paquete seccion que_es)
  string(TOUPPER ${componente} C)
  set(CPACK_DEBIAN_${C}_PACKAGE_NAME ${paquete} PARENT_SCOPE)
  set(CPACK_DEBIAN_${C}_PACKAGE_SECTION ${seccion} PARENT_SCOPE)
  set(CPACK_COMPONENT_${C}_DESCRIPTION "${que_es}" PARENT_SCOPE)
  list(JOIN ARGN ", " depende)
  set(CPACK_DEBIAN_${C}_PACKAGE_DEPENDS "${depende}" PARENT_SCOPE)
endfunction()

set(biblioteca libqlt4-tabla${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(de_esta_version)
if(NOT TABLA_ESTATICA)
  set(de_esta_version "${biblioteca} (= ${PROJECT_VERSION})")
endif()
set(de_qt)
if(TARGET qlt4_tabla)
  set(de_qt "qt6-base-dev (>= 6.4)" libgl-dev)
endif()
tabla_paquete_debian(biblioteca ${biblioteca} libs "Libraries that programs with such tables need")
tabla_paquete_debian(desarrollo libqlt4-tabla-dev libdevel "Headers and packages for CMake and pkg-config"
  ${de_esta_version} ${de_qt})
tabla_paquete_debian(disenador qlt4-tabla-designer libdevel "Plugin for Qt Designer and forms loaded at run time"
  ${de_esta_version})
tabla_paquete_debian(herramientas qlt4-tabla-bin utils "The program tabla: table files at the command line")
tabla_paquete_debian(hoja qlt4-tabla-hoja utils "Helper that hands tables to LibreOffice Calc" libreoffice-calc)
set(CPACK_DEBIAN_BIBLIOTECA_PACKAGE_SUGGESTS qlt4-tabla-hoja)
# What a package of a program on these libraries depends on.
set(shlibs)
foreach(objetivo qlt4_tabla_nucleo qlt4_tabla)
  if(TARGET ${objetivo})
    string(APPEND shlibs "lib${objetivo} ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR} ${biblioteca} (>= ${PROJECT_VERSION})\n")
  endif()
endforeach()
file(WRITE ${PROJECT_BINARY_DIR}/debian/shlibs "${shlibs}")
set(CPACK_DEBIAN_BIBLIOTECA_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/shlibs)
set(CPACK_DEBIAN_DESARROLLO_PACKAGE_SUGGESTS qlt4-tabla-designer)
include(CPack)

# SPDX-License-Identifier: MIT
# The spreadsheet: the adapter is linked beside the widget, and its helper program is built where
# LibreOffice's SDK is found. TABLA_LIBREOFFICE says whether it must be: AUTO, ON (else an error), OFF.

include(GNUInstallDirs)
set(TABLA_LIBREOFFICE AUTO CACHE STRING "Build the helper program of the spreadsheet export: AUTO, ON or OFF")
set_property(CACHE TABLA_LIBREOFFICE PROPERTY STRINGS AUTO ON OFF)
set(TABLA_LIBEXEC qlt4_tabla) # below the folder for programs that only programs start

if(NOT TARGET tabla_spreadsheet)
  return()
endif()
target_link_libraries(tabla_spreadsheet PRIVATE ${CMAKE_DL_LIBS})
# Where the helper stands as seen from the installed library, which may have been moved with it.
file(RELATIVE_PATH desde_lib ${CMAKE_INSTALL_FULL_LIBDIR} ${CMAKE_INSTALL_FULL_LIBEXECDIR}/${TABLA_LIBEXEC})
target_compile_definitions(tabla_spreadsheet PRIVATE "TABLA_AUXILIAR_DESDE_LIB=\"${desde_lib}\""
  "TABLA_DIR_AUXILIAR=\"${CMAKE_INSTALL_FULL_LIBEXECDIR}/${TABLA_LIBEXEC}\"")
# The front end includes only the seam platform/hoja_del_equipo.h; what serves it is linked here.
if(TARGET tabla_qt)
  target_link_libraries(tabla_qt INTERFACE tabla_spreadsheet)
endif()

if(NOT TABLA_LIBREOFFICE OR NOT UNIX)
  return()
endif()
set(lugares $ENV{OO_SDK_HOME} /usr/lib/libreoffice/sdk /usr/lib64/libreoffice/sdk)
file(GLOB otros /opt/libreoffice*/sdk)
find_program(TABLA_CPPUMAKER cppumaker HINTS ${lugares} ${otros} PATH_SUFFIXES bin NO_DEFAULT_PATH)
get_filename_component(sdk "${TABLA_CPPUMAKER}" DIRECTORY)
get_filename_component(sdk "${sdk}" DIRECTORY)
find_path(TABLA_UNO_CABECERAS cppuhelper/bootstrap.hxx
  HINTS ${sdk}/include /usr/include/libreoffice /usr/include NO_DEFAULT_PATH)
find_path(TABLA_OFICINA NAMES types/offapi.rdb HINTS ${sdk}/../program NO_DEFAULT_PATH)
if(NOT TABLA_CPPUMAKER OR NOT TABLA_UNO_CABECERAS OR NOT TABLA_OFICINA)
  set(mensaje "LibreOffice's SDK was not found (Debian: libreoffice-dev and libreoffice-calc; scripts/instala hoja): \
without it the export to a spreadsheet answers with error 429, and its test against the real program is left out.")
  if(TABLA_LIBREOFFICE STREQUAL "AUTO")
    message(STATUS "${mensaje}")
    return()
  endif()
  message(FATAL_ERROR "${mensaje}")
endif()
get_filename_component(programa ${TABLA_OFICINA} REALPATH)

# The C++ headers of the office's types.
set(dir_uno ${PROJECT_BINARY_DIR}/uno)
set(tipos ${programa}/types.rdb ${programa}/types/offapi.rdb)
add_custom_command(OUTPUT ${dir_uno}/hecho
  COMMAND ${TABLA_CPPUMAKER} -Gc -O${dir_uno} ${tipos}
  COMMAND ${CMAKE_COMMAND} -E touch ${dir_uno}/hecho
  DEPENDS ${tipos} COMMENT "Generating the headers of LibreOffice's types" VERBATIM)
add_custom_target(tabla_tipos_uno DEPENDS ${dir_uno}/hecho)

# What a program needs to speak to an office. It is found at run time where it was found now.
add_library(tabla_uno INTERFACE)
add_dependencies(tabla_uno tabla_tipos_uno)
target_include_directories(tabla_uno SYSTEM INTERFACE ${TABLA_UNO_CABECERAS} ${dir_uno})
target_compile_definitions(tabla_uno INTERFACE LINUX UNX CPPU_ENV=gcc3 "TABLA_OFICINA=\"${programa}\"")
target_link_directories(tabla_uno INTERFACE ${sdk}/lib)
target_link_libraries(tabla_uno INTERFACE uno_cppuhelpergcc3 uno_cppu uno_sal)
target_link_options(tabla_uno INTERFACE "LINKER:-rpath,${programa}" "LINKER:-rpath-link,${programa}")

file(GLOB fuentes CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/spreadsheet/auxiliar/*.cpp)
add_executable(tabla_hoja_libreoffice ${fuentes})
tabla_comun(tabla_hoja_libreoffice)
target_link_libraries(tabla_hoja_libreoffice PRIVATE tabla_spreadsheet tabla_uno)
add_dependencies(tabla_hoja_libreoffice tabla_tipos_uno)
# Beside the folders of our programs, as it is installed: the adapter finds it in both.
set_target_properties(tabla_hoja_libreoffice PROPERTIES
  RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/libexec/${TABLA_LIBEXEC} INSTALL_RPATH ${programa})
install(TARGETS tabla_hoja_libreoffice RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/${TABLA_LIBEXEC}
  COMPONENT hoja)

# SPDX-License-Identifier: MIT
# What a host links: Qlt4_Tabla::Nucleo, the component without a window, and Qlt4_Tabla::Tabla, the Qt
# widget on it. Each is one library made of the objects of its folders; BUILD_SHARED_LIBS says which kind.
# Our own tests link the folders instead, and so see what the libraries hide.

include(GNUInstallDirs)

# tabla_cabeceras_publicas(<out> <library>): its row "public" of capas.txt and all that those headers
# include, sorted.
function(tabla_cabeceras_publicas salida biblioteca)
  file(STRINGS ${TABLA_DIR_CMAKE}/capas.txt fila REGEX "^public ${biblioteca} *:")
  string(REGEX REPLACE "^[^:]*: *" "" pendientes "${fila}")
  separate_arguments(pendientes)
  set(vistas)
  while(pendientes)
    list(POP_FRONT pendientes cabecera)
    if(cabecera IN_LIST vistas OR NOT EXISTS ${PROJECT_SOURCE_DIR}/${cabecera})
      continue()
    endif()
    list(APPEND vistas ${cabecera})
    file(STRINGS ${PROJECT_SOURCE_DIR}/${cabecera} incluidas REGEX "^#include \"")
    foreach(linea IN LISTS incluidas)
      string(REGEX REPLACE "^#include \"([^\"]+)\".*$" "\\1" otra "${linea}")
      list(APPEND pendientes ${otra})
    endforeach()
  endwhile()
  list(SORT vistas)
  set(${salida} ${vistas} PARENT_SCOPE)
endfunction()

configure_file(${TABLA_DIR_CMAKE}/version.h.in ${PROJECT_BINARY_DIR}/incluye/version/Qlt4_Tabla/version.h @ONLY)

# tabla_biblioteca(<target> <exported name> <folders>...)
function(tabla_biblioteca objetivo nombre)
  set(tipo)
  if(WIN32)
    set(tipo STATIC) # no names are marked for export there yet
  endif()
  set(objetos)
  foreach(carpeta IN LISTS ARGN)
    if(TARGET tabla_${carpeta})
      get_target_property(clase tabla_${carpeta} TYPE)
      if(clase STREQUAL "STATIC_LIBRARY")
        list(APPEND objetos $<TARGET_OBJECTS:tabla_${carpeta}>)
      endif()
    endif()
  endforeach()
  add_library(${objetivo} ${tipo} ${objetos})
  add_library(Qlt4_Tabla::${nombre} ALIAS ${objetivo})
  # Until 1.0 every minor version may change what programs were linked against.
  set_target_properties(${objetivo} PROPERTIES LINKER_LANGUAGE CXX EXPORT_NAME ${nombre}
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
    INSTALL_RPATH "$<IF:$<PLATFORM_ID:Darwin>,@loader_path,$ORIGIN>")
  target_compile_features(${objetivo} PUBLIC cxx_std_20)
  tabla_cabeceras_publicas(cabeceras ${nombre})
  set_property(TARGET ${objetivo} PROPERTY TABLA_CABECERAS_PUBLICAS ${cabeceras})
  set(carpetas ${cabeceras})
  list(TRANSFORM carpetas REPLACE "/[^/]*$" "")
  list(REMOVE_DUPLICATES carpetas)
  foreach(carpeta IN LISTS carpetas)
    get_target_property(rutas tabla_${carpeta} INTERFACE_INCLUDE_DIRECTORIES)
    target_include_directories(${objetivo} INTERFACE ${rutas})
  endforeach()
  target_include_directories(${objetivo} INTERFACE
    $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/incluye/version>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/Qlt4_Tabla>)
endfunction()

tabla_biblioteca(qlt4_tabla_nucleo Nucleo
  base platform core colours editing clipboard files column_editor control headless spreadsheet)
target_link_libraries(qlt4_tabla_nucleo PRIVATE ${CMAKE_DL_LIBS})

if(TARGET tabla_qt)
  tabla_biblioteca(qlt4_tabla Tabla qt)
  target_link_libraries(qlt4_tabla PUBLIC qlt4_tabla_nucleo Qt6::Widgets)
endif()

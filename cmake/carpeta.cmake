# SPDX-License-Identifier: MIT
# One target per folder, made from the table in capas.txt. A target compiles with the include
# paths of its own row and of the targets it links, and of nothing else: each path holds a single
# symbolic link, so that "core/tablero.h" is found only by those that may include it.

include(${CMAKE_CURRENT_LIST_DIR}/avisos.cmake)
set(TABLA_DIR_CMAKE ${CMAKE_CURRENT_LIST_DIR})

# tabla_ruta_incluye(<out> <folder> <name>): a directory that holds only the link <name> to the
# folder. Where the platform refuses links it is the source root, and the script alone checks.
function(tabla_ruta_incluye salida carpeta nombre)
  set(ruta ${PROJECT_BINARY_DIR}/incluye/${nombre})
  file(MAKE_DIRECTORY ${ruta})
  if(NOT EXISTS ${ruta}/${nombre})
    file(CREATE_LINK ${carpeta} ${ruta}/${nombre} RESULT fallo SYMBOLIC)
    if(NOT fallo STREQUAL "0")
      message(STATUS "No symbolic links here (${fallo}): ${nombre} is included from the source root")
      get_filename_component(ruta ${carpeta} DIRECTORY)
    endif()
  endif()
  set(${salida} ${ruta} PARENT_SCOPE)
endfunction()

# tabla_comun(<target>): what every target of ours has.
function(tabla_comun objetivo)
  target_compile_features(${objetivo} PRIVATE cxx_std_20)
  set_target_properties(${objetivo} PROPERTIES CXX_EXTENSIONS OFF POSITION_INDEPENDENT_CODE ON)
  tabla_avisos(${objetivo})
endfunction()

# tabla_genera_qt(<target> <folder> <headers>): what Qt's programs make of the headers and of *.qrc. Not by
# AUTOMOC: what that makes is not yet among $<TARGET_OBJECTS> where a host above us asks for it too.
function(tabla_genera_qt objetivo dir cabeceras)
  set(con_objetos)
  foreach(cabecera IN LISTS cabeceras)
    file(STRINGS ${cabecera} marcas REGEX "^ +Q_OBJECT" LIMIT_COUNT 1)
    if(marcas)
      list(APPEND con_objetos ${cabecera})
    else() # it may get one
      set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${cabecera})
    endif()
  endforeach()
  qt6_wrap_cpp(mocs ${con_objetos} TARGET ${objetivo})
  set_source_files_properties(${mocs} PROPERTIES HEADER_FILE_ONLY ON)
  list(TRANSFORM mocs REPLACE "(.+)" "#include \"\\1\"" OUTPUT_VARIABLE juntos)
  list(JOIN juntos "\n" juntos)
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/moc_${objetivo}.cpp CONTENT "${juntos}\n" @ONLY)
  file(GLOB recursos CONFIGURE_DEPENDS ${dir}/*.qrc)
  qt6_add_resources(hechos ${recursos})
  target_sources(${objetivo} PRIVATE ${mocs} ${PROJECT_BINARY_DIR}/moc_${objetivo}.cpp ${hechos})
endfunction()

# tabla_carpeta(<folder> <links>...): the target tabla_<folder>; without any .cpp an INTERFACE
# library. Names in <links> that are no target (their folder does not exist yet) are left out.
function(tabla_carpeta nombre)
  set(dir ${PROJECT_SOURCE_DIR}/${nombre})
  file(GLOB fuentes CONFIGURE_DEPENDS ${dir}/*.cpp)
  file(GLOB cabeceras CONFIGURE_DEPENDS ${dir}/*.h)
  if(NOT fuentes AND NOT cabeceras)
    return()
  endif()
  set(objetivo tabla_${nombre})
  set(alcance INTERFACE)
  if(fuentes)
    set(alcance PUBLIC)
    add_library(${objetivo} STATIC ${fuentes} ${cabeceras})
    tabla_comun(${objetivo})
    # The shared libraries are made of these objects and show only what TABLA_API marks.
    set_target_properties(${objetivo} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    # Not in static libraries: only the compiler that made them could link them. Of the compilers only g++ links
    # such objects without being told.
    if(TABLA_ENLACE_OPTIMIZA AND BUILD_SHARED_LIBS AND NOT WIN32 AND CMAKE_COMPILER_IS_GNUCXX
       AND NOT nombre STREQUAL "qt")
      set_target_properties(${objetivo} PROPERTIES INTERPROCEDURAL_OPTIMIZATION ON)
    endif()
  else()
    add_library(${objetivo} INTERFACE)
  endif()
  target_compile_features(${objetivo} ${alcance} cxx_std_20)
  tabla_ruta_incluye(ruta ${dir} ${nombre})
  target_include_directories(${objetivo} ${alcance} $<BUILD_INTERFACE:${ruta}>)
  foreach(abajo IN LISTS ARGN)
    if(TARGET tabla_${abajo})
      target_link_libraries(${objetivo} ${alcance} tabla_${abajo})
    endif()
  endforeach()
  if(nombre STREQUAL "qt")
    target_link_libraries(${objetivo} ${alcance} Qt6::Widgets)
    if(fuentes)
      tabla_genera_qt(${objetivo} ${dir} "${cabeceras}")
    endif()
  endif()
  set_property(GLOBAL APPEND PROPERTY TABLA_CARPETAS ${nombre})
endfunction()

# tabla_carpetas(): every row of capas.txt in its order; qt only where TABLA_QT is on.
function(tabla_carpetas)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${TABLA_DIR_CMAKE}/capas.txt)
  file(STRINGS ${TABLA_DIR_CMAKE}/capas.txt filas REGEX "^[a-z_]+ *:")
  foreach(fila IN LISTS filas)
    string(REGEX MATCH "^[a-z_]+" nombre "${fila}")
    string(REGEX REPLACE "^[^:]*:" "" abajo "${fila}")
    string(REGEX MATCHALL "[a-z_]+" abajo "${abajo}")
    if(nombre STREQUAL "qt" AND NOT TABLA_QT)
      continue()
    endif()
    tabla_carpeta(${nombre} ${abajo})
  endforeach()
endfunction()

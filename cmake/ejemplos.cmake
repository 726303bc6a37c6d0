# SPDX-License-Identifier: MIT
# examples/<name>/*.cpp: one program <name> each, with the resources (*.qrc) beside its sources.

file(GLOB carpetas CONFIGURE_DEPENDS LIST_DIRECTORIES true ${PROJECT_SOURCE_DIR}/examples/*)
foreach(carpeta IN LISTS carpetas)
  file(GLOB fuentes CONFIGURE_DEPENDS ${carpeta}/*.cpp)
  file(GLOB resto CONFIGURE_DEPENDS ${carpeta}/*.h ${carpeta}/*.qrc)
  if(NOT fuentes)
    continue()
  endif()
  get_filename_component(nombre ${carpeta} NAME)
  add_executable(${nombre} ${fuentes} ${resto})
  tabla_comun(${nombre})
  set_target_properties(${nombre} PROPERTIES AUTOMOC ON AUTORCC ON
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/examples)
  target_link_libraries(${nombre} PRIVATE Qlt4_Tabla::Tabla)
endforeach()

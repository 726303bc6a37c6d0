# SPDX-License-Identifier: MIT
# examples/<name>/*.cpp: one program <name> each, with the resources (*.qrc) beside its sources, and
# tests that start it.

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
  # Each program draws its window into a picture and fails where the picture shows nothing.
  if(TABLA_PRUEBAS)
    add_test(NAME ejemplos.${nombre} COMMAND ${nombre}
      --captura ${PROJECT_BINARY_DIR}/examples/${nombre}.png)
    add_test(NAME ejemplos.${nombre}.oscuro COMMAND ${nombre} --oscuro
      --captura ${PROJECT_BINARY_DIR}/examples/${nombre}-oscuro.png)
    add_test(NAME ejemplos.${nombre}.opcion_desconocida COMMAND ${nombre} --no-existe)
    add_test(NAME ejemplos.${nombre}.captura_imposible COMMAND ${nombre}
      --captura ${PROJECT_BINARY_DIR}/examples/no-existe/${nombre}.png)
    set(pruebas ejemplos.${nombre} ejemplos.${nombre}.oscuro
      ejemplos.${nombre}.opcion_desconocida ejemplos.${nombre}.captura_imposible)
    set_tests_properties(${pruebas} PROPERTIES LABELS qt TIMEOUT 60
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_RUNTIME_DIR=${TABLA_RUNTIME};LC_ALL=C.UTF-8")
    set_tests_properties(ejemplos.${nombre}.opcion_desconocida ejemplos.${nombre}.captura_imposible
      PROPERTIES WILL_FAIL TRUE)
  endif()
endforeach()

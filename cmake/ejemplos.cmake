# SPDX-License-Identifier: MIT
# examples/<name>/*.cpp: one program <name> each, with the resources (*.qrc) and forms (*.ui) beside its
# sources, and tests that run it. Those named first need the core alone; the others put a widget on a window.
# Those named next have no options: they are whole as they stand, and scripts/consumidores builds and runs them.

set(TABLA_EJEMPLOS_SIN_QT informe por_identificador)
set(TABLA_EJEMPLOS_SUELTOS minimo)
set(dir_ejemplos ${PROJECT_BINARY_DIR}/examples)

# tabla_prueba_ventana(<name>): the program draws its window into a picture and fails where the picture shows
# nothing.
function(tabla_prueba_ventana nombre)
  add_test(NAME ejemplos.${nombre} COMMAND ${nombre} --captura ${dir_ejemplos}/${nombre}.png)
  add_test(NAME ejemplos.${nombre}.oscuro COMMAND ${nombre} --oscuro
    --captura ${dir_ejemplos}/${nombre}-oscuro.png)
  add_test(NAME ejemplos.${nombre}.opcion_desconocida COMMAND ${nombre} --no-existe)
  add_test(NAME ejemplos.${nombre}.captura_imposible COMMAND ${nombre}
    --captura ${dir_ejemplos}/no-existe/${nombre}.png)
  set(pruebas ejemplos.${nombre} ejemplos.${nombre}.oscuro
    ejemplos.${nombre}.opcion_desconocida ejemplos.${nombre}.captura_imposible)
  set_tests_properties(${pruebas} PROPERTIES LABELS qt TIMEOUT 60
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_RUNTIME_DIR=${TABLA_RUNTIME};LC_ALL=C.UTF-8")
  set_tests_properties(ejemplos.${nombre}.opcion_desconocida ejemplos.${nombre}.captura_imposible
    PROPERTIES WILL_FAIL TRUE)
endfunction()

# tabla_prueba_salida(<test> <file> <command>...): what the command says is, byte for byte, the file.
function(tabla_prueba_salida nombre esperado)
  list(JOIN ARGN "|" orden)
  add_test(NAME ejemplos.${nombre} COMMAND ${CMAKE_COMMAND} "-DORDEN=${orden}" -DESPERADO=${esperado}
    -DSALIDA=${dir_ejemplos}/${nombre}.txt -P ${TABLA_DIR_CMAKE}/compara_salida.cmake)
  set_tests_properties(ejemplos.${nombre} PROPERTIES TIMEOUT 60 ENVIRONMENT "LC_ALL=C.UTF-8")
endfunction()

file(GLOB carpetas CONFIGURE_DEPENDS LIST_DIRECTORIES true ${PROJECT_SOURCE_DIR}/examples/*)
foreach(carpeta IN LISTS carpetas)
  file(GLOB fuentes CONFIGURE_DEPENDS ${carpeta}/*.cpp)
  file(GLOB resto CONFIGURE_DEPENDS ${carpeta}/*.h ${carpeta}/*.qrc ${carpeta}/*.ui)
  get_filename_component(nombre ${carpeta} NAME)
  set(con_qt ON)
  if(nombre IN_LIST TABLA_EJEMPLOS_SIN_QT)
    set(con_qt OFF)
  endif()
  if(NOT fuentes OR (con_qt AND NOT TARGET qlt4_tabla))
    continue()
  endif()
  add_executable(${nombre} ${fuentes} ${resto})
  tabla_comun(${nombre})
  set_target_properties(${nombre} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${dir_ejemplos})
  if(NOT con_qt)
    target_link_libraries(${nombre} PRIVATE Qlt4_Tabla::Nucleo)
    continue()
  endif()
  set_target_properties(${nombre} PROPERTIES AUTOMOC ON AUTORCC ON AUTOUIC ON)
  target_link_libraries(${nombre} PRIVATE Qlt4_Tabla::Tabla)
  if(TABLA_PRUEBAS AND NOT nombre IN_LIST TABLA_EJEMPLOS_SUELTOS)
    tabla_prueba_ventana(${nombre})
  endif()
endforeach()

if(TABLA_PRUEBAS)
  set(dir ${PROJECT_SOURCE_DIR}/examples)
  tabla_prueba_salida(por_identificador ${dir}/por_identificador/esperado.txt $<TARGET_FILE:por_identificador>)
  set(informe ${dir_ejemplos}/nivelacion.tb0)
  add_test(NAME ejemplos.informe COMMAND informe ${dir}/informe/nivelacion.csv ${informe})
  add_test(NAME ejemplos.informe.sin_entrada COMMAND informe ${dir}/no-existe.csv ${informe})
  set_tests_properties(ejemplos.informe PROPERTIES FIXTURES_SETUP informe TIMEOUT 60)
  set_tests_properties(ejemplos.informe.sin_entrada PROPERTIES WILL_FAIL TRUE)
  if(TARGET tabla)
    tabla_prueba_salida(informe.leido ${dir}/informe/esperado.tsv $<TARGET_FILE:tabla> a-texto ${informe})
    set_tests_properties(ejemplos.informe.leido PROPERTIES FIXTURES_REQUIRED informe)
  endif()
endif()

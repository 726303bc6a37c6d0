# SPDX-License-Identifier: MIT
# tests/<folder>/*.cpp: one GoogleTest program prueba_<folder> each; tests/qt/*.cpp: one QTest
# program each; tests/guion/: the runner of the scenario scripts, for both, tests/guion_qt/: its hands on
# the widget; and every header that has no source, alone.

include(GoogleTest)
set(TABLA_TESTS ${PROJECT_SOURCE_DIR}/tests)
set(TABLA_RUNTIME ${PROJECT_BINARY_DIR}/runtime)
file(MAKE_DIRECTORY ${TABLA_RUNTIME} ${PROJECT_BINARY_DIR}/qtest)
file(CHMOD ${TABLA_RUNTIME} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# tabla_prueba(<target> <links>...): what every test program has; missing targets are left out.
function(tabla_prueba objetivo)
  tabla_comun(${objetivo})
  set_target_properties(${objetivo} PROPERTIES UNITY_BUILD OFF) # but see tabla_juntas
  # Compiled more often than run; what is tested is optimised.
  target_compile_options(${objetivo} PRIVATE $<$<CONFIG:RelWithDebInfo>:-O0$<SEMICOLON>-g1>)
  tabla_ruta_incluye(ruta ${TABLA_TESTS} tests)
  target_include_directories(${objetivo} PRIVATE ${ruta})
  target_compile_definitions(${objetivo} PRIVATE "TABLA_DIR_PRUEBAS=\"${TABLA_TESTS}\"")
  foreach(otro IN LISTS ARGN)
    if(TARGET ${otro})
      target_link_libraries(${objetivo} PRIVATE ${otro})
    endif()
  endforeach()
endfunction()

# tabla_juntas(<target>): compiles its sources by sixes, which halves the time: what they include is long.
# Names in their unnamed namespaces must differ; those of one source may hide another's.
function(tabla_juntas objetivo)
  set_target_properties(${objetivo} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 6)
  if(NOT MSVC)
    target_compile_options(${objetivo} PRIVATE -Wno-shadow)
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # It takes the fixtures of an unnamed namespace for those of a header.
    target_compile_options(${objetivo} PRIVATE -Wno-subobject-linkage)
  endif()
endfunction()

# The runner that the headless and the Qt scenario tests share.
file(GLOB fuentes CONFIGURE_DEPENDS ${TABLA_TESTS}/guion/*.cpp)
if(fuentes)
  add_library(tabla_guion STATIC ${fuentes})
  tabla_prueba(tabla_guion tabla_control tabla_headless)
  target_link_libraries(tabla_guion PUBLIC tabla_control tabla_headless)
endif()

foreach(carpeta base platform core colours editing clipboard files column_editor control headless spreadsheet escenarios)
  file(GLOB fuentes CONFIGURE_DEPENDS ${TABLA_TESTS}/${carpeta}/*.cpp)
  if(NOT fuentes)
    continue()
  endif()
  set(enlaces tabla_${carpeta} tabla_headless)
  if(carpeta STREQUAL "escenarios")
    set(enlaces tabla_guion tabla_control tabla_headless)
  endif()
  add_executable(prueba_${carpeta} ${fuentes})
  tabla_prueba(prueba_${carpeta} ${enlaces} GTest::gtest_main GTest::gmock)
  tabla_juntas(prueba_${carpeta})
  if(NOT carpeta MATCHES "^(base|core)$") # these compute for minutes under the sanitizers
    target_compile_options(prueba_${carpeta} PRIVATE $<$<CONFIG:Debug>:-O0>)
  endif()
  gtest_discover_tests(prueba_${carpeta} TEST_PREFIX ${carpeta}. DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120 ENVIRONMENT "LC_ALL=C.UTF-8")
endforeach()

# The export against a real office, one after the other: each starts an office of its own.
if(TARGET tabla_hoja_libreoffice)
  file(GLOB fuentes CONFIGURE_DEPENDS ${TABLA_TESTS}/spreadsheet/oficina/*.cpp)
  add_executable(prueba_oficina ${fuentes})
  tabla_prueba(prueba_oficina tabla_spreadsheet tabla_uno GTest::gtest)
  target_compile_definitions(prueba_oficina PRIVATE "TABLA_AUXILIAR=\"$<TARGET_FILE:tabla_hoja_libreoffice>\"")
  add_dependencies(prueba_oficina tabla_hoja_libreoffice tabla_tipos_uno)
  gtest_discover_tests(prueba_oficina TEST_PREFIX spreadsheet.oficina. DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120 RESOURCE_LOCK oficina ENVIRONMENT "LC_ALL=C.UTF-8")
endif()

if(TARGET tabla_qt)
  # The hands of the scenario scripts on the widget.
  file(GLOB fuentes CONFIGURE_DEPENDS ${TABLA_TESTS}/guion_qt/*.cpp)
  add_library(tabla_guion_qt STATIC ${fuentes})
  tabla_prueba(tabla_guion_qt tabla_guion tabla_qt tabla_headless Qt6::Test)
  file(GLOB programas CONFIGURE_DEPENDS ${TABLA_TESTS}/qt/*.cpp)
  foreach(fuente IN LISTS programas)
    get_filename_component(nombre ${fuente} NAME_WE)
    set(objetivo prueba_qt_${nombre})
    add_executable(${objetivo} ${fuente})
    set_target_properties(${objetivo} PROPERTIES AUTOMOC ON)
    tabla_prueba(${objetivo} tabla_guion_qt tabla_guion tabla_qt tabla_headless Qt6::Test)
    # The report file is what scripts/cuenta counts the single tests from. QTest's own crash
    # handler forks and hangs on a damaged heap: without it a crash ends the program at once.
    add_test(NAME qt.${nombre} COMMAND ${objetivo} -nocrashhandler
      -o ${PROJECT_BINARY_DIR}/qtest/${nombre}.txt,txt -o -,txt)
    set_tests_properties(qt.${nombre} PROPERTIES LABELS qt TIMEOUT 180 ENVIRONMENT
      "QT_QPA_PLATFORM=offscreen;QT_QPA_UPDATE_IDLE_TIME=0;XDG_RUNTIME_DIR=${TABLA_RUNTIME};LC_ALL=C.UTF-8")
  endforeach()
endif()

# Every header compiles alone, with the include paths of its folder: in its own source, which includes it
# first (scripts/comprueba sees to that), or, where it has none, in a generated one.
if(TABLA_CABECERAS)
  get_property(carpetas GLOBAL PROPERTY TABLA_CARPETAS)
  foreach(carpeta IN LISTS carpetas)
    file(GLOB cabeceras CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/${carpeta}/*.h)
    set(solas)
    foreach(cabecera IN LISTS cabeceras)
      cmake_path(REPLACE_EXTENSION cabecera .cpp OUTPUT_VARIABLE propia)
      if(EXISTS ${PROJECT_SOURCE_DIR}/${propia})
        continue()
      endif()
      string(REPLACE "/" "_" nombre ${cabecera})
      set(sola ${PROJECT_BINARY_DIR}/solas/${nombre}.cpp)
      file(CONFIGURE OUTPUT ${sola} CONTENT "#include \"${cabecera}\"\n#include \"${cabecera}\"\n")
      list(APPEND solas ${sola})
    endforeach()
    if(solas)
      add_library(cabeceras_${carpeta} OBJECT ${solas})
      tabla_comun(cabeceras_${carpeta})
      target_link_libraries(cabeceras_${carpeta} PRIVATE tabla_${carpeta})
      target_compile_options(cabeceras_${carpeta} PRIVATE -O0 -g0) # nobody runs them
    endif()
  endforeach()
endif()

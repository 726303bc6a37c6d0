# SPDX-License-Identifier: MIT
# fuzz/<name>.cpp: fuzz targets. Each is linked with fuzz/repite.cpp and runs its corpus
# fuzz/corpus/<name> as an ordinary test; where TABLA_FUZZ is on (clang; preset fuzz) also with
# libFuzzer, as the program fuzz_<name>.

set(TABLA_DIR_FUZZ ${PROJECT_SOURCE_DIR}/fuzz)
file(GLOB fuentes CONFIGURE_DEPENDS ${TABLA_DIR_FUZZ}/*.cpp)
list(REMOVE_ITEM fuentes ${TABLA_DIR_FUZZ}/repite.cpp)
foreach(fuente IN LISTS fuentes)
  get_filename_component(nombre ${fuente} NAME_WE)
  add_executable(repite_${nombre} ${fuente} ${TABLA_DIR_FUZZ}/repite.cpp)
  tabla_prueba(repite_${nombre} tabla_control tabla_headless)
  add_test(NAME fuzz.${nombre} COMMAND repite_${nombre} ${TABLA_DIR_FUZZ}/corpus/${nombre})
  set_tests_properties(fuzz.${nombre} PROPERTIES TIMEOUT 300)
  if(TABLA_FUZZ)
    add_executable(fuzz_${nombre} ${fuente})
    tabla_prueba(fuzz_${nombre} tabla_control tabla_headless)
    target_link_options(fuzz_${nombre} PRIVATE -fsanitize=fuzzer)
  endif()
endforeach()

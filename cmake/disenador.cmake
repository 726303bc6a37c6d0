# SPDX-License-Identifier: MIT
# qt/designer: the plugin for Qt Designer and for forms loaded at run time, where Qt's modules for it are
# found and the widget is a shared library. TABLA_DISENADOR says whether it must be: AUTO, ON (else an error),
# OFF. Its tests: tests/disenador.

set(TABLA_DISENADOR AUTO CACHE STRING "Build the Qt Designer plugin: AUTO, ON or OFF")
set_property(CACHE TABLA_DISENADOR PROPERTY STRINGS AUTO ON OFF)
if(NOT TARGET qlt4_tabla OR NOT TABLA_DISENADOR)
  return()
endif()
set(modulos UiPlugin)
if(TABLA_PRUEBAS)
  list(APPEND modulos UiTools Designer)
endif()
get_target_property(clase qlt4_tabla TYPE)
set(falta)
foreach(modulo IN LISTS modulos)
  find_package(Qt6${modulo} 6.4 QUIET)
  if(NOT Qt6${modulo}_FOUND)
    set(falta "Qt's module ${modulo} was not found (Debian: qt6-tools-dev, libqt6opengl6-dev; scripts/instala designer)")
  endif()
endforeach()
if(NOT falta AND NOT clase STREQUAL "SHARED_LIBRARY")
  set(falta "the libraries are static: a form's program would hold the widget twice (BUILD_SHARED_LIBS)")
endif()
if(falta)
  if(NOT TABLA_DISENADOR STREQUAL "AUTO")
    message(FATAL_ERROR "No Qt Designer plugin: ${falta}.")
  endif()
  message(STATUS "No Qt Designer plugin: ${falta}.")
  return()
endif()

# Where Qt looks for plugins below its own prefix; below another one QT_PLUGIN_PATH has to say so.
set(donde ${CMAKE_INSTALL_LIBDIR}/qt6/plugins)
if(QT6_INSTALL_PLUGINS)
  set(donde ${QT6_INSTALL_PLUGINS})
endif()
set(TABLA_DIR_PLUGINS ${donde} CACHE STRING "Folder of Qt's plugins, relative to the prefix")
cmake_path(APPEND CMAKE_INSTALL_PREFIX ${TABLA_DIR_PLUGINS} designer OUTPUT_VARIABLE destino)
file(RELATIVE_PATH hasta_lib ${destino} ${CMAKE_INSTALL_FULL_LIBDIR})

file(GLOB fuentes CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/qt/designer/*.cpp ${PROJECT_SOURCE_DIR}/qt/designer/*.h
  ${PROJECT_SOURCE_DIR}/qt/designer/*.qrc)
add_library(qlt4_tabla_designer MODULE ${fuentes})
tabla_comun(qlt4_tabla_designer)
set_target_properties(qlt4_tabla_designer PROPERTIES AUTOMOC ON AUTORCC ON CXX_VISIBILITY_PRESET hidden
  LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/plugins/designer INSTALL_RPATH "$ORIGIN/${hasta_lib}")
target_link_libraries(qlt4_tabla_designer PRIVATE qlt4_tabla Qt6::UiPlugin)
if(TABLA_INSTALA)
  install(TARGETS qlt4_tabla_designer LIBRARY DESTINATION ${TABLA_DIR_PLUGINS}/designer COMPONENT disenador)
endif()

if(NOT TABLA_PRUEBAS)
  return()
endif()
file(GLOB fuentes CONFIGURE_DEPENDS ${TABLA_TESTS}/disenador/*.cpp ${TABLA_TESTS}/disenador/*.ui)
add_executable(prueba_disenador ${fuentes})
tabla_prueba(prueba_disenador qlt4_tabla Qt6::UiTools Qt6::Designer Qt6::Test)
set_target_properties(prueba_disenador PROPERTIES AUTOMOC ON AUTOUIC ON)
target_compile_definitions(prueba_disenador PRIVATE
  "TABLA_DIR_COMPLEMENTO=\"$<TARGET_FILE_DIR:qlt4_tabla_designer>\"")
add_dependencies(prueba_disenador qlt4_tabla_designer)
add_test(NAME qt.disenador COMMAND prueba_disenador -nocrashhandler
  -o ${PROJECT_BINARY_DIR}/qtest/disenador.txt,txt -o -,txt)
set_tests_properties(qt.disenador PROPERTIES LABELS qt TIMEOUT 120 ENVIRONMENT
  "QT_QPA_PLATFORM=offscreen;QT_QPA_UPDATE_IDLE_TIME=0;XDG_RUNTIME_DIR=${TABLA_RUNTIME};LC_ALL=C.UTF-8")

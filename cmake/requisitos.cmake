# SPDX-License-Identifier: MIT
# The packages a build needs, each with a word on what to do when it is missing.

if(PROJECT_IS_TOP_LEVEL)
  set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
  if(NOT DEFINED CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo)
  endif()
  find_program(TABLA_CCACHE ccache)
  if(TABLA_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Paths relative to the tree: what one preset has compiled another with the same flags need not.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${TABLA_CCACHE})
  endif()
endif()

# tabla_exige(<package> <advice> <arguments of find_package>...)
macro(tabla_exige paquete consejo)
  find_package(${paquete} ${ARGN} QUIET)
  if(NOT ${paquete}_FOUND)
    message(FATAL_ERROR "${paquete} was not found. ${consejo}")
  endif()
endmacro()

if(TABLA_QT)
  set(consejo "Install it (Debian: qt6-base-dev; scripts/instala does it), point CMAKE_PREFIX_PATH to it, \
or build without Qt: cmake --preset sin-qt, or -DTABLA_QT=OFF.")
  tabla_exige(Qt6 "${consejo}" 6.4 COMPONENTS Widgets)
  if(TABLA_PRUEBAS)
    tabla_exige(Qt6 "${consejo}" 6.4 COMPONENTS Widgets Test)
  endif()
endif()
if(TABLA_PRUEBAS)
  tabla_exige(GTest "Install it (Debian: libgtest-dev; scripts/instala does it), or configure with -DTABLA_PRUEBAS=OFF.")
endif()

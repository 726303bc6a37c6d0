# SPDX-License-Identifier: MIT
# The program that draws the pictures of docs/figuras, from the example "plano" and the hands of the Qt tests.
# Built only when asked for: scripts/figuras.

file(GLOB fuentes CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/examples/plano/*.cpp
  ${PROJECT_SOURCE_DIR}/examples/plano/*.h ${PROJECT_SOURCE_DIR}/examples/plano/*.qrc)
list(REMOVE_ITEM fuentes ${PROJECT_SOURCE_DIR}/examples/plano/principal.cpp)
add_executable(figuras EXCLUDE_FROM_ALL ${PROJECT_SOURCE_DIR}/docs/figuras/figuras.cpp ${fuentes})
set_target_properties(figuras PROPERTIES AUTOMOC ON AUTORCC ON)
tabla_prueba(figuras tabla_qt tabla_control Qt6::Test)

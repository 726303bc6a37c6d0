# SPDX-License-Identifier: MIT
# cmake -DORDEN=program|argument -DESPERADO=file -DSALIDA=file -P compara_salida.cmake: runs the program and
# fails where it fails, or where what it says differs from the expected file.
string(REPLACE "|" ";" orden "${ORDEN}")
execute_process(COMMAND ${orden} OUTPUT_FILE ${SALIDA} RESULT_VARIABLE codigo)
if(NOT codigo EQUAL 0)
  message(FATAL_ERROR "it ended with ${codigo}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${SALIDA} ${ESPERADO} RESULT_VARIABLE distintos)
if(NOT distintos EQUAL 0)
  file(READ ${SALIDA} dicho)
  message(FATAL_ERROR "expected is ${ESPERADO}; it said:\n${dicho}")
endif()

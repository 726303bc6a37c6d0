# SPDX-License-Identifier: MIT
# Run by cpack before it packs: each Debian package has its licence and what changed where Debian looks for
# them, and its manual pages are compressed.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
  return()
endif()
set(carpeta ${CPACK_TEMPORARY_INSTALL_DIRECTORY})
foreach(componente IN LISTS CPACK_COMPONENTS_ALL)
  if(IS_DIRECTORY ${carpeta}/${componente})
    string(TOUPPER ${componente} C)
    set(doc ${carpeta}/${componente}/usr/share/doc/${CPACK_DEBIAN_${C}_PACKAGE_NAME})
    file(MAKE_DIRECTORY ${doc})
    file(COPY_FILE ${CPACK_RESOURCE_FILE_LICENSE} ${doc}/copyright)
    file(COPY_FILE ${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md ${doc}/changelog)
  endif()
endforeach()
file(GLOB textos ${carpeta}/*/usr/share/man/man1/*.1 ${carpeta}/*/usr/share/doc/*/changelog)
execute_process(COMMAND gzip -9n ${textos} COMMAND_ERROR_IS_FATAL ANY)

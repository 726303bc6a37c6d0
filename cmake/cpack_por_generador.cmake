# SPDX-License-Identifier: MIT
# Read by cpack once for each kind of package: a Debian package belongs below /usr and has its licence
# from cpack_debian.cmake, a tarball belongs anywhere.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  list(REMOVE_ITEM CPACK_COMPONENTS_ALL licencia)
endif()

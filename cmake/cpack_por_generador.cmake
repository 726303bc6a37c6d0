# SPDX-License-Identifier: MIT
# Read by cpack once for each kind of package: a Debian package belongs below /usr, a tarball anywhere.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
endif()

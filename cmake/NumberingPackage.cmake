# Debian package of the library, its headers, the numbering tool and the sample configuration: cpack -G DEB.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME libnumbering)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DESCRIPTION "libNumbering converts telephone numbers for the applications of a private
telephone exchange: canonical numbers, dialable numbers and calling-line identities. The package holds the
shared library, its headers, CMake and pkg-config files, the numbering command-line tool and a sample
configuration under share/numbering/config.")
set(CPACK_PACKAGE_CONTACT "libNumbering maintainers <numbering@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
# The headers include POCO's, so the development package brings the run-time libraries with it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libpoco-dev (>= 1.11)")
include(CPack)

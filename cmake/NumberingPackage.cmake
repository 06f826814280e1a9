# Debian packages, one per install component: libnumbering (Runtime), libnumbering-dev (Development) and
# numbering-tools (Tools). scripts/package.sh makes them.
#
# They are made only from a build configured with the prefix /usr: only then does GNUInstallDirs choose the
# multiarch library directory, and does the tool find the library without a run-time search path.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
	return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
# Any other install rule (a language binding, say) stays out of the packages.
set(CPACK_COMPONENTS_ALL Runtime Development Tools)
set(CPACK_PACKAGE_NAME libnumbering)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
# Each package's description begins with its own summary line; CPack would put a common one before it.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_CONTACT "libNumbering maintainers <numbering@example.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE libnumbering)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# Each package depends on the exact version of the packages its component depends on.
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libnumbering)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "telephone number conversion for private exchanges
libNumbering converts telephone numbers for the applications of a private
telephone exchange: canonical numbers, dialable numbers and calling-line
identities, from property files and one numbering plan per calling code.

This package holds the shared library.")
# The loader's cache is refreshed by dpkg's trigger (CPack also calls ldconfig from postinst and postrm).
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/deb/triggers)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libnumbering-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
# The public headers include POCO's.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libpoco-dev (>= 1.11)")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS Runtime)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "telephone number conversion for private exchanges - development files
libNumbering converts telephone numbers for the applications of a private
telephone exchange.

This package holds the headers, the CMake package (find_package(Numbering))
and the pkg-config file (numbering.pc) for building host applications.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME numbering-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
# dpkg-shlibdeps finds libNumbering.so in the build tree; the dependency on it comes from the component's.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_COMPONENT_TOOLS_DEPENDS Runtime)
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "command-line tool for libNumbering telephone number conversion
The numbering command converts telephone numbers as the applications of a
private telephone exchange do, for a site described by its options: canonical
and compact forms, the digits the exchange dials, calling-line identities.

The package also holds a sample configuration in /usr/share/numbering/config.")

include(CPack)

# What Debian keeps beside every package: its copyright and change log.
configure_file(${PROJECT_SOURCE_DIR}/cmake/deb/changelog.in ${PROJECT_BINARY_DIR}/deb/changelog @ONLY)
add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/deb/changelog.gz
	COMMAND gzip -9nkf ${PROJECT_BINARY_DIR}/deb/changelog
	DEPENDS ${PROJECT_BINARY_DIR}/deb/changelog)
add_custom_target(numbering_deb_changelog ALL DEPENDS ${PROJECT_BINARY_DIR}/deb/changelog.gz)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
	string(TOUPPER ${component} upper)
	install(FILES ${PROJECT_SOURCE_DIR}/cmake/deb/copyright ${PROJECT_BINARY_DIR}/deb/changelog.gz
		DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}
		COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()

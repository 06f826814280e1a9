# Install rules: the library (component Runtime), its public headers, a CMake package and a pkg-config file
# (component Development).
include(CMakePackageConfigHelpers)

set(NUMBERING_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/Numbering")

install(TARGETS Numbering EXPORT NumberingTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/numbering DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
	COMPONENT Development)
install(EXPORT NumberingTargets NAMESPACE Numbering:: DESTINATION ${NUMBERING_CMAKE_DIR} COMPONENT Development)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/NumberingConfig.cmake.in
	${PROJECT_BINARY_DIR}/NumberingConfig.cmake
	INSTALL_DESTINATION ${NUMBERING_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/NumberingConfigVersion.cmake
	COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/NumberingConfig.cmake ${PROJECT_BINARY_DIR}/NumberingConfigVersion.cmake
	DESTINATION ${NUMBERING_CMAKE_DIR} COMPONENT Development)

# The prefix is found from the .pc file's own place, so that the package can be installed under any prefix
# (cmake --install --prefix) and still point at its own headers and library.
file(RELATIVE_PATH NUMBERING_PC_TO_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" NUMBERING_PC_TO_PREFIX "${NUMBERING_PC_TO_PREFIX}")
set(NUMBERING_PC_PREFIX "\${pcfiledir}/${NUMBERING_PC_TO_PREFIX}")
configure_file(${PROJECT_SOURCE_DIR}/cmake/numbering.pc.in ${PROJECT_BINARY_DIR}/numbering.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/numbering.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
	COMPONENT Development)

# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
# Two Debian packages: libzogles1 to run programs, libzogles-dev to build them. scripts/package makes
# them.
set(runtime "libzogles${PROJECT_VERSION_MAJOR}")
set(development libzogles-dev)
set(release 1)
set(ZOGLES_MAINTAINER "libzogles <root@localhost>" CACHE STRING "The packager: Name <address>")

# Debian's policy demands the licence and the history in each package.
string(TIMESTAMP ZOGLES_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(ZOGLES_DEBIAN_VERSION "${PROJECT_VERSION}-${release}")
configure_file(cmake/debian/changelog.in changelog.Debian @ONLY)
configure_file(CHANGELOG.md changelog COPYONLY)
execute_process(COMMAND gzip -9nkf changelog.Debian changelog
  WORKING_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}")
foreach(component runtime development)
  install(FILES
    cmake/debian/copyright
    "${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian.gz"
    "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz"
    DESTINATION "share/doc/${${component}}" COMPONENT ${component})
endforeach()
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/README.md" DESTINATION share/doc/${development} COMPONENT development)

# The version that introduced each symbol, so that a program depends on the oldest version that
# suffices. The build fails if the library exports other symbols than the list.
set(symbols "${CMAKE_CURRENT_BINARY_DIR}/symbols")
set(symbols_list "${PROJECT_SOURCE_DIR}/cmake/debian/${runtime}.symbols")
add_custom_command(OUTPUT "${symbols}"
  COMMAND dpkg-gensymbols -c4 -q -p${runtime} -v${PROJECT_VERSION} -e$<TARGET_FILE:zogles>
    "-I${symbols_list}" "-O${symbols}"
  DEPENDS zogles "${symbols_list}"
  COMMENT "Comparing the exported symbols with ${symbols_list}")
add_custom_target(zogles_debian_symbols ALL DEPENDS "${symbols}")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME libzogles)
set(CPACK_PACKAGE_CONTACT "${ZOGLES_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${release})
set(CPACK_DEBIAN_PACKAGE_SOURCE libzogles)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_MULTIARCH same)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
  "${symbols}" "${PROJECT_SOURCE_DIR}/cmake/debian/triggers")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_MULTIARCH same)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime} (= ${ZOGLES_DEBIAN_VERSION})")

# The first line is the short description, the rest the long one.
set(about "libzogles draws rectangles, bitmaps, scaled copies and UTF-16 text in any
font that FreeType opens, through EGL on a native window. Off-screen buffers
survive the loss of the window.
")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "on-screen display with OpenGL ES 2.0 - runtime
${about}
This package contains the shared library.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "on-screen display with OpenGL ES 2.0 - development
${about}
This package contains the header and the files for CMake and pkg-config.")
include(CPack)

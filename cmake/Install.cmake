# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
# The installation has three components: runtime, development and docs. Clients find the library with
# find_package(zogles 1) or pkg-config, even if the installed tree was moved.
include(CMakePackageConfigHelpers)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/zogles")
get_target_property(ZOGLES_LIBRARY_TYPE zogles TYPE)

install(TARGETS zogles EXPORT zogles-targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(DIRECTORY include/zogles DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

# The files that the README links to are not installed, so the installed one has no links.
file(READ README.md readme)
string(REGEX REPLACE "!\\[[^]]*\\]\\([^)]*\\)\n\n" "" readme "${readme}")
string(REGEX REPLACE "\\[([^]]*)\\]\\([^)]*\\)" "\\1" readme "${readme}")
file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/README.md" "${readme}")
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/README.md" CHANGELOG.md LICENSE
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT docs)

# For CMake
install(EXPORT zogles-targets NAMESPACE zogles:: DESTINATION "${package_folder}"
  COMPONENT development)
configure_package_config_file(cmake/zogles-config.cmake.in zogles-config.cmake
  INSTALL_DESTINATION "${package_folder}")
write_basic_package_version_file(zogles-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  "${CMAKE_CURRENT_BINARY_DIR}/zogles-config.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/zogles-config-version.cmake"
  cmake/zogles-dependencies.cmake
  DESTINATION "${package_folder}" COMPONENT development)

# For pkg-config, with folders relative to the .pc file.
set(pc_folder "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig")
foreach(folder PREFIX FULL_LIBDIR FULL_INCLUDEDIR)
  file(RELATIVE_PATH way "${pc_folder}" "${CMAKE_INSTALL_${folder}}")
  string(REGEX REPLACE "/$" "" ZOGLES_PC_${folder} "${way}")
endforeach()
# Clients of a static library must link its dependencies, with pkg-config's --static or without.
if(ZOGLES_LIBRARY_TYPE STREQUAL STATIC_LIBRARY)
  foreach(library IN LISTS ZOGLES_PLATFORM_LIBRARIES)
    string(APPEND ZOGLES_PC_LIBRARIES " -l${library}")
  endforeach()
  if(ZOGLES_EGL_FOUND AND ZOGLES_GLES_FOUND)
    set(ZOGLES_PC_REQUIRES "egl glesv2 freetype2")
  else() # pkg-config does not know them
    string(APPEND ZOGLES_PC_LIBRARIES " -lEGL -lGLESv2 -lfreetype")
  endif()
  set(ZOGLES_PC_DEFINITIONS " -DZOGLES_STATIC")
endif()
configure_file(cmake/zogles.pc.in zogles.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/zogles.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)

# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
# The shared library. The version script keeps instances of standard templates from being exported.
add_library(zogles SHARED $<TARGET_OBJECTS:zogles_objects>)
add_library(zogles_internal ALIAS zogles)

set(own_functions "")
foreach(function IN LISTS ZOGLES_OWN_FUNCTIONS)
  string(APPEND own_functions "    ${function};\n")
endforeach()
configure_file(cmake/exports.map.in exports.map @ONLY)
set(replaceable "${PROJECT_SOURCE_DIR}/cmake/replaceable.list")
# Not -Bsymbolic, which would also bind the replaceable functions.
target_link_options(zogles PRIVATE
  "LINKER:--version-script=${CMAKE_CURRENT_BINARY_DIR}/exports.map"
  "LINKER:--dynamic-list=${replaceable}")
set_target_properties(zogles PROPERTIES
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR}
  INTERPROCEDURAL_OPTIMIZATION OFF
  LINK_DEPENDS "${CMAKE_CURRENT_BINARY_DIR}/exports.map;${replaceable}")

# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
# The library's dependencies in a browser, under their usual target names: EGL and OpenGL ES by
# Emscripten, on WebGL, and FreeType, built from its source. Programs that link the library get their link
# options.

set(ZOGLES_FREETYPE_SOURCE "" CACHE PATH "FreeType's unpacked source")
if(NOT EXISTS "${ZOGLES_FREETYPE_SOURCE}/CMakeLists.txt")
  message(FATAL_ERROR "ZOGLES_FREETYPE_SOURCE must be the folder of FreeType's source")
endif()

# A page is one module; it cannot load shared libraries.
set(BUILD_SHARED_LIBS OFF)

# The library handles std::bad_alloc, so it must be thrown.
add_compile_options(-fexceptions)
add_link_options(-fexceptions)

add_library(zogles::EGL INTERFACE IMPORTED)
set(contexts ${PROJECT_SOURCE_DIR}/web/egl/context.js)
target_link_options(zogles::EGL INTERFACE -fexceptions "SHELL:--js-library \"${contexts}\"")
set_target_properties(zogles::EGL PROPERTIES INTERFACE_LINK_DEPENDS ${contexts})
# WebGL does not read indices from client memory; FULL_ES2 copies them into a buffer.
add_library(zogles::GLES INTERFACE IMPORTED)
target_link_options(zogles::GLES INTERFACE -sFULL_ES2=1)

enable_language(C)
foreach(dependency ZLIB BZIP2 PNG HARFBUZZ BROTLI)
  set(FT_DISABLE_${dependency} ON CACHE BOOL "" FORCE)
endforeach()
add_subdirectory(${ZOGLES_FREETYPE_SOURCE} ${CMAKE_CURRENT_BINARY_DIR}/freetype EXCLUDE_FROM_ALL)
add_library(Freetype::Freetype ALIAS freetype)

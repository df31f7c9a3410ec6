# What the library stands on in a browser, under the names that it has elsewhere: EGL and OpenGL ES
# by Emscripten, over WebGL, and FreeType, built here from its source. What all of it asks of the link
# reaches every program that links the library.

set(ZOGLES_FREETYPE_SOURCE "" CACHE PATH "FreeType's unpacked source")
if(NOT EXISTS "${ZOGLES_FREETYPE_SOURCE}/CMakeLists.txt")
  message(FATAL_ERROR "ZOGLES_FREETYPE_SOURCE has to name the folder of FreeType's source")
endif()

# A page is one module: there is nothing to load a shared library.
set(BUILD_SHARED_LIBS OFF)

# Memory may be refused, and the library answers that; so it is refused here as anywhere else.
add_compile_options(-fexceptions)
add_link_options(-fexceptions)

add_library(zogles::EGL INTERFACE IMPORTED)
set(contexts ${PROJECT_SOURCE_DIR}/web/egl/context.js)
target_link_options(zogles::EGL INTERFACE -fexceptions "SHELL:--js-library \"${contexts}\"")
set_target_properties(zogles::EGL PROPERTIES INTERFACE_LINK_DEPENDS ${contexts})
# WebGL takes no indices from the client's memory. This has Emscripten put them into a buffer.
add_library(zogles::GLES INTERFACE IMPORTED)
target_link_options(zogles::GLES INTERFACE -sFULL_ES2=1)

enable_language(C)
foreach(dependency ZLIB BZIP2 PNG HARFBUZZ BROTLI)
  set(FT_DISABLE_${dependency} ON CACHE BOOL "" FORCE)
endforeach()
add_subdirectory(${ZOGLES_FREETYPE_SOURCE} ${CMAKE_CURRENT_BINARY_DIR}/freetype EXCLUDE_FROM_ALL)
add_library(Freetype::Freetype ALIAS freetype)

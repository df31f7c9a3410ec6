# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
# EGL and OpenGL ES as the targets zogles::EGL and zogles::GLES: from pkg-config if it knows them,
# otherwise by header and library. The library's build and clients of an installed static library share
# this file. zogles_missing lists what was not found.
find_package(PkgConfig QUIET)
set(zogles_missing "")

function(zogles_find_gl name module header library)
  if(TARGET zogles::${name})
    return()
  endif()
  if(PKG_CONFIG_FOUND)
    pkg_check_modules(ZOGLES_${name} QUIET IMPORTED_TARGET ${module})
  endif()
  if(NOT ZOGLES_${name}_FOUND)
    find_path(ZOGLES_${name}_HEADERS ${header})
    find_library(ZOGLES_${name}_LIBRARY ${library})
    if(NOT ZOGLES_${name}_HEADERS OR NOT ZOGLES_${name}_LIBRARY)
      set(zogles_missing ${zogles_missing} "${header} and lib${library}" PARENT_SCOPE)
      return()
    endif()
  endif()
  add_library(zogles::${name} INTERFACE IMPORTED)
  if(ZOGLES_${name}_FOUND)
    target_link_libraries(zogles::${name} INTERFACE PkgConfig::ZOGLES_${name})
  else()
    target_include_directories(zogles::${name} INTERFACE "${ZOGLES_${name}_HEADERS}")
    target_link_libraries(zogles::${name} INTERFACE "${ZOGLES_${name}_LIBRARY}")
  endif()
endfunction()

zogles_find_gl(EGL egl EGL/egl.h EGL)
zogles_find_gl(GLES glesv2 GLES2/gl2.h GLESv2)

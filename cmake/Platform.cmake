# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
# Sets ZOGLES_OWN_FUNCTIONS to the functions that the library defines because the platform lacks them,
# ZOGLES_OWN_MEMSET_S to whether memset_s is one of them, and ZOGLES_PLATFORM_LIBRARIES to the libraries
# that provide the others.
include(CheckCXXSourceCompiles)
set(ZOGLES_BOUNDS_LIBRARY boundscheck CACHE STRING
  "The platform's bounds-checking library, searched if the C library has no memset_s")
set(ZOGLES_OWN_FUNCTIONS "")
set(ZOGLES_PLATFORM_LIBRARIES "")

# A function, so that the variables that control the checks do not change outside it.
function(zogles_check_platform)
  set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
  check_cxx_source_compiles("
    #if !defined(__ANDROID__)
    #error no log
    #endif
    " ZOGLES_HAS_PLATFORM_LOG)

  # Link even if the toolchain file makes CMake only compile.
  set(CMAKE_TRY_COMPILE_TARGET_TYPE EXECUTABLE)
  set(program "
    extern \"C\" int memset_s(void*, decltype(sizeof 0), int, decltype(sizeof 0));
    int main() { char byte; return memset_s(&byte, 1, 0, 1); }")
  check_cxx_source_compiles("${program}" ZOGLES_HAS_MEMSET_S)
  if(NOT ZOGLES_HAS_MEMSET_S)
    set(CMAKE_REQUIRED_LIBRARIES ${ZOGLES_BOUNDS_LIBRARY})
    check_cxx_source_compiles("${program}" ZOGLES_HAS_BOUNDS_LIBRARY)
  endif()
endfunction()

zogles_check_platform()
if(ZOGLES_HAS_PLATFORM_LOG)
  list(APPEND ZOGLES_PLATFORM_LIBRARIES log)
else()
  list(APPEND ZOGLES_OWN_FUNCTIONS __android_log_print)
endif()
set(ZOGLES_OWN_MEMSET_S OFF)
if(ZOGLES_HAS_BOUNDS_LIBRARY)
  list(APPEND ZOGLES_PLATFORM_LIBRARIES ${ZOGLES_BOUNDS_LIBRARY})
elseif(NOT ZOGLES_HAS_MEMSET_S)
  set(ZOGLES_OWN_MEMSET_S ON)
  list(APPEND ZOGLES_OWN_FUNCTIONS memset_s)
endif()

# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
# Builds for another architecture of Debian, ZOGLES_ARCHITECTURE: arm64, armhf or i386. The libraries
# come from build/sysroot-<architecture>, which scripts/cross makes, so that the system needs no
# package of that architecture.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZOGLES_ARCHITECTURE)
# The names of the compiler, the folder of libraries, the loader and the emulator.
if(ZOGLES_ARCHITECTURE STREQUAL "arm64")
  set(names aarch64-linux-gnu aarch64-linux-gnu ld-linux-aarch64.so.1 aarch64)
elseif(ZOGLES_ARCHITECTURE STREQUAL "armhf")
  set(names arm-linux-gnueabihf arm-linux-gnueabihf ld-linux-armhf.so.3 arm)
elseif(ZOGLES_ARCHITECTURE STREQUAL "i386")
  set(names i686-linux-gnu i386-linux-gnu ld-linux.so.2 i386)
else()
  message(FATAL_ERROR "ZOGLES_ARCHITECTURE is '${ZOGLES_ARCHITECTURE}', not arm64, armhf or i386")
endif()
list(GET names 0 compiler)
list(GET names 1 libraries)
list(GET names 2 loader)
list(GET names 3 processor)

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${processor})
set(CMAKE_C_COMPILER ${compiler}-gcc)
set(CMAKE_CXX_COMPILER ${compiler}-g++)

get_filename_component(CMAKE_SYSROOT
  "${CMAKE_CURRENT_LIST_DIR}/../../build/sysroot-${ZOGLES_ARCHITECTURE}" ABSOLUTE)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(library_folder "${CMAKE_SYSROOT}/usr/lib/${libraries}")
set(ENV{PKG_CONFIG_SYSROOT_DIR} "${CMAKE_SYSROOT}")
set(ENV{PKG_CONFIG_LIBDIR} "${library_folder}/pkgconfig:${CMAKE_SYSROOT}/usr/share/pkgconfig")

# x86-64 runs i386 programs without the emulator, and faster, if its kernel supports them. The programs
# need the sysroot's loader, libraries and GL drivers.
execute_process(COMMAND "${CMAKE_SYSROOT}/lib/${loader}" --version
  RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
if(result EQUAL 0)
  set(CMAKE_CROSSCOMPILING_EMULATOR env
    "LIBGL_DRIVERS_PATH=${library_folder}/dri"
    "__EGL_VENDOR_LIBRARY_DIRS=${CMAKE_SYSROOT}/usr/share/glvnd/egl_vendor.d"
    "${CMAKE_SYSROOT}/lib/${loader}"
    --library-path "${CMAKE_SYSROOT}/lib/${libraries}:${library_folder}")
else()
  set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${processor}-static -L "${CMAKE_SYSROOT}")
endif()

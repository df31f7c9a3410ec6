# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
# The static library. A program may use the names of its internal classes for other classes. So the
# library is one object in which all symbols but those of the public class are local, if the linker and
# objcopy can make one.

# Sections that several objects share, such as those of templates, must become part of the object:
# otherwise the linker may replace them with a program's.
separate_arguments(flags UNIX_COMMAND "${CMAKE_CXX_FLAGS}")
if(CMAKE_CXX_COMPILER_TARGET)
  list(APPEND flags "${CMAKE_CXX_COMPILE_OPTIONS_TARGET}${CMAKE_CXX_COMPILER_TARGET}")
endif()
if(CMAKE_SYSROOT)
  list(APPEND flags "--sysroot=${CMAKE_SYSROOT}")
endif()
set(combine ${CMAKE_CXX_COMPILER} ${CMAKE_CXX_COMPILER_ARG1} ${flags}
  -fno-lto -fno-sanitize=all -r -nostdlib -Wl,--force-group-allocation)
set(localize "${CMAKE_OBJCOPY}" --wildcard
  "--keep-global-symbol=_ZN15ZoGLDrawSurface*" "--keep-global-symbol=_ZNK15ZoGLDrawSurface*")
foreach(function IN LISTS ZOGLES_OWN_FUNCTIONS)
  # Weak, so that a program's definition replaces it.
  list(APPEND localize --keep-global-symbol=${function} --weaken-symbol=${function})
endforeach()

set(probe "${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/probe")
file(WRITE "${probe}.cpp" "inline int F() { return 1; }\nint (*f)() = F;\n")
execute_process(COMMAND ${combine} "${probe}.cpp" -o "${probe}.o"
  RESULT_VARIABLE failure OUTPUT_QUIET ERROR_QUIET)
if(NOT failure)
  execute_process(COMMAND ${localize} "${probe}.o" RESULT_VARIABLE failure OUTPUT_QUIET ERROR_QUIET)
endif()

if(failure)
  message(STATUS "libzogles.a is an ordinary archive: "
    "the linker or objcopy cannot make internal symbols local, so they may clash with a program's")
  add_library(zogles STATIC $<TARGET_OBJECTS:zogles_objects>)
  add_library(zogles_internal ALIAS zogles)
  set(ZOGLES_ARCHIVE "")
else()
  set(object "${CMAKE_CURRENT_BINARY_DIR}/zogles.o")
  get_property(multi_config GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
  if(multi_config) # needs CMake 3.20
    set(object "${CMAKE_CURRENT_BINARY_DIR}/zogles$<CONFIG>.o")
  endif()
  add_custom_command(OUTPUT "${object}"
    COMMAND ${combine} $<TARGET_OBJECTS:zogles_objects> -o "${object}"
    COMMAND ${localize} "${object}"
    DEPENDS $<TARGET_OBJECTS:zogles_objects>
    COMMENT "Combining the library into one object"
    COMMAND_EXPAND_LISTS VERBATIM)
  add_library(zogles STATIC "${object}")
  add_dependencies(zogles zogles_objects) # otherwise Make has no rule for the objects
  add_library(zogles_archive STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:zogles_objects>)
  add_library(zogles_internal ALIAS zogles_archive)
  set(ZOGLES_ARCHIVE zogles_archive)
endif()
foreach(library zogles ${ZOGLES_ARCHIVE})
  target_compile_definitions(${library} INTERFACE ZOGLES_STATIC)
endforeach()

cmake_minimum_required(VERSION 3.21)

# Compares the symbols that LIBRARY exports, by NM, with LIST, Debian's file of symbols. Exports are
# permanent, so think before you change the list.
execute_process(COMMAND "${NM}" -D -C --defined-only "${LIBRARY}"
  OUTPUT_VARIABLE lines RESULT_VARIABLE result)
if(result)
  message(FATAL_ERROR "${NM} fails on ${LIBRARY}")
endif()
string(REPLACE "\n" ";" lines "${lines}")
list(TRANSFORM lines REPLACE "^[0-9a-f]* *[A-Za-z] " "")
list(FILTER lines EXCLUDE REGEX "^$")
list(REMOVE_DUPLICATES lines) # variants of a constructor have the same name
file(STRINGS "${LIST}" listed REGEX "@Base")
list(TRANSFORM listed REPLACE "^ (\\(c[+][+]\\)\")?(.*)@Base.*" "\\2")
set(missing ${listed})
list(REMOVE_ITEM missing ${lines})
set(unlisted ${lines})
list(REMOVE_ITEM unlisted ${listed})
if(missing OR unlisted)
  list(JOIN missing "\n  " missing)
  list(JOIN unlisted "\n  " unlisted)
  message(FATAL_ERROR "no longer exported:\n  ${missing}\nexported, but not listed:\n  ${unlisted}")
endif()

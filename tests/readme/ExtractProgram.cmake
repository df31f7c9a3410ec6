# Writes the first ```cpp block of the file README to the file PROGRAM, with a line directive so that
# compiler messages name the line in README.
file(READ "${README}" text)

set(opening "\n```cpp\n")
string(FIND "${text}" "${opening}" start)
if(start EQUAL -1)
  message(FATAL_ERROR "${README} has no cpp block")
endif()
string(LENGTH "${opening}" length)
math(EXPR start "${start} + ${length}")
string(SUBSTRING "${text}" 0 ${start} before)
string(SUBSTRING "${text}" ${start} -1 block)

string(FIND "${block}" "\n```" end)
if(end EQUAL -1)
  message(FATAL_ERROR "the first cpp block of ${README} does not end")
endif()
string(SUBSTRING "${block}" 0 ${end} block)

string(REGEX REPLACE "[^\n]" "" newlines "${before}")
string(LENGTH "${newlines}" line)
math(EXPR line "${line} + 1")
file(WRITE "${PROGRAM}" "#line ${line} \"${README}\"\n${block}\n")

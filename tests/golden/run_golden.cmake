# Runs every golden case under CASES and compares what varnelt-cli prints with the case's files:
#   args                 the arguments of varnelt-cli, one a line; blank lines and lines starting
#                        with '#' are skipped; @CASE@ stands for the case's own folder
#   output               (optional) the name of a file the run writes, relative to the folder it
#                        runs in; its text is then compared with expected.txt instead of stdout
#   expected.txt         the expected standard output, or the text of the output file
#   expected-stderr.txt  the expected standard error (absent: none)
#   status               the expected exit status (absent: 0)
#   mask                 (optional) line prefixes, one a line (e.g. "Date:"): the rest of an output
#                        line that starts with one reads "*", for texts that change from run to run
# With -DUPDATE=1 or the environment variable VARNELT_GOLDEN_UPDATE=1 the files are rewritten from
# the program's output instead.
#
#   cmake -DCLI=varnelt-cli -DCASES=tests/golden -DWORK=scratch [-DUPDATE=1] -P run_golden.cmake
cmake_minimum_required(VERSION 3.25)

foreach(var CLI CASES WORK)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "run_golden.cmake needs -D${var}=...")
  endif()
endforeach()

set(update OFF)
if(UPDATE OR "$ENV{VARNELT_GOLDEN_UPDATE}" STREQUAL "1")
  set(update ON)
endif()

# The same texts whatever the locale of the machine: the cases choose the decimal sign themselves.
set(ENV{LC_ALL} C)
set(ENV{LANG} C)

find_program(DIFF diff)

file(GLOB entries LIST_DIRECTORIES true RELATIVE "${CASES}" "${CASES}/*")
list(SORT entries)

set(ran 0)
set(failed "")
set(changed "")
foreach(case IN LISTS entries)
  set(dir "${CASES}/${case}")
  if(NOT IS_DIRECTORY "${dir}" OR NOT EXISTS "${dir}/args")
    continue()
  endif()
  math(EXPR ran "${ran} + 1")

  file(STRINGS "${dir}/args" lines)
  set(args "")
  foreach(line IN LISTS lines)
    string(STRIP "${line}" line)
    if(line STREQUAL "" OR line MATCHES "^#")
      continue()
    endif()
    string(REPLACE "@CASE@" "${dir}" line "${line}")
    list(APPEND args "${line}")
  endforeach()

  # Output goes to files and is compared byte for byte (line ends included).
  set(scratch "${WORK}/${case}")
  file(REMOVE_RECURSE "${scratch}")
  file(MAKE_DIRECTORY "${scratch}")
  execute_process(COMMAND "${CLI}" ${args}
    WORKING_DIRECTORY "${scratch}"
    RESULT_VARIABLE status
    OUTPUT_FILE "${scratch}/.stdout" ERROR_FILE "${scratch}/.stderr")
  set(actualOut "${scratch}/.stdout")
  if(EXISTS "${dir}/output")
    file(STRINGS "${dir}/output" outputName LIMIT_COUNT 1)
    string(STRIP "${outputName}" outputName)
    set(actualOut "${scratch}/${outputName}")
    if(NOT EXISTS "${actualOut}")
      file(WRITE "${actualOut}" "(the run wrote no file ${outputName})\n")
    endif()
  endif()
  if(EXISTS "${dir}/mask")
    file(STRINGS "${dir}/mask" prefixes)
    file(READ "${actualOut}" text)
    foreach(prefix IN LISTS prefixes)
      string(REGEX REPLACE "(^|\n)${prefix}[^\n]*" "\\1${prefix}*" text "${text}")
    endforeach()
    file(WRITE "${actualOut}" "${text}")
  endif()
  set(actualErr "${scratch}/.stderr")
  set(empty "${scratch}/.empty")
  file(WRITE "${empty}" "")

  set(expectedStatus 0)
  if(EXISTS "${dir}/status")
    file(STRINGS "${dir}/status" expectedStatus LIMIT_COUNT 1)
    string(STRIP "${expectedStatus}" expectedStatus)
  endif()

  if(update)
    foreach(pair "${actualOut}|expected.txt" "${actualErr}|expected-stderr.txt")
      string(REPLACE "|" ";" pair "${pair}")
      list(GET pair 0 actual)
      list(GET pair 1 name)
      file(SIZE "${actual}" size)
      if(name STREQUAL "expected-stderr.txt" AND size EQUAL 0)
        if(EXISTS "${dir}/${name}")
          file(REMOVE "${dir}/${name}")
          list(APPEND changed "${case}/${name} (removed)")
        endif()
        continue()
      endif()
      set(same 1)
      if(EXISTS "${dir}/${name}")
        execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${dir}/${name}" "${actual}"
          RESULT_VARIABLE same)
      endif()
      if(NOT same EQUAL 0)
        file(COPY_FILE "${actual}" "${dir}/${name}")
        list(APPEND changed "${case}/${name}")
      endif()
    endforeach()
    if(status STREQUAL "0")
      if(EXISTS "${dir}/status")
        file(REMOVE "${dir}/status")
        list(APPEND changed "${case}/status (removed)")
      endif()
    elseif(NOT expectedStatus STREQUAL status)
      file(WRITE "${dir}/status" "${status}\n")
      list(APPEND changed "${case}/status")
    endif()
    continue()
  endif()

  set(bad "")
  if(NOT status STREQUAL expectedStatus)
    string(APPEND bad "  exit status ${status}, expected ${expectedStatus}\n")
  endif()
  foreach(pair "${actualOut}|expected.txt" "${actualErr}|expected-stderr.txt")
    string(REPLACE "|" ";" pair "${pair}")
    list(GET pair 0 actual)
    list(GET pair 1 name)
    set(expected "${dir}/${name}")
    if(NOT EXISTS "${expected}")
      set(expected "${empty}")
    endif()
    execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${expected}" "${actual}"
      RESULT_VARIABLE same)
    if(NOT same EQUAL 0)
      if(DIFF)
        execute_process(COMMAND "${DIFF}" -u "${expected}" "${actual}" OUTPUT_VARIABLE difference)
      else()
        set(difference "  (compare ${expected} with ${actual})\n")
      endif()
      string(APPEND bad "  ${name} differs from the output:\n${difference}")
    endif()
  endforeach()

  if(bad STREQUAL "")
    message(STATUS "golden ${case}: same")
  else()
    message("golden ${case}: DIFFERS\n${bad}")
    list(APPEND failed "${case}")
  endif()
endforeach()

if(ran EQUAL 0)
  message(FATAL_ERROR "no golden case found under ${CASES}")
endif()
if(update)
  if(changed STREQUAL "")
    message(STATUS "golden cases: ${ran} cases, nothing changed")
  else()
    list(JOIN changed "\n  " list)
    message(STATUS "golden cases rewritten; review the diff (git diff tests/golden):\n  ${list}")
  endif()
elseif(NOT failed STREQUAL "")
  list(JOIN failed ", " list)
  message(FATAL_ERROR "golden cases that differ: ${list}\n"
    "If the new text is right, rewrite the expected files with "
    "`cmake --build <build> --target golden-update` (or VARNELT_GOLDEN_UPDATE=1 ctest -R golden) "
    "and review the diff.")
else()
  message(STATUS "golden cases: all ${ran} the same")
endif()

# cmake -D PROGRAM=… -D SCRIPT=… -D RESULTS=… -D EACH_ALONE=… -D NO_LEAK_CHECK=… -D TIMEOUT=… -P AddSuites.cmake: asks a GoogleTest
# program for its tests and writes the CTest script that registers them: one CTest test a suite, or one a test where a test needs a
# process of its own. Each leaves an XML file in RESULTS; its label "tests=N" says how many tests that file must hold, the label
# "program=NAME" whose they are.

execute_process(
  COMMAND ${PROGRAM} --gtest_list_tests
  OUTPUT_VARIABLE listed
  RESULT_VARIABLE status
  TIMEOUT 60)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${PROGRAM} does not list its tests: ${status}\n${listed}")
endif()

get_filename_component(program_name ${PROGRAM} NAME)
set(script "")
set(environment "")
if(NO_LEAK_CHECK)
  set(environment "ENVIRONMENT ASAN_OPTIONS=detect_leaks=0")
endif()

function(register name filter count)
  string(MAKE_C_IDENTIFIER "${program_name}_${name}" file)
  string(APPEND script
         "add_test([==[${name}]==] [==[${PROGRAM}]==] [==[--gtest_filter=${filter}]==] [==[--gtest_output=xml:${RESULTS}/${file}.xml]==])\n"
         "set_tests_properties([==[${name}]==] PROPERTIES TIMEOUT ${TIMEOUT} LABELS [==[tests=${count};program=${program_name}]==] ${environment})\n")
  set(script "${script}" PARENT_SCOPE)
endfunction()

# Lines without an indent name a suite, the indented ones below it its tests; what follows "#" is the value of a parameter.
string(REPLACE ";" "," listed "${listed}")
string(REPLACE "\n" ";" lines "${listed}")
set(suite "")
set(count 0)
foreach(line IN LISTS lines)
  string(REGEX REPLACE " *#.*$" "" line "${line}")
  if(line MATCHES "^([^ ].*)\\.$")
    set(next "${CMAKE_MATCH_1}")
    if(count GREATER 0 AND NOT EACH_ALONE)
      register("${suite}" "${suite}.*" ${count})
    endif()
    set(suite "${next}")
    set(count 0)
  elseif(line MATCHES "^  ([^ ]+)$" AND suite)
    set(test "${CMAKE_MATCH_1}")
    math(EXPR count "${count} + 1")
    if(EACH_ALONE)
      register("${suite}.${test}" "${suite}.${test}" 1)
    endif()
  endif()
endforeach()
if(count GREATER 0 AND NOT EACH_ALONE)
  register("${suite}" "${suite}.*" ${count})
endif()
if(script STREQUAL "")
  message(FATAL_ERROR "${PROGRAM} has no tests")
endif()
file(WRITE ${SCRIPT} "${script}")

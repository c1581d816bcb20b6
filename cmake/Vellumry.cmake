# What every target of the project has in common.

set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(VELLUMRY_CCACHE ccache)
if(VELLUMRY_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${VELLUMRY_CCACHE})
endif()

function(vellumry_target_defaults target)
  target_compile_features(${target} PUBLIC cxx_std_23)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
                                           -Wno-error=deprecated-declarations)
  target_compile_definitions(${target} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
                                              QT_NO_FOREACH)
  set_target_properties(${target} PROPERTIES AUTOMOC ON CXX_EXTENSIONS OFF)
endfunction()

function(vellumry_apply_sanitizers)
  if(VELLUMRY_SANITIZE)
    add_compile_options(-fsanitize=${VELLUMRY_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${VELLUMRY_SANITIZE})
    if(VELLUMRY_SANITIZE STREQUAL "thread")
      # Qt's headers have fences, which the checker does not follow and says so at each; what it adds to the code makes
      # the compiler see empty optionals as uninitialised.
      add_compile_options(-Wno-tsan -Wno-maybe-uninitialized -Wno-error=maybe-uninitialized)
    endif()
  endif()
endfunction()

# vellumry_library(NAME SOURCES file… LINKS library…): one static library for one folder of src/.
function(vellumry_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  vellumry_target_defaults(${name})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
endfunction()

# vellumry_test(NAME SOURCES file… LINKS library…): one GoogleTest program; each of its tests is a CTest test of its own.
function(vellumry_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PROPERTIES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  vellumry_target_defaults(${name})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} vellumry_test_support GTest::gtest GTest::gmock)
  include(GoogleTest)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120 ${ARG_PROPERTIES})
endfunction()

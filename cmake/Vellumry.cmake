# What every target of the project has in common.

set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(VELLUMRY_CCACHE ccache)
if(VELLUMRY_CCACHE)
  # Paths relative to the checkout, so that a second checkout finds what the first compiled; precompiled headers are
  # cached only with these two checks relaxed.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros
      ${VELLUMRY_CCACHE})
endif()

option(VELLUMRY_PRECOMPILED "Precompile the headers that most sources include" ON)
# What a source costs beside its own code (headers, the same templates again) is paid once for six of them: two thirds of the
# time for the whole, for which a change compiles five sources more.
option(VELLUMRY_UNITED "Compile several sources at a time" OFF)
set(VELLUMRY_UNITED_SOURCES 6)

function(vellumry_target_defaults target)
  target_compile_features(${target} PUBLIC cxx_std_23)
  target_compile_options(${target} PRIVATE -pthread -Wall -Wextra -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
                                           -Wno-error=deprecated-declarations)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 19)
    # Older ones understate their concepts, and libstdc++ then hides std::expected from them.
    target_compile_options(${target} PRIVATE -Wno-builtin-macro-redefined -Wno-macro-redefined -D__cpp_concepts=202002L)
  elseif(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 15)
    # They see empty optionals as uninitialised, which QCoro moves into its promises.
    target_compile_options(${target} PRIVATE -Wno-maybe-uninitialized)
  endif()
  target_compile_definitions(${target} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
                                              QT_NO_FOREACH)
  set_target_properties(${target} PROPERTIES AUTOMOC ON CXX_EXTENSIONS OFF)
  if(VELLUMRY_UNITED)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${VELLUMRY_UNITED_SOURCES})
    # A source that is included counts as a header, in which such a field would be wrong.
    target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
  endif()
endfunction()

# The headers that most sources include, parsed once: 1.1 s for a source that takes 2.8 s without.
set(VELLUMRY_COMMON_HEADERS
    <algorithm> <array> <chrono> <functional> <map> <memory> <mutex> <optional> <ranges> <span> <string> <thread>
    <utility> <variant> <vector>
    <QByteArray> <QCoroTask> <QDateTime> <QDir> <QFile> <QHash> <QLocale> <QObject> <QPointer> <QSet> <QString>
    <QStringList> <QTimer> <QUuid> <QVariant>)

# vellumry_precompiled_headers(NAME HEADERS header… LINKS library… [FOR_PROGRAMS]): a set of precompiled headers that libraries share,
# or programs.
function(vellumry_precompiled_headers name)
  cmake_parse_arguments(ARG "FOR_PROGRAMS" "" "HEADERS;LINKS" ${ARGN})
  if(VELLUMRY_PRECOMPILED)
    add_library(${name} OBJECT ${PROJECT_SOURCE_DIR}/cmake/Precompiled.cpp)
    vellumry_target_defaults(${name})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    target_link_libraries(${name} PRIVATE ${ARG_LINKS})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
    if(ARG_FOR_PROGRAMS)
      # GCC 13 and newer take no headers in a program that were compiled for libraries. The last of the two options counts.
      target_compile_options(${name} PRIVATE ${CMAKE_CXX_COMPILE_OPTIONS_PIE})
    endif()
  endif()
endfunction()

function(vellumry_use_precompiled target headers)
  if(VELLUMRY_PRECOMPILED)
    target_precompile_headers(${target} REUSE_FROM ${headers})
  endif()
endfunction()

function(vellumry_apply_sanitizers)
  if(VELLUMRY_FUZZ)
    # The engine learns from the branches of the parsers, not of the targets alone. For all sources, as they share their
    # precompiled headers.
    add_compile_options(-fsanitize=fuzzer-no-link)
  endif()
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
  vellumry_use_precompiled(${name} vellumry_precompiled)
endfunction()

# vellumry_test(NAME SOURCES file… LINKS library… [EACH_ALONE] [NO_LEAK_CHECK]): one GoogleTest program. Each of its suites is a
# CTest test; with EACH_ALONE each of its tests is, in a process of its own. scripts/unit-tests runs them and counts every single
# one. NO_LEAK_CHECK is for programs whose foreign libraries (fonts, drawing, the desktop) keep memory to the end on purpose, and for
# sealed processes, which the checker cannot stop to look into.
function(vellumry_test name)
  cmake_parse_arguments(ARG "EACH_ALONE;NO_LEAK_CHECK" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  vellumry_target_defaults(${name})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} vellumry_test_support GTest::gtest GTest::gmock)
  vellumry_use_precompiled(${name} vellumry_precompiled_tests)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${name}_suites.cmake)
  add_custom_command(
    TARGET ${name}
    POST_BUILD
    COMMAND
      ${CMAKE_COMMAND} -D PROGRAM=$<TARGET_FILE:${name}> -D SCRIPT=${script} -D RESULTS=${PROJECT_BINARY_DIR}/test-results
      -D EACH_ALONE=${ARG_EACH_ALONE} -D NO_LEAK_CHECK=${ARG_NO_LEAK_CHECK} -D TIMEOUT=600 -P ${PROJECT_SOURCE_DIR}/cmake/AddSuites.cmake
    BYPRODUCTS ${script}
    VERBATIM)
  add_dependencies(unit_tests ${name})
  # What was not built fails by its name, as what was built and crashes does.
  file(
    WRITE ${CMAKE_CURRENT_BINARY_DIR}/${name}_include.cmake
    "if(EXISTS \"${script}\")\n  include(\"${script}\")\nelse()\n  add_test(${name}_NOT_BUILT ${name}_NOT_BUILT)\nendif()\n")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}_include.cmake)
endfunction()

# vellumry_qml_module(TARGET URI SINGLETONS file… FILES file…): the views of a library as the QML module URI, whose C++
# types must be named by somebody (see src/views/QmlModules.h), or a linker leaves their registration out.
function(vellumry_qml_module target uri)
  cmake_parse_arguments(ARG "" "" "SINGLETONS;FILES" ${ARGN})
  set_source_files_properties(${ARG_SINGLETONS} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
  string(REPLACE "." "/" folder ${uri})
  qt_add_qml_module(
    ${target}
    URI ${uri}
    VERSION 1.0
    RESOURCE_PREFIX /vellumry
    OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/qml/${folder}
    IMPORT_PATH ${PROJECT_BINARY_DIR}/qml
    DEPENDENCIES QtQml.Models QtQuick
    NO_PLUGIN
    QML_FILES ${ARG_SINGLETONS} ${ARG_FILES})
  # Each file of compiled QML is small and includes the same large headers: 1.7 s alone, sixteen together not much more.
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources INCLUDE REGEX "_qml\\.cpp$")
  set_source_files_properties(${sources} PROPERTIES UNITY_GROUP qml)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  if(VELLUMRY_UNITED)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "^[A-Za-z]+\\.cpp$")
    set(count 0)
    foreach(source IN LISTS sources)
      math(EXPR group "${count} / ${VELLUMRY_UNITED_SOURCES}")
      math(EXPR count "${count} + 1")
      set_source_files_properties(${source} PROPERTIES UNITY_GROUP sources${group})
    endforeach()
  endif()
  # The registration of the types includes their headers by name alone.
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  # The code that Qt generates from QML shadows its own parameters.
  target_compile_options(${target} PRIVATE -Wno-shadow)
endfunction()

# Tests are Qt Test classes, one executable per class and one CTest test per
# test function: the library keeps values for the life of the process, so every
# function gets a process of its own.

# Parsing the toolkit's headers and optimising code that runs once is most of what compiling a test
# takes.
set(MOX_TEST_OPTIONS ${MOX_PRECOMPILED_OPTIONS} -O0 -g1)
file(WRITE "${PROJECT_BINARY_DIR}/mox_test_headers.cpp" "// Only its headers are of use.\n")
add_library(mox_test_headers OBJECT "${PROJECT_BINARY_DIR}/mox_test_headers.cpp")
set_target_properties(mox_test_headers PROPERTIES AUTOMOC OFF)
target_link_libraries(mox_test_headers PRIVATE mox_compiler_settings mox::common_theme Qt5::Test)
target_compile_options(mox_test_headers PRIVATE ${MOX_TEST_OPTIONS})
target_precompile_headers(mox_test_headers PRIVATE <QtTest/QtTest> <QtWidgets/QApplication>
                          <QtWidgets/QStyleOption>)

set(MOX_DISCOVER_TESTS_SCRIPT "${CMAKE_CURRENT_LIST_DIR}/MoxDiscoverQtTests.cmake")

# mox_add_test(<name> <source>... [LIBRARIES <target>...] [ENVIRONMENT <NAME=value>...])
function(mox_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBRARIES;ENVIRONMENT")
  add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests")
  target_compile_options(${name} PRIVATE ${MOX_TEST_OPTIONS})
  target_precompile_headers(${name} REUSE_FROM mox_test_headers)
  # What is generated for the test's other headers is next to nothing.
  set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp"
                              PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${name} PRIVATE mox_compiler_settings mox::common_theme Qt5::Test
                                        ${arg_LIBRARIES})

  set(environment QT_QPA_PLATFORM=offscreen ${arg_ENVIRONMENT})
  if(MOX_SANITIZE)
    list(APPEND environment
         "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0"
         UBSAN_OPTIONS=print_stacktrace=1)
  endif()

  set(listing "${CMAKE_CURRENT_BINARY_DIR}/${name}_tests.cmake")
  add_custom_command(
    TARGET ${name}
    POST_BUILD
    BYPRODUCTS "${listing}"
    COMMAND
      "${CMAKE_COMMAND}" "-DNAME=${name}" "-DEXECUTABLE=$<TARGET_FILE:${name}>"
      "-DLISTING=${listing}"
      "-DENVIRONMENT=${environment}" -P "${MOX_DISCOVER_TESTS_SCRIPT}"
    VERBATIM)
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${listing}")
endfunction()

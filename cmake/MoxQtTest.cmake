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

# How the warnings begin that no test has to expect, each with its reason; no two with the same
# letter.
set(MOX_KNOWN_WARNINGS
    # The offscreen platform has no window manager that could raise windows, limit their sizes or
    # give them the keyboard.
    "This plugin does not support")

# Sets <variable> to the expression of what the test library prints of any other warning or error.
# One that a test expects (QTest::ignoreMessage) it does not print.
function(mox_unexpected_warning variable)
  set(first "")
  set(others "")
  foreach(known IN LISTS MOX_KNOWN_WARNINGS)
    set(begin "")
    string(REGEX MATCHALL "." letters "${known}")
    foreach(letter IN LISTS letters)
      if(begin STREQUAL "")
        string(APPEND first "${letter}")
      else()
        string(APPEND others "|${begin}[^${letter}]")
      endif()
      string(APPEND begin "${letter}")
    endforeach()
  endforeach()
  set(${variable}
      "(QWARN  |QCRITICAL|QSYSTEM): [A-Za-z0-9_]+::[A-Za-z0-9_]+[(][^)]*[)] ([^${first}]${others})"
      PARENT_SCOPE)
endfunction()

# Where the toolkit keeps what ends with a session: without, it warns.
set(MOX_TEST_RUNTIME_DIR "${PROJECT_BINARY_DIR}/runtime")
file(MAKE_DIRECTORY "${MOX_TEST_RUNTIME_DIR}")
file(CHMOD "${MOX_TEST_RUNTIME_DIR}" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# Has CTest run each function of the test <target> as a test <name>.<function> in <environment>.
function(mox_list_test_functions target name environment will_fail)
  mox_unexpected_warning(unexpected_warning)
  string(CONCAT properties "ENVIRONMENT [==[${environment}]==] "
                "FAIL_REGULAR_EXPRESSION [==[${unexpected_warning}]==] "
                "WILL_FAIL [==[${will_fail}]==]")
  set(listing "${CMAKE_CURRENT_BINARY_DIR}/${name}_tests.cmake")
  add_custom_command(
    TARGET ${target}
    POST_BUILD
    BYPRODUCTS "${listing}"
    COMMAND
      "${CMAKE_COMMAND}" "-DNAME=${name}" "-DEXECUTABLE=$<TARGET_FILE:${target}>"
      "-DLISTING=${listing}"
      "-DPROPERTIES=${properties}" -P "${MOX_DISCOVER_TESTS_SCRIPT}"
    VERBATIM)
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${listing}")
endfunction()

# mox_add_test(<name> <source>... [WILL_FAIL] [BOTH_MODES] [LIBRARIES <target>...]
#              [ENVIRONMENT <NAME=value>...])
#
# BOTH_MODES: what the test says holds by default and in the complete mode; CTest runs it in both.
function(mox_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "WILL_FAIL;BOTH_MODES" "" "LIBRARIES;ENVIRONMENT")
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

  set(environment QT_QPA_PLATFORM=offscreen "XDG_RUNTIME_DIR=${MOX_TEST_RUNTIME_DIR}"
                  ${arg_ENVIRONMENT})
  if(MOX_SANITIZE)
    list(APPEND environment
         "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0"
         UBSAN_OPTIONS=print_stacktrace=1)
  endif()

  mox_list_test_functions(${name} ${name} "${environment}" "${arg_WILL_FAIL}")
  if(arg_BOTH_MODES)
    mox_list_test_functions(${name} ${name}InCompleteMode
                            "${environment};MOX_TESTED_MODE=complete" "${arg_WILL_FAIL}")
  endif()
endfunction()

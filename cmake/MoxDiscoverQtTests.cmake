# Run after a test executable was built: writes a CTest file with one test per
# test function of EXECUTABLE, each with PROPERTIES, into LISTING.

execute_process(
  COMMAND "${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0
          "${EXECUTABLE}" -functions
  OUTPUT_VARIABLE functions
  ERROR_VARIABLE errors
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${EXECUTABLE} does not list its test functions: ${errors}")
endif()

string(REGEX MATCHALL "[A-Za-z0-9_]+\\(\\)" functions "${functions}")
set(content "")
foreach(function IN LISTS functions)
  string(REPLACE "()" "" function "${function}")
  string(APPEND content "add_test([==[${NAME}.${function}]==] [==[${EXECUTABLE}]==] ${function})\n"
         "set_tests_properties([==[${NAME}.${function}]==] PROPERTIES ${PROPERTIES})\n")
endforeach()
file(WRITE "${LISTING}" "${content}")

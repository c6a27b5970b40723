# Lets TOOL write its completions for SHELL to SCRIPT.

execute_process(
  COMMAND "${CMAKE_COMMAND}" -E env ASAN_OPTIONS=detect_leaks=0 "${TOOL}" completion "${SHELL}"
  OUTPUT_FILE "${SCRIPT}.part"
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${TOOL} completion ${SHELL} ended with ${result}")
endif()
file(RENAME "${SCRIPT}.part" "${SCRIPT}")

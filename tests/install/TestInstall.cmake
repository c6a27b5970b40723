# Installs BUILD_DIR to a prefix, moves the prefix away, and builds and runs the
# application in APPLICATION_DIR against it.

set(prefix "${WORK_DIR}/moved prefix")

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output
                  ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV} ended with ${result}:\n${output}")
  endif()
endfunction()

# Runs a program of the installed tree with the installed themes.
function(run_themed program)
  run("${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0 "LD_LIBRARY_PATH=${prefix}/${LIBDIR}"
      "${program}" --theme-repository "${prefix}/share/mox_common_theme/Themes" ${ARGN})
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/prefix")
file(RENAME "${WORK_DIR}/prefix" "${prefix}")

# By the CMake package.
run("${CMAKE_COMMAND}" -G "${GENERATOR}" -S "${APPLICATION_DIR}" -B "${WORK_DIR}/cmake" "-DCMAKE_PREFIX_PATH=${prefix}"
    "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/cmake")
run_themed("${WORK_DIR}/cmake/themed_application" --theme Dark)

# By pkg-config.
file(MAKE_DIRECTORY "${WORK_DIR}/pkg-config")
file(
  WRITE "${WORK_DIR}/pkg-config/build"
  "set -e\nexport PKG_CONFIG_PATH='${prefix}/${LIBDIR}/pkgconfig'\n"
  "eval '${CXX_COMPILER}' ${CXX_FLAGS} -std=c++17 -fPIC \"'${APPLICATION_DIR}/main.cpp'\" "
  "-o \"'${WORK_DIR}/pkg-config/themed_application'\" "
  "$(pkg-config --cflags --libs mox_common_theme)\n")
run(bash "${WORK_DIR}/pkg-config/build")
run_themed("${WORK_DIR}/pkg-config/themed_application" --theme Light)

# Without a theme the application says no, so the runs above did prove something.
execute_process(
  COMMAND "${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen
          "LD_LIBRARY_PATH=${prefix}/${LIBDIR}" "${WORK_DIR}/cmake/themed_application"
  RESULT_VARIABLE result)
if(result EQUAL 0)
  message(FATAL_ERROR "The application claims to be themed without a theme")
endif()

# The installed gallery finds the installed themes by itself.
run("${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0 "${prefix}/bin/mox-theme-gallery" --screenshot
    "${WORK_DIR}/pictures")
file(GLOB pictures "${WORK_DIR}/pictures/*.png")
if(NOT pictures)
  message(FATAL_ERROR "The installed gallery saved no pictures")
endif()

# The installed tool runs, and what explains and completes it lies where it is looked for.
run("${CMAKE_COMMAND}" -E env ASAN_OPTIONS=detect_leaks=0 "${prefix}/bin/mox-theme" --version)
foreach(file IN ITEMS man/man1/mox-theme.1 bash-completion/completions/mox-theme
                      zsh/site-functions/_mox-theme fish/vendor_completions.d/mox-theme.fish)
  file(SIZE "${prefix}/share/${file}" size)
  if(size LESS 1000)
    message(FATAL_ERROR "share/${file} is installed with no more than ${size} bytes")
  endif()
endforeach()

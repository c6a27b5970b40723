# What every target of the project is built with.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

# Programs and libraries lie in the build tree as they will lie under the
# prefix, so that whatever is found relative to a program is found in both.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

find_program(MOX_CCACHE ccache)
if(MOX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Without these it keeps nothing that uses precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
                                  CCACHE_SLOPPINESS=pch_defines,time_macros "${MOX_CCACHE}")
endif()

option(MOX_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" ${PROJECT_IS_TOP_LEVEL})
# What a target that precompiles headers is compiled with, so that ccache can keep its objects.
set(MOX_PRECOMPILED_OPTIONS "$<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>")

option(MOX_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

add_library(mox_compiler_settings INTERFACE)
target_compile_options(
  mox_compiler_settings INTERFACE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual
                                  -Wshadow $<$<BOOL:${MOX_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(
  mox_compiler_settings INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
                                  QT_NO_KEYWORDS)

if(MOX_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

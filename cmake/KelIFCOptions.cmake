# Switches of the build, and the compile settings that every target of the project shares.
option(KELIFC_BUILD_COMMAND "Build the kelifc command" ${PROJECT_IS_TOP_LEVEL})
option(KELIFC_BUILD_TESTS "Build the tests" ${PROJECT_IS_TOP_LEVEL})
option(KELIFC_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(KELIFC_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" ON)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

add_library(kelifc_settings INTERFACE)
target_compile_definitions(kelifc_settings INTERFACE KELIFC_BUILDING)
target_include_directories(kelifc_settings INTERFACE
  "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}/generated")
target_compile_options(kelifc_settings INTERFACE -Wall -Wextra -Wpedantic
  $<$<BOOL:${KELIFC_WARNINGS_AS_ERRORS}>:-Werror>)

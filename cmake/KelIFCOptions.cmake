# The options of the build, and the compile settings that the targets of the project share. As a
# part of another project, KelIFC is only the library, unless that project asks for more.
include(CMakeDependentOption)

if(PROJECT_IS_TOP_LEVEL)
  option(BUILD_TESTING "Build the tests" ON)
elseif(NOT DEFINED BUILD_TESTING)
  set(BUILD_TESTING ON)  # if an outer project does not set this, KelIFC's own option decides
endif()

option(KELIFC_BUILD_SHARED "Build the library as a shared one; OFF builds a static one" ON)
option(KELIFC_BUILD_COMMAND "Build the kelifc command; needs CLI11 and nlohmann-json"
  ${PROJECT_IS_TOP_LEVEL})
cmake_dependent_option(KELIFC_BUILD_TESTS "Build the tests; needs GoogleTest"
  ${PROJECT_IS_TOP_LEVEL} BUILD_TESTING OFF)
option(KELIFC_BUILD_PYTHON "Build the Python module; needs pybind11 and the command" OFF)
option(KELIFC_BUILD_BENCHMARKS "Build the benchmarks; needs Google Benchmark and Python" OFF)
option(KELIFC_BUILD_FUZZERS "Build the fuzz targets, with clang++ and -fsanitize=fuzzer-no-link" OFF)
option(KELIFC_BUILD_DOCS "Build the documentation site; needs Doxygen, MkDocs and npm" OFF)
option(KELIFC_BUILD_PAGE "Build the viewer page into the command; needs Node.js, npm and its registry" OFF)
option(KELIFC_INSTALL "Make the install rules" ${PROJECT_IS_TOP_LEVEL})
option(KELIFC_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" ${PROJECT_IS_TOP_LEVEL})

# Only the command expands packed models. It needs zlib and libzip for that; without them it rejects
# packed models. Another project has to ask for the component, so that KelIFC searches for no package
# that the project does not need.
set(archive_default OFF)
if(KELIFC_BUILD_COMMAND AND NOT CMAKE_CROSSCOMPILING AND (PROJECT_IS_TOP_LEVEL OR KELIFC_BUILD_ARCHIVE))
  find_package(PkgConfig)
  if(PKG_CONFIG_FOUND)
    pkg_check_modules(KELIFC_ZLIB IMPORTED_TARGET zlib)
    pkg_check_modules(KELIFC_LIBZIP IMPORTED_TARGET libzip)
    if(KELIFC_ZLIB_FOUND AND KELIFC_LIBZIP_FOUND)
      set(archive_default ON)
    endif()
  endif()
endif()
option(KELIFC_BUILD_ARCHIVE "Build the component that expands .ifczip and .ifc.gz" ${archive_default})
if(KELIFC_BUILD_ARCHIVE AND NOT KELIFC_BUILD_COMMAND)
  message(WARNING "KELIFC_BUILD_ARCHIVE is ignored: only the command expands packed models, and "
    "KELIFC_BUILD_COMMAND is OFF")
  set(KELIFC_BUILD_ARCHIVE OFF)
elseif(KELIFC_BUILD_ARCHIVE AND NOT (TARGET PkgConfig::KELIFC_ZLIB AND TARGET PkgConfig::KELIFC_LIBZIP))
  message(FATAL_ERROR "KELIFC_BUILD_ARCHIVE needs zlib and libzip, which pkg-config does not find")
endif()

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# The sources of a folder share most of their headers, so several of them are compiled as one. In a
# folder, names in anonymous namespaces must therefore differ. The tests share a precompiled header.
option(KELIFC_QUICK_BUILD "Compile sources together; OFF for tools that look at each source" ON)
mark_as_advanced(KELIFC_QUICK_BUILD)
set(CMAKE_UNITY_BUILD ${KELIFC_QUICK_BUILD})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 8)

# A compiler cache speeds up repeated builds and is optional. An outer project makes its own choice.
if(PROJECT_IS_TOP_LEVEL)
  find_program(KELIFC_CCACHE ccache)
  mark_as_advanced(KELIFC_CCACHE)
  if(KELIFC_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${KELIFC_CCACHE}")
  endif()
endif()

# The compile settings of every program and library. g++ 12 warns of an overlap in the concatenation
# of strings that does not exist.
add_library(kelifc_warnings INTERFACE)
target_compile_options(kelifc_warnings INTERFACE -Wall -Wextra -Wpedantic
  $<$<BOOL:${KELIFC_WARNINGS_AS_ERRORS}>:-Werror>
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)

# For code that runs briefly: the generators and the tests. It is compiled in half the time.
add_library(kelifc_unoptimised INTERFACE)
target_compile_options(kelifc_unoptimised INTERFACE -O0)

# Additional settings for the sources of the library, its generators and its tests: include paths
# start at the root of the tree, and KELIFC_API exports.
add_library(kelifc_settings INTERFACE)
target_link_libraries(kelifc_settings INTERFACE kelifc_warnings)
target_compile_definitions(kelifc_settings INTERFACE KELIFC_BUILDING)
target_include_directories(kelifc_settings INTERFACE
  "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}/generated")

# Configures KelIFC with each of its options, alone and as a part of another project, and looks at
# which targets there are. Nothing is compiled.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

# configure(NAME TREE ARGUMENTS...): makes the build folder NAME; one that is there is configured anew.
# The warnings of CMake go to the variable `warnings`.
function(configure name tree)
  run(output "${CMAKE_COMMAND}" -S "${tree}" -B "${WORK_DIR}/${name}" -G Ninja
    "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}" ${ARGN})
  set(warnings "${output_errors}" PARENT_SCOPE)
endfunction()

# expect_targets(NAME HAS TARGETS...): whether the build folder NAME must have each of the targets.
function(expect_targets name has)
  run(targets "${CMAKE_COMMAND}" --build "${WORK_DIR}/${name}" --target help)
  foreach(target IN LISTS ARGN)
    if(targets MATCHES "(^|\n)${target}: " AND NOT has)
      message(FATAL_ERROR "${name} builds ${target}")
    elseif(has AND NOT targets MATCHES "(^|\n)${target}: ")
      message(FATAL_ERROR "${name} does not build ${target}")
    endif()
  endforeach()
endfunction()

# expect_tests(NAME HAS): whether ctest must find tests in the build folder NAME.
function(expect_tests name has)
  run(tests "${CTEST}" --test-dir "${WORK_DIR}/${name}" --show-only)
  if(tests MATCHES "Total Tests: 0" AND has)
    message(FATAL_ERROR "${name} has no tests")
  elseif(NOT has AND NOT tests MATCHES "Total Tests: 0")
    message(FATAL_ERROR "${name} has tests:\n${tests}")
  endif()
endfunction()

# expect_expansion(NAME HAS): whether the build folder NAME must compile the expansion of packed models.
function(expect_expansion name has)
  file(READ "${WORK_DIR}/${name}/build.ninja" rules)
  if(rules MATCHES "zip_model\\.cpp" AND NOT has)
    message(FATAL_ERROR "${name} builds the expansion of packed models")
  elseif(has AND NOT rules MATCHES "zip_model\\.cpp")
    message(FATAL_ERROR "${name} does not build the expansion of packed models")
  endif()
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")

# Alone: everything but what is asked for by name. Where the tests were built before, BUILD_TESTING
# counts as well.
configure(plain "${SOURCE_DIR}")
expect_targets(plain YES kelifc kelifc_command core_test install)
expect_targets(plain NO kelifc_bench load_fuzz kelifc_docs)
expect_tests(plain YES)
configure(plain "${SOURCE_DIR}" -DBUILD_TESTING=OFF)
expect_targets(plain NO core_test)
configure(plain "${SOURCE_DIR}" -DBUILD_TESTING=ON)
expect_targets(plain YES core_test)

configure(untested "${SOURCE_DIR}" -DBUILD_TESTING=OFF)
expect_targets(untested YES kelifc kelifc_command)
expect_targets(untested NO core_test)
expect_tests(untested NO)

configure(least "${SOURCE_DIR}" -DKELIFC_BUILD_TESTS=OFF -DKELIFC_BUILD_COMMAND=OFF
  -DKELIFC_BUILD_SHARED=OFF -DKELIFC_INSTALL=OFF)
expect_targets(least YES kelifc "libkelifc\\.a")
expect_targets(least NO core_test kelifc_command "libkelifc\\.so")
run(ignored "${CMAKE_COMMAND}" --install "${WORK_DIR}/least" --prefix "${WORK_DIR}/least-installed")
if(EXISTS "${WORK_DIR}/least-installed")
  message(FATAL_ERROR "KELIFC_INSTALL=OFF leaves install rules")
endif()

configure(benchmarks "${SOURCE_DIR}" -DBUILD_TESTING=OFF -DKELIFC_BUILD_BENCHMARKS=ON)
expect_targets(benchmarks YES kelifc_bench counted_work)

# As a part of another project: the library alone. The project itself says what must not change.
configure(part "${CMAKE_CURRENT_LIST_DIR}/outer_project" "-DKELIFC_TREE=${SOURCE_DIR}")
expect_targets(part YES kelifc)
expect_targets(part NO kelifc_command core_test)
run(ignored "${CMAKE_COMMAND}" --install "${WORK_DIR}/part" --prefix "${WORK_DIR}/part-installed")
if(EXISTS "${WORK_DIR}/part-installed")
  message(FATAL_ERROR "KelIFC installs as a part of another project")
endif()

# A project that asks for the command and for packed models gets both. Without the command there is
# nothing that expands packed models, and KelIFC says so.
file(WRITE "${WORK_DIR}/asking/CMakeLists.txt" "cmake_minimum_required(VERSION 3.25)
project(asking LANGUAGES CXX)
add_subdirectory([[${SOURCE_DIR}]] kelifc)
")
configure(packed "${WORK_DIR}/asking" -DKELIFC_BUILD_COMMAND=ON -DKELIFC_BUILD_ARCHIVE=${ARCHIVE}
  -DKELIFC_QUICK_BUILD=OFF)  # so that the rules name the sources
expect_targets(packed YES kelifc_command)
expect_expansion(packed ${ARCHIVE})
configure(ignored "${WORK_DIR}/asking" -DKELIFC_BUILD_ARCHIVE=ON)
expect_targets(ignored YES kelifc)
expect_targets(ignored NO kelifc_command kelifc_archive)
if(NOT warnings MATCHES "KELIFC_BUILD_ARCHIVE is ignored")
  message(FATAL_ERROR "Nothing says that KELIFC_BUILD_ARCHIVE is ignored:\n${warnings}")
endif()

# A build for another system uses the header-only packages of this system, through a folder that
# contains only links to them, and compiles GoogleTest from its sources.
set(linked "${PROJECT_BINARY_DIR}/linked-headers")
file(MAKE_DIRECTORY "${linked}")

function(kelifc_linked_headers target folder)
  if(NOT EXISTS "/usr/include/${folder}")
    return()
  endif()
  file(CREATE_LINK "/usr/include/${folder}" "${linked}/${folder}" SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${target} SYSTEM INTERFACE "${linked}")
endfunction()

kelifc_linked_headers(CLI11::CLI11 CLI)
kelifc_linked_headers(nlohmann_json::nlohmann_json nlohmann)

if(KELIFC_BUILD_TESTS)
  set(INSTALL_GTEST OFF)
  set(BUILD_SHARED_LIBS OFF)
  add_subdirectory(/usr/src/googletest "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)
  foreach(part gtest gtest_main gmock)
    if(NOT TARGET GTest::${part})
      add_library(GTest::${part} ALIAS ${part})
    endif()
  endforeach()
endif()

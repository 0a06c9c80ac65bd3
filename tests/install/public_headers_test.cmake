# Compares the list of installed headers with the files that kelifc.h includes, and with the folders
# in which headers for hosts live.
cmake_minimum_required(VERSION 3.25)
file(STRINGS "${HEADER_LIST}" listed)

execute_process(
  COMMAND "${COMPILER}" -std=c++17 -MM -I. "-I${GENERATED_DIR}" kelifc/kelifc.h
  WORKING_DIRECTORY "${SOURCE_DIR}"
  OUTPUT_VARIABLE rule COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "${GENERATED_DIR}/" "" rule "${rule}")
string(REGEX MATCHALL "kelifc/[a-z0-9_/]+\\.h" reached "${rule}")
list(LENGTH reached count)
if(count LESS 100)
  message(FATAL_ERROR "The compiler names only ${count} headers:\n${rule}")
endif()

# Headers directly in core, and those in detail folders, are there for hosts or for such headers.
file(GLOB public RELATIVE "${SOURCE_DIR}"
  "${SOURCE_DIR}/kelifc/core/*.h" "${SOURCE_DIR}/kelifc/*/detail/*.h")

set(failures "")
foreach(header IN LISTS reached)
  if(NOT header IN_LIST listed)
    list(APPEND failures "${header} is included by kelifc.h, but not installed")
  endif()
endforeach()
foreach(header IN LISTS listed)
  if(NOT header IN_LIST reached)
    list(APPEND failures "${header} is installed, but kelifc.h does not include it")
  endif()
  if(header MATCHES "^kelifc/(core|server)/([^/]+)/" AND NOT CMAKE_MATCH_2 STREQUAL "detail")
    list(APPEND failures "${header} is internal, but installed")
  endif()
endforeach()
foreach(header IN LISTS public)
  if(NOT header IN_LIST listed)
    list(APPEND failures "${header} is in a folder of public headers, but not installed")
  endif()
endforeach()
if(failures)
  list(JOIN failures "\n" failures)
  message(FATAL_ERROR "cmake/KelIFCPublicHeaders.cmake does not fit:\n${failures}")
endif()

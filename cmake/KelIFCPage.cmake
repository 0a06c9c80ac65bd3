# Builds the viewer page in a copy of the folder viewer, so that nothing is written to the sources.
# npm fetches the packages of the lock file, and esbuild makes one file of the page. The result is
# the C++ source `kelifc_page_source`, which holds that file and depends on no target system.
find_program(KELIFC_NODE NAMES node nodejs)
find_program(KELIFC_NPM npm)
mark_as_advanced(KELIFC_NODE KELIFC_NPM)
if(NOT KELIFC_NODE OR NOT KELIFC_NPM)
  message(FATAL_ERROR "KELIFC_BUILD_PAGE needs Node.js 18 or newer and npm")
endif()

set(page_sources "${PROJECT_SOURCE_DIR}/viewer")
set(page_folder "${PROJECT_BINARY_DIR}/viewer")
set(kelifc_page_source "${page_folder}/page_template.cpp")
file(GLOB_RECURSE page_scripts CONFIGURE_DEPENDS "${page_sources}/src/*")
file(GLOB page_files CONFIGURE_DEPENDS "${page_sources}/*.html" "${page_sources}/*.css"
  "${page_sources}/*.mjs" "${page_sources}/tsconfig.json")
set(page_packages "${page_sources}/package.json" "${page_sources}/package-lock.json")

# The packages have no install scripts that this build needs.
add_custom_command(OUTPUT "${page_folder}/packages.stamp"
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${page_folder}"
  COMMAND "${CMAKE_COMMAND}" -E copy ${page_packages} "${page_folder}"
  COMMAND "${KELIFC_NPM}" ci --omit=dev --ignore-scripts --no-audit --no-fund --loglevel=error
  COMMAND "${CMAKE_COMMAND}" -E touch "${page_folder}/packages.stamp"
  DEPENDS ${page_packages}
  WORKING_DIRECTORY "${page_folder}"
  COMMENT "Fetching the packages of the viewer page"
  VERBATIM)

add_custom_command(OUTPUT "${kelifc_page_source}"
  BYPRODUCTS "${page_folder}/page.html"
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${page_folder}/src"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${page_sources}/src" "${page_folder}/src"
  COMMAND "${CMAKE_COMMAND}" -E copy ${page_files} "${page_folder}"
  COMMAND "${KELIFC_NODE}" build.mjs page.html
  COMMAND "${KELIFC_NODE}" embed.mjs page.html page_template.cpp
  DEPENDS "${page_folder}/packages.stamp" ${page_files} ${page_scripts}
  WORKING_DIRECTORY "${page_folder}"
  COMMENT "Building the viewer page"
  VERBATIM)

# Only the format "saf" needs libxlsxwriter, and zlib, which libxlsxwriter needs; a build without them lists the format as missing. A build
# for another system, and another project that does not ask for the component, do not search for it.
set(saf_default OFF)
if(NOT CMAKE_CROSSCOMPILING AND (PROJECT_IS_TOP_LEVEL OR KELIFC_BUILD_SAF))
  find_package(PkgConfig)
  if(PKG_CONFIG_FOUND)
    pkg_check_modules(KELIFC_XLSXWRITER IMPORTED_TARGET GLOBAL xlsxwriter zlib)
    set(saf_default "${KELIFC_XLSXWRITER_FOUND}")
  endif()
endif()
option(KELIFC_BUILD_SAF "Build the export to workbooks of SAF" ${saf_default})
if(KELIFC_BUILD_SAF AND NOT TARGET PkgConfig::KELIFC_XLSXWRITER)
  message(FATAL_ERROR "KELIFC_BUILD_SAF needs libxlsxwriter and zlib, which pkg-config does not find")
endif()
if(KELIFC_BUILD_SAF)
  # The table of sheets and columns becomes a string literal.
  file(READ saf/columns.tsv KELIFC_SAF_COLUMNS)
  configure_file(saf/columns.inl.in "${PROJECT_BINARY_DIR}/generated/export/saf/columns.inl" @ONLY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
    "${CMAKE_CURRENT_SOURCE_DIR}/saf/columns.tsv")
  target_sources(kelifc_export PRIVATE
    saf/cell_text.cpp saf/columns.cpp saf/cross_section_list.cpp saf/cross_section_shape.cpp
    saf/face_loop.cpp saf/identifiers.cpp saf/material_list.cpp saf/node_list.cpp
    saf/numeric_locale.cpp saf/omission_list.cpp saf/saf_writer.cpp saf/surface_boundary.cpp
    saf/workbook.cpp saf/workbook_check.cpp
    saf/workbook_file.cpp saf/write_member.cpp saf/write_proxy.cpp saf/write_saf.cpp
    saf/write_surface.cpp)
  target_sources(kelifc_export PRIVATE "${PROJECT_SOURCE_DIR}/kelifc/platform/memory_file.cpp")
  target_include_directories(kelifc_export PRIVATE "${PROJECT_BINARY_DIR}/generated")
  target_link_libraries(kelifc_export PRIVATE PkgConfig::KELIFC_XLSXWRITER)
else()
  target_sources(kelifc_export PRIVATE saf/not_built.cpp)
endif()

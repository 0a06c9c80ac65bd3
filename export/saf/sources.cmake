# Workbooks of SAF. libxlsxwriter writes the files; a build without it lists the format, but cannot
# write it. A build for another system does not search for it.
set(KELIFC_HAS_XLSXWRITER OFF)
if(NOT CMAKE_CROSSCOMPILING)
  find_package(PkgConfig QUIET)
  if(PKG_CONFIG_FOUND)
    pkg_check_modules(KELIFC_XLSXWRITER IMPORTED_TARGET QUIET xlsxwriter)
    if(KELIFC_XLSXWRITER_FOUND)
      set(KELIFC_HAS_XLSXWRITER ON)
    endif()
  endif()
endif()

if(KELIFC_HAS_XLSXWRITER)
  # The table of sheets and columns becomes a string literal.
  file(READ saf/columns.tsv KELIFC_SAF_COLUMNS)
  configure_file(saf/columns.inl.in "${PROJECT_BINARY_DIR}/generated/export/saf/columns.inl" @ONLY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
    "${CMAKE_CURRENT_SOURCE_DIR}/saf/columns.tsv")
  target_sources(kelifc_export PRIVATE
    saf/cell_text.cpp saf/columns.cpp saf/cross_section_list.cpp saf/cross_section_shape.cpp
    saf/face_loop.cpp saf/identifiers.cpp saf/material_list.cpp saf/node_list.cpp
    saf/numeric_locale.cpp saf/omission_list.cpp saf/saf_writer.cpp saf/surface_boundary.cpp
    saf/workbook.cpp saf/write_member.cpp saf/write_proxy.cpp saf/write_saf.cpp
    saf/write_surface.cpp)
  target_include_directories(kelifc_export PRIVATE "${PROJECT_BINARY_DIR}/generated")
  target_compile_definitions(kelifc_export PRIVATE KELIFC_HAS_XLSXWRITER)
  target_link_libraries(kelifc_export PRIVATE PkgConfig::KELIFC_XLSXWRITER)
endif()

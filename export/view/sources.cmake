# The page for a browser. Without zlib its data is not compressed. Without the option
# KELIFC_BUILD_PAGE the format is listed, but cannot be written.
target_sources(kelifc_export PRIVATE
  view/base64.cpp
  view/container.cpp
  view/description.cpp
  view/display_arrays.cpp
  view/element_columns.cpp
  view/json_text.cpp
  view/write_page.cpp)
if(TARGET PkgConfig::KELIFC_ZLIB)
  target_sources(kelifc_export PRIVATE view/gzip.cpp)
  target_link_libraries(kelifc_export PRIVATE PkgConfig::KELIFC_ZLIB)
else()
  target_sources(kelifc_export PRIVATE view/gzip_not_built.cpp)
endif()
if(KELIFC_BUILD_PAGE)
  include(KelIFCPage)
  target_sources(kelifc_export PRIVATE "${kelifc_page_source}")
else()
  target_sources(kelifc_export PRIVATE view/page_template_not_built.cpp)
endif()

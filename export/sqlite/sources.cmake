# SQLite is optional. A build for another system does not search for it.
if(NOT CMAKE_CROSSCOMPILING)
  find_package(PkgConfig)
  if(PKG_CONFIG_FOUND)
    pkg_check_modules(KELIFC_SQLITE IMPORTED_TARGET GLOBAL sqlite3)
  endif()
endif()
if(KELIFC_SQLITE_FOUND)
  target_sources(kelifc_export PRIVATE
    sqlite/database.cpp sqlite/schema.cpp sqlite/write_sqlite.cpp)
  target_link_libraries(kelifc_export PRIVATE PkgConfig::KELIFC_SQLITE)
else()
  target_sources(kelifc_export PRIVATE sqlite/not_built.cpp)
endif()

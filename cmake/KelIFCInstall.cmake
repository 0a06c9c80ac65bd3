# What `cmake --install` lays out: the shared library, its headers in the folders that the includes
# name, the command, and the two ways a build system finds them: CMake package and pkg-config.
include(CMakePackageConfigHelpers)

install(TARGETS kelifc EXPORT KelIFCTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")

# Headers that stay inside; a test holds this list against what kelifc.h reaches.
set(internal_headers
  core/cast_cache core/global_id core/load_arena core/model core/number_text core/parenthesised
  core/parse_members core/quoting core/resolve core/value_lists core/value_member core/write_tolerance
  geo/class_bases
  geometry/box2 geometry/polygon2 geometry/polygon_normal geometry/rotation2 geometry/segment2
  geometry/triangle
  platform/com_class platform/com_dispatch platform/com_guard platform/com_module
  platform/com_object platform/com_registration platform/com_type_library
  platform/local_time platform/memory_watch platform/new_guid platform/path
  schema/bodies schema/body_editing schema/record schema/references
  server/block_search server/file_output server/name_table server/release_tables server/scanner
  server/schema_table server/statements)
list(JOIN internal_headers "|" internal_headers)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/kelifc" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING PATTERN "*.h"
  REGEX "/kelifc/(${internal_headers})\\.h$" EXCLUDE
  REGEX "/kelifc/(geo|import|schema/[a-z_]+)$" EXCLUDE)  # folders without a public header
install(DIRECTORY "${PROJECT_BINARY_DIR}/generated/kelifc"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING PATTERN "*.h"
  REGEX "/kelifc/(${internal_headers})\\.h$" EXCLUDE)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/KelIFC")
install(EXPORT KelIFCTargets NAMESPACE KelIFC:: DESTINATION "${package_dir}")
configure_package_config_file(
  "${CMAKE_CURRENT_LIST_DIR}/KelIFCConfig.cmake.in" "${PROJECT_BINARY_DIR}/KelIFCConfig.cmake"
  INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/KelIFCConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/KelIFCConfig.cmake"
  "${PROJECT_BINARY_DIR}/KelIFCConfigVersion.cmake" DESTINATION "${package_dir}")

# kelifc.pc names its folders relative to itself, so an installed tree can be moved as a whole.
set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH pc_prefix "/prefix/${pc_dir}" "/prefix")
configure_file("${CMAKE_CURRENT_LIST_DIR}/kelifc.pc.in" "${PROJECT_BINARY_DIR}/kelifc.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/kelifc.pc" DESTINATION "${pc_dir}")

if(TARGET kelifc_command)
  file(RELATIVE_PATH bin_to_lib "/prefix/${CMAKE_INSTALL_BINDIR}" "/prefix/${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(kelifc_command PROPERTIES INSTALL_RPATH "$ORIGIN/${bin_to_lib}")
  install(TARGETS kelifc_command RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()

# On Windows the whole is a folder to unpack: library and command in bin, what script hosts and other
# compilers build on in share, with examples for both.
if(WIN32)
  install(FILES "${PROJECT_BINARY_DIR}/generated/kelifc/geo/kelifc.idl"
    "${PROJECT_BINARY_DIR}/KelIFC.tlb" DESTINATION "${CMAKE_INSTALL_DATADIR}/KelIFC")
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/examples" DESTINATION "${CMAKE_INSTALL_DATADIR}/KelIFC")
  install(FILES "${PROJECT_SOURCE_DIR}/docs/windows.md" "${PROJECT_SOURCE_DIR}/docs/object-model.md"
    DESTINATION "${CMAKE_INSTALL_DOCDIR}")
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME "KelIFC-${PROJECT_VERSION}-win64")
  set(CPACK_STRIP_FILES ON)
  include(CPack)
endif()

# The reference pages of the entity classes, which schemac leaves beside them.
install(DIRECTORY "${PROJECT_BINARY_DIR}/generated/docs/reference"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}")

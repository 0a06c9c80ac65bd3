# The files that `cmake --install` installs: the shared library, its headers in the folders that the
# includes name, the command, and the files by which CMake and pkg-config find the library. The
# components are `runtime`, `headers`, `development` and `command`.
include(CMakePackageConfigHelpers)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME headers)

install(TARGETS kelifc EXPORT KelIFCTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime)

# install_headers(ROOT HEADERS...): installs headers, which are named by their path relative to
# ROOT. They get the same path relative to the include folder, so an include line works in the tree
# and in an installation.
function(install_headers root)
  foreach(header IN LISTS ARGN)
    cmake_path(GET header PARENT_PATH folder)
    install(FILES "${root}/${header}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${folder}")
  endforeach()
endfunction()
include(KelIFCPublicHeaders)
install_headers("${PROJECT_SOURCE_DIR}" ${kelifc_public_headers})
install_headers("${PROJECT_BINARY_DIR}/generated" ${kelifc_generated_headers})

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/KelIFC")
install(EXPORT KelIFCTargets NAMESPACE KelIFC:: DESTINATION "${package_dir}" COMPONENT development)
configure_package_config_file(
  "${CMAKE_CURRENT_LIST_DIR}/KelIFCConfig.cmake.in" "${PROJECT_BINARY_DIR}/KelIFCConfig.cmake"
  INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/KelIFCConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/KelIFCConfig.cmake"
  "${PROJECT_BINARY_DIR}/KelIFCConfigVersion.cmake"
  DESTINATION "${package_dir}" COMPONENT development)

# The paths in kelifc.pc are relative to the file, so an installed tree can be moved.
set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH pc_prefix "/prefix/${pc_dir}" "/prefix")
configure_file("${CMAKE_CURRENT_LIST_DIR}/kelifc.pc.in" "${PROJECT_BINARY_DIR}/kelifc.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/kelifc.pc" DESTINATION "${pc_dir}" COMPONENT development)

# The command finds its library by a relative path. In the system's own folders, the system finds
# it.
if(TARGET kelifc_command)
  if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    file(RELATIVE_PATH bin_to_lib "/prefix/${CMAKE_INSTALL_BINDIR}" "/prefix/${CMAKE_INSTALL_LIBDIR}")
    set_target_properties(kelifc_command PROPERTIES INSTALL_RPATH "$ORIGIN/${bin_to_lib}")
  endif()
  install(TARGETS kelifc_command
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT command)
  if(NOT WIN32)
    configure_file("${PROJECT_SOURCE_DIR}/tools/kelifc/kelifc.1.in" "${PROJECT_BINARY_DIR}/kelifc.1" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/kelifc.1"
      DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT command)
  endif()
endif()

# On Windows an installation is one folder to unpack: library and command are in bin, and in share
# are the files that script hosts and other compilers need, with examples for both.
if(WIN32)
  install(FILES "${PROJECT_BINARY_DIR}/generated/kelifc/geo/kelifc.idl"
    "${PROJECT_BINARY_DIR}/KelIFC.tlb"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/KelIFC" COMPONENT development)
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/examples"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/KelIFC" COMPONENT development)
  install(FILES "${PROJECT_SOURCE_DIR}/docs/windows.md" "${PROJECT_SOURCE_DIR}/docs/object-model.md"
    DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT development)
  install(FILES "${PROJECT_SOURCE_DIR}/cmake/packages/copyright" RENAME copyright.txt
    DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT command)
endif()

# The reference pages of the entity classes, which schemac generates together with the classes.
install(DIRECTORY "${PROJECT_BINARY_DIR}/generated/docs/reference"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT development)

if(PROJECT_IS_TOP_LEVEL)
  include(KelIFCPackages)
endif()

# The properties of the library on Windows: its file name, its version, and the type library as a
# resource.
enable_language(RC)

find_program(KELIFC_WIDL x86_64-w64-mingw32-widl REQUIRED)
find_path(KELIFC_IDL_DIR oaidl.idl PATHS /usr/include/wine/wine/windows NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_path(KELIFC_STDOLE_DIR stdole2.tlb NO_CMAKE_FIND_ROOT_PATH REQUIRED
  PATHS /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/wine/x86_64-windows)

set(idl "${PROJECT_BINARY_DIR}/generated/kelifc/geo/kelifc.idl")
set(type_library "${PROJECT_BINARY_DIR}/KelIFC.tlb")
add_custom_command(
  OUTPUT "${type_library}"
  COMMAND "${KELIFC_WIDL}" -t --win64 -I "${KELIFC_IDL_DIR}" -L "${KELIFC_STDOLE_DIR}"
    -o "${type_library}" "${idl}"
  DEPENDS "${idl}"
  COMMENT "Making the type library"
  VERBATIM)

set(resources "${PROJECT_BINARY_DIR}/kelifc.rc")
configure_file("${PROJECT_SOURCE_DIR}/cmake/kelifc.rc.in" "${resources}" @ONLY)
set_source_files_properties("${resources}" PROPERTIES OBJECT_DEPENDS "${type_library}")
target_sources(kelifc PRIVATE "${resources}")
set_target_properties(kelifc PROPERTIES PREFIX "" OUTPUT_NAME KelIFC SOVERSION "" VERSION "")

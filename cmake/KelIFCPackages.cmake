# The packages that cpack makes: an archive for Windows, Debian packages elsewhere. docs/installation.md
# lists what each of them contains.
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_VENDOR "KelIFC")
set(CPACK_PACKAGE_CONTACT "KelIFC maintainers <maintainers@kelifc.example>")

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME "KelIFC-${PROJECT_VERSION}-win64")
  include(CPack)
  return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own summary
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/packages/compress.cmake")

set(package_version "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
set(runtime_package "libkelifc${PROJECT_VERSION_MAJOR}")  # by the SONAME, as Debian wants
configure_file("${PROJECT_SOURCE_DIR}/cmake/packages/changelog.in"
  "${PROJECT_BINARY_DIR}/packages/changelog" @ONLY)

# kelifc_package(COMPONENT NAME SECTION DESCRIPTION): the Debian package of a component, or of a
# group of components with the same name. It contains the documents that each Debian package must
# have. Only cpack installs these documents, because it requests each component by name.
macro(kelifc_package component name section description)
  string(TOUPPER "${component}" upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME "${name}")
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION "${section}")
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${description}")
  set(folder "${CMAKE_INSTALL_DATAROOTDIR}/doc/${name}")
  install(FILES "${PROJECT_SOURCE_DIR}/cmake/packages/copyright"
    DESTINATION "${folder}" COMPONENT ${component} EXCLUDE_FROM_ALL)
  install(FILES "${PROJECT_SOURCE_DIR}/CHANGELOG.md" RENAME changelog
    DESTINATION "${folder}" COMPONENT ${component} EXCLUDE_FROM_ALL)
  install(FILES "${PROJECT_BINARY_DIR}/packages/changelog" RENAME changelog.Debian
    DESTINATION "${folder}" COMPONENT ${component} EXCLUDE_FROM_ALL)
endmacro()

set(about "KelIFC reads and writes building models in IFC, in the form of STEP files,
in the releases 1.5.1, 2.0, 2x, 2x2 and 2x3. It converts a model of the three
newer releases into a structure of storeys, columns, beams, walls, plates,
foots and sections.")

kelifc_package(runtime ${runtime_package} libs "library that reads and writes IFC building models
${about}
.
This package contains the shared library.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)  # other programs need it to depend on this package
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/packages/triggers")

kelifc_package(development libkelifc-dev libdevel "development files of the IFC library KelIFC
${about}
.
This package contains the headers, the files for CMake and pkg-config, and
reference pages of all entity classes.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime_package} (= ${package_version})")

kelifc_package(command kelifc science "shows and rewrites IFC building models
${about}
.
This package contains the command kelifc, which prints the structure or the
contents of a model, and which writes a model back.")
set(CPACK_DEBIAN_COMMAND_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/kelifc")
set(CPACK_DEBIAN_COMMAND_PACKAGE_DEPENDS "${runtime_package} (= ${package_version})")

if(KELIFC_BUILD_PYTHON)
  kelifc_package(python python3-kelifc python "Python module that reads and writes IFC building models
${about}
.
This package contains the Python module kelifc.")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
    "${runtime_package} (= ${package_version}), python3 (>= 3.11), python3 (<< 3.12), python3-numpy")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS
    "python3-pandas, python3-distributed, python3-cryptography")
  # They compile the files of the package when it is installed, and remove the results afterwards.
  set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA
    "${CMAKE_CURRENT_LIST_DIR}/packages/python/postinst;${CMAKE_CURRENT_LIST_DIR}/packages/python/prerm")
endif()

include(CPack)
cpack_add_component_group(development)
cpack_add_component(headers GROUP development)
cpack_add_component(development GROUP development)

# cpack runs this script for the files of all packages before it packs them. Debian packages need
# compressed manual pages and changelogs without a time stamp. Other kinds of packages are not
# changed.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
  return()
endif()
set(documents "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*/usr/share")
file(GLOB files "${documents}/man/man1/*" "${documents}/doc/*/changelog*")
if(NOT files)
  message(FATAL_ERROR "There is no changelog and no manual page in ${documents}")
endif()
execute_process(COMMAND gzip -9n ${files} COMMAND_ERROR_IS_FATAL ANY)

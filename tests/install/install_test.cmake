# Installs into a folder, moves the folder, and uses it as the build of a host does: by CMake package
# and by pkg-config. It also compiles each installed header.

include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

# expect_storeys(PRINTED): a host that read the house must have printed the names of its storeys.
function(expect_storeys printed)
  foreach(storey "Ground floor" "Upper floor")
    if(NOT printed MATCHES "${storey}")
      message(FATAL_ERROR "'${storey}' is missing in:\n${printed}")
    endif()
  endforeach()
endfunction()

separate_arguments(flags UNIX_COMMAND "${FLAGS}")
set(model "${SOURCE_DIR}/examples/house.ifc")
set(prefix "${WORK_DIR}/moved")

file(REMOVE_RECURSE "${WORK_DIR}")
run(ignored "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/first")
file(RENAME "${WORK_DIR}/first" "${prefix}")

# The command finds its library after both were moved.
run(printed "${prefix}/${BIN}/kelifc" structure "${model}")
expect_storeys("${printed}")

# By CMake package.
set(build_dir "${WORK_DIR}/examples")
run(ignored "${CMAKE_COMMAND}" -S "${SOURCE_DIR}/examples" -B "${build_dir}" -G Ninja
  "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}")
run(ignored "${CMAKE_COMMAND}" --build "${build_dir}")
foreach(example read entities walk host)
  run(printed "${build_dir}/${example}" "${model}")
  expect_storeys("${printed}")
endforeach()

# By pkg-config.
set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIB}/pkgconfig")
run(found pkg-config --cflags --libs kelifc)
separate_arguments(found UNIX_COMMAND "${found}")
set(strict -std=c++17 -Wall -Wextra -Wpedantic -Wshadow -Werror)
foreach(example read entities)
  run(ignored "${COMPILER}" ${flags} ${strict} "${SOURCE_DIR}/examples/${example}/main.cpp"
    -o "${WORK_DIR}/program" ${found} "-Wl,-rpath,${prefix}/${LIB}")
  run(printed "${WORK_DIR}/program" "${model}")
  expect_storeys("${printed}")
endforeach()

# A host compiles the headers with its own warnings, with either compiler and standard.
set(includer "${WORK_DIR}/includer.cpp")
file(WRITE "${includer}" "#include <kelifc/kelifc.h>\n")
foreach(name g++ clang++)
  find_program(compiler_of_host ${name} NO_CACHE)
  if(compiler_of_host)
    foreach(standard c++17 c++20)
      run(ignored "${compiler_of_host}" ${strict} -std=${standard} -fsyntax-only
        "-I${prefix}/${INCLUDE}" "${includer}")
    endforeach()
  endif()
  unset(compiler_of_host)
endforeach()

# The headers are those of the list. Each compiles alone, twice in one source, as C++17.
set(include_dir "${prefix}/${INCLUDE}")
file(GLOB_RECURSE headers RELATIVE "${include_dir}" "${include_dir}/*")
file(STRINGS "${HEADER_LIST}" listed)
list(SORT headers)
list(SORT listed)
if(NOT headers STREQUAL listed)
  message(FATAL_ERROR "The installed headers are not those of the list:\n${headers}")
endif()
foreach(header IN LISTS headers)
  string(MAKE_C_IDENTIFIER "${header}" name)
  file(WRITE "${WORK_DIR}/headers/${name}.cpp" "#include <${header}>\n#include <${header}>\n")
endforeach()
list(JOIN strict " " options)
run(ignored sh -c "ls '${WORK_DIR}'/headers/*.cpp | xargs -P 2 -n 1 \
  '${COMPILER}' ${options} -fsyntax-only '-I${include_dir}'")

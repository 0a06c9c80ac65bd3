# Installs into a folder, moves that folder, and uses it as a host's build would: by CMake package
# and by pkg-config. The README's program and each installed header are compiled as well.

include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

# expect_storeys(PRINTED): a host that was given the house must have named its storeys.
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

# The command finds its library wherever both were moved to.
run(printed "${prefix}/${BIN}/kelifc" structure "${model}")
expect_storeys("${printed}")

# By CMake package.
foreach(example host walk)
  set(build_dir "${WORK_DIR}/${example}")
  run(ignored "${CMAKE_COMMAND}" -S "${SOURCE_DIR}/examples/${example}" -B "${build_dir}" -G Ninja
    "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}")
  run(ignored "${CMAKE_COMMAND}" --build "${build_dir}")
  run(printed "${build_dir}/${example}" "${model}")
  expect_storeys("${printed}")
endforeach()

# By pkg-config, and with the program that the README shows.
set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIB}/pkgconfig")
run(found pkg-config --cflags --libs kelifc)
separate_arguments(found UNIX_COMMAND "${found}")
file(READ "${SOURCE_DIR}/README.md" readme)
if(NOT readme MATCHES "```cpp\n([^`]+)```")
  message(FATAL_ERROR "README.md shows no program")
endif()
file(WRITE "${WORK_DIR}/readme.cpp" "${CMAKE_MATCH_1}")
set(strict -std=c++17 -Wall -Wextra -Wpedantic -Werror)
foreach(program "${SOURCE_DIR}/examples/host/main.cpp" "${SOURCE_DIR}/examples/walk/main.cpp"
    "${WORK_DIR}/readme.cpp")
  run(ignored "${COMPILER}" ${flags} ${strict} "${program}" -o "${WORK_DIR}/program" ${found}
    "-Wl,-rpath,${prefix}/${LIB}")
  run(printed "${WORK_DIR}/program" "${model}")
  expect_storeys("${printed}")
endforeach()

# Each installed header stands alone, is readable by C++17, and is one that kelifc.h needs.
set(include_dir "${prefix}/${INCLUDE}")
file(GLOB_RECURSE headers RELATIVE "${include_dir}" "${include_dir}/*.h")
run(needed "${COMPILER}" -std=c++17 -MM "-I${include_dir}" "${include_dir}/kelifc/kelifc.h")
foreach(header IN LISTS headers)
  string(FIND "${needed}" "${include_dir}/${header}" position)
  if(position EQUAL -1)
    message(FATAL_ERROR "${header} is installed, but kelifc.h does not need it")
  endif()
  string(MAKE_C_IDENTIFIER "${header}" name)
  file(WRITE "${WORK_DIR}/headers/${name}.cpp" "#include <${header}>\n#include <${header}>\n")
endforeach()
list(JOIN strict " " strict)
run(ignored sh -c "ls '${WORK_DIR}'/headers/*.cpp | xargs -P 2 -n 1 \
  '${COMPILER}' ${strict} -fsyntax-only '-I${include_dir}'")

# Installs into a folder, moves that folder and uses it as the build of a host does: by the CMake
# package and by pkg-config. Compiles the program of the README and each installed header as well.

# run(OUTPUT COMMAND...): runs a command, which must succeed. Stores its output in the variable
# OUTPUT.
function(run output)
  execute_process(COMMAND ${ARGN}
    RESULT_VARIABLE status OUTPUT_VARIABLE printed ERROR_VARIABLE errors)
  if(NOT status EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}\nended with ${status}\n${printed}${errors}")
  endif()
  set(${output} "${printed}" PARENT_SCOPE)
endfunction()

# expect_storeys(PRINTED): fails unless the output of a host contains the storeys of the house.
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

# With the CMake package.
foreach(example host walk)
  set(build_dir "${WORK_DIR}/${example}")
  run(ignored "${CMAKE_COMMAND}" -S "${SOURCE_DIR}/examples/${example}" -B "${build_dir}" -G Ninja
    "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}")
  run(ignored "${CMAKE_COMMAND}" --build "${build_dir}")
  run(printed "${build_dir}/${example}" "${model}")
  expect_storeys("${printed}")
endforeach()

# With pkg-config. The program of the README is built as well.
set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIB}/pkgconfig")
run(found pkg-config --cflags --libs kelifc)
separate_arguments(found UNIX_COMMAND "${found}")
file(READ "${SOURCE_DIR}/README.md" readme)
if(NOT readme MATCHES "```cpp\n([^`]+)```")
  message(FATAL_ERROR "README.md shows no program")
endif()
file(WRITE "${WORK_DIR}/readme.cpp" "${CMAKE_MATCH_1}")
set(strict -std=c++17 -Wall -Wextra -Wpedantic -Wshadow -Werror)
foreach(program "${SOURCE_DIR}/examples/host/main.cpp" "${SOURCE_DIR}/examples/walk/main.cpp"
    "${WORK_DIR}/readme.cpp")
  run(ignored "${COMPILER}" ${flags} ${strict} "${program}" -o "${WORK_DIR}/program" ${found}
    "-Wl,-rpath,${prefix}/${LIB}")
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

# Each installed header compiles alone as C++17, and kelifc.h includes it.
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
list(JOIN strict " " options)
run(ignored sh -c "ls '${WORK_DIR}'/headers/*.cpp | xargs -P 2 -n 1 \
  '${COMPILER}' ${options} -fsyntax-only '-I${include_dir}'")

# How release packages are optimised beyond the usual options: across sources when they are linked
# (KELIFC_LTO), and by a profile of how the command runs (KELIFC_PROFILE). scripts/packages builds
# the preset `optimised` twice, with the profile `generate` and `use`. Between the two builds,
# scripts/train-profile runs the command.
option(KELIFC_LTO "Optimise across sources when the shared library is linked; needs g++" OFF)
set(KELIFC_PROFILE "" CACHE STRING
  "generate: programs write a profile to the folder `profile` of the build; use: compile with it")
set_property(CACHE KELIFC_PROFILE PROPERTY STRINGS "" generate use)
mark_as_advanced(KELIFC_LTO KELIFC_PROFILE)

if((KELIFC_LTO OR KELIFC_PROFILE)
    AND NOT (PROJECT_IS_TOP_LEVEL AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU"))
  message(FATAL_ERROR "KELIFC_LTO and KELIFC_PROFILE need g++, and KelIFC as the outermost project")
endif()

# Objects for the linker's optimisation fit only one version of the compiler, so no static library
# of them is installed.
if(KELIFC_LTO AND NOT KELIFC_BUILD_SHARED)
  message(FATAL_ERROR "KELIFC_LTO needs KELIFC_BUILD_SHARED")
elseif(KELIFC_LTO)
  set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ON)
  # No program replaces functions of the library, so its calls of them can be inlined.
  add_compile_options(-fno-semantic-interposition)
  # g++ 12 sees an overflow in operator+ of std::string when it inlines across sources.
  add_link_options(-Wno-stringop-overflow)
endif()

# The profile does not contain all code. Functions without a profile are optimised as usual, instead
# of for size, and sources without one are no reason for a warning.
set(profile_folder "${PROJECT_BINARY_DIR}/profile")
if(KELIFC_PROFILE STREQUAL "generate")
  add_compile_options("-fprofile-generate=${profile_folder}" -fprofile-update=atomic)
  add_link_options("-fprofile-generate=${profile_folder}")
elseif(KELIFC_PROFILE STREQUAL "use")
  add_compile_options("-fprofile-use=${profile_folder}" -fprofile-partial-training
    -Wno-missing-profile)
elseif(KELIFC_PROFILE)
  message(FATAL_ERROR "KELIFC_PROFILE is '${KELIFC_PROFILE}'; it must be generate, use or empty")
endif()

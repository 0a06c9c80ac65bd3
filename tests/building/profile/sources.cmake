set(stage_tests
  flatten_test.cpp
  loop_check_test.cpp
  make_profile_test.cpp
  regions_of_test.cpp
  section_moments_test.cpp
  sliced_profile_test.cpp
)

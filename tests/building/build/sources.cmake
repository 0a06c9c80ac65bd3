set(stage_tests
  idealise_member_test.cpp
  idealise_surface_test.cpp
  idealise_test.cpp
)

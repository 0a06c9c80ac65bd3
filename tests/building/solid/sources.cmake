set(stage_tests
  body_test.cpp
  boolean_test.cpp
  distance_test.cpp
  profile_fallback.cpp
  slice_test.cpp
)

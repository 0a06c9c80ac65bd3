set(stage_tests
  body_test.cpp
  boolean_test.cpp
  distance_test.cpp
  slice_test.cpp
)

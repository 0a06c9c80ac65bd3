set(stage_tests
  assemble_test.cpp
  body_maker_test.cpp
  openings_test.cpp
  profile_key_test.cpp
  storeys_test.cpp
)

set(stage_tests
)

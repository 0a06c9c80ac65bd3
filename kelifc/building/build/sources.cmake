target_sources(kelifc_building PRIVATE
  build/assemble.cpp
  build/body_maker.cpp
  build/finite.cpp
  build/openings.cpp
  build/profile_key.cpp
  build/storeys.cpp
)

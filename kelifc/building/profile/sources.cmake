target_sources(kelifc_building PRIVATE
  profile/flatten.cpp
  profile/loop_check.cpp
  profile/make_profile.cpp
  profile/parameter_table.cpp
  profile/plane_arc.cpp
  profile/regions_of.cpp
  profile/rounded_contour.cpp
  profile/section_moments.cpp
  profile/shape_region.cpp
  profile/simplify.cpp
  profile/sliced_profile.cpp
)

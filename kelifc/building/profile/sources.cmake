target_sources(kelifc_building PRIVATE
  profile/contour_distance.cpp
  profile/find_circle.cpp
  profile/find_corners.cpp
  profile/flatten.cpp
  profile/loop_check.cpp
  profile/make_profile.cpp
  profile/measure_shape.cpp
  profile/parameter_table.cpp
  profile/plane_arc.cpp
  profile/recognise.cpp
  profile/regions_of.cpp
  profile/rounded_contour.cpp
  profile/section_moments.cpp
  profile/shape_region.cpp
  profile/simplify.cpp
  profile/sliced_profile.cpp
)

target_sources(kelifc_export PRIVATE
  glb/binary_chunk.cpp
  glb/class_colours.cpp
  glb/quaternion.cpp
  glb/scene_text.cpp
  glb/write_glb.cpp
)

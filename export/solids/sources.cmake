target_sources(kelifc_export PRIVATE
  solids/arc_chords.cpp
  solids/display_loops.cpp
  solids/display_model.cpp
  solids/drawn_edges.cpp
  solids/mesh_store.cpp
  solids/round_edges.cpp
)

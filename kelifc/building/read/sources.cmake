target_sources(kelifc_building PRIVATE
)

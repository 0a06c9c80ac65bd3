target_sources(kelifc_export PRIVATE
  tables/building_tables.cpp
  tables/element_table.cpp
  tables/part_tables.cpp
  tables/table_maker.cpp
  tables/tables.cpp)

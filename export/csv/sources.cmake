target_sources(kelifc_export PRIVATE csv/cells.cpp csv/write_csv.cpp)

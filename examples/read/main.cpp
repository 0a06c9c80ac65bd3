// Prints the storeys and the columns of a model.
#include <kelifc/kelifc.h>

#include <iostream>

using KelIFC::Get;
using KelIFC::Items;

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  try {
    const auto [server, structure] = KelIFC::OpenModel(argv[1]);
    for (const auto& storey : Items(structure, &IGeoStructure::get_Storeys)) {
      std::cout << Get(storey, &IGeoStorey::get_Name) << ": level "
                << Get(storey, &IGeoStorey::get_Level) << "\n";
    }
    for (const auto& column : Items(structure, &IGeoStructure::get_Columns)) {
      std::cout << Get(column, &IGeoColumn::get_Name) << ": section "
                << Get(column, &IGeoColumn::get_SectionName) << "\n";
    }
  } catch (const KelIFC::StatusError& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
}

// Prints the storeys of a model of release 2x3, read from its entities.
#include <kelifc/kelifc.h>

#include <iostream>

int main(int argc, char** argv) {
  KelIFC::IfcServer server;
  if (argc < 2 || server.LoadIfcFile(argv[1]) != 0) return 1;
  for (const KelIFC::IfcUnknown* instance : server.GetItems()) {
    if (const auto* storey = dynamic_cast<const KelIFC2x3::IfcBuildingStorey*>(instance)) {
      std::cout << storey->GetName() << " at " << storey->GetElevation() << "\n";
    }
  }
}

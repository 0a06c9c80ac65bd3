#include "bench/conversion.h"

#include <cstdlib>

namespace bench {
namespace {

using KelIFC::ComPtr;

void Require(HRESULT status) {
  if (FAILED(status)) std::abort();
}

/// Gets one collection, which converts it, and returns the number of its elements.
template <class Collection>
LONG Convert(IGeoStructure& structure, HRESULT (IGeoStructure::*get)(Collection**)) {
  ComPtr<Collection> collection;
  Require((structure.*get)(collection.Put()));
  LONG count = 0;
  Require(collection->Count(&count));
  return count;
}

}  // namespace

ComPtr<IIFCServer> MakeServer() {
  ComPtr<IIFCServer> server;
  Require(CoCreateInstance(CLSID_CoIFCServer, nullptr, CLSCTX_ALL, KelIFC::IidOf<IIFCServer>(),
                           reinterpret_cast<void**>(server.Put())));
  return server;
}

ComPtr<IGeoStructure> GetStructure(IIFCServer& server) {
  ComPtr<IGeoStructure> structure;
  Require(server.get_Structure(structure.Put()));
  return structure;
}

LONG ConvertAll(IGeoStructure& structure) {
  return Convert(structure, &IGeoStructure::get_Storeys) +
         Convert(structure, &IGeoStructure::get_Columns) +
         Convert(structure, &IGeoStructure::get_Beams) +
         Convert(structure, &IGeoStructure::get_Walls) +
         Convert(structure, &IGeoStructure::get_Plates) +
         Convert(structure, &IGeoStructure::get_Foots);
}

}  // namespace bench

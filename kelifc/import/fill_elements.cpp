#include "kelifc/geo/fill.h"

namespace KelIFC {

namespace {

/// What all fills of elements begin with. No kind of element is converted yet.
template <class Collection>
HRESULT FillElements(Collection& collection, CoIFCServer& server, SHORT storeyFilter) {
  if (storeyFilter != kAllStoreys) return E_NOTIMPL;
  collection.SetServer(server.Link());
  return S_OK;
}

}  // namespace

HRESULT FillColumns(CoGeoColumns& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter);
}

HRESULT FillBeams(CoGeoBeams& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter);
}

HRESULT FillWalls(CoGeoWalls& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter);
}

HRESULT FillPlates(CoGeoPlates& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter);
}

HRESULT FillFoots(CoGeoFoots& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter);
}

}  // namespace KelIFC

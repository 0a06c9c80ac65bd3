#include "kelifc/geo/fill.h"
#include "kelifc/import/model/for_release.h"
#include "kelifc/import/storey/build_storeys.h"
#include "kelifc/import/storey/read_storeys.h"

namespace KelIFC {

HRESULT FillStoreys(CoGeoStoreys& collection, CoIFCServer& server) {
  collection.SetServer(server.Link());
  IfcServer& model = server.Model();
  return ForRelease(model.GetRelease(), S_OK, [&](auto release) {
    return BuildStoreys(collection, ReadStoreys<decltype(release)>(model));
  });
}

}  // namespace KelIFC

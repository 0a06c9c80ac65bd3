#include "kelifc/geo/fill.h"
#include "kelifc/import/build_storeys.h"
#include "kelifc/import/read_storeys.h"
#include "kelifc/import/releases.h"

namespace KelIFC {

HRESULT FillStoreys(CoGeoStoreys& collection, CoIFCServer& server) {
  collection.SetServer(server.Link());
  IfcServer& model = server.Model();
  return ForRelease(model.GetRelease(), S_OK, [&](auto release) {
    return BuildStoreys(collection, ReadStoreys<decltype(release)>(model));
  });
}

}  // namespace KelIFC

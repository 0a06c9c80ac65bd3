#include "kelifc/geo/creation.h"
#include "kelifc/geo/reading/complete_reading.h"
#include "kelifc/geo/reading/fill_complete.h"
#include "kelifc/geo/reading/identity.h"

namespace KelIFC {

HRESULT FillComplete(CoGeoStoreys& collection, CoIFCServer& server) {
  collection.SetServer(server.Link());
  const auto reading = server.ReadCompletely();
  const Building& building = reading->GetBuilding();
  const double metres = building.lengthUnit.metres > 0.0 ? building.lengthUnit.metres : 1.0;
  Factory<CoGeoStorey> factory;
  HRESULT status = factory.Open();
  for (const BuildingStorey& storey : building.storeys) {
    CoGeoStorey* made = nullptr;
    if (SUCCEEDED(status)) status = factory.Append(collection, &made);
    if (FAILED(status)) return status;
    made->level = storey.elevation / metres;
    made->height = storey.height.value_or(0.0) / metres;
    made->name = NameOf(storey.name, storey.id);
    made->dialect = STEP_DIALECT_ISO;
    made->number = reading->StoreyNumberOf(storey.id);
    made->guid = GuidOf(storey.guid);
  }
  return status;
}

}  // namespace KelIFC

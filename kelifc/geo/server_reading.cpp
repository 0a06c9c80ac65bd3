#include <cstddef>

#include "kelifc/building/read_building.h"
#include "kelifc/geo/building_collections.h"
#include "kelifc/geo/building_element.h"
#include "kelifc/geo/building_loss.h"
#include "kelifc/geo/creation.h"
#include "kelifc/geo/fields.h"
#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/geo/reading/complete_reading.h"

// The building model of the server object.

namespace KelIFC {

namespace {

// The values of the property Reading.
constexpr LONG kClassicReading = 0;
constexpr LONG kCompleteReading = 1;

}  // namespace

HRESULT CoIFCServer::get_Reading(LONG* out) {
  return GetField(isReadingComplete ? kCompleteReading : kClassicReading, out);
}

HRESULT CoIFCServer::put_Reading(LONG reading) {
  if (reading != kClassicReading && reading != kCompleteReading) return E_INVALIDARG;
  if (isReadingFixed) return E_FAIL;
  isReadingComplete = reading == kCompleteReading;
  return S_OK;
}

std::shared_ptr<const CompleteReading> CoIFCServer::ReadCompletely() {
  if (!completeReading) {
    completeReading = std::make_shared<const CompleteReading>(ReadBuilding(server));
  }
  return completeReading;
}

HRESULT CoIFCServer::get_Elements(IGeoElements** out) {
  return GiveChild<CoGeoElements>(elements, out, [this](CoGeoElements& made) {
    const auto reading = ReadCompletely();
    Factory<CoGeoElement> factory;
    HRESULT status = factory.Open();
    const std::size_t count = reading->GetBuilding().elements.size();
    for (std::size_t i = 0; SUCCEEDED(status) && i < count; ++i) {
      CoGeoElement* item = nullptr;
      status = factory.Append(made, &item);
      if (SUCCEEDED(status)) item->Show(reading, i);
    }
    return status;
  });
}

HRESULT CoIFCServer::get_Losses(IGeoLosses** out) {
  return GiveChild<CoGeoLosses>(losses, out, [this](CoGeoLosses& made) {
    const auto reading = ReadCompletely();
    Factory<CoGeoLoss> factory;
    HRESULT status = factory.Open();
    for (const BuildingLoss& loss : reading->GetBuilding().losses) {
      CoGeoLoss* item = nullptr;
      if (SUCCEEDED(status)) status = factory.Append(made, &item);
      if (FAILED(status)) break;
      item->loss = loss;
    }
    return status;
  });
}

}  // namespace KelIFC

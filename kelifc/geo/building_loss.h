#ifndef KELIFC_GEO_BUILDING_LOSS_H_
#define KELIFC_GEO_BUILDING_LOSS_H_

#include "kelifc/building/building.h"
#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/fields.h"
#include "kelifc/geo/reading/identity.h"

namespace KelIFC {

/// A product that could not be read. It has a copy of the loss.
class CoGeoLoss : public CoGeoLossBase {
 public:
  HRESULT get_Id(LONG* out) override { return GiveCount(loss.id, out); }
  HRESULT get_ClassName(BSTR* out) override { return GiveBuildingText(loss.className, out); }
  HRESULT get_GUID(BSTR* out) override { return GiveGuid(GuidOf(loss.guid), out); }
  HRESULT get_GlobalId(BSTR* out) override { return GiveBuildingText(loss.guid, out); }
  HRESULT get_Name(BSTR* out) override { return GiveBuildingText(loss.name, out); }
  HRESULT get_Reason(BSTR* out) override { return GiveBuildingText(TextOf(loss.reason), out); }
  HRESULT get_Line(LONG* out) override { return GiveCount(loss.line, out); }
  HRESULT get_At(LONG* out) override { return GiveCount(loss.at, out); }

  BuildingLoss loss;

 protected:
  ~CoGeoLoss() = default;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_BUILDING_LOSS_H_

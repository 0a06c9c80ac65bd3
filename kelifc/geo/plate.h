#ifndef KELIFC_GEO_PLATE_H_
#define KELIFC_GEO_PLATE_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/openings.h"
#include "kelifc/geo/polyline_element.h"

namespace KelIFC {

/// A plate: its outline in the middle of its thickness, a section with the thickness, and holes.
class CoGeoPlate : public PolylineElement<CoGeoPlateBase> {
 public:
  HRESULT get_Holes(IGeoHoles** out) override {
    return GiveOpenings<CoGeoHoles>(holes, out, server);
  }

 protected:
  ~CoGeoPlate() override = default;

 private:
  ComPtr<IGeoHoles> holes;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_PLATE_H_

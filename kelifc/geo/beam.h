#ifndef KELIFC_GEO_BEAM_H_
#define KELIFC_GEO_BEAM_H_

#include "kelifc/geo/boundary.h"
#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/creation.h"
#include "kelifc/geo/polyline_element.h"
#include "kelifc/geometry/placed_boundary.h"

namespace KelIFC {

/// A beam: an axis of two points and a section, or a boundary.
class CoGeoBeam : public PolylineElement<CoGeoBeamBase> {
 public:
  /// Stores the boundary object, which is created at the first call and has a copy of `boundary` in
  /// world coordinates.
  /// Its lists are empty if the solid of the beam is not faceted.
  HRESULT get_BRep(IGeoBRep** out) override {
    return GiveChild<CoGeoBRep>(boundaryObject, out, [this](CoGeoBRep& made) {
      made.boundary = boundary.ToWorld();
      return S_OK;
    });
  }

  PlacedBoundary boundary;  ///< of a faceted solid; otherwise without a shape

 protected:
  ~CoGeoBeam() override = default;

 private:
  ComPtr<IGeoBRep> boundaryObject;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_BEAM_H_

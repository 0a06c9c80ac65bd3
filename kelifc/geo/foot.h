#ifndef KELIFC_GEO_FOOT_H_
#define KELIFC_GEO_FOOT_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/geo_element.h"
#include "kelifc/geo/point.h"

namespace KelIFC {

/// A footing, with one point for its location.
class CoGeoFoot : public GeoElement<LocatedObject<CoGeoFootBase>> {
 protected:
  ~CoGeoFoot() override = default;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_FOOT_H_

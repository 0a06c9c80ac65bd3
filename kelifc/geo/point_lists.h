#ifndef KELIFC_GEO_POINT_LISTS_H_
#define KELIFC_GEO_POINT_LISTS_H_

#include <utility>
#include <vector>

#include "kelifc/geo/building_collections.h"
#include "kelifc/geo/creation.h"
#include "kelifc/geo/point.h"
#include "kelifc/geo/reading/element_points.h"

namespace KelIFC {

/// Stores the collection of closed outlines that `child` caches. At the first call it is created
/// with a copy of `outlines`, each of which is a list of points in the plane or in space.
template <class Points>
HRESULT GivePointLists(ComPtr<IGeoPointLists>& child, IGeoPointLists** out,
                       const std::vector<Points>& outlines) {
  return GiveChild<CoGeoPointLists>(child, out, [&](CoGeoPointLists& made) {
    for (const Points& outline : outlines) {
      ComPtr<IGeoPoints> list;
      ComPtr<IGeoPoints> given;
      const HRESULT status = GivePoints(list, given.Put(), PointsOf(outline));
      if (FAILED(status)) return status;
      made.Append(std::move(list));
    }
    return S_OK;
  });
}

}  // namespace KelIFC

#endif  // KELIFC_GEO_POINT_LISTS_H_

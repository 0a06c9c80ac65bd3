#include "kelifc/geo/building_profile.h"

#include <cstddef>
#include <string>

#include "kelifc/geo/fields.h"
#include "kelifc/geo/point.h"
#include "kelifc/geo/point_lists.h"
#include "kelifc/geo/reading/element_points.h"

namespace KelIFC {

HRESULT CoGeoProfile::get_Name(BSTR* out) { return GiveBuildingText(profile->name, out); }

HRESULT CoGeoProfile::get_Shape(BSTR* out) { return GiveBuildingText(TextOf(profile->shape), out); }

HRESULT CoGeoProfile::get_Designation(BSTR* out) {
  return GiveBuildingText(profile->designation, out);
}

HRESULT CoGeoProfile::get_NameContradicts(VARIANT_BOOL* out) {
  return GiveTruth(profile->nameContradicts, out);
}

HRESULT CoGeoProfile::get_Area(double* out) { return GetField(profile->area, out); }
HRESULT CoGeoProfile::get_Iy(double* out) { return GetField(profile->iy, out); }
HRESULT CoGeoProfile::get_Iz(double* out) { return GetField(profile->iz, out); }
HRESULT CoGeoProfile::get_Iyz(double* out) { return GetField(profile->iyz, out); }

HRESULT CoGeoProfile::Parameter(BSTR name, double* out) {
  if (out == nullptr) return E_POINTER;
  *out = 0.0;
  return Guard([&] {
    const std::string wanted = NarrowText(name);
    for (std::size_t i = 0; i < kProfileParameterCount; ++i) {
      const auto parameter = static_cast<ProfileParameter>(i);
      if (TextOf(parameter) == wanted) return GetField((*profile)[parameter], out);
    }
    return E_INVALIDARG;
  });
}

HRESULT CoGeoProfile::get_Outline(IGeoPoints** out) {
  return Guard([&] { return GivePoints(outline, out, PointsOf(profile->outline)); });
}

HRESULT CoGeoProfile::get_Holes(IGeoPointLists** out) {
  return GivePointLists(holes, out, profile->holes);
}

}  // namespace KelIFC

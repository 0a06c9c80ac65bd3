#ifndef KELIFC_GEO_BUILDING_PROFILE_H_
#define KELIFC_GEO_BUILDING_PROFILE_H_

#include <memory>
#include <utility>

#include "kelifc/building/profile.h"
#include "kelifc/geo/class_bases.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

/// A cross-section of the building model.
class CoGeoProfile : public CoGeoProfileBase {
 public:
  HRESULT get_Name(BSTR* out) override;
  HRESULT get_Shape(BSTR* out) override;
  HRESULT get_Designation(BSTR* out) override;
  HRESULT get_NameContradicts(VARIANT_BOOL* out) override;
  HRESULT get_Area(double* out) override;
  HRESULT get_Iy(double* out) override;
  HRESULT get_Iz(double* out) override;
  HRESULT get_Iyz(double* out) override;

  /// Stores a size by its name, as TextOf(ProfileParameter) returns it. Returns E_INVALIDARG for
  /// any other name.
  HRESULT Parameter(BSTR name, double* out) override;
  HRESULT get_Outline(IGeoPoints** out) override;
  HRESULT get_Holes(IGeoPointLists** out) override;

  /// Sets the profile. It is shared with the building that it belongs to.
  void SetProfile(std::shared_ptr<const BuildingProfile> shared) { profile = std::move(shared); }

 protected:
  ~CoGeoProfile() = default;

 private:
  std::shared_ptr<const BuildingProfile> profile = std::make_shared<BuildingProfile>();
  ComPtr<IGeoPoints> outline;
  ComPtr<IGeoPointLists> holes;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_BUILDING_PROFILE_H_

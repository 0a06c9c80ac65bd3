#ifndef KELIFC_GEO_BUILDING_ELEMENT_H_
#define KELIFC_GEO_BUILDING_ELEMENT_H_

#include <cstddef>
#include <memory>

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/reading/complete_reading.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

/// An element of the building model. Where it does not have a value, texts are empty, numbers are
/// 0, collections have no items, and other objects are null with the status S_OK. An element that a
/// host created by itself has no values.
class CoGeoElement : public CoGeoElementBase {
 public:
  HRESULT get_Id(LONG* out) override;
  HRESULT get_ClassName(BSTR* out) override;
  HRESULT get_GUID(BSTR* out) override;
  HRESULT get_GlobalId(BSTR* out) override;
  HRESULT get_Name(BSTR* out) override;
  HRESULT get_Tag(BSTR* out) override;
  HRESULT get_PredefinedType(BSTR* out) override;
  HRESULT get_StoreyNumber(SHORT* out) override;
  HRESULT get_StoreyNumberByHeight(SHORT* out) override;
  HRESULT get_StoreyName(BSTR* out) override;
  HRESULT get_PartOf(LONG* out) override;
  HRESULT get_Material(BSTR* out) override;
  HRESULT get_Kind(BSTR* out) override;
  HRESULT get_Source(BSTR* out) override;
  HRESULT get_Deviation(double* out) override;
  HRESULT get_VolumeRatio(double* out) override;
  HRESULT get_IsApproximate(VARIANT_BOOL* out) override;
  HRESULT get_Cutouts(LONG* out) override;

  // A member, or the lower edge of a curved wall.
  HRESULT get_AxisForm(BSTR* out) override;
  HRESULT get_Axis(IGeoPoints** out) override;
  HRESULT get_AxisY(IGeoPoint** out) override;
  HRESULT get_OffsetY(double* out) override;
  HRESULT get_OffsetZ(double* out) override;
  HRESULT get_Profile(IGeoProfile** out) override;
  HRESULT get_EndProfile(IGeoProfile** out) override;

  // A surface.
  HRESULT get_Outline(IGeoPoints** out) override;
  HRESULT get_Holes(IGeoPointLists** out) override;
  HRESULT get_Normal(IGeoPoint** out) override;
  HRESULT get_Thickness(double* out) override;
  HRESULT get_Height(double* out) override;

  // The body.
  HRESULT get_BoxMin(IGeoPoint** out) override;
  HRESULT get_BoxMax(IGeoPoint** out) override;
  HRESULT get_Volume(double* out) override;
  HRESULT get_IsClosed(VARIANT_BOOL* out) override;
  HRESULT get_Boundary(IGeoBRep** out) override;

  /// Shows the element at an index of Building::elements.
  void Show(std::shared_ptr<const CompleteReading> shared, std::size_t index);

 protected:
  ~CoGeoElement() = default;

 private:
  const BuildingElement& Element() const;
  HRESULT GiveProfile(ComPtr<IGeoProfile>& child, const BuildingIndex& index,
                      IGeoProfile** out) const;

  std::shared_ptr<const CompleteReading> reading;  // null in an element of a host
  const BuildingElement* element = nullptr;        // owned by `reading`
  ComPtr<IGeoPoints> axis;
  ComPtr<IGeoPoint> axisY;
  ComPtr<IGeoProfile> profile;
  ComPtr<IGeoProfile> endProfile;
  ComPtr<IGeoPoints> outline;
  ComPtr<IGeoPointLists> holes;
  ComPtr<IGeoPoint> normal;
  ComPtr<IGeoPoint> boxMin;
  ComPtr<IGeoPoint> boxMax;
  ComPtr<IGeoBRep> boundary;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_BUILDING_ELEMENT_H_

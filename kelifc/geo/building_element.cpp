#include "kelifc/geo/building_element.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kelifc/geo/boundary.h"
#include "kelifc/geo/building_profile.h"
#include "kelifc/geo/creation.h"
#include "kelifc/geo/fields.h"
#include "kelifc/geo/point.h"
#include "kelifc/geo/point_lists.h"
#include "kelifc/geo/reading/element_points.h"
#include "kelifc/geo/reading/identity.h"
#include "kelifc/geo/storey_number.h"

namespace KelIFC {

namespace {

/// Stores null. Returns E_POINTER if `out` is null.
template <class Interface>
HRESULT GiveNone(Interface** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  return S_OK;
}

Point3 PointAt(const Vector3& vector) { return {vector.x, vector.y, vector.z}; }

/// The points of a mesh and the outer loops of its faces.
BRep BoundaryOf(const Mesh& mesh) {
  BRep boundary;
  boundary.vertices.resize(mesh.points.size());
  for (std::size_t i = 0; i < mesh.points.size(); ++i) {
    boundary.vertices[i].position = mesh.points[i];
  }
  boundary.faces.resize(mesh.FaceCount());
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    if (mesh.LoopCount(face) == 0) continue;
    Mvector<int>& loop = boundary.faces[face].outerLoop;
    const Mesh::Loop indices = mesh.LoopOf(face, 0);
    loop.reserve(indices.size());
    for (const Mesh::Index index : indices) loop.push_back(static_cast<int>(index));
  }
  return boundary;
}

/// The curve of an element: a part of a member or of a curved wall.
struct Curve {
  std::string_view form;
  const std::vector<Point3>* points = nullptr;
};

Curve CurveOf(const BuildingElement& element) {
  if (element.member) return {TextOf(element.member->curve), &element.member->points};
  if (element.surface && element.surface->sweep) {
    return {TextOf(element.surface->sweep->curve), &element.surface->sweep->points};
  }
  return {};
}

}  // namespace

void CoGeoElement::Show(std::shared_ptr<const CompleteReading> shared, std::size_t index) {
  reading = std::move(shared);
  element = &reading->GetBuilding().elements[index];
}

const BuildingElement& CoGeoElement::Element() const {
  static const BuildingElement kEmpty;
  return element == nullptr ? kEmpty : *element;
}

HRESULT CoGeoElement::get_Id(LONG* out) { return GiveCount(Element().id, out); }

HRESULT CoGeoElement::get_ClassName(BSTR* out) {
  return GiveBuildingText(Element().className, out);
}

HRESULT CoGeoElement::get_GUID(BSTR* out) { return GiveGuid(GuidOf(Element().guid), out); }
HRESULT CoGeoElement::get_GlobalId(BSTR* out) { return GiveBuildingText(Element().guid, out); }
HRESULT CoGeoElement::get_Name(BSTR* out) { return GiveBuildingText(Element().name, out); }
HRESULT CoGeoElement::get_Tag(BSTR* out) { return GiveBuildingText(Element().tag, out); }

HRESULT CoGeoElement::get_PredefinedType(BSTR* out) {
  return GiveBuildingText(Element().type, out);
}

HRESULT CoGeoElement::get_StoreyNumber(SHORT* out) {
  return GetField(reading ? reading->StoreyNumberOf(Element().storey) : kNoStoreyNumber, out);
}

HRESULT CoGeoElement::get_StoreyNumberByHeight(SHORT* out) {
  return GetField(reading ? reading->StoreyNumberOf(Element().storeyByHeight) : kNoStoreyNumber,
                  out);
}

HRESULT CoGeoElement::get_StoreyName(BSTR* out) {
  const BuildingStorey* storey = reading ? reading->FindStorey(Element().storey) : nullptr;
  return GiveBuildingText(storey == nullptr ? std::string_view() : storey->name, out);
}

HRESULT CoGeoElement::get_PartOf(LONG* out) { return GiveCount(Element().partOf, out); }

HRESULT CoGeoElement::get_Material(BSTR* out) {
  const BuildingIndex index = Element().material;
  if (!index) return GiveBuildingText({}, out);
  return GiveBuildingText(reading->GetBuilding().materials[*index].name, out);
}

HRESULT CoGeoElement::get_Kind(BSTR* out) {
  return GiveBuildingText(element == nullptr ? std::string_view() : TextOf(element->kind), out);
}

HRESULT CoGeoElement::get_Source(BSTR* out) {
  return GiveBuildingText(element == nullptr ? std::string_view() : TextOf(element->source), out);
}

HRESULT CoGeoElement::get_Deviation(double* out) { return GetField(Element().deviation, out); }

HRESULT CoGeoElement::get_VolumeRatio(double* out) {
  return GetField(Element().volumeRatio.value_or(0.0), out);
}

HRESULT CoGeoElement::get_IsApproximate(VARIANT_BOOL* out) {
  return GiveTruth(Element().isApproximate, out);
}

HRESULT CoGeoElement::get_Cutouts(LONG* out) { return GiveCount(Element().cutouts, out); }

HRESULT CoGeoElement::get_AxisForm(BSTR* out) {
  return GiveBuildingText(CurveOf(Element()).form, out);
}

HRESULT CoGeoElement::get_Axis(IGeoPoints** out) {
  return Guard([&] {
    const Curve curve = CurveOf(Element());
    return GivePoints(axis, out,
                      curve.points == nullptr ? Mvector<Point3>() : PointsOf(*curve.points));
  });
}

HRESULT CoGeoElement::get_AxisY(IGeoPoint** out) {
  if (!Element().member) return GiveNone(out);
  return GivePoint(axisY, out, PointAt(Element().member->y));
}

HRESULT CoGeoElement::get_OffsetY(double* out) {
  return GetField(Element().member ? Element().member->offset.x : 0.0, out);
}

HRESULT CoGeoElement::get_OffsetZ(double* out) {
  return GetField(Element().member ? Element().member->offset.y : 0.0, out);
}

HRESULT CoGeoElement::GiveProfile(ComPtr<IGeoProfile>& child, const BuildingIndex& index,
                                  IGeoProfile** out) const {
  if (!index) return GiveNone(out);
  return GiveChild<CoGeoProfile>(child, out, [&](CoGeoProfile& made) {
    // The pointer shares the ownership of the whole reading.
    made.SetProfile({reading, &reading->GetBuilding().profiles[*index]});
    return S_OK;
  });
}

HRESULT CoGeoElement::get_Profile(IGeoProfile** out) {
  const auto& member = Element().member;
  return GiveProfile(profile, member ? BuildingIndex(member->profile) : std::nullopt, out);
}

HRESULT CoGeoElement::get_EndProfile(IGeoProfile** out) {
  const auto& member = Element().member;
  return GiveProfile(endProfile, member ? member->endProfile : std::nullopt, out);
}

HRESULT CoGeoElement::get_Outline(IGeoPoints** out) {
  return Guard([&] {
    const auto& surface = Element().surface;
    return GivePoints(outline, out, surface ? ChordedOutline(*surface) : Mvector<Point3>());
  });
}

HRESULT CoGeoElement::get_Holes(IGeoPointLists** out) {
  static const std::vector<std::vector<Point3>> kNone;
  return GivePointLists(holes, out, Element().surface ? Element().surface->holes : kNone);
}

HRESULT CoGeoElement::get_Normal(IGeoPoint** out) {
  if (!Element().surface || Element().surface->sweep) return GiveNone(out);
  return GivePoint(normal, out, PointAt(Element().surface->normal));
}

HRESULT CoGeoElement::get_Thickness(double* out) {
  return GetField(Element().surface ? Element().surface->thickness : 0.0, out);
}

HRESULT CoGeoElement::get_Height(double* out) {
  const auto& surface = Element().surface;
  return GetField(surface && surface->sweep ? surface->sweep->height : 0.0, out);
}

HRESULT CoGeoElement::get_BoxMin(IGeoPoint** out) {
  if (Element().body.box.IsEmpty()) return GiveNone(out);
  return GivePoint(boxMin, out, Element().body.box.min);
}

HRESULT CoGeoElement::get_BoxMax(IGeoPoint** out) {
  if (Element().body.box.IsEmpty()) return GiveNone(out);
  return GivePoint(boxMax, out, Element().body.box.max);
}

HRESULT CoGeoElement::get_Volume(double* out) {
  const BuildingBody& body = Element().body;
  return GetField(body.isClosed ? body.volume : 0.0, out);
}

HRESULT CoGeoElement::get_IsClosed(VARIANT_BOOL* out) {
  return GiveTruth(Element().body.isClosed, out);
}

HRESULT CoGeoElement::get_Boundary(IGeoBRep** out) {
  return GiveChild<CoGeoBRep>(boundary, out, [&](CoGeoBRep& made) {
    if (const auto& mesh = Element().body.mesh) made.boundary = BoundaryOf(*mesh);
    return S_OK;
  });
}

}  // namespace KelIFC

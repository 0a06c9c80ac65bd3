#include "kelifc/geo/beam.h"
#include "kelifc/geo/column.h"
#include "kelifc/geo/creation.h"
#include "kelifc/geo/foot.h"
#include "kelifc/geo/plate.h"
#include "kelifc/geo/reading/complete_reading.h"
#include "kelifc/geo/reading/element_points.h"
#include "kelifc/geo/reading/fill_complete.h"
#include "kelifc/geo/reading/fill_openings.h"
#include "kelifc/geo/reading/identity.h"
#include "kelifc/geo/reading/profile_section.h"
#include "kelifc/geo/structure.h"
#include "kelifc/geo/wall.h"

namespace KelIFC {

namespace {

/// What the conversion of one element needs.
struct Context {
  const CompleteReading& reading;
  CoGeoStructure& structure;
};

/// Appends the elements that the collection shows. `convert` sets the points and the section of a
/// new element: convert(made, element, context).
template <class Element, class Collection, class Convert>
HRESULT FillShown(Collection& collection, CoIFCServer& server, ShownAs shownAs, Convert&& convert) {
  collection.SetServer(server.Link());
  const auto reading = server.ReadCompletely();
  ComPtr<IGeoStructure> structure;
  HRESULT status = server.get_Structure(structure.Put());
  if (FAILED(status)) return status;
  const Context context{*reading, static_cast<CoGeoStructure&>(*structure)};
  Factory<Element> factory;
  status = factory.Open();
  const auto& elements = reading->GetBuilding().elements;
  for (std::size_t i = 0; SUCCEEDED(status) && i < elements.size(); ++i) {
    if (reading->ShownAsOf(i) != shownAs) continue;
    Element* made = nullptr;
    status = factory.Append(collection, &made);
    if (FAILED(status)) break;
    made->name = NameOf(elements[i].name, elements[i].id);
    made->dialect = STEP_DIALECT_ISO;
    made->guid = GuidOf(elements[i].guid);
    made->server = server.Link();
    made->storeyNumber = reading->StoreyNumberOf(elements[i].storey);
    status = convert(*made, elements[i], context);
  }
  return status;
}

/// Sets the ends of the axis and the section of the profile.
template <class Element>
HRESULT ConvertMember(Element& made, const BuildingElement& element, const Context& context) {
  const MemberAxis& member = *element.member;
  made.points.push_back(member.points.front());
  made.points.push_back(member.points.back());
  const auto& profiles = context.reading.GetBuilding().profiles;
  return EnsureProfileSection(context.structure, made, profiles[member.profile]);
}

HRESULT ConvertWall(CoGeoWall& made, const BuildingElement& element, const Context& context) {
  const SurfaceRegion& surface = *element.surface;
  for (const Point3& corner : DiagonalOf(surface.outline, surface.normal)) {
    made.points.push_back(corner);
  }
  const HRESULT status = context.structure.EnsureSectionThick(made, surface.thickness);
  return FAILED(status) ? status : FillWindowsAndDoors(made, element);
}

HRESULT ConvertPlate(CoGeoPlate& made, const BuildingElement& element, const Context& context) {
  made.points = ChordedOutline(*element.surface);
  const HRESULT status = context.structure.EnsureSectionThick(made, element.surface->thickness);
  return FAILED(status) ? status : FillHoles(made, element);
}

HRESULT ConvertFoot(CoGeoFoot& made, const BuildingElement& element, const Context&) {
  made.location = LowerCentreOf(element.body.box);
  return S_OK;
}

}  // namespace

HRESULT FillComplete(CoGeoColumns& collection, CoIFCServer& server) {
  return FillShown<CoGeoColumn>(collection, server, ShownAs::kColumn, ConvertMember<CoGeoColumn>);
}

HRESULT FillComplete(CoGeoBeams& collection, CoIFCServer& server) {
  return FillShown<CoGeoBeam>(collection, server, ShownAs::kBeam, ConvertMember<CoGeoBeam>);
}

HRESULT FillComplete(CoGeoWalls& collection, CoIFCServer& server) {
  return FillShown<CoGeoWall>(collection, server, ShownAs::kWall, ConvertWall);
}

HRESULT FillComplete(CoGeoPlates& collection, CoIFCServer& server) {
  return FillShown<CoGeoPlate>(collection, server, ShownAs::kPlate, ConvertPlate);
}

HRESULT FillComplete(CoGeoFoots& collection, CoIFCServer& server) {
  return FillShown<CoGeoFoot>(collection, server, ShownAs::kFoot, ConvertFoot);
}

}  // namespace KelIFC

#include "kelifc/geo/reading/fill_openings.h"

#include "kelifc/geo/creation.h"
#include "kelifc/geo/reading/element_points.h"
#include "kelifc/geo/reading/identity.h"

namespace KelIFC {

namespace {

/// Appends an element for an opening to the collection of `owner` that `get` returns. On success
/// `*made` points to it.
template <class Collection, class Element, class Owner, class Interface>
HRESULT Append(Owner& owner, HRESULT (Owner::*get)(Interface**), const BuildingOpening& opening,
               Element** made) {
  ComPtr<Interface> collection;
  HRESULT status = (owner.*get)(collection.Put());
  if (FAILED(status)) return status;
  Factory<Element> factory;
  status = factory.Open();
  if (SUCCEEDED(status)) {
    status = factory.Append(static_cast<Collection&>(*collection), made);
  }
  if (FAILED(status)) return status;
  (*made)->name = NameOf({}, opening.id);
  (*made)->guid = GuidOf(opening.guid);
  (*made)->server = owner.server;
  (*made)->storeyNumber = owner.storeyNumber;
  return status;
}

/// Appends a window or a door.
template <class Collection, class Element, class Interface>
HRESULT AppendCorners(CoGeoWall& wall, HRESULT (CoGeoWall::*get)(Interface**),
                      const BuildingOpening& opening, const Vector3& normal) {
  Element* made = nullptr;
  const HRESULT status = Append<Collection>(wall, get, opening, &made);
  if (FAILED(status) || opening.outline.empty()) return status;
  for (const Point3& corner : DiagonalOf(opening.outline, normal)) made->points.push_back(corner);
  return status;
}

}  // namespace

HRESULT FillWindowsAndDoors(CoGeoWall& wall, const BuildingElement& element) {
  const Vector3& normal = element.surface->normal;
  for (const BuildingOpening& opening : element.openings) {
    const HRESULT status =
        opening.kind == OpeningKind::kDoor
            ? AppendCorners<CoGeoDoors, CoGeoDoor>(wall, &CoGeoWall::get_Doors, opening, normal)
            : AppendCorners<CoGeoWindows, CoGeoWindow>(wall, &CoGeoWall::get_Windows, opening,
                                                       normal);
    if (FAILED(status)) return status;
  }
  return S_OK;
}

HRESULT FillHoles(CoGeoPlate& plate, const BuildingElement& element) {
  for (const BuildingOpening& opening : element.openings) {
    CoGeoHole* made = nullptr;
    const HRESULT status = Append<CoGeoHoles>(plate, &CoGeoPlate::get_Holes, opening, &made);
    if (FAILED(status)) return status;
    made->points = PointsOf(opening.outline);
  }
  return S_OK;
}

}  // namespace KelIFC

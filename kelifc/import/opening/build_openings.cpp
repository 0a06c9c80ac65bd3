#include "kelifc/import/opening/build_openings.h"

#include <utility>

#include "kelifc/geo/collections.h"
#include "kelifc/geo/creation.h"
#include "kelifc/import/element/fill_identity.h"

namespace KelIFC {

namespace {

/// Appends an element for an opening to the collection of `owner` that `get` returns. On success
/// `*element` points to it.
template <class Element, class Collection, class Owner, class Interface>
HRESULT Append(Owner& owner, HRESULT (Owner::*get)(Interface**), const OpeningFacts& opening,
               const ServerLink& server, Element** element) {
  ComPtr<Interface> collection;
  HRESULT status = (owner.*get)(collection.Put());
  if (FAILED(status)) return status;
  Factory<Element> factory;
  status = factory.Open();
  if (FAILED(status)) return status;
  status = factory.Append(static_cast<Collection&>(*collection), element);
  if (SUCCEEDED(status)) FillIdentity(opening.identity, server, **element);
  return status;
}

template <class Element, class Collection, class Interface>
HRESULT AppendFilled(CoGeoWall& wall, HRESULT (CoGeoWall::*get)(Interface**),
                     const OpeningFacts& opening, const ServerLink& server) {
  Element* element = nullptr;
  const HRESULT status = Append<Element, Collection>(wall, get, opening, server, &element);
  if (FAILED(status)) return status;
  element->points.resize(2);
  OpeningCorners(opening, element->points[0], element->points[1]);
  return status;
}

}  // namespace

HRESULT ConvertHoles(CoGeoPlate& plate, const std::vector<OpeningFacts>& openings,
                     const ServerLink& server) {
  for (const OpeningFacts& opening : openings) {
    CoGeoHole* hole = nullptr;
    const HRESULT status =
        Append<CoGeoHole, CoGeoHoles>(plate, &CoGeoPlate::get_Holes, opening, server, &hole);
    if (FAILED(status)) return status;
    hole->points = OpeningContour(opening);
    ApplyPlacementChain(opening.chain, hole->points);
  }
  return S_OK;
}

HRESULT ConvertWindowsAndDoors(CoGeoWall& wall, const std::vector<OpeningFacts>& openings,
                               const ServerLink& server) {
  for (const OpeningFacts& opening : openings) {
    HRESULT status = S_OK;
    if (opening.use == OpeningUse::kWindow) {
      status =
          AppendFilled<CoGeoWindow, CoGeoWindows>(wall, &CoGeoWall::get_Windows, opening, server);
    } else if (opening.use == OpeningUse::kDoor) {
      status = AppendFilled<CoGeoDoor, CoGeoDoors>(wall, &CoGeoWall::get_Doors, opening, server);
    }
    if (FAILED(status)) return status;
  }
  return S_OK;
}

}  // namespace KelIFC

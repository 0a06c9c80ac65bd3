#include <utility>
#include <vector>

#include "kelifc/geo/foot.h"
#include "kelifc/import/element/element_maker.h"
#include "kelifc/import/element/fill_elements.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/shape/read_placements.h"

namespace KelIFC {

namespace {

using FootMaker = ElementMaker<CoGeoFoot, CoGeoFoots>;

/// Strip footings, beams and pile caps are no foots. A foot stands at the origin of its footing's
/// placement; the solid is not read.
template <class Release, class Footing>
HRESULT ConvertFooting(FootMaker& maker, const Footing& footing, const IfcServer& server,
                       PlacementReader<Release>& placements) {
  if (!IsFoot(footing)) return S_FALSE;
  CoGeoFoot* foot = nullptr;
  const HRESULT status = maker.Make(ReadIdentity(footing, server), &foot);
  if (FAILED(status)) return status;
  ApplyPlacementChain(placements.Read(footing.GetObjectPlacement()), foot->location);
  return S_OK;
}

/// A failure does not end the walk: the last footing's status counts.
template <class Release>
HRESULT ConvertFootings(CoGeoFoots& collection, CoIFCServer& server) {
  if (!HasFootings(Release())) return S_OK;
  FootMaker maker(collection, server);
  HRESULT status = maker.Open();
  if (FAILED(status)) return status;
  PlacementReader<Release> placements(server.GetLengthScale());
  for (const auto* footing : CollectFootings(server.Model(), Release())) {
    status = ConvertFooting<Release>(maker, *footing, server.Model(), placements);
  }
  return status;
}

}  // namespace

HRESULT FillFoots(CoGeoFoots& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter, [&](auto release) {
    return ConvertFootings<decltype(release)>(collection, server);
  });
}

}  // namespace KelIFC

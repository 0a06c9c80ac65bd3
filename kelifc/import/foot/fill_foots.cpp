#include "kelifc/geo/foot.h"
#include "kelifc/import/element/element_maker.h"
#include "kelifc/import/element/fill_elements.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/model/instances.h"
#include "kelifc/import/shape/read_placements.h"

namespace KelIFC {

namespace {

using FootMaker = ElementMaker<CoGeoFoot, CoGeoFoots>;

/// Whether a footing is converted: strip footings, footing beams and pile caps are not.
template <class FootingType>
bool IsFoot(FootingType type) {
  return type == FootingType::IfcFootingTypeEnum_NOTDEFINED ||
         type == FootingType::IfcFootingTypeEnum_PAD_FOOTING;
}

/// Adds a foot at the origin of the footing's placement. The solid is not read. Returns S_FALSE for
/// a footing that is not converted.
template <class Release>
HRESULT ConvertFooting(FootMaker& maker, const typename Release::IfcFooting& footing,
                       const IfcServer& server, PlacementReader<Release>& placements) {
  if (!IsFoot(footing.GetPredefinedType())) return S_FALSE;
  CoGeoFoot* foot = nullptr;
  const HRESULT status = maker.Make(ReadIdentity(footing, server), &foot);
  if (FAILED(status)) return status;
  ApplyPlacementChain(placements.Read(footing.GetObjectPlacement()), foot->location);
  return S_OK;
}

/// Returns the status of the last footing: a failure does not stop the conversion.
template <class Release>
HRESULT ConvertFootings(CoGeoFoots& collection, CoIFCServer& server) {
  FootMaker maker(collection, server);
  HRESULT status = maker.Open();
  if (FAILED(status)) return status;
  PlacementReader<Release> placements(server.GetLengthScale());
  for (const auto* footing : CollectInstances<typename Release::IfcFooting>(server.Model())) {
    status = ConvertFooting<Release>(maker, *footing, server.Model(), placements);
  }
  return status;
}

}  // namespace

HRESULT FillFoots(CoGeoFoots& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter, [&](auto release) {
    if constexpr (HasFootings(release)) {
      return ConvertFootings<decltype(release)>(collection, server);
    } else {
      return S_OK;
    }
  });
}

}  // namespace KelIFC

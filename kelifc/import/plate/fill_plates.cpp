#include <utility>

#include "kelifc/import/element/element_maker.h"
#include "kelifc/import/element/fill_elements.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/model/instances.h"
#include "kelifc/import/opening/build_openings.h"
#include "kelifc/import/plate/read_plate.h"

namespace KelIFC {

namespace {

using PlateMaker = ElementMaker<CoGeoPlate, CoGeoPlates>;

/// Adds a plate with its holes. A slab whose profile is not supported adds nothing.
HRESULT BuildPlate(PlateMaker& maker, const PlateFacts& facts) {
  std::optional<PlateShape> shape = ExtractPlateShape(facts.solid);
  if (!shape) return S_OK;
  CoGeoPlate* plate = nullptr;
  HRESULT status = maker.Make(facts.identity, &plate);
  if (FAILED(status)) return status;
  plate->points = std::move(shape->contour);
  ApplyPlacementChain(facts.chain, plate->points);
  status = maker.Structure().EnsureSectionThick(*plate, shape->thickness);
  if (FAILED(status)) return status;
  return ConvertHoles(*plate, facts.openings, maker.Link());
}

/// Stops with S_OK at the first slab whose item is PlateItem::kNone; the slabs after it are not
/// converted.
template <class Release>
HRESULT ConvertPlates(CoGeoPlates& collection, CoIFCServer& server) {
  PlateMaker maker(collection, server);
  HRESULT status = maker.Open();
  if (FAILED(status)) return status;
  const double scale = server.GetLengthScale();
  PlacementReader<Release> placements(scale);
  for (const auto* slab : CollectInstances<typename Release::IfcSlab>(server.Model())) {
    const PlateFacts facts = ReadPlate<Release>(*slab, server.Model(), placements, scale);
    if (facts.item == PlateItem::kNone) return S_OK;
    if (facts.item == PlateItem::kUnused) continue;
    status = BuildPlate(maker, facts);
    if (FAILED(status)) return status;
  }
  return S_OK;
}

}  // namespace

HRESULT FillPlates(CoGeoPlates& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter, [&](auto release) {
    return ConvertPlates<decltype(release)>(collection, server);
  });
}

}  // namespace KelIFC

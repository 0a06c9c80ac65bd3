#include "kelifc/import/element/element_maker.h"
#include "kelifc/import/element/fill_elements.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/model/instances.h"
#include "kelifc/import/opening/build_openings.h"
#include "kelifc/import/wall/read_wall.h"

namespace KelIFC {

namespace {

using WallMaker = ElementMaker<CoGeoWall, CoGeoWalls>;

/// Adds a wall with its windows and doors. A wall whose profile is not supported adds nothing.
HRESULT BuildWall(WallMaker& maker, const WallFacts& facts) {
  const std::optional<WallBox> box = ExtractWallBox(facts.solid);
  if (!box) return S_OK;
  CoGeoWall* wall = nullptr;
  HRESULT status = maker.Make(facts.identity, &wall);
  if (FAILED(status)) return status;
  wall->points.push_back(box->first);
  wall->points.push_back(box->second);
  ApplyPlacementChain(facts.chain, wall->points);
  status = maker.Structure().EnsureSectionThick(*wall, box->thickness);
  if (FAILED(status)) return status;
  return ConvertWindowsAndDoors(*wall, facts.openings, maker.Link());
}

template <class Release>
HRESULT ConvertWalls(CoGeoWalls& collection, CoIFCServer& server) {
  WallMaker maker(collection, server);
  HRESULT status = maker.Open();
  if (FAILED(status)) return status;
  const double scale = server.GetLengthScale();
  PlacementReader<Release> placements(scale);
  for (const auto* wall : CollectInstances<typename Release::IfcWall>(server.Model())) {
    const auto facts = ReadWall<Release>(*wall, server.Model(), placements, scale);
    if (!facts) continue;
    status = BuildWall(maker, *facts);
    if (FAILED(status)) return status;
  }
  return S_OK;
}

}  // namespace

HRESULT FillWalls(CoGeoWalls& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter, [&](auto release) {
    return ConvertWalls<decltype(release)>(collection, server);
  });
}

}  // namespace KelIFC

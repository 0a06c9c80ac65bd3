#include "kelifc/import/wall/read_wall.h"

#include <string>

#include "kelifc/core/references/cast_cache.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/model/read_items.h"
#include "kelifc/import/opening/read_openings.h"
#include "kelifc/import/shape/read_extrusion.h"

namespace KelIFC {

namespace {

/// The identifier of the representations that walls are read from.
constexpr char kBody[] = "Body";

/// Returns the first extrusion of the body, null if there is none. Other items are ignored.
template <class Release>
const typename Release::IfcExtrudedAreaSolid* ChooseWallItem(
    const typename Release::IfcWall& wall) {
  const typename Release::IfcExtrudedAreaSolid* chosen = nullptr;
  ForEachItem<Release>(wall, [&](const auto& representation, const IfcRepresentationItem& item) {
    if (std::string(representation.GetRepresentationIdentifier()) != kBody) return true;
    chosen = CachedCast<typename Release::IfcExtrudedAreaSolid>(&item);
    return chosen == nullptr;
  });
  return chosen;
}

}  // namespace

template <class Release>
std::optional<WallFacts> ReadWall(const typename Release::IfcWall& wall, const IfcServer& server,
                                  PlacementReader<Release>& placements, double scale) {
  const auto* solid = ChooseWallItem<Release>(wall);
  if (solid == nullptr) return std::nullopt;
  WallFacts facts;
  facts.identity = ReadIdentity(wall, server);
  facts.solid = ReadExtrusion<Release>(*solid, scale);
  facts.chain = placements.Read(wall.GetObjectPlacement());
  facts.openings = ReadOpenings<Release>(wall, server, placements, scale);
  return facts;
}

template std::optional<WallFacts> ReadWall<Release2x>(const Release2x::IfcWall&, const IfcServer&,
                                                      PlacementReader<Release2x>&, double);
template std::optional<WallFacts> ReadWall<Release2x2>(const Release2x2::IfcWall&, const IfcServer&,
                                                       PlacementReader<Release2x2>&, double);
template std::optional<WallFacts> ReadWall<Release2x3>(const Release2x3::IfcWall&, const IfcServer&,
                                                       PlacementReader<Release2x3>&, double);

}  // namespace KelIFC

#include "kelifc/import/plate/read_plate.h"

#include "kelifc/core/references/cast_cache.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/model/read_items.h"
#include "kelifc/import/opening/read_openings.h"
#include "kelifc/import/shape/read_extrusion.h"

namespace KelIFC {

namespace {

/// Whether the item is one of the solids for which a slab is skipped.
template <class Release>
bool IsUnusedSolid(const IfcRepresentationItem* item) {
  return CachedCast<typename Release::IfcFacetedBrep>(item) != nullptr ||
         CachedCast<typename Release::IfcShellBasedSurfaceModel>(item) != nullptr ||
         CachedCast<typename Release::IfcBooleanClippingResult>(item) != nullptr;
}

/// Returns the first extrusion, null if there is none, and sets the kind of item.
template <class Release>
const typename Release::IfcExtrudedAreaSolid* ChoosePlateItem(const typename Release::IfcSlab& slab,
                                                              PlateItem& kind) {
  const typename Release::IfcExtrudedAreaSolid* chosen = nullptr;
  kind = PlateItem::kNone;
  ForEachItem<Release>(slab, [&](const auto&, const IfcRepresentationItem& item) {
    chosen = CachedCast<typename Release::IfcExtrudedAreaSolid>(&item);
    if (chosen != nullptr) {
      kind = PlateItem::kExtrusion;
    } else if (kind == PlateItem::kNone && IsUnusedSolid<Release>(&item)) {
      kind = PlateItem::kUnused;
    }
    return chosen == nullptr;
  });
  return chosen;
}

}  // namespace

template <class Release>
PlateFacts ReadPlate(const typename Release::IfcSlab& slab, const IfcServer& server,
                     PlacementReader<Release>& placements, double scale) {
  PlateFacts facts;
  const auto* solid = ChoosePlateItem<Release>(slab, facts.item);
  if (solid == nullptr) return facts;
  facts.identity = ReadIdentity(slab, server);
  facts.solid = ReadExtrusion<Release>(*solid, scale);
  facts.chain = placements.Read(slab.GetObjectPlacement());
  facts.openings = ReadOpenings<Release>(slab, server, placements, scale);
  return facts;
}

template PlateFacts ReadPlate<Release2x>(const Release2x::IfcSlab&, const IfcServer&,
                                         PlacementReader<Release2x>&, double);
template PlateFacts ReadPlate<Release2x2>(const Release2x2::IfcSlab&, const IfcServer&,
                                          PlacementReader<Release2x2>&, double);
template PlateFacts ReadPlate<Release2x3>(const Release2x3::IfcSlab&, const IfcServer&,
                                          PlacementReader<Release2x3>&, double);

}  // namespace KelIFC

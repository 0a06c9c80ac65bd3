#include "kelifc/import/opening/read_openings.h"

#include <cstddef>

#include "kelifc/core/references/cast_cache.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/model/read_items.h"
#include "kelifc/import/shape/read_extrusion.h"
#include "kelifc/import/shape/read_values.h"

namespace KelIFC {

namespace {

/// An unfilled opening whose own placement is lower than this is a door. In metres, above the
/// placement that it is relative to.
constexpr double kDoorHeight = 0.001;

/// Returns the use that the first window or door among the fillings implies.
template <class Fillings, class Release>
OpeningUse UseByFillings(const Fillings& fillings, Release) {
  for (std::size_t i = 1; i <= fillings.GetSize(); ++i) {
    const auto* element =
        fillings[i] == nullptr ? nullptr : fillings[i]->GetRelatedBuildingElement();
    if (CachedCast<typename Release::IfcWindow>(element) != nullptr) {
      return OpeningUse::kWindow;
    }
    if (CachedCast<typename Release::IfcDoor>(element) != nullptr) {
      return OpeningUse::kDoor;
    }
  }
  return OpeningUse::kNothing;
}

/// Returns the use that the height of the opening's own placement implies.
template <class Release>
OpeningUse UseByHeight(const typename Release::IfcOpeningElement& opening, double scale) {
  const auto* local = CachedCast<typename Release::IfcLocalPlacement>(opening.GetObjectPlacement());
  if (local == nullptr) return OpeningUse::kNothing;
  const auto* placement =
      CachedCast<typename Release::IfcAxis2Placement3D>(local->GetRelativePlacement());
  if (placement == nullptr) return OpeningUse::kNothing;
  const double height = FrameOf(placement, scale).translation.z;
  return kDoorHeight > height ? OpeningUse::kDoor : OpeningUse::kWindow;
}

template <class Release>
OpeningUse UseOf(const typename Release::IfcOpeningElement& opening, double scale) {
  const auto fillings = opening.GetHasFillings();
  return fillings.GetEmpty() ? UseByHeight<Release>(opening, scale)
                             : UseByFillings(fillings, Release());
}

template <class Release>
std::optional<ExtrusionFacts> FirstExtrusion(const typename Release::IfcOpeningElement& opening,
                                             double scale) {
  std::optional<ExtrusionFacts> found;
  ForEachItem<Release>(opening, [&](const auto&, const IfcRepresentationItem& item) {
    const auto* solid = CachedCast<typename Release::IfcExtrudedAreaSolid>(&item);
    if (solid != nullptr) found = ReadExtrusion<Release>(*solid, scale, true);
    return solid == nullptr;
  });
  return found;
}

}  // namespace

template <class Release>
std::vector<OpeningFacts> ReadOpenings(const typename Release::IfcBuildingElement& element,
                                       const IfcServer& server,
                                       PlacementReader<Release>& placements, double scale) {
  std::vector<OpeningFacts> openings;
  const auto relations = element.GetHasOpenings();
  for (std::size_t i = 1; i <= relations.GetSize(); ++i) {
    const auto* opening =
        relations[i] == nullptr ? nullptr : relations[i]->GetRelatedOpeningElement();
    if (opening == nullptr) continue;
    OpeningFacts& facts = openings.emplace_back();
    facts.identity = ReadIdentity(*opening, server);
    facts.use = UseOf<Release>(*opening, scale);
    facts.solid = FirstExtrusion<Release>(*opening, scale);
    facts.chain = placements.Read(opening->GetObjectPlacement());
  }
  return openings;
}

template std::vector<OpeningFacts> ReadOpenings<Release2x>(const Release2x::IfcBuildingElement&,
                                                           const IfcServer&,
                                                           PlacementReader<Release2x>&, double);
template std::vector<OpeningFacts> ReadOpenings<Release2x2>(const Release2x2::IfcBuildingElement&,
                                                            const IfcServer&,
                                                            PlacementReader<Release2x2>&, double);
template std::vector<OpeningFacts> ReadOpenings<Release2x3>(const Release2x3::IfcBuildingElement&,
                                                            const IfcServer&,
                                                            PlacementReader<Release2x3>&, double);

}  // namespace KelIFC

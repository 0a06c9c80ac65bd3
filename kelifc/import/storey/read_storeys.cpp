#include "kelifc/import/storey/read_storeys.h"

#include <cstddef>
#include <utility>

#include "kelifc/core/references/cast_cache.h"
#include "kelifc/import/model/all_releases.h"

namespace KelIFC {

namespace {

constexpr std::size_t kZ = 3;

/// Returns 0 if there is no placement in space. The z of a point with two coordinates is unset,
/// which is 0 as well.
template <class Release>
double StoreyLevel(const typename Release::IfcBuildingStorey& storey) {
  const auto* placement =
      CachedCast<typename Release::IfcLocalPlacement>(storey.GetObjectPlacement());
  if (placement == nullptr) return 0.0;
  const auto* relative =
      CachedCast<typename Release::IfcAxis2Placement3D>(placement->GetRelativePlacement());
  if (relative == nullptr) return 0.0;
  const IfcCartesianPoint* location = relative->GetLocation();
  return location == nullptr ? 0.0 : static_cast<double>(location->GetCoordinates().GetItem(kZ));
}

}  // namespace

template <class Release>
std::vector<StoreyFacts> ReadStoreys(const IfcServer& server) {
  std::vector<StoreyFacts> storeys;
  for (const auto* storey : CollectInstances<typename Release::IfcBuildingStorey>(server)) {
    StoreyFacts facts;
    facts.level = StoreyLevel<Release>(*storey);
    facts.elevation = storey->GetElevation();
    facts.name = storey->GetName();
    facts.dialect = server.GetDialect();
    facts.guid = storey->GetGlobalGUID();
    if (facts.name.empty()) facts.instanceNumber = server.Find(storey);
    storeys.push_back(std::move(facts));
  }
  return storeys;
}

template std::vector<StoreyFacts> ReadStoreys<Release2x>(const IfcServer& server);
template std::vector<StoreyFacts> ReadStoreys<Release2x2>(const IfcServer& server);
template std::vector<StoreyFacts> ReadStoreys<Release2x3>(const IfcServer& server);

}  // namespace KelIFC

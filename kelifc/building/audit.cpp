#include "kelifc/building/audit.h"

#include <algorithm>
#include <map>
#include <unordered_map>

#include "kelifc/building/build/storeys.h"

namespace KelIFC {
namespace {

using ClassMap = std::map<std::string, ClassAudit>;

void CountElement(ClassAudit& audit, const BuildingElement& element) {
  BuildingTotals& totals = audit.totals;
  ++totals.products;
  ++(element.kind == ElementKind::kMember    ? totals.members
     : element.kind == ElementKind::kSurface ? totals.surfaces
                                             : totals.bodies);
  if (element.isApproximate) ++totals.approximate;
}

void CountLoss(ClassAudit& audit, const BuildingLoss& loss) {
  ++audit.totals.products;
  ++audit.totals.lost;
  const auto reason = static_cast<std::size_t>(loss.reason);
  if (reason < audit.lost.size()) ++audit.lost[reason];
}

std::vector<ClassAudit> AuditClasses(const Building& building) {
  ClassMap classes;
  for (const BuildingElement& element : building.elements) {
    CountElement(classes[element.className], element);
  }
  for (const BuildingLoss& loss : building.losses) CountLoss(classes[loss.className], loss);
  for (const BuildingWhole& whole : building.decomposed) {
    BuildingTotals& totals = classes[whole.className].totals;
    ++totals.products;
    ++totals.decomposed;
  }
  std::vector<ClassAudit> list;
  for (auto& [name, audit] : classes) {
    audit.className = name;
    list.push_back(std::move(audit));
  }
  return list;
}

/// Neighbours in the list are those that can be equal, because it is sorted by elevation.
void FindElevations(const Building& building, std::vector<StoreyAudit>& audits) {
  StoreyAudit* lower = nullptr;
  for (std::size_t i = 0; i < audits.size(); ++i) {
    StoreyAudit& audit = audits[i];
    if (!building.storeys[i].hasElevation) {
      audit.finding = ElevationFinding::kMissing;
      continue;
    }
    if (lower != nullptr && audit.elevation - lower->elevation < building::kSameElevation) {
      audit.finding = lower->finding = ElevationFinding::kEqual;
    }
    lower = &audit;
  }
}

std::vector<StoreyAudit> AuditStoreys(const Building& building) {
  std::vector<StoreyAudit> audits(building.storeys.size());
  std::unordered_map<std::size_t, StoreyAudit*> byId;
  for (std::size_t i = 0; i < audits.size(); ++i) {
    const BuildingStorey& storey = building.storeys[i];
    audits[i].id = storey.id;
    audits[i].name = storey.name;
    audits[i].elevation = storey.elevation;
    byId.emplace(storey.id, &audits[i]);
  }
  FindElevations(building, audits);
  for (const BuildingElement& element : building.elements) {
    const auto stated = byId.find(element.storey);
    const auto byHeight = byId.find(element.storeyByHeight);
    if (byHeight != byId.end()) ++byHeight->second->byHeight;
    if (stated == byId.end()) continue;
    ++stated->second->stated;
    if (byHeight != byId.end() && byHeight != stated) {
      stated->second->differing.push_back(element.id);
    }
  }
  return audits;
}

}  // namespace

BuildingAudit Audit(const Building& building) {
  BuildingAudit audit;
  audit.classes = AuditClasses(building);
  audit.storeys = AuditStoreys(building);
  const auto missing = std::count_if(
      audit.storeys.begin(), audit.storeys.end(),
      [](const StoreyAudit& storey) { return storey.finding == ElevationFinding::kMissing; });
  audit.hasMixedElevations =
      missing != 0 && static_cast<std::size_t>(missing) != audit.storeys.size();
  return audit;
}

}  // namespace KelIFC

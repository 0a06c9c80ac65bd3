#include "export/svg/plan.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <utility>

#include "export/svg/element_form.h"

namespace KelIFC::exporting::svg {
namespace {

constexpr double kCutAboveFloor = 1.2;  // the height of the cut above the floor, in metres
constexpr double kCutShareOfLow = 0.6;  // the same as a share of the height of a low storey
constexpr double kSameHeight = 1e-3;    // heights that differ by less are one, in metres
constexpr double kSameCut = 0.05;       // cuts that differ by less show the same, in metres
constexpr double kFloorBuildUp = 0.4;   // the top of a floor slab is at most so far below a floor
constexpr double kAboveCeiling = 0.3;   // an element of a storey begins at most so far above it
constexpr double kBelowFloor = 1.0;     // and it ends at most so far below its floor
constexpr std::size_t kFurtherItems = 20;  // of an element, on average
constexpr std::size_t kFreeFurtherItems = 100'000;
constexpr std::size_t kPointsPerCost = 100;  // so many points of a body cost as much as an item

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

bool HasUsableBox(const BuildingElement& element) {
  const BuildingBox& box = element.box;
  return !box.IsEmpty() && std::isfinite(box.min.x) && std::isfinite(box.min.y) &&
         std::isfinite(box.min.z) && std::isfinite(box.max.x) && std::isfinite(box.max.y) &&
         std::isfinite(box.max.z);
}

Look LookOf(const BuildingElement& element, const Plan& plan) {
  const double low = element.box.min.z;
  const double high = element.box.max.z;
  if (low >= plan.cut - kSameHeight) return Look::kAbove;
  if (high > plan.cut + kSameHeight) return Look::kCut;
  const double visible = IsFlat(element) ? plan.floor - kFloorBuildUp : plan.floor + 0.02;
  return high > visible ? Look::kBelow : Look::kHidden;
}

// How much of the budget an element takes for each further plan.
std::size_t CostOf(const BuildingElement& element) {
  const auto& mesh = element.body.mesh;
  return 1 + (mesh ? mesh->points.size() / kPointsPerCost : 0);
}

// The lowest and the highest z of the elements of a plan.
struct Content {
  double low = 1e300;
  double high = -1e300;
};

// The plans of a building while they are arranged. Plan 0 is that of the elements without a storey.
class Arrangement {
 public:
  explicit Arrangement(const Building& building) : building(building) {
    plans.resize(building.storeys.size() + 1);
    for (std::size_t i = 0; i < building.storeys.size(); ++i) {
      plans[i + 1].storey = &building.storeys[i];
      planOfStorey.emplace(building.storeys[i].id, i + 1);
    }
  }

  PlanSet Arrange() {
    std::vector<std::size_t> homes;
    homes.reserve(building.elements.size());
    for (const BuildingElement& element : building.elements) homes.push_back(HomeOf(element));
    SetHeights(homes);
    SortCuts();
    std::size_t budget = kFreeFurtherItems;
    for (const BuildingElement& element : building.elements) {
      budget += kFurtherItems * CostOf(element);
    }
    for (std::size_t i = 0; i < homes.size(); ++i) {
      if (HasUsableBox(building.elements[i])) Place(i, homes[i], budget);
    }
    return {Sorted(), leftOut};
  }

 private:
  std::size_t PlanOf(std::size_t storey) const {
    const auto found = planOfStorey.find(storey);
    return found == planOfStorey.end() ? 0 : found->second;
  }

  // The plan of the storey that contains the element. If the element lies outside of this storey,
  // that of the storey by its height.
  std::size_t HomeOf(const BuildingElement& element) const {
    const std::size_t stated = PlanOf(element.storey);
    const std::size_t byHeight = PlanOf(element.storeyByHeight);
    if (stated == 0 || byHeight == 0) return std::max(stated, byHeight);
    const BuildingStorey& storey = *plans[stated].storey;
    if (!storey.hasElevation) return stated;
    const bool isAbove =
        storey.height && element.box.min.z > storey.elevation + *storey.height + kAboveCeiling;
    const bool isBelow = element.box.max.z < storey.elevation - kBelowFloor;
    return isAbove || isBelow ? byHeight : stated;
  }

  void SetHeights(const std::vector<std::size_t>& homes) {
    std::vector<Content> contents(plans.size());
    for (std::size_t i = 0; i < homes.size(); ++i) {
      const BuildingElement& element = building.elements[i];
      if (!HasUsableBox(element)) continue;
      Content& content = contents[homes[i]];
      content.low = std::min(content.low, element.box.min.z);
      content.high = std::max(content.high, element.box.max.z);
    }
    for (std::size_t i = 0; i < plans.size(); ++i) SetHeight(plans[i], contents[i]);
  }

  // A floor is at the elevation of the storey. It is at the lowest point of the elements if there
  // is no elevation, or if all elements are so far away that the elevation must be wrong.
  static void SetHeight(Plan& plan, const Content& content) {
    const bool hasContent = content.low <= content.high;
    const bool hasElevation = plan.storey != nullptr && plan.storey->hasElevation;
    double above = kCutAboveFloor;
    plan.floor = hasContent ? content.low : 0.0;
    if (hasElevation) {
      const double elevation = plan.storey->elevation;
      const bool isWrong =
          !plan.storey->height && hasContent && content.high - content.low >= kCutAboveFloor &&
          (content.low >= elevation + kCutAboveFloor || content.high <= elevation - kBelowFloor);
      if (!isWrong) plan.floor = elevation;
      if (plan.storey->height) above = std::min(above, kCutShareOfLow * *plan.storey->height);
    }
    plan.cut = plan.floor + above;
  }

  void SortCuts() {
    for (std::size_t i = 1; i < plans.size(); ++i) cuts.emplace_back(plans[i].cut, i);
    std::sort(cuts.begin(), cuts.end());
  }

  // The position in `cuts` of the first cut that is higher than z.
  std::size_t FirstCutAbove(double z) const {
    const auto above = std::upper_bound(cuts.begin(), cuts.end(), std::pair(z, kNone));
    return static_cast<std::size_t>(above - cuts.begin());
  }

  void Add(std::size_t plan, std::size_t element, Look look, bool hasLabel) {
    plans[plan].items.push_back({element, look, hasLabel});
  }

  void Place(std::size_t index, std::size_t home, std::size_t& budget) {
    const BuildingElement& element = building.elements[index];
    const Look look = LookOf(element, plans[home]);
    const std::size_t under = IsLevelMember(element) ? PlanUnder(element, home) : kNone;
    Add(home, index, look, under == kNone);
    if (under != kNone) Add(under, index, Look::kAbove, true);
    const std::size_t carried = PlanOf(element.storeyByHeight);
    if (IsFlat(element) && carried != 0 && carried != home) {
      const Look there = LookOf(element, plans[carried]);
      if (there != Look::kCut) Add(carried, index, there, false);
    }
    PlaceCuts(index, home, budget);
  }

  // The plan of the nearest storey whose cut is under a beam. None if it is the home of the beam,
  // or shows the same as the home.
  std::size_t PlanUnder(const BuildingElement& element, std::size_t home) const {
    const std::size_t above = FirstCutAbove(element.box.min.z + kSameHeight);
    if (above == 0) return kNone;
    const auto& [cut, plan] = cuts[above - 1];
    const bool isHome = plan == home || std::abs(cut - plans[home].cut) <= kSameCut;
    return isHome ? kNone : plan;
  }

  // Adds the element to the plans that cut it, without those that show the same as its home.
  void PlaceCuts(std::size_t index, std::size_t home, std::size_t& budget) {
    const BuildingBox& box = building.elements[index].box;
    const std::size_t first = FirstCutAbove(box.min.z + kSameHeight);
    const std::size_t last = std::max(first, FirstCutAbove(box.max.z - kSameHeight));
    const std::size_t firstSame = FirstCutAbove(plans[home].cut - kSameCut);
    const std::size_t lastSame = FirstCutAbove(plans[home].cut + kSameCut);
    PlaceCuts(index, first, std::min(last, firstSame), budget);
    PlaceCuts(index, std::max(first, lastSame), last, budget);
  }

  // Adds the element to a range of the cuts.
  void PlaceCuts(std::size_t index, std::size_t first, std::size_t last, std::size_t& budget) {
    const std::size_t cost = CostOf(building.elements[index]);
    for (std::size_t i = first; i < last; ++i) {
      if (budget < cost) {
        leftOut += last - i;
        return;
      }
      budget -= cost;
      Add(cuts[i].second, index, Look::kCut, false);
    }
  }

  std::vector<Plan> Sorted() {
    if (plans.front().items.empty()) plans.erase(plans.begin());
    std::stable_sort(plans.begin(), plans.end(), [](const Plan& a, const Plan& b) {
      if ((a.storey == nullptr) != (b.storey == nullptr)) return a.storey == nullptr;
      return a.floor < b.floor;
    });
    return std::move(plans);
  }

  const Building& building;
  std::vector<Plan> plans;
  std::unordered_map<std::size_t, std::size_t> planOfStorey;  // by instance number
  std::vector<std::pair<double, std::size_t>> cuts;           // by height, with the plan
  std::size_t leftOut = 0;
};

}  // namespace

PlanSet ArrangePlans(const Building& building) { return Arrangement(building).Arrange(); }

}  // namespace KelIFC::exporting::svg

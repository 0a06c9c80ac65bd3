#include "export/svg/plan.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <unordered_map>
#include <utility>

#include "export/svg/element_form.h"

namespace KelIFC::exporting::svg {
namespace {

constexpr double kCutAboveFloor = 1.2;   // the height of the cut above the floor, in metres
constexpr double kCutShareOfLow = 0.6;   // the same as a share of the height of a low storey
constexpr double kLeastCutHeight = 0.5;  // lower content is not cut: it is a floor
constexpr double kTallStorey = 4.0;      // a ceiling is not higher above its floor
constexpr double kSameHeight = 1e-3;     // heights that differ by less are one, in metres
constexpr double kSameCut = 0.05;        // cuts that differ by less show the same, in metres
constexpr double kFloorBuildUp = 0.4;    // the top of a floor slab is at most so far below a floor
constexpr double kAboveCeiling = 0.3;    // an element of a storey begins at most so far above it
constexpr double kBelowFloor = 1.0;      // and it ends at most so far below its floor
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

double MillimetresOf(const BuildingStorey& storey) { return std::round(storey.elevation * 1000.0); }

// The lowest and the highest z of the elements of a plan.
struct Content {
  double low = 1e300;
  double high = -1e300;
};

// Plans whose cuts show the same.
struct CutLevel {
  double cut = 0.0;  // the lowest of their cuts
  std::vector<std::pair<std::size_t, std::size_t>>
      plans;  // instance number of the storey, and plan
};

// The plan of a level whose storey is nearest to an instance number. Storeys of one building are
// near each other in a file, so it is a storey of the building to which the instance belongs.
std::size_t NearestPlan(const CutLevel& level, std::size_t number) {
  const auto& plans = level.plans;
  const auto next = std::lower_bound(plans.begin(), plans.end(), std::pair(number, std::size_t{0}));
  if (next == plans.begin()) return next->second;
  const auto before = next - 1;
  if (next == plans.end()) return before->second;
  return next->first - number < number - before->first ? next->second : before->second;
}

// The plans of a building while they are arranged. Plan 0 is that of the elements without a storey.
class Arrangement {
 public:
  explicit Arrangement(const Building& building) : building(building) {
    plans.resize(building.storeys.size() + 1);
    for (std::size_t i = 0; i < building.storeys.size(); ++i) {
      plans[i + 1].storey = &building.storeys[i];
      planOfStorey.emplace(building.storeys[i].id, i + 1);
      if (building.storeys[i].hasElevation) ++storeysAt[MillimetresOf(building.storeys[i])];
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
  // is no elevation, or if the elevation must be wrong.
  void SetHeight(Plan& plan, const Content& content) const {
    const bool hasElevation = plan.storey != nullptr && plan.storey->hasElevation;
    double above = kCutAboveFloor;
    if (hasElevation && !IsWrong(*plan.storey, content)) {
      plan.floor = plan.storey->elevation;
      if (plan.storey->height) above = std::min(above, kCutShareOfLow * *plan.storey->height);
    } else if (content.low <= content.high) {
      plan.floor = content.low;
      const double height = content.high - content.low;
      if (height > kLeastCutHeight) above = std::min(above, kCutShareOfLow * height);
    }
    plan.cut = plan.floor + above;
  }

  // True if the elevation of a storey has nothing to do with its elements: all lie far below it, or
  // beyond its cut without being the beams of its ceiling. A storey with a storey above it is
  // right.
  bool IsWrong(const BuildingStorey& storey, const Content& content) const {
    if (storey.height || content.low > content.high) return false;
    if (content.high <= storey.elevation - kBelowFloor) return true;
    if (content.low < storey.elevation + kCutAboveFloor) return false;
    const bool isTall = content.high - content.low >= kCutAboveFloor;
    return isTall || content.low >= storey.elevation + kTallStorey ||
           storeysAt.at(MillimetresOf(storey)) > 1;
  }

  void SortCuts() {
    std::vector<std::pair<double, std::size_t>> cuts;
    for (std::size_t i = 1; i < plans.size(); ++i) cuts.emplace_back(plans[i].cut, i);
    std::sort(cuts.begin(), cuts.end());
    for (const auto& [cut, plan] : cuts) {
      if (levels.empty() || cut - levels.back().cut > kSameCut) levels.push_back({cut, {}});
      levels.back().plans.emplace_back(plans[plan].storey->id, plan);
    }
    for (CutLevel& level : levels) std::sort(level.plans.begin(), level.plans.end());
  }

  // The position in `levels` of the first one that is higher than z.
  std::size_t FirstLevelAbove(double z) const {
    const auto above =
        std::upper_bound(levels.begin(), levels.end(), z,
                         [](double height, const CutLevel& level) { return height < level.cut; });
    return static_cast<std::size_t>(above - levels.begin());
  }

  // True if the home of an element shows the same as a level.
  bool IsHome(const CutLevel& level, std::size_t home) const {
    return std::abs(level.cut - plans[home].cut) <= kSameCut;
  }

  // The plan of a level that shows an element from another level.
  std::size_t PlanAt(const CutLevel& level, std::size_t index, std::size_t home) const {
    const BuildingStorey* const storey = plans[home].storey;
    return NearestPlan(level, storey != nullptr ? storey->id : building.elements[index].id);
  }

  void Add(std::size_t plan, std::size_t element, Look look, bool hasLabel) {
    plans[plan].items.push_back({element, look, hasLabel});
  }

  void Place(std::size_t index, std::size_t home, std::size_t& budget) {
    const BuildingElement& element = building.elements[index];
    const Look look = LookOf(element, plans[home]);
    const std::size_t under = IsLevelMember(element) ? PlanUnder(index, home) : kNone;
    Add(home, index, look, under == kNone);
    if (under != kNone) Add(under, index, Look::kAbove, true);
    const std::size_t carried = PlanOf(element.storeyByHeight);
    if (IsFlat(element) && carried != 0 && carried != home) {
      const Look there = LookOf(element, plans[carried]);
      if (there != Look::kCut) Add(carried, index, there, false);
    }
    PlaceCuts(index, home, budget);
  }

  // The plan of the nearest storey whose cut is under a beam. None if the home of the beam shows
  // the same.
  std::size_t PlanUnder(std::size_t index, std::size_t home) const {
    const std::size_t above = FirstLevelAbove(building.elements[index].box.min.z + kSameHeight);
    if (above == 0) return kNone;
    const CutLevel& level = levels[above - 1];
    return IsHome(level, home) ? kNone : PlanAt(level, index, home);
  }

  // Adds the element to a plan of each level that cuts it, except that of its home.
  void PlaceCuts(std::size_t index, std::size_t home, std::size_t& budget) {
    const BuildingBox& box = building.elements[index].box;
    const std::size_t cost = CostOf(building.elements[index]);
    const std::size_t end = FirstLevelAbove(box.max.z - kSameHeight);
    for (std::size_t i = FirstLevelAbove(box.min.z + kSameHeight); i < end; ++i) {
      if (IsHome(levels[i], home)) continue;
      if (budget < cost) {
        leftOut += end - i;
        return;
      }
      budget -= cost;
      Add(PlanAt(levels[i], index, home), index, Look::kCut, false);
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
  std::map<double, std::size_t> storeysAt;  // how many, by elevation in millimetres
  std::vector<CutLevel> levels;             // by height
  std::size_t leftOut = 0;
};

}  // namespace

PlanSet ArrangePlans(const Building& building) { return Arrangement(building).Arrange(); }

}  // namespace KelIFC::exporting::svg

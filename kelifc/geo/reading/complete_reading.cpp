#include "kelifc/geo/reading/complete_reading.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "kelifc/geo/storey_number.h"

namespace KelIFC {

namespace {

/// A storey with a lower elevation is a basement. In metres.
constexpr double kBasementElevation = -0.001;

struct ShownClass {
  std::string_view name;
  ShownAs shownAs;
};

constexpr std::array<ShownClass, 9> kShownClasses = {{
    {"IfcColumn", ShownAs::kColumn},
    {"IfcPile", ShownAs::kColumn},
    {"IfcBeam", ShownAs::kBeam},
    {"IfcMember", ShownAs::kBeam},
    {"IfcWall", ShownAs::kWall},
    {"IfcWallStandardCase", ShownAs::kWall},
    {"IfcSlab", ShownAs::kPlate},
    {"IfcPlate", ShownAs::kPlate},
    {"IfcFooting", ShownAs::kFoot},
}};

/// Whether the collection has points for the element.
bool HasPointsFor(ShownAs shownAs, const BuildingElement& element) {
  switch (shownAs) {
    case ShownAs::kColumn:
    case ShownAs::kBeam:
      return element.member && !element.member->points.empty();
    case ShownAs::kWall:
    case ShownAs::kPlate:
      return element.surface && !element.surface->sweep && !element.surface->outline.empty();
    case ShownAs::kFoot:
      return !element.body.box.IsEmpty();
    case ShownAs::kNothing:
      break;
  }
  return false;
}

/// Returns the collection for an element, whether or not it is a part.
ShownAs ByClassAndKind(const BuildingElement& element) {
  for (const ShownClass& row : kShownClasses) {
    if (row.name != element.className) continue;
    return HasPointsFor(row.shownAs, element) ? row.shownAs : ShownAs::kNothing;
  }
  return ShownAs::kNothing;
}

}  // namespace

CompleteReading::CompleteReading(Building read) : building(std::move(read)) {
  NumberStoreys();
  FindShown();
}

void CompleteReading::NumberStoreys() {
  const auto& storeys = building.storeys;
  std::ptrdiff_t number =
      -std::count_if(storeys.begin(), storeys.end(), [](const BuildingStorey& storey) {
        return storey.hasElevation && storey.elevation < kBasementElevation;
      });
  using Limits = std::numeric_limits<SHORT>;
  for (std::size_t i = 0; i < storeys.size(); ++i) {
    storeysById.emplace(storeys[i].id, i);
    const bool isNumbered = storeys[i].hasElevation;
    storeyNumbers.push_back(isNumbered ? static_cast<SHORT>(std::clamp<std::ptrdiff_t>(
                                             number++, Limits::min(), kNoStoreyNumber - 1))
                                       : kNoStoreyNumber);
  }
}

void CompleteReading::FindShown() {
  std::unordered_set<std::size_t> shownIds;
  for (const BuildingElement& element : building.elements) {
    shown.push_back(ByClassAndKind(element));
    if (shown.back() != ShownAs::kNothing) shownIds.insert(element.id);
  }
  for (std::size_t i = 0; i < shown.size(); ++i) {
    if (shownIds.count(building.elements[i].partOf) != 0) shown[i] = ShownAs::kNothing;
  }
}

const BuildingStorey* CompleteReading::FindStorey(std::size_t id) const {
  const auto found = storeysById.find(id);
  return found == storeysById.end() ? nullptr : &building.storeys[found->second];
}

SHORT CompleteReading::StoreyNumberOf(std::size_t id) const {
  const auto found = storeysById.find(id);
  return found == storeysById.end() ? kNoStoreyNumber : storeyNumbers[found->second];
}

}  // namespace KelIFC

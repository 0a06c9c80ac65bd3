#include "kelifc/import/storey/build_storeys.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>

#include "kelifc/geo/creation.h"
#include "kelifc/geo/storey.h"
#include "kelifc/import/model/identity.h"

namespace KelIFC {

namespace {

/// A storey with a lower level is a basement. In the length unit of the file.
constexpr double kBasementLevel = -0.001;

/// Sorts NaN after all numbers: the sort needs a strict weak order for any levels.
bool IsLower(const StoreyFacts& a, const StoreyFacts& b) {
  if (std::isnan(a.level) || std::isnan(b.level))
    return !std::isnan(a.level) && std::isnan(b.level);
  return a.level < b.level;
}

/// Returns the number of the lowest storey, which is 0 or negative.
std::ptrdiff_t FirstNumber(const std::vector<StoreyFacts>& sorted) {
  const auto ground = std::find_if(sorted.begin(), sorted.end(), [](const StoreyFacts& storey) {
    return !(storey.level < kBasementLevel);
  });
  return sorted.begin() - ground;
}

SHORT Clamp(std::ptrdiff_t number) {
  using Limits = std::numeric_limits<SHORT>;
  return static_cast<SHORT>(std::clamp<std::ptrdiff_t>(number, Limits::min(), Limits::max()));
}

}  // namespace

HRESULT BuildStoreys(CoGeoStoreys& collection, std::vector<StoreyFacts> storeys) {
  std::stable_sort(storeys.begin(), storeys.end(), IsLower);
  std::ptrdiff_t number = FirstNumber(storeys);
  Factory<CoGeoStorey> factory;
  HRESULT status = factory.Open();
  if (FAILED(status)) return status;
  CoGeoStorey* made = nullptr;
  for (std::size_t i = 0; i < storeys.size(); ++i) {
    status = factory.Append(collection, &made);
    if (FAILED(status)) return status;
    StoreyFacts& storey = storeys[i];
    made->level = storey.level;
    made->height = (i + 1 < storeys.size() ? storeys[i + 1].level : 0.0) - storey.level;
    made->dialect = storey.dialect;
    made->name = !storey.name.empty() ? std::move(storey.name) : NumberName(storey.instanceNumber);
    made->number = Clamp(number++);
    made->guid = storey.guid;
  }
  if (made != nullptr) made->height = storeys.back().elevation;
  return S_OK;
}

}  // namespace KelIFC

#include "kelifc/server/detail/product_numbers.h"

#include <algorithm>
#include <functional>

#include "kelifc/server/detail/number_index.h"

namespace KelIFC::detail {

void ProductNumbers::Build(IfcUnknown* const* slots, const std::vector<std::uint32_t>& positions,
                           const std::vector<std::uint64_t>& ids, const NumberIndex& numbers) {
  std::vector<Row> made;
  made.reserve(positions.size());
  for (std::size_t i = 0; i < positions.size(); ++i) {
    IfcUnknown* const product = slots[positions[i]];
    if (product != nullptr && numbers.Find(ids[i]) == positions[i]) {
      made.push_back({product, ids[i]});
    }
  }
  const auto isLower = [](const Row& a, const Row& b) {
    return std::less<>()(a.product, b.product);
  };
  // A load allocates most instances at rising addresses.
  if (!std::is_sorted(made.begin(), made.end(), isLower)) {
    std::sort(made.begin(), made.end(), isLower);
  }
  rows.swap(made);
  state = State::kBuilt;
}

std::uint64_t ProductNumbers::Find(const IfcUnknown* instance) const {
  const auto found = std::lower_bound(
      rows.begin(), rows.end(), instance,
      [](const Row& row, const IfcUnknown* wanted) { return std::less<>()(row.product, wanted); });
  return found != rows.end() && found->product == instance ? found->number : 0;
}

}  // namespace KelIFC::detail

#include "kelifc/server/detail/product_numbers.h"

#include <algorithm>
#include <functional>

#include "kelifc/server/detail/number_index.h"

namespace KelIFC::detail {

void ProductNumbers::Build(IfcUnknown* const* slots, std::size_t count,
                           const std::vector<std::uint32_t>& positions,
                           const NumberIndex& numbers) {
  std::vector<bool> isProduct(count);
  for (const std::uint32_t position : positions) isProduct[position] = true;
  std::vector<Row> made;
  made.reserve(positions.size());
  for (std::uint64_t number = numbers.GetNext(0); number != 0; number = numbers.GetNext(number)) {
    const std::uint32_t position = numbers.Find(number);
    if (isProduct[position] && slots[position] != nullptr)
      made.push_back({slots[position], number});
  }
  std::sort(made.begin(), made.end(),
            [](const Row& a, const Row& b) { return std::less<>()(a.product, b.product); });
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

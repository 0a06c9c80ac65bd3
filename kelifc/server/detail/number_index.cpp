#include "kelifc/server/detail/number_index.h"

#include <algorithm>

#include "kelifc/server/reserve_huge.h"

namespace KelIFC::detail {
namespace {

// The array can be this many times as long as the count of numbers, plus a start for small models.
constexpr std::uint64_t kSlotsPerNumber = 16;
constexpr std::uint64_t kFreeSlots = 1024;

}  // namespace

std::uint32_t NumberIndex::FindOutlier(std::uint64_t number) const {
  const auto found = outliers.find(number);
  return found == outliers.end() ? kNone : found->second;
}

void NumberIndex::Reserve(std::size_t numberCount) { ReserveHuge(dense, numberCount); }

void NumberIndex::Set(std::uint64_t number, std::uint32_t position) {
  if (number == 0) return;
  if (number < dense.size()) {
    std::uint32_t& slot = dense[static_cast<std::size_t>(number)];
    if (slot == kNone) ++count;
    slot = position;
    return;
  }
  if (number < kSlotsPerNumber * (count + 1) + kFreeSlots) {
    if (number == dense.size() && outliers.empty()) {
      dense.push_back(position);
      ++count;
      return;
    }
    // The number may have been an outlier; when the array grows, the number moves into it.
    GrowDense(static_cast<std::size_t>(number) + 1);
    Set(number, position);
    return;
  }
  const std::size_t before = outliers.size();
  outliers.insert_or_assign(outliers.end(), number, position);
  count += outliers.size() - before;
}

void NumberIndex::GrowDense(std::size_t size) {
  dense.resize(size, kNone);
  while (!outliers.empty() && outliers.begin()->first < size) {
    dense[static_cast<std::size_t>(outliers.begin()->first)] = outliers.begin()->second;
    outliers.erase(outliers.begin());
  }
}

bool NumberIndex::Erase(std::uint64_t number) {
  if (number < dense.size()) {
    std::uint32_t& slot = dense[static_cast<std::size_t>(number)];
    if (slot == kNone) return false;
    slot = kNone;
    TrimDense();
  } else if (outliers.erase(number) == 0) {
    return false;
  }
  --count;
  lowestFreeFloor = std::min(lowestFreeFloor, number);
  return true;
}

void NumberIndex::TrimDense() {
  while (!dense.empty() && dense.back() == kNone) dense.pop_back();
}

void NumberIndex::Clear() { *this = NumberIndex(); }

std::uint64_t NumberIndex::GetHighest() const {
  if (!outliers.empty()) return outliers.rbegin()->first;
  return dense.empty() ? 0 : dense.size() - 1;
}

std::uint64_t NumberIndex::GetHighestBelow(std::uint64_t limit) const {
  const auto above = outliers.lower_bound(limit);
  if (above != outliers.begin()) return std::prev(above)->first;
  std::uint64_t number = std::min<std::uint64_t>(limit, dense.size());
  while (number > 0 && dense[static_cast<std::size_t>(--number)] == kNone) continue;
  return number;
}

std::uint64_t NumberIndex::GetNext(std::uint64_t number) const {
  for (std::uint64_t next = number + 1; next < dense.size() && next != 0; ++next) {
    if (dense[static_cast<std::size_t>(next)] != kNone) return next;
  }
  const auto above = outliers.upper_bound(number);
  return above == outliers.end() ? 0 : above->first;
}

std::uint64_t NumberIndex::GetLowestFree() {
  while (Find(lowestFreeFloor) != kNone) ++lowestFreeFloor;
  return lowestFreeFloor;
}

}  // namespace KelIFC::detail

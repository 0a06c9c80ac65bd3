#ifndef KELIFC_SERVER_RESERVE_HUGE_H_
#define KELIFC_SERVER_RESERVE_HUGE_H_

#include <cstddef>

#include "kelifc/platform/huge_pages.h"

namespace KelIFC {

/// Allocates memory for `count` elements of a vector in all. A large vector uses huge pages where
/// it is filled.
template <class Vector>
void ReserveHuge(Vector& vector, std::size_t count) {
  // The last huge page can be nearly unused. It must be a small part of the vector.
  constexpr std::size_t kLarge = 4 * kHugePageSize;
  vector.reserve(count);
  // The elements can be pointers.
  // NOLINTNEXTLINE(bugprone-sizeof-expression)
  const std::size_t bytes = vector.capacity() * sizeof(typename Vector::value_type);
  if (bytes >= kLarge) AdviseHugePages(vector.data(), bytes);
}

}  // namespace KelIFC

#endif  // KELIFC_SERVER_RESERVE_HUGE_H_

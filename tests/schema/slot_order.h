#ifndef KELIFC_TESTS_SCHEMA_SLOT_ORDER_H_
#define KELIFC_TESTS_SCHEMA_SLOT_ORDER_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <vector>

/// Returns the offset of a virtual operation in its table. The Itanium ABI keeps the offset plus 1
/// in the first word of a pointer to the operation. Returns -1 for an operation that is not
/// virtual.
template <class Pointer>
std::ptrdiff_t SlotOf(Pointer pointer) {
  std::ptrdiff_t word = 0;
  static_assert(sizeof pointer >= sizeof word);
  std::memcpy(&word, &pointer, sizeof word);
  return word % 2 == 1 ? word - 1 : -1;
}

/// Expects that the slots follow each other.
inline void ExpectRising(const std::vector<std::ptrdiff_t>& slots) {
  for (std::size_t i = 0; i < slots.size(); ++i) {
    EXPECT_GE(slots[i], 0) << "operation " << i;
    if (i > 0) {
      EXPECT_EQ(slots[i], slots[i - 1] + static_cast<std::ptrdiff_t>(sizeof(void*)))
          << "operation " << i;
    }
  }
}

#endif  // KELIFC_TESTS_SCHEMA_SLOT_ORDER_H_

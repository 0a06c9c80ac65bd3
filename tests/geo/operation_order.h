#ifndef KELIFC_TESTS_GEO_OPERATION_ORDER_H_
#define KELIFC_TESTS_GEO_OPERATION_ORDER_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

#include "tests/schema/slot_order.h"

/// The number of operations of IUnknown and IDispatch, with which every interface begins.
inline constexpr std::size_t kDispatchOperations = 7;

/// Expects the operations in adjacent slots, starting after those of IDispatch.
inline void ExpectOrder(const std::vector<std::ptrdiff_t>& slots) {
  for (std::size_t i = 0; i < slots.size(); ++i) {
    EXPECT_EQ(slots[i], static_cast<std::ptrdiff_t>((kDispatchOperations + i) * sizeof(void*)))
        << "operation " << i;
  }
}

#endif  // KELIFC_TESTS_GEO_OPERATION_ORDER_H_

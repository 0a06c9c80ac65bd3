#include "kelifc/core/cached_instance.h"

#include <gtest/gtest.h>

#include <string>

namespace KelIFC {
namespace {

using Cache = CachedInstance<std::string>;

TEST(CachedInstance, IsMadeAtTheFirstUse) {
  Cache cache;
  EXPECT_EQ(cache.Get(), "");
  cache.Get() = "kept";
  EXPECT_EQ(cache.Get(), "kept");
}

TEST(CachedInstance, IsCopiedWithItsValue) {
  Cache cache;
  cache.Get() = "kept";
  Cache copy(cache);
  copy.Get() += " in the copy";
  EXPECT_EQ(copy.Get(), "kept in the copy");
  EXPECT_EQ(cache.Get(), "kept");
  Cache unused;
  Cache another(unused);
  EXPECT_EQ(another.Get(), "");
}

TEST(CachedInstance, StaysAtItsAddressWhenItIsAssigned) {
  Cache cache;
  const std::string* const address = &cache.Get();
  Cache other;
  other.Get() = "other";
  cache = other;
  EXPECT_EQ(&cache.Get(), address);
  EXPECT_EQ(*address, "other");
  cache = Cache();
  EXPECT_EQ(&cache.Get(), address);
  EXPECT_EQ(*address, "");
}

}  // namespace
}  // namespace KelIFC

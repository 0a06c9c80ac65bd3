#include "kelifc/building/read/entity.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace KelIFC::building {
namespace {

TEST(Entity, IsFoundByItsNameInAnyCase) {
  for (std::size_t i = 1; i < kEntityCount; ++i) {
    const auto entity = static_cast<Entity>(i);
    std::string name(RowOf(entity).name);
    ASSERT_FALSE(name.empty()) << i;
    EXPECT_EQ(FindEntityByName(name), entity) << name;
    for (char& c : name) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    EXPECT_EQ(FindEntityByName(name), entity) << name;
  }
}

TEST(Entity, IsOtherForNamesThatAreNotListed) {
  for (const char* name : {"", "IfcWal", "IfcWalls", "Wall", "IFC", "zzz"}) {
    EXPECT_EQ(FindEntityByName(name), Entity::kOther) << name;
  }
}

TEST(Entity, HasTheFlagsOfItsKind) {
  EXPECT_TRUE(Has(Entity::kWallStandardCase, kIsStructural));
  EXPECT_TRUE(Has(Entity::kRoof, kHasParts));
  EXPECT_FALSE(Has(Entity::kRoof, kIsStructural));
  EXPECT_TRUE(Has(Entity::kRailing, kIsAccessory));
  EXPECT_FALSE(Has(Entity::kOpeningElement, kIsElement));
  EXPECT_TRUE(Has(Entity::kBoundingBox, kIsNeverBody));
  EXPECT_EQ(RowOf(Entity::kOther).flags, 0U);
}

}  // namespace
}  // namespace KelIFC::building

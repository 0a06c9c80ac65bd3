#include "export/saf/material_list.h"

#include <gtest/gtest.h>

#include <array>

namespace KelIFC::exporting::saf {
namespace {

struct NamedType {
  const char* name;
  const char* type;
};

TEST(MaterialType, FollowsFromTheNameInSeveralLanguages) {
  constexpr auto kNames = std::to_array<NamedType>({
      {"Concrete, Cast-in-Place gray", "Concrete"},
      {"Stahlbeton C25/30", "Concrete"},
      {"B\u00e9ton arm\u00e9", "Concrete"},
      {"Hormig\u00f3n", "Concrete"},
      {"Calcestruzzo", "Concrete"},
      {"Metal - Steel", "Steel"},
      {"STAHL", "Steel"},
      {"Betonstahl B500", "Steel"},
      {"Acero laminado", "Steel"},
      {"Brettschichtholz", "Timber"},
      {"Softwood, Lumber", "Timber"},
      {"Aluminium", "Aluminium"},
      {"Aluminum, Anodized", "Aluminium"},
      {"Kalksandstein", "Masonry"},
      {"Porenbeton P4", "Masonry"},
      {"Masonry - Concrete Blocks", "Masonry"},
      {"Brick, Common", "Masonry"},
      {"Gypsum Wall Board", "Other"},
      {"", "Other"},
  });
  for (const NamedType& expected : kNames) {
    EXPECT_EQ(MaterialTypeOf(expected.name), expected.type) << expected.name;
  }
}

TEST(MaterialType, FollowsFromAStrengthClass) {
  EXPECT_EQ(MaterialTypeOf("C30/37"), "Concrete");
  EXPECT_EQ(MaterialTypeOf("S235JR"), "Steel");
  EXPECT_EQ(MaterialTypeOf("GL24h"), "Timber");
  EXPECT_EQ(MaterialTypeOf("C30"), "Other");
  EXPECT_EQ(MaterialTypeOf("XC30/37"), "Other") << "a class begins at the beginning of a word";
  EXPECT_EQ(MaterialTypeOf("S1234"), "Other");
}

TEST(MaterialQuality, IsTheStrengthClassOrTheName) {
  EXPECT_EQ(MaterialQualityOf("Beton C25/30 (grau)"), "C25/30");
  EXPECT_EQ(MaterialQualityOf("STEEL/S355J2"), "S355");
  EXPECT_EQ(MaterialQualityOf("Concrete"), "Concrete");
}

}  // namespace
}  // namespace KelIFC::exporting::saf

#include "tools/schemac/core_classes.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/paths.h"

namespace schemac {
namespace {

TEST(CoreClasses, AreFoundByName) {
  ASSERT_NE(FindCoreClass("IfcPoint"), nullptr);
  EXPECT_EQ(FindCoreClass("IfcPoint")->header, "kelifc/core/representation_item.h");
  EXPECT_EQ(FindCoreClass("IfcWall"), nullptr);
  EXPECT_TRUE(FindCoreClass(kRoot)->hasParse);
}

TEST(CoreClasses, ComeAfterTheirBases) {
  std::set<std::string_view> known = {""};
  for (const CoreClass* type : CoreClasses()) {
    for (const auto base : type->bases) EXPECT_TRUE(known.count(base) == 1) << type->name;
    known.insert(type->name);
  }
}

TEST(CoreClasses, HaveAttributesInTheOrderOfTheFile) {
  const auto attributes = AttributesOf(*FindCoreClass("IfcBoundingBox"));
  ASSERT_EQ(attributes.size(), 4u);
  EXPECT_EQ(attributes[0]->name, "Corner");
  EXPECT_EQ(attributes[3]->name, "ZDim");
  EXPECT_TRUE(AttributesOf(*FindCoreClass("IfcPoint")).empty());
}

TEST(CoreHeaders, AreFilesOfTheSourceTree) {
  for (const auto& header : CoreHeaders()) {
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(KelIFC::kSourceDir) / header))
        << header;
  }
}

}  // namespace
}  // namespace schemac

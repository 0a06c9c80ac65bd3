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

TEST(CoreHeaders, AreFilesOfTheSourceTree) {
  for (const auto& header : CoreHeaders()) {
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(KelIFC::kSourceDir) / header))
        << header;
  }
}

}  // namespace
}  // namespace schemac

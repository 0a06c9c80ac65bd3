#include "kelifc/server/entity_name.h"

#include <gtest/gtest.h>

#include <cctype>
#include <random>
#include <string>

namespace KelIFC {
namespace {

TEST(EntityName, IsEqualInAnyCase) {
  for (const char* name : {"IFCWALL", "ifcwall", "IfcWall"}) {
    EXPECT_TRUE(EntityName(name).Is("IFCWALL")) << name;
    EXPECT_EQ(EntityName(name).GetHash(), EntityName("IFCWALL").GetHash()) << name;
  }
}

TEST(EntityName, FoldsNothingButAsciiLetters) {
  EXPECT_FALSE(EntityName("IFC\x12"
                          "DCOMPOSITECURVE")
                   .Is("IFC2DCOMPOSITECURVE"));
  EXPECT_FALSE(EntityName("a").Is("!"));
}

TEST(EntityName, IsAPartOfALongerText) {
  const std::string text = "IFCWALL(1)";
  const EntityName name(std::string_view(text).substr(0, 7));
  EXPECT_TRUE(name.Is("IFCWALL"));
  EXPECT_EQ(name.GetText().data(), text.data());
}

TEST(EntityName, IsEmptyIfATextIsTooLong) {
  const std::string longest(EntityName::kLongest, 'A');
  EXPECT_EQ(EntityName(longest.c_str()).GetText(), longest);
  EXPECT_TRUE(EntityName((longest + "A").c_str()).GetText().empty());
  EXPECT_TRUE(EntityName("").GetText().empty());
}

constexpr EntityName kShort("IfcWall");
constexpr EntityName kLong("IfcRelContainedInSpatialStructure");

TEST(EntityName, HasTheSameHashInTheCompiler) {
  EXPECT_EQ(kShort.GetHash(), EntityName(std::string("IFCWALL")).GetHash());
  EXPECT_EQ(kLong.GetHash(),
            EntityName(std::string("IFCRELCONTAINEDINSPATIALSTRUCTURE")).GetHash());
}

// The characters differ in case, in one character, or not at all.
TEST(EntityName, IsEqualIfEachCharacterIs) {
  std::mt19937 random(30);
  for (int round = 0; round < 20000; ++round) {
    std::string upper;
    for (std::size_t length = 1 + random() % 40; length > 0; --length) {
      upper += static_cast<char>('A' + random() % 26);
    }
    std::string name = upper;
    for (char& c : name) {
      if (random() % 8 == 0) c = static_cast<char>(std::tolower(c));
    }
    ASSERT_TRUE(EntityName(std::string_view(name)).Is(upper)) << name;
    ASSERT_EQ(EntityName(std::string_view(name)).GetHash(),
              EntityName(std::string_view(upper)).GetHash());
    name[random() % name.size()] = '1';
    ASSERT_FALSE(EntityName(std::string_view(name)).Is(upper)) << name;
  }
}

}  // namespace
}  // namespace KelIFC

#include "export/saf/identifiers.h"

#include <gtest/gtest.h>

namespace KelIFC::exporting::saf {
namespace {

TEST(GlobalId, IsAUuidInAnotherNotation) {
  EXPECT_EQ(TextOf(*UuidOfGlobalId("0000000000000000000000")),
            "00000000-0000-0000-0000-000000000000");
  EXPECT_EQ(TextOf(*UuidOfGlobalId("3$$$$$$$$$$$$$$$$$$$$$")),
            "ffffffff-ffff-ffff-ffff-ffffffffffff");
  // The last digit is "1"; the one before it counts 64, the first one 2^126.
  EXPECT_EQ(TextOf(*UuidOfGlobalId("1000000000000000000011")),
            "40000000-0000-0000-0000-000000000041");
}

TEST(GlobalId, IsNoneWithAnotherLengthOrOtherCharacters) {
  EXPECT_FALSE(UuidOfGlobalId(""));
  EXPECT_FALSE(UuidOfGlobalId("000000000000000000000"));
  EXPECT_FALSE(UuidOfGlobalId("000000000000000000000-"));
  EXPECT_FALSE(UuidOfGlobalId("4000000000000000000000")) << "it has more than 128 bits";
}

TEST(UuidOfText, HasTheVersionAndTheVariantOfItsKind) {
  const std::string text = TextOf(UuidOfText("N1"));
  ASSERT_EQ(text.size(), 36U);
  EXPECT_EQ(text[14], '8');
  EXPECT_NE(std::string("89ab").find(text[19]), std::string::npos);
  EXPECT_EQ(text, TextOf(UuidOfText("N1")));
  EXPECT_NE(text, TextOf(UuidOfText("N2")));
}

TEST(IdList, NeverReturnsAnIdTwice) {
  IdList ids("project");
  const std::string guid = "1000000000000000000011";
  EXPECT_EQ(ids.Take(guid, "a"), "40000000-0000-0000-0000-000000000041");
  const std::string second = ids.Take(guid, "a");
  EXPECT_NE(second, "40000000-0000-0000-0000-000000000041");
  EXPECT_NE(ids.Take(guid, "a"), second);
}

TEST(IdList, DerivesIdsFromTheTextAndTheProject) {
  EXPECT_EQ(IdList("p").Take("no guid", "a"), IdList("p").Take("a"));
  EXPECT_NE(IdList("p").Take("a"), IdList("q").Take("a"));
}

TEST(NameList, AddsASuffixToANameThatIsUsed) {
  NameList names;
  EXPECT_EQ(names.Take("Wall", ""), "Wall");
  EXPECT_EQ(names.Take("Wall", ""), "Wall_2");
  EXPECT_EQ(names.Take("wall", ""), "wall_3");
  EXPECT_EQ(names.Take("Wall_4", ""), "Wall_4");
  EXPECT_EQ(names.Take("Wall", ""), "Wall_5");
}

TEST(NameList, TakesTheFallbackForAnEmptyName) {
  NameList names;
  EXPECT_EQ(names.Take(" ;", "Slab 3"), ",");
  EXPECT_EQ(names.Take(" \t", "Slab 3"), "Slab 3");
  EXPECT_EQ(names.Take("", "Slab 3"), "Slab 3_2");
}

TEST(NameList, CountsShortenedNames) {
  NameList names;
  const std::string longName(10'000, 'a');
  EXPECT_EQ(names.Take(longName, ""), std::string(128, 'a'));
  EXPECT_EQ(names.Take(longName, ""), std::string(128, 'a') + "_2");
  EXPECT_EQ(names.GetShortened(), 2U);
}

}  // namespace
}  // namespace KelIFC::exporting::saf

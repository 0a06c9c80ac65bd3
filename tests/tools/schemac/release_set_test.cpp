#include "tools/schemac/release_set.h"

#include <gtest/gtest.h>

namespace schemac {
namespace {

std::string Marks(std::string_view text) {
  const auto releases = ReleaseSet::Read(text);
  if (!releases) return "none";
  std::string marks;
  for (std::size_t i = 0; i < kReleaseCount; ++i) {
    if (releases->Has(i)) marks += (marks.empty() ? "" : " ") + std::string(kReleases[i].mark);
  }
  return marks;
}

TEST(ReleaseSet, ReadsOneReleaseARangeAndAList) {
  EXPECT_EQ(Marks("all"), "151 20 2x 2x2 2x3");
  EXPECT_EQ(Marks("2x"), "2x");
  EXPECT_EQ(Marks("2x.."), "2x 2x2 2x3");
  EXPECT_EQ(Marks("..20"), "151 20");
  EXPECT_EQ(Marks("20..2x2"), "20 2x 2x2");
  EXPECT_EQ(Marks("151,2x3"), "151 2x3");
  EXPECT_EQ(Marks("151,2x2.."), "151 2x2 2x3");
}

TEST(ReleaseSet, RefusesATextThatDoesNotNameReleases) {
  for (const auto* text : {"", "..", "2x4", "2x3..2x", "2x,", "abstract", "2x...", "2x..foo"}) {
    EXPECT_EQ(Marks(text), "none") << text;
  }
}

TEST(ReleaseSet, KnowsWhatItContains) {
  EXPECT_TRUE(ReleaseSet::Read("2x..")->Contains(*ReleaseSet::Read("2x2")));
  EXPECT_FALSE(ReleaseSet::Read("2x2")->Contains(*ReleaseSet::Read("2x..")));
  EXPECT_TRUE((*ReleaseSet::Read("2x") & *ReleaseSet::Read("20")).IsEmpty());
}

}  // namespace
}  // namespace schemac

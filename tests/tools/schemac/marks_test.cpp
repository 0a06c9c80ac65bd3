#include "tools/schemac/marks.h"

#include <gtest/gtest.h>

namespace schemac {
namespace {

Line MakeLine(const std::string& text) { return {{"f", 1, 1}, false, text, ""}; }

TEST(ReadMark, ReadsAMarkIfOneComesNext) {
  const Line line = MakeLine("[2x..] [151] Name");
  TokenReader in(line);
  EXPECT_EQ(ReadMark(in), ReleaseSet::Read("2x.."));
  EXPECT_EQ(ReadMark(in), ReleaseSet::Read("151"));
  EXPECT_EQ(ReadMark(in), std::nullopt);
  EXPECT_EQ(in.Rest(), "Name");
}

TEST(ReadMark, RefusesATextThatDoesNotNameReleases) {
  for (const auto* text : {"[2y] Name", "[] Name", "[2x"}) {
    const Line line = MakeLine(text);
    TokenReader in(line);
    EXPECT_THROW(ReadMark(in), DescriptionError) << text;
  }
}

TEST(ReadFlagReleases, ReturnsAllReleasesIfNoneFollow) {
  const Line line = MakeLine("new 2x");
  TokenReader in(line);
  EXPECT_EQ(ReadFlagReleases(in, *ReleaseSet::Read("2x..")), *ReleaseSet::Read("2x.."));
  EXPECT_TRUE(in.Take("new"));
  EXPECT_EQ(ReadFlagReleases(in, *ReleaseSet::Read("2x..")), *ReleaseSet::Read("2x"));
  EXPECT_EQ(ReadFlagReleases(in, *ReleaseSet::Read("2x..")), *ReleaseSet::Read("2x.."));
}

TEST(ReadFlagReleases, RefusesAReleaseOutsideOfTheEntry) {
  const Line line = MakeLine("151");
  TokenReader in(line);
  EXPECT_THROW(ReadFlagReleases(in, *ReleaseSet::Read("2x..")), DescriptionError);
}

}  // namespace
}  // namespace schemac

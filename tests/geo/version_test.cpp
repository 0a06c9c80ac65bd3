#include "kelifc/geo/version.h"

#include <gtest/gtest.h>

#include "kelifc/server/reported_version.h"

namespace KelIFC {
namespace {

void ExpectVersion(const char* text, double major, double build, double servicePack) {
  const VersionRecord version = ParseVersionText(text);
  EXPECT_EQ(version.major, major) << text;
  EXPECT_EQ(version.build, build) << text;
  EXPECT_EQ(version.servicePack, servicePack) << text;
}

bool IsServed(const char* text) { return IsCompatible(GetOwnVersion(), ParseVersionText(text)); }

TEST(ReportedVersion, IsTheOneThatHostsCompare) { EXPECT_STREQ(kReportedVersion, "25.0.3857"); }

TEST(VersionRecord, HasAServicePackThatTheTextLacks) {
  const VersionRecord version = GetOwnVersion();
  EXPECT_EQ(version.major, 25.0);
  EXPECT_EQ(version.build, 3857.0);
  EXPECT_EQ(version.servicePack, 5.0);
  EXPECT_FALSE(version.isDebug);
}

TEST(VersionText, HasNoServicePackWithThreeParts) {
  ExpectVersion("25.0.3857", 25.0, 3857.0, 0.0);
  ExpectVersion("15.47.9", 15.47, 9.0, 0.0);
}

TEST(VersionText, HasAServicePackWithFourOrFiveParts) {
  ExpectVersion("25.0.5.3857", 25.0, 3857.0, 5.0);
  ExpectVersion("25.1.2.3.4", 25.1, 4.0, 2.0);
}

TEST(VersionText, MeansAnOldVersionWithFewerParts) {
  for (const char* text : {"", "25", "25.0", "..", "....", "25..", "99999.99999"}) {
    ExpectVersion(text, 15.47, 1273.0, 0.0);
  }
}

TEST(VersionText, CountsNonEmptyPartsOnly) {
  ExpectVersion(".5..7.9", 0.5, 9.0, 0.0);
  ExpectVersion("25.0.3857..", 25.0, 3857.0, 0.0);
  ExpectVersion("25.0..3857", 25.0, 3857.0, 0.0);
}

TEST(VersionText, HasAtMostFiveParts) { ExpectVersion("25.0.1.2.3.4.5", 25.0, 3.0, 1.0); }

TEST(VersionText, ReadsTheLeadingNumberOfAPart) {
  ExpectVersion("25.0.3857 debug", 25.0, 3857.0, 0.0);
  ExpectVersion("a.b.c", 0.0, 0.0, 0.0);
  ExpectVersion("25x.0.7", 25.0, 7.0, 0.0);
}

TEST(VersionText, LimitsAHugeBuild) {
  ExpectVersion("25.0.99999999999999999999", 25.0, 2147483647.0, 0.0);
}

TEST(VersionText, IsOfADebugBuildIfTheWordIsNotAtTheStart) {
  EXPECT_TRUE(ParseVersionText("25.0.1 Debug").isDebug);
  EXPECT_TRUE(ParseVersionText("xDEBUG").isDebug);
  EXPECT_FALSE(ParseVersionText("debug 25.0.1").isDebug);
  EXPECT_FALSE(ParseVersionText("25.0.1").isDebug);
}

TEST(Compatibility, HoldsForOlderAndEqualVersions) {
  EXPECT_TRUE(IsServed("25.0.3857"));
  EXPECT_TRUE(IsServed("25.0.5.3857"));
  EXPECT_TRUE(IsServed("24.9.9999"));
  EXPECT_TRUE(IsServed("25.0.4.3857"));
  EXPECT_TRUE(IsServed("25.0.1"));
  EXPECT_TRUE(IsServed("24.0.9.9999"));
}

TEST(Compatibility, HoldsForTextsWithFewParts) {
  EXPECT_TRUE(IsServed(""));
  EXPECT_TRUE(IsServed("99"));
  EXPECT_TRUE(IsServed("26.0"));
}

TEST(Compatibility, DoesNotHoldForNewerVersions) {
  EXPECT_FALSE(IsServed("25.0.3858"));
  EXPECT_FALSE(IsServed("25.0.5.3858"));
  EXPECT_FALSE(IsServed("25.0.6.1"));
  EXPECT_FALSE(IsServed("26.0.1"));
  EXPECT_FALSE(IsServed("25.01.1"));
}

TEST(Compatibility, IgnoresDebugBuilds) { EXPECT_TRUE(IsServed("25.0.3857 debug")); }

}  // namespace
}  // namespace KelIFC

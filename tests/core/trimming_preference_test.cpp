#include "kelifc/core/trimming_preference.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

TEST(TrimmingPreference, IsReadFromItsTwoTexts) {
  auto preference = IfcTrimmingPreference_NONE;
  EXPECT_STREQ(ParseTrimmingPreference(preference, ".CARTESIAN.,5"), "5");
  EXPECT_EQ(preference, 1);
  EXPECT_EQ(ParseTrimmingPreference(preference, ".PARAMETER.)"), nullptr);
  EXPECT_EQ(preference, 2);
}

TEST(TrimmingPreference, IsNoneForEverythingElse) {
  for (const char* text : {".UNSPECIFIED.", ".parameter.", "$", "PARAMETER", ""}) {
    auto preference = IfcTrimmingPreference_PARAMETER;
    ParseTrimmingPreference(preference, text);
    EXPECT_EQ(preference, 0) << text;
  }
  auto preference = IfcTrimmingPreference_PARAMETER;
  EXPECT_EQ(ParseTrimmingPreference(preference, nullptr), nullptr);
  EXPECT_EQ(preference, 0);
}

}  // namespace
}  // namespace KelIFC

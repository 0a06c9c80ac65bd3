#include "kelifc/building/profile/profile_name.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace KelIFC::building {
namespace {

std::string Parsed(std::string_view name) {
  const auto section = ParseProfileName(name);
  return section ? section->designation : "";
}

TEST(ProfileName, IsReadInEachUsualSpelling) {
  for (const auto& [name, designation] : {
           std::pair{"HEB220", "HEB220"},
           {"HE 220 B", "HEB220"},
           {"HE220B", "HEB220"},
           {"heb 220", "HEB220"},
           {"HE-B 220", "HEB220"},
           {"HE_B_220", "HEB220"},
           {"HEB220 S235", "HEB220"},
           {"HE 220 B S355J2", "HEB220"},
           {"IPB 220", "HEB220"},
           {"IPBl 200", "HEA200"},
           {"IPBv 200", "HEM200"},
           {" IPE 300", "IPE300"},
           {"IPE300-S235", "IPE300"},
           {"INP 200", "IPN200"},
           {"IPN 200", "IPN200"},
           {"UNP 200", "UPN200"},
           {"UPN200", "UPN200"},
           {"U200", "UPN200"},
           {"UPE 200", "UPE200"},
           {"L100x100x10", "L100x100x10"},
           {"L 100*10", "L100x100x10"},
           {"L100X50X8", "L100x50x8"},
           {"L 50/100/8", "L100x50x8"},
           {"RHS 100x50x5", "RHS100x50x5"},
           {"SHS 100x100x6,3", "SHS100x100x6.3"},
           {"SHS100x5", "SHS100x100x5"},
           {"QRO 80 x 4", "SHS80x80x4"},
           {"CHS 114.3x5", "CHS114.3x5"},
           {"RO114,3\xC3\x97"
            "5",
            "CHS114.3x5"},
           {"TUBE 60.3 x 3.2", "CHS60.3x3.2"},
           {"TUBE 100x50x4", "RHS100x50x4"},
           {"RHS 111x55x4", "RHS111x55x4"},
       }) {
    EXPECT_EQ(Parsed(name), designation) << name;
  }
}

TEST(ProfileName, IsNoneIfItBeginsOtherwise) {
  for (const char* name : {"",
                           "Beam",
                           "300x600",
                           "HEB",
                           "HEB 221",
                           "HEB220.5",
                           "HE 220",
                           "HE 220 C",
                           "HE 220 BX",
                           "IPEA 300",
                           "IPE 300x150",
                           "U 200x80x6",
                           "L100",
                           "RHS 100x50",
                           "SHS100x100x60",
                           "CHS 100x60",
                           "L 10x20x30x40",
                           "Concrete HEB220",
                           "XHEB220",
                           "\xFF\xFE",
                           "x",
                           "L x 5",
                           "HEB99999999999999999999999999",
                           "CHS 0x0"}) {
    EXPECT_EQ(Parsed(name), "") << name;
  }
}

TEST(ProfileName, KnowsTheAreaOfWhatTheTablesHave) {
  EXPECT_GT(ParseProfileName("RHS 100x50x5")->area, 0.0);
  EXPECT_EQ(ParseProfileName("RHS 111x55x4")->area, 0.0);
}

TEST(ProfileName, MayBeTwoNumbers) {
  const auto numbers = ParseTwoNumbers("300 x 600,5");
  ASSERT_TRUE(numbers);
  EXPECT_EQ((*numbers)[0], 300.0);
  EXPECT_EQ((*numbers)[1], 600.5);
  for (const char* name : {"300", "300x600x5", "300x600mm", "C300x600", "", "x"}) {
    EXPECT_FALSE(ParseTwoNumbers(name)) << name;
  }
}

}  // namespace
}  // namespace KelIFC::building

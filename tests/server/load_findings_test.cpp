#include "kelifc/server/load_findings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace KelIFC {
namespace {

TEST(LoadFindings, CountsEachKindAndKeepsItsPlaces) {
  LoadFindings findings;
  findings.Note(LoadFinding::kBadEscape, {3, 4});
  findings.Note(LoadFinding::kRepeatedNumber, {5, 6});
  findings.Note(LoadFinding::kBadEscape, {7, 8});
  EXPECT_EQ(findings.GetCount(LoadFinding::kBadEscape), 2U);
  EXPECT_EQ(findings.GetCount(LoadFinding::kRepeatedNumber), 1U);
  EXPECT_EQ(findings.GetCount(LoadFinding::kStatementWithoutEnd), 0U);
  EXPECT_THAT(findings.GetPlaces(LoadFinding::kBadEscape),
              testing::ElementsAre(SourcePlace{3, 4}, SourcePlace{7, 8}));
}

TEST(LoadFindings, KeepTheFirstPlacesOnly) {
  LoadFindings findings;
  for (std::uint64_t line = 1; line <= 1000; ++line) {
    findings.Note(LoadFinding::kBadEscape, {line, 1});
  }
  EXPECT_EQ(findings.GetCount(LoadFinding::kBadEscape), 1000U);
  ASSERT_EQ(findings.GetPlaces(LoadFinding::kBadEscape).size(), LoadFindings::kMostPlaces);
  EXPECT_EQ(findings.GetPlaces(LoadFinding::kBadEscape).back().line, LoadFindings::kMostPlaces);
}

}  // namespace
}  // namespace KelIFC

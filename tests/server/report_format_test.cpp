#include "kelifc/server/report_format.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace KelIFC {
namespace {

using testing::HasSubstr;
using testing::Not;

LoadReport SampleReport() {
  LoadReport report;
  report.statements = 12;
  report.numbers = 11;
  report.made = 8;
  report.raw = 1;
  report.dropped = 2;
  report.added = 3;
  report.droppedByEntity["IFC\"\x01\xE4"] = 2;
  report.findings.Note(LoadFinding::kRepeatedNumber, {4, 5}, {7, "", 0});
  for (std::uint64_t line = 1; line <= 12; ++line) {
    report.findings.Note(LoadFinding::kDanglingReference, {line, 2},
                         {9, "IFCWALL", 6, "ObjectPlacement"});
  }
  report.danglingByAttribute[{"IFCWALL", 6, "ObjectPlacement"}] = 12;
  return report;
}

TEST(ReportFormat, TextHasTheCountsAndTheFirstPlaces) {
  const std::string text = FormatReport(SampleReport());
  EXPECT_THAT(text, HasSubstr("Numbered statements 12\n"));
  EXPECT_THAT(text, HasSubstr("Left out            2\n  IFC\"\\x01\\xe4"));
  EXPECT_THAT(text, HasSubstr("\n1 x number used twice\n  line 4:5 (#7)\n"));
  EXPECT_THAT(text,
              HasSubstr("  line 10:2 (#9=IFCWALL, attribute 6 ObjectPlacement)\n  and 2 more\n"));
  EXPECT_THAT(text, Not(HasSubstr("Nothing is wrong")));
  EXPECT_THAT(FormatReport(LoadReport()), HasSubstr("\nNothing is wrong in the file.\n"));
}

TEST(ReportFormat, JsonHasEveryPlace) {
  const std::string json = FormatReportAsJson(SampleReport());
  EXPECT_THAT(json, HasSubstr(R"({"statements":12,"numbers":11,"made":8,"raw":1,"dropped":2,)"
                              R"("added":3,"droppedEntities":{"IFC\"\u0001\u00e4":2},)"
                              R"("repeatedNumbers":{"count":1,"places":)"
                              R"([{"line":4,"column":5,"number":7}]},)"));
  EXPECT_THAT(
      json,
      HasSubstr(R"({"line":12,"column":2,"number":9,"entity":"IFCWALL",)"
                R"("attribute":6,"name":"ObjectPlacement"}],"attributes":[{"entity":"IFCWALL",)"
                R"("attribute":6,"name":"ObjectPlacement","count":12}]})"));
  EXPECT_THAT(json, HasSubstr(R"("badEscapes":{"count":0,"places":[]})"));
}

TEST(ReportFormat, FindsCountsByTheirNames) {
  const LoadReport report = SampleReport();
  EXPECT_EQ(FindReportCount(report, "statements"), 12U);
  EXPECT_EQ(FindReportCount(report, "danglingReferences"), 12U);
  EXPECT_EQ(FindReportCount(report, "statementsWithoutEnd"), 0U);
  EXPECT_FALSE(FindReportCount(report, "places").has_value());
}

}  // namespace
}  // namespace KelIFC

#include <memory>
#include <string>
#include <vector>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/server/same_values.h"

#include "tests/schema/model.h"
#include "tests/schema/records.h"

namespace KelIFC {
namespace {

// Returns the positions of a record, which are split at the commas outside strings and parentheses.
std::vector<std::string> PositionsOf(const std::string& record) {
  std::vector<std::string> positions(1);
  int depth = 0;
  bool isInString = false;
  for (const char c : record) {
    if (c == '\'') isInString = !isInString;
    if (!isInString && c == '(') ++depth;
    if (!isInString && c == ')') --depth;
    if (!isInString && depth == 0 && c == ',') {
      positions.emplace_back();
    } else {
      positions.back() += c;
    }
  }
  return positions;
}

std::string Join(const std::vector<std::string>& positions) {
  std::string text;
  for (const auto& position : positions) text += (text.empty() ? "" : ",") + position;
  return text;
}

std::unique_ptr<IfcUnknown> Make(IfcServer& server, const std::string& text) {
  std::unique_ptr<IfcUnknown> instance(server.ParseClass(text.c_str(), nullptr));
  if (instance == nullptr) return instance;
  instance->SetServer(&server);
  instance->Parse(text.c_str());
  return instance;
}

// Returns whether two statements of a release have the same values.
bool AreSame(const std::string& a, const std::string& b, IFC_RELEASE release = IFC_RELEASE_2X3) {
  IfcServer server;
  server.SetRelease(release);
  return HaveSameValues(*Make(server, a), *Make(server, b));
}

struct ReleaseRecords {
  IFC_RELEASE release;
  const std::vector<SampleRecord>& (*records)();
};

class Comparison : public testing::TestWithParam<ReleaseRecords> {
 protected:
  Comparison() { server.SetRelease(GetParam().release); }

  std::unique_ptr<IfcUnknown> Make(const SampleRecord& record, const std::string& positions) {
    return KelIFC::Make(server, record.name + "(" + positions + ")");
  }

  IfcServer server;
};

TEST_P(Comparison, FindsTwoInstancesWithTheSameTextEqual) {
  for (const auto& record : GetParam().records()) {
    for (const auto& positions : {record.read, record.unset}) {
      EXPECT_TRUE(HaveSameValues(*Make(record, positions), *Make(record, positions)))
          << record.name << "(" << positions << ")";
    }
  }
}

TEST_P(Comparison, NoticesEachPositionThatIsWritten) {
  std::size_t noticed = 0;
  for (const auto& record : GetParam().records()) {
    const auto whole = Make(record, record.read);
    const std::vector<std::string> set = PositionsOf(record.read);
    const std::vector<std::string> unset = PositionsOf(record.unset);
    ASSERT_EQ(set.size(), unset.size()) << record.name;
    for (std::size_t i = 0; i < set.size(); ++i) {
      std::vector<std::string> changed = set;
      changed[i] = unset[i];
      const auto other = Make(record, Join(changed));
      if (Text(*whole) == Text(*other)) continue;  // a position that the class does not keep
      EXPECT_FALSE(HaveSameValues(*whole, *other)) << record.name << ", position " << i;
      ++noticed;
    }
  }
  EXPECT_GT(noticed, 2 * GetParam().records().size());
}

INSTANTIATE_TEST_SUITE_P(OfRelease, Comparison,
                         testing::Values(ReleaseRecords{IFC_RELEASE_151, &SampleRecords151},
                                         ReleaseRecords{IFC_RELEASE_20, &SampleRecords20},
                                         ReleaseRecords{IFC_RELEASE_2X, &SampleRecords2x},
                                         ReleaseRecords{IFC_RELEASE_2X2, &SampleRecords2x2},
                                         ReleaseRecords{IFC_RELEASE_2X3, &SampleRecords2x3}),
                         [](const auto& info) {
                           return "Of" + std::to_string(static_cast<int>(info.param.release));
                         });

TEST(ComparisonOfValues, DistinguishesNumbersThatASaveWritesWithTheSameText) {
  EXPECT_FALSE(AreSame("IFCCARTESIANPOINT((0.,1.))", "IFCCARTESIANPOINT((0.0005,1.))"));
  EXPECT_FALSE(AreSame("IFCCARTESIANPOINT((0.,1.))", "IFCCARTESIANPOINT((-0.,1.))"));
  EXPECT_TRUE(AreSame("IFCCARTESIANPOINT((0.,1.))", "IFCCARTESIANPOINT((0.0,1.00))"));
}

TEST(ComparisonOfValues, DistinguishesAnUnsetNumberFromZero) {
  EXPECT_FALSE(AreSame("IFCBOUNDINGBOX(#1,0.,$,$)", "IFCBOUNDINGBOX(#1,$,$,$)"));
}

TEST(ComparisonOfValues, DistinguishesAnEmptyTextFromAnUnsetText) {
  EXPECT_FALSE(AreSame("IFCPERSON('','a',$,$,$,$,$,$)", "IFCPERSON($,'a',$,$,$,$,$,$)"));
}

TEST(ComparisonOfValues, NoticesAnotherIdentifier) {
  EXPECT_FALSE(
      AreSame("IFCWALL('0123456789ABCDEFGHIJ_$',#1)", "IFCWALL('0123456789ABCDEFGHIJ_0',#1)"));
  EXPECT_FALSE(AreSame("IFCPROJECT('0123456789ABCDEFGHIJ',#1)",
                       "IFCPROJECT('0123456789ABCDEFGHIK',#1)", IFC_RELEASE_20));
}

TEST(ComparisonOfValues, NoticesTheOrderAndTheNumberOfReferences) {
  EXPECT_FALSE(AreSame("IFCPOLYLINE((#1,#2))", "IFCPOLYLINE((#2,#1))"));
  EXPECT_FALSE(AreSame("IFCPOLYLINE((#1,#2))", "IFCPOLYLINE((#1,#2,#3))"));
  EXPECT_TRUE(AreSame("IFCPOLYLINE((#1,#2))", "IFCPOLYLINE( (#1, #2) )"));
  EXPECT_FALSE(AreSame("IFCUNITASSIGNMENT((#1))", "IFCUNITASSIGNMENT((#2))"));
}

TEST(ComparisonOfValues, NoticesAnotherKindOfTrim) {
  EXPECT_FALSE(AreSame("IFCTRIMMEDCURVE(#1,(#2),(#3),.T.,.CARTESIAN.)",
                       "IFCTRIMMEDCURVE(#1,(#2),(#3),.T.,.PARAMETER.)"));
}

TEST(ComparisonOfValues, ComparesInlineValues) {
  const std::string head = "IFCPROPERTYSINGLEVALUE('a',$,";
  EXPECT_TRUE(AreSame(head + "IFCLABEL('x'),$)", head + "IFCLABEL('x'),$)"));
  EXPECT_FALSE(AreSame(head + "IFCLABEL('x'),$)", head + "IFCLABEL('y'),$)"));
  EXPECT_FALSE(AreSame(head + "IFCLABEL('x'),$)", head + "IFCTEXT('x'),$)"));
  EXPECT_FALSE(AreSame(head + "IFCREAL(0.),$)", head + "IFCREAL(0.0005),$)"));
  EXPECT_FALSE(AreSame(head + "IFCLENGTHMEASURE(1.),$)", head + "IFCLENGTHMEASURE(2.),$)"));
  EXPECT_FALSE(AreSame(head + "IFCLABEL('x'),$)", head + "$,$)"));
}

TEST(ComparisonOfValues, NoticesAnotherSchema) {
  EXPECT_TRUE(AreSame("FILE_SCHEMA(('IFC2X3'))", "FILE_SCHEMA( ('IFC2X3') )"));
  EXPECT_FALSE(AreSame("FILE_SCHEMA(('IFC2X3'))", "FILE_SCHEMA(('IFC2X2'))"));
}

TEST(ComparisonOfValues, ComparesTheNameAndTheTextOfAnEntityWithoutAClass) {
  EXPECT_TRUE(AreSame("IFCFOO(1,'a')", "IFCFOO(1,'a')"));
  EXPECT_FALSE(AreSame("IFCFOO(1,'a')", "IFCFOO(1, 'a')"));
  EXPECT_FALSE(AreSame("IFCFOO(1)", "IFCBAR(1)"));
}

TEST(ComparisonOfValues, FindsInstancesOfDifferentClassesDifferent) {
  EXPECT_FALSE(AreSame("IFCWALL($)", "IFCSLAB($)"));
}

TEST(ComparisonOfValues, FindsAClassOfTheHostDifferent) {
  class HostPoint : public IfcCartesianPoint {};
  const HostPoint a;
  const HostPoint b;
  EXPECT_FALSE(HaveSameValues(a, b));
}

}  // namespace
}  // namespace KelIFC

#include "kelifc/core/unknown.h"

#include <gtest/gtest.h>

#include "kelifc/core/bounding_box.h"
#include "kelifc/core/cartesian_point.h"
#include "kelifc/server/ifc_server.h"

#include "tests/core/probe.h"
#include "tests/core/text.h"

namespace KelIFC {
namespace {

/// Has only the operations of the base class.
class Plain : public IfcUnknown {
 public:
  const char* Parse(const char* text) override { return IfcUnknown::Parse(text); }
};

TEST(Unknown, NamesItselfAsTheBase) {
  EXPECT_STREQ(Plain().GetStepName(), "IfcUnknown");
  EXPECT_STREQ(IfcUnknown::GetItemName(), "IfcUnknown");
}

TEST(Unknown, ParsesUpToThePositionAfterTheFirstParenthesis) {
  Plain plain;
  EXPECT_EQ(RestOf(plain, " whatever (1,(2))"), "1,(2))");
  EXPECT_EQ(RestOf(plain, "IFCWALL"), "(null)");
  EXPECT_EQ(plain.Parse(nullptr), nullptr);
}

TEST(Unknown, WritesItsNameInUpperCaseAndLeavesTheRecordOpen) {
  EXPECT_EQ(Text(Plain()), "IFCUNKNOWN(");
}

TEST(Unknown, PassesADerivedMark) {
  Plain plain;
  EXPECT_STREQ(plain.ParseDef(" * ,5"), "5");
  EXPECT_EQ(plain.ParseDef("*)"), nullptr);
  EXPECT_EQ(plain.ParseDef(nullptr), nullptr);
}

TEST(Unknown, SkipsOnlyBlanksBeforeAnythingElse) {
  Plain plain;
  EXPECT_STREQ(plain.ParseDef("  $,5"), "$,5");
  EXPECT_STREQ(plain.ParseDef(" #1,5"), "#1,5");
  EXPECT_STREQ(plain.ParseDef(" "), "");
}

TEST(Unknown, KnowsItsServerAndHandsItToCopies) {
  IfcServer server;
  Plain plain;
  EXPECT_EQ(plain.GetServer(), nullptr);
  plain.SetServer(&server);
  const Plain copy(plain);
  EXPECT_EQ(copy.GetServer(), &server);
  Plain assigned;
  assigned = plain;
  EXPECT_EQ(assigned.GetServer(), &server);
}

TEST(Unknown, LeavesMissingAttributesUnsetAndIgnoresFurtherOnes) {
  IfcBoundingBox box;
  box.Parse("IFCBOUNDINGBOX(#1,2.)");
  EXPECT_EQ(Text(box), "IFCBOUNDINGBOX(#1,2.,$,$");
  box.Parse("IFCBOUNDINGBOX(#1,2.,3.,4.,5.,6.)");
  EXPECT_EQ(Text(box), "IFCBOUNDINGBOX(#1,2.,3.,4.");
}

TEST(Unknown, LeavesAllAttributesUnsetWithoutAParenthesis) {
  IfcBoundingBox box;
  box.Parse("IFCBOUNDINGBOX(#1,2.,3.,4.)");
  EXPECT_EQ(box.Parse("IFCBOUNDINGBOX"), nullptr);
  EXPECT_EQ(Text(box), "IFCBOUNDINGBOX($,$,$,$");
}

}  // namespace
}  // namespace KelIFC

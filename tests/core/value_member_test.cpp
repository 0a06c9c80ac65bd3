#include "kelifc/core/value_member.h"

#include <gtest/gtest.h>

#include <sstream>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/length_measure.h"
#include "kelifc/server/ifc_server.h"

#include "tests/core/probe.h"

namespace KelIFC {
namespace {

class ValueMember : public testing::Test {
 protected:
  ValueMember() { server.SetRelease(IFC_RELEASE_2X3); }

  std::string Rest(const char* text) {
    const char* rest = ParseValueMember(&server, text, member);
    return rest == nullptr ? "(null)" : rest;
  }
  std::string Written() const {
    std::ostringstream out;
    WriteValueMember(out, member);
    return out.str();
  }

  IfcServer server;
  MEMBER member;
};

TEST_F(ValueMember, ReadsATypedValueByItsBody) {
  EXPECT_EQ(Rest(" IFCLENGTHMEASURE (2.5),5"), "5");
  const auto* value = dynamic_cast<const IfcLengthMeasure*>(member.GetInstance());
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(*value, 2.5);
  EXPECT_EQ(Written(), "IFCLENGTHMEASURE(2.5)");
  EXPECT_EQ(Rest("IFCLABEL('a,b')"), "(null)");
  EXPECT_EQ(Written(), "IFCLABEL('a,b')");
}

TEST_F(ValueMember, WritesARatioWithTheNameOfItsClass) {
  Rest("IFCRATIOMEASURE(0.5)");
  EXPECT_EQ(Written(), "IFCLENGTHMEASURE(0.5)");
}

TEST_F(ValueMember, StaysAtWhatIsNoTypedValue) {
  for (const char* text : {"$,5", "*,5", "#1,5", "2.5,5", "IFCFOO(1),5", "IFCPARAMETERVALUE(1),5",
                           "IFCCARTESIANPOINT((1.)),5", "", "("}) {
    Rest("IFCLENGTHMEASURE(2.5)");
    EXPECT_EQ(Rest(text), text);
    EXPECT_FALSE(member.GetExists()) << text;
    EXPECT_EQ(Written(), "$");
  }
}

TEST_F(ValueMember, IsUnsetByANullCursor) {
  Rest("IFCLENGTHMEASURE(2.5)");
  EXPECT_EQ(ParseValueMember(&server, nullptr, member), nullptr);
  EXPECT_EQ(Written(), "$");
}

TEST_F(ValueMember, StaysWithoutAModel) {
  const char* text = "IFCLENGTHMEASURE(2.5)";
  EXPECT_EQ(ParseValueMember(nullptr, text, member), text);
  EXPECT_EQ(Written(), "$");
}

TEST_F(ValueMember, DestroysTheValueThatItReplaces) {
  member = new Probe;
  Rest("IFCLENGTHMEASURE(2.5)");
  EXPECT_EQ(Probe::alive, 0);
}

TEST_F(ValueMember, WritesAValueThatAModelHolds) {
  server.InsertItem(4, new IfcLengthMeasure(2.5));
  member = server.GetItem(std::size_t{4});
  EXPECT_EQ(Written(), "IFCLENGTHMEASURE(2.5)");
}

TEST_F(ValueMember, WritesNothingForAReferenceToAnotherClass) {
  auto* point = new IfcCartesianPoint;
  server.InsertItem(4, point);
  member = MEMBER(point, 4);
  EXPECT_EQ(member.GetInstance(), point);
  EXPECT_EQ(Written(), "$");
}

}  // namespace
}  // namespace KelIFC

#include "kelifc/schema/references.h"

#include "tests/schema/model.h"

namespace KelIFC {
namespace {

using KelIFC2x3::IfcBooleanResult;
using KelIFC2x3::IfcDirection;
using KelIFC2x3::IfcHalfSpaceSolid;

TEST(UnknownOf, ReturnsTheInstanceOfASelect) {
  const IfcHalfSpaceSolid solid;
  const IfcBooleanOperand* operand = &solid;
  EXPECT_EQ(UnknownOf(operand), static_cast<const IfcUnknown*>(&solid));
  EXPECT_EQ(UnknownOf(static_cast<const IfcBooleanOperand*>(nullptr)), nullptr);
  EXPECT_EQ(UnknownOf(&solid), static_cast<const IfcUnknown*>(&solid));
}

TEST(SetReference, AcceptsASelect) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  auto* result = IfcBooleanResult::NewItem(&server);
  auto* solid = IfcHalfSpaceSolid::NewItem(&server);
  result->SetFirstOperand(solid);
  EXPECT_EQ(result->GetFirstOperand(), static_cast<IfcBooleanOperand*>(solid));
  EXPECT_EQ(Text(*result), "IFCBOOLEANRESULT(.UNION.,#2,$)");
}

TEST(ViewOf, IsEmptyOutsideAModel) {
  KelIFC2x3::IfcPolyLoop loop;
  loop.Parse("IFCPOLYLOOP((#1,#2))");
  EXPECT_EQ(loop.GetPolygon().GetSize(), 0u);
}

TEST(MakeItem, LetsTheCallerOwnTheInstanceWithoutAServer) {
  const std::unique_ptr<IfcDirection> direction(IfcDirection::NewItem(nullptr));
  EXPECT_EQ(direction->GetServer(), nullptr);
}

TEST(MakeItem, RegistersTheInstanceWithTheServer) {
  IfcServer server;
  IfcDirection* direction = IfcDirection::NewItem(&server);
  EXPECT_EQ(server.Find(direction), 1u);
  EXPECT_EQ(direction->GetServer(), &server);
}

}  // namespace
}  // namespace KelIFC

#include "kelifc/schema/attribute_value.h"

#include <memory>
#include <string>
#include <vector>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/length_measure.h"
#include "kelifc/core/other.h"

#include "tests/schema/model.h"

namespace KelIFC {
namespace {

using Kind = AttributeValueKind;

std::vector<std::size_t> NumbersOf(const AttributeValue& list) {
  std::vector<std::size_t> numbers;
  for (std::size_t i = 0; i < list.Size(); ++i) numbers.push_back(list.At(i).AsReferenceNumber());
  return numbers;
}

/// A model of 2x3 with one instance, which has the number 1.
struct Statement : Model<Release2x3> {
  explicit Statement(const std::string& text) : Model<Release2x3>({{1, text}}) {}
  IfcUnknown& Instance() { return *server.GetItem(1); }
  AttributeValue operator[](std::size_t position) { return ReadAttribute(Instance(), position); }
};

TEST(ReadAttribute, CountsInheritedPositionsToo) {
  Statement door("IFCDOOR('0123456789ABCDEFGHIJ_$',#2,'n','d','o',#3,#4,'t',2.1,0.9)");
  EXPECT_EQ(door[0].AsText(), "0123456789ABCDEFGHIJ_$");
  EXPECT_EQ(door[1].AsReferenceNumber(), 2U);
  EXPECT_EQ(door[7].AsText(), "t");
  EXPECT_EQ(door[8].AsNumber(), 2.1);
  EXPECT_EQ(door[9].AsNumber(), 0.9);
  EXPECT_EQ(door[10].GetKind(), Kind::kUnset);
  EXPECT_EQ(door[static_cast<std::size_t>(-1)].GetKind(), Kind::kUnset);
}

TEST(ReadAttribute, CountsThePositionsOfAStatementWithAnExplicitOrder) {
  Model<Release20> model({{1, "IFCATTDRIVENEXTRUDEDSEGMENT(*,*,2.5,#2,#3)"}});
  const InstanceView segment(*model.server.GetItem(1));
  EXPECT_EQ(segment[0].GetKind(), Kind::kDerived);
  EXPECT_EQ(segment[1].GetKind(), Kind::kDerived);
  EXPECT_EQ(segment[2].AsNumber(), 2.5);
  EXPECT_EQ(segment[3].AsReferenceNumber(), 2U);
  EXPECT_EQ(segment[4].AsReferenceNumber(), 3U);
}

TEST(ReadAttribute, ReturnsAnUnsetValueForWhatTheClassDoesNotKeep) {
  Statement history("IFCOWNERHISTORY(#2,#3,.READWRITE.,.MODIFIED.,12,#4,#5,34)");
  EXPECT_EQ(history[2].GetKind(), Kind::kUnset);
  EXPECT_EQ(history[3].GetKind(), Kind::kUnset);
  EXPECT_EQ(history[7].AsInteger(), 34);
}

TEST(ReadAttribute, ReturnsTheKeptNumberAndNotTheWrittenOne) {
  Statement circle("IFCCIRCLE(#2,0.0000000000001)");
  EXPECT_EQ(circle[1].AsNumber(), 0.0000000000001);
  EXPECT_EQ(circle[1].GetKind(), Kind::kReal);
}

TEST(ReadAttribute, ReturnsTheKeptTextIfASaveWritesAnotherText) {
  Statement stair("IFCSTAIR('0123456789ABCDEFGHIJ_$',#2,$,$,$,$,$,$,.SPIRAL_STAIR.)");
  EXPECT_EQ(stair[8].GetKind(), Kind::kEnumeration);
  EXPECT_EQ(stair[8].AsEnumerator(), "SPIRAL_STAIR");
}

TEST(AttributeValue, DistinguishesAnEmptyTextFromAnUnsetText) {
  Statement person("IFCORGANIZATION($,'','x',$,$)");
  EXPECT_EQ(person[0].GetKind(), Kind::kUnset);
  EXPECT_EQ(person[1].GetKind(), Kind::kText);
  EXPECT_EQ(person[1].AsText(), "");
}

TEST(AttributeValue, ReturnsTheNameOfAnEnumerator) {
  Statement unit("IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.)");
  EXPECT_EQ(unit[0].GetKind(), Kind::kDerived);
  EXPECT_EQ(unit[1].AsEnumerator(), "LENGTHUNIT");
  EXPECT_EQ(unit[2].AsEnumerator(), "MILLI");
  EXPECT_EQ(unit[3].AsEnumerator(), "METRE");
  Statement bare("IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.)");
  EXPECT_EQ(bare[2].GetKind(), Kind::kUnset);
}

TEST(AttributeValue, ReturnsTheTruthOfBooleanAndLogicalValues) {
  Statement curve("IFCCOMPOSITECURVE((#2),.U.)");
  EXPECT_EQ(curve[1].GetKind(), Kind::kLogical);
  EXPECT_EQ(curve[1].AsLogical(), LOGICAL_UNKNOWN);
  EXPECT_EQ(curve[1].AsEnumerator(), "U");
  Statement edge("IFCEDGECURVE(#2,#3,#4,.T.)");
  EXPECT_EQ(edge[3].GetKind(), Kind::kBoolean);
  EXPECT_TRUE(edge[3].AsBoolean());
  EXPECT_EQ(edge[3].AsLogical(), LOGICAL_TRUE);
  Statement other("IFCEDGECURVE(#2,#3,#4,.F.)");
  EXPECT_FALSE(other[3].AsBoolean());
  EXPECT_EQ(other[3].AsEnumerator(), "F");
}

TEST(AttributeValue, ReturnsTheBitsOfABinaryValue) {
  Model<Release20> model({{1, "IFCOWNERHISTORY(#2,#3,\"10\",$,$,$)"}});
  const AttributeValue flag = ReadAttribute(*model.server.GetItem(1), 2);
  EXPECT_EQ(flag.GetKind(), Kind::kBinary);
  EXPECT_EQ(flag.AsText(), "10");
}

TEST(AttributeValue, LeadsToTheInstanceOfAReference) {
  Model<Release2x3> model({{1, "IFCCIRCLE(#2,1.)"}, {2, "IFCAXIS2PLACEMENT2D(#9,$)"}});
  const InstanceView circle(*model.server.GetItem(1));
  EXPECT_EQ(circle[0].GetKind(), Kind::kReference);
  EXPECT_EQ(circle[0].AsReference(), model.server.GetItem(2));
  const AttributeValue dangling = ReadAttribute(*model.server.GetItem(2), 0);
  EXPECT_EQ(dangling.GetKind(), Kind::kReference);
  EXPECT_EQ(dangling.AsReferenceNumber(), 9U);
  EXPECT_EQ(dangling.AsReference(), nullptr);
}

TEST(AttributeValue, LeadsNowhereAfterTheInstanceWasDeleted) {
  Model<Release2x3> model({{1, "IFCCIRCLE(#2,1.)"}, {2, "IFCAXIS2PLACEMENT2D(#9,$)"}});
  const AttributeValue position = ReadAttribute(*model.server.GetItem(1), 0);
  model.server.DeleteItem(model.server.GetItem(2));
  EXPECT_EQ(position.AsReference(), nullptr);
  EXPECT_EQ(position.AsReferenceNumber(), 2U);
}

TEST(AttributeValue, LeadsToAnInlineInstanceWithoutANumber) {
  KelIFC151::IfcPolyLine line;
  auto* const point = new IfcCartesianPoint(1.0, 2.0);
  line.AddOwnPoint(point);
  const AttributeValue points = ReadAttribute(line, 0);
  ASSERT_EQ(points.Size(), 1U);
  EXPECT_EQ(points.At(0).GetKind(), Kind::kReference);
  EXPECT_EQ(points.At(0).AsReference(), point);
  EXPECT_EQ(points.At(0).AsReferenceNumber(), 0U);
}

TEST(AttributeValue, ReturnsTheTypeAndTheValueOfATypedValue) {
  Statement property("IFCPROPERTYSINGLEVALUE('a',$,IFCLABEL('x'),$)");
  const AttributeValue value = property[2];
  EXPECT_EQ(value.GetKind(), Kind::kTyped);
  EXPECT_EQ(value.TypeName(), "IfcLabel");
  EXPECT_EQ(value.TypedValue().AsText(), "x");
  EXPECT_EQ(value.AsText(), "");
  Statement ratio("IFCPROPERTYSINGLEVALUE('a',$,IFCRATIOMEASURE(0.25),$)");
  EXPECT_EQ(ratio[2].TypeName(), "IfcLengthMeasure");
  EXPECT_EQ(ratio[2].TypedValue().AsNumber(), 0.25);
  Statement logical("IFCPROPERTYSINGLEVALUE('a',$,IFCBOOLEAN(.T.),$)");
  EXPECT_TRUE(logical[2].TypedValue().AsBoolean());
}

TEST(AttributeValue, ReturnsTheTypedValuesOfASelect) {
  Statement curve("IFCTRIMMEDCURVE(#2,(#3,IFCPARAMETERVALUE(0.5)),(#4),.T.,.CARTESIAN.)");
  const AttributeValue trims = curve[1];
  ASSERT_EQ(trims.Size(), 2U);
  EXPECT_EQ(trims.At(0).AsReferenceNumber(), 3U);
  EXPECT_EQ(trims.At(1).GetKind(), Kind::kTyped);
  EXPECT_EQ(trims.At(1).TypeName(), "IfcParameterValue");
  EXPECT_EQ(trims.At(1).TypedValue().AsNumber(), 0.5);
  EXPECT_EQ(curve[4].AsEnumerator(), "CARTESIAN");
}

TEST(AttributeValue, ReturnsTheElementsOfAList) {
  Statement point("IFCCARTESIANPOINT((1.,2.5,-3.))");
  const AttributeValue coordinates = point[0];
  EXPECT_EQ(coordinates.GetKind(), Kind::kList);
  ASSERT_EQ(coordinates.Size(), 3U);
  EXPECT_EQ(coordinates.At(1).AsNumber(), 2.5);
  EXPECT_EQ(coordinates.At(3).GetKind(), Kind::kUnset);
  EXPECT_EQ(coordinates.At(static_cast<std::size_t>(-1)).GetKind(), Kind::kUnset);
  Model<Release20> model({{1, "IFCSITE('0123456789ABCDEFGHIJ',#2,$,$,$,$,$,$,(49,6,-12))"}});
  const AttributeValue latitude = ReadAttribute(*model.server.GetItem(1), 8);
  ASSERT_EQ(latitude.Size(), 3U);
  EXPECT_EQ(latitude.At(2).GetKind(), Kind::kInteger);
  EXPECT_EQ(latitude.At(2).AsInteger(), -12);
}

TEST(AttributeValue, KeepsTheOrderAndTheEqualElementsOfASet) {
  Statement units("IFCUNITASSIGNMENT((#7,#5,#7))");
  EXPECT_EQ(NumbersOf(units[0]), (std::vector<std::size_t>{7, 5, 7}));
}

TEST(AttributeValue, DistinguishesAnEmptyListFromAnUnsetListIfTheClassDoes) {
  EXPECT_EQ(Statement("IFCPOLYLINE(())")[0].GetKind(), Kind::kList);
  EXPECT_EQ(Statement("IFCPOLYLINE($)")[0].GetKind(), Kind::kUnset);
  EXPECT_EQ(Statement("IFCUNITASSIGNMENT(())")[0].GetKind(), Kind::kUnset);
  EXPECT_EQ(Statement("IFCCARTESIANPOINT(())")[0].GetKind(), Kind::kUnset);
}

TEST(AttributeValue, ReturnsNothingForAnotherKind) {
  Statement circle("IFCCIRCLE(#2,1.5)");
  const AttributeValue radius = circle[1];
  EXPECT_EQ(radius.AsReference(), nullptr);
  EXPECT_EQ(radius.AsReferenceNumber(), 0U);
  EXPECT_EQ(radius.AsInteger(), 0);
  EXPECT_EQ(radius.AsText(), "");
  EXPECT_EQ(radius.AsEnumerator(), "");
  EXPECT_FALSE(radius.AsBoolean());
  EXPECT_EQ(radius.AsLogical(), LOGICAL_UNKNOWN);
  EXPECT_EQ(radius.Size(), 0U);
  EXPECT_EQ(radius.At(0).GetKind(), Kind::kUnset);
  EXPECT_EQ(radius.TypeName(), "");
  EXPECT_EQ(radius.TypedValue().GetKind(), Kind::kUnset);
  EXPECT_EQ(circle[0].AsNumber(), 0);
}

TEST(AttributeValue, IsUnsetByDefault) {
  const AttributeValue value;
  EXPECT_EQ(value.GetKind(), Kind::kUnset);
  EXPECT_EQ(value.AsReference(), nullptr);
  EXPECT_EQ(value.Size(), 0U);
}

TEST(InstanceView, DescribesAnInstance) {
  Statement circle("IFCCIRCLE(#2,1.5)");
  const InstanceView view(circle.Instance());
  EXPECT_EQ(view.EntityName(), "IfcCircle");
  EXPECT_EQ(view.Description(), FindEntity(IFC_RELEASE_2X3, "IfcCircle"));
  EXPECT_EQ(view.Size(), 2U);
}

TEST(InstanceView, HasOnePositionForATypedValue) {
  const IfcLengthMeasure measure(2.5);
  const InstanceView view(measure);
  EXPECT_EQ(view.Size(), 1U);
  EXPECT_EQ(view[0].AsNumber(), 2.5);
  EXPECT_EQ(view[1].GetKind(), Kind::kUnset);
}

TEST(InstanceView, HasNoValuesForAClassOfTheHost) {
  class HostPoint : public IfcCartesianPoint {};
  const HostPoint point;
  const InstanceView view(point);
  EXPECT_EQ(view.EntityName(), "IfcCartesianPoint");
  EXPECT_EQ(view.Description(), nullptr);
  EXPECT_EQ(view.Size(), 0U);
  EXPECT_EQ(view[0].GetKind(), Kind::kUnset);
}

TEST(InstanceView, ReadsRawTextByPosition) {
  Model<Release2x3> model({{1, "IFCTASK('it\\'s',#2,$,*,7,-1.5,.ELEMENT.,\"0101\",IFCLABEL('x'))"},
                           {2, "IFCCIRCLE(#3,1.)"}});
  const InstanceView task(*model.server.GetItem(1));
  EXPECT_EQ(task.EntityName(), "IFCTASK");
  EXPECT_EQ(task.Description(), nullptr);
  ASSERT_EQ(task.Size(), 9U);
  EXPECT_EQ(task[0].AsText(), "it's");
  EXPECT_EQ(task[1].AsReference(), model.server.GetItem(2));
  EXPECT_EQ(task[2].GetKind(), Kind::kUnset);
  EXPECT_EQ(task[3].GetKind(), Kind::kDerived);
  EXPECT_EQ(task[4].AsInteger(), 7);
  EXPECT_EQ(task[4].AsNumber(), 7);
  EXPECT_EQ(task[5].AsNumber(), -1.5);
  EXPECT_EQ(task[6].AsEnumerator(), "ELEMENT");
  EXPECT_EQ(task[7].GetKind(), Kind::kBinary);
  EXPECT_EQ(task[7].AsText(), "0101");
  EXPECT_EQ(task[8].TypeName(), "IFCLABEL");
  EXPECT_EQ(task[8].TypedValue().AsText(), "x");
  EXPECT_EQ(task[9].GetKind(), Kind::kUnset);
}

TEST(InstanceView, ReadsListsOfListsInRawText) {
  Statement grid("IFCFOO(((1.,2.),(3.)),#2)");
  const AttributeValue rows = grid[0];
  ASSERT_EQ(rows.Size(), 2U);
  ASSERT_EQ(rows.At(0).Size(), 2U);
  EXPECT_EQ(rows.At(0).At(1).AsNumber(), 2);
  EXPECT_EQ(rows.At(1).At(0).AsNumber(), 3);
  EXPECT_EQ(rows.At(2).GetKind(), Kind::kUnset);
}

TEST(InstanceView, KeepsTheValuesOfRawTextAlive) {
  Statement foo("IFCFOO(('one','two'),.THREE.)");
  auto view = std::make_unique<InstanceView>(foo.Instance());
  const AttributeValue texts = (*view)[0];
  const AttributeValue three = (*view)[1];
  view.reset();
  EXPECT_EQ(texts.At(1).AsText(), "two");
  EXPECT_EQ(three.AsEnumerator(), "THREE");
}

TEST(InstanceView, ReturnsTheTruthOfAnEnumeratorInRawText) {
  Statement foo("IFCFOO(.T.,.F.,.U.,.ELEMENT.)");
  EXPECT_TRUE(foo[0].AsBoolean());
  EXPECT_EQ(foo[1].AsLogical(), LOGICAL_FALSE);
  EXPECT_EQ(foo[2].AsLogical(), LOGICAL_UNKNOWN);
  EXPECT_FALSE(foo[3].AsBoolean());
}

TEST(InstanceView, ReadsIntegersOfRawTextExactly) {
  Statement foo("IFCFOO(9007199254740993,-9223372036854775808,99999999999999999999,+5,-1E400)");
  EXPECT_EQ(foo[0].AsInteger(), 9007199254740993);
  EXPECT_EQ(foo[1].AsInteger(), INT64_MIN);
  EXPECT_EQ(foo[2].AsInteger(), INT64_MAX);
  EXPECT_EQ(foo[3].AsInteger(), 5);
  EXPECT_EQ(foo[4].GetKind(), Kind::kReal);
}

TEST(InstanceView, ReadsDamagedRawText) {
  const IfcOther empty;
  EXPECT_EQ(InstanceView(empty).Size(), 0U);
  EXPECT_EQ(InstanceView(empty)[0].GetKind(), Kind::kUnset);
  Statement foo("IFCFOO(,'open,(1,IFCLABEL())");
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_EQ(foo[i].At(0).TypedValue().GetKind(), Kind::kUnset) << i;
  }
}

}  // namespace
}  // namespace KelIFC

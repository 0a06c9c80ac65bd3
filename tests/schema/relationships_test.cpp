#include "tests/schema/model.h"
#include "tests/schema/slot_order.h"

namespace KelIFC {
namespace {

template <class R>
class Relationships : public testing::Test {};
using NewerReleases = testing::Types<Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(Relationships, NewerReleases);

template <class R>
class NewestRelationships : public testing::Test {};
using NewestReleases = testing::Types<Release2x2, Release2x3>;
TYPED_TEST_SUITE(NewestRelationships, NewestReleases);

const std::string kRoot = "'0123456789ABCDEFGHIJ_$',$,$,$";
const std::string kProduct = kRoot + ",$,$,$";
const std::string kWall = "IFCWALL(" + kProduct + ",$)";
const std::string kStorey = "IFCBUILDINGSTOREY(" + kProduct + ",$,$,$)";
const std::string kBuilding = "IFCBUILDING(" + kProduct + ",$,$,$,$,$)";
const std::string kOpening = "IFCOPENINGELEMENT(" + kProduct + ",$)";

TYPED_TEST(Relationships, FillInverseSetsOfInstancesThatFollowThem) {
  Model<TypeParam> model({{1, "IFCRELAGGREGATES(" + kRoot + ",#2,(#3,#4))"},
                          {2, kBuilding},
                          {3, kStorey},
                          {4, kStorey}});
  const auto* whole = model.template Get<typename TypeParam::IfcBuilding>(2);
  const auto* part = model.template Get<typename TypeParam::IfcBuildingStorey>(3);
  auto* relation = model.template Get<typename TypeParam::IfcRelAggregates>(1);
  ASSERT_EQ(whole->GetDecomposes().GetSize(), 1u) << "the set of the whole";
  EXPECT_EQ(whole->GetDecomposes()[1], relation);
  EXPECT_EQ(whole->GetIsDecomposedBy().GetSize(), 0u);
  ASSERT_EQ(part->GetIsDecomposedBy().GetSize(), 1u) << "the set of a part";
  EXPECT_EQ(relation->GetRelatedObjects().GetSize(), 2u);
  EXPECT_EQ(model.TextOf(1), "IFCRELAGGREGATES(" + kRoot + ",#2,(#3, #4))");
}

TYPED_TEST(Relationships, SkipInstancesThatDoNotExistOrAreOfAnotherClass) {
  Model<TypeParam> model(
      {{1, "IFCRELAGGREGATES(" + kRoot + ",#99,(#5,#98))"}, {5, "IFCDIRECTION((1.,0.))"}});
  EXPECT_EQ(model.TextOf(1), "IFCRELAGGREGATES(" + kRoot + ",#99,(#5, #98))");
}

TYPED_TEST(Relationships, AddThemselvesOnceToAnObjectThatIsNamedTwice) {
  Model<TypeParam> model({{1, "IFCRELASSOCIATES(" + kRoot + ",(#2,#2))"}, {2, kWall}});
  const auto* wall = model.template Get<typename TypeParam::IfcWall>(2);
  EXPECT_EQ(wall->GetHasAssociations().GetSize(), 1u);
  EXPECT_EQ(model.TextOf(1), "IFCRELASSOCIATES(" + kRoot + ",(#2, #2))");
}

TYPED_TEST(Relationships, ConnectElementsToTheirStorey) {
  Model<TypeParam> model(
      {{1, kWall}, {2, kStorey}, {3, "IFCRELCONTAINEDINSPATIALSTRUCTURE(" + kRoot + ",(#1),#2)"}});
  const auto* wall = model.template Get<typename TypeParam::IfcWall>(1);
  const auto* storey = model.template Get<typename TypeParam::IfcBuildingStorey>(2);
  ASSERT_EQ(wall->GetContainedInStructure().GetSize(), 1u);
  EXPECT_EQ(wall->GetContainedInStructure()[1]->GetRelatingStructure(), storey);
  EXPECT_EQ(storey->GetContainsElements().GetSize(), 1u);
}

TYPED_TEST(Relationships, ConnectElementsThatTouchAndWriteOnlyTheRoot) {
  Model<TypeParam> model(
      {{1, kWall}, {2, kWall}, {3, "IFCRELCONNECTSELEMENTS(" + kRoot + ",$,#1,#2)"}});
  using Wall = typename TypeParam::IfcWall;
  EXPECT_EQ(model.template Get<Wall>(1)->GetConnectedTo().GetSize(), 1u);
  EXPECT_EQ(model.template Get<Wall>(2)->GetConnectedFrom().GetSize(), 1u);
  EXPECT_EQ(model.TextOf(3), "IFCRELCONNECTSELEMENTS(" + kRoot + ")");
}

TYPED_TEST(Relationships, PathConnectionsReadTheAttributesOfTheirBase) {
  Model<TypeParam> model(
      {{1, kWall},
       {2, kWall},
       {3, "IFCRELCONNECTSPATHELEMENTS(" + kRoot + ",$,#1,#2,(),(),.ATEND.,.ATSTART.)"}});
  using Wall = typename TypeParam::IfcWall;
  EXPECT_EQ(model.template Get<Wall>(1)->GetConnectedTo().GetSize(), 1u);
  EXPECT_EQ(model.TextOf(3), "IFCRELCONNECTSPATHELEMENTS(" + kRoot + ")");
}

TYPED_TEST(Relationships, ConnectOpeningsToElementsAndFillings) {
  Model<TypeParam> model({{1, kWall},
                          {2, kOpening},
                          {3, "IFCRELVOIDSELEMENT(" + kRoot + ",#1,#2)"},
                          {4, "IFCWINDOW(" + kProduct + ",$,$,$)"}});
  const auto* opening = model.template Get<typename TypeParam::IfcOpeningElement>(2);
  EXPECT_EQ(opening->GetVoidsElements(), model.server.GetItem(std::size_t{3}));
  EXPECT_EQ(model.template Get<typename TypeParam::IfcWall>(1)->GetHasOpenings().GetSize(), 1u);
  EXPECT_FALSE(model.server.GetSupportsFillings()) << "nothing fills an opening yet";
  const std::string fills = "IFCRELFILLSELEMENT(" + kRoot + ",#2,#4)";
  model.server.InsertItem(5, model.server.ParseClass(fills.c_str(), nullptr));
  model.server.GetItem(std::size_t{5})->Parse(fills.c_str());
  EXPECT_TRUE(model.server.GetSupportsFillings());
  EXPECT_EQ(opening->GetHasFillings().GetSize(), 1u);
  EXPECT_EQ(model.template Get<typename TypeParam::IfcWindow>(4)->GetFillsVoids().GetSize(), 1u);
}

TYPED_TEST(Relationships, FillingThatLeadsNowhereDoesNotChangeTheSwitch) {
  Model<TypeParam> model({{2, kOpening}, {4, "IFCRELFILLSELEMENT(" + kRoot + ",#2,#99)"}});
  EXPECT_FALSE(model.server.GetSupportsFillings());
}

TEST(RelFillsElement, WritesOnlyTheAttributesOfTheRootIn2x) {
  const std::string text = "IFCRELFILLSELEMENT(" + kRoot + ",#2,#4)";
  EXPECT_EQ(Rewritten<Release2x>(text), "IFCRELFILLSELEMENT(" + kRoot + ")");
  EXPECT_EQ(Rewritten<Release2x2>(text), text);
  EXPECT_EQ(Rewritten<Release2x3>(text), text);
}

TYPED_TEST(NewestRelationships, AssignObjectsToAProductAndDropTheirType) {
  Model<TypeParam> model(
      {{1, "IFCRELASSIGNSTOPRODUCT(" + kRoot + ",(#2),.PRODUCT.,#3)"}, {2, kWall}, {3, kStorey}});
  EXPECT_EQ(model.template Get<typename TypeParam::IfcWall>(2)->GetHasAssignments().GetSize(), 1u);
  EXPECT_EQ(
      model.template Get<typename TypeParam::IfcBuildingStorey>(3)->GetReferencedBy().GetSize(),
      1u);
  EXPECT_EQ(model.TextOf(1), "IFCRELASSIGNSTOPRODUCT(" + kRoot + ",(#2),$,#3)");
}

TYPED_TEST(NewestRelationships, ConnectElementsToActivities) {
  const std::string text = "IFCRELCONNECTSSTRUCTURALACTIVITY(" + kRoot + ",#1,#9)";
  Model<TypeParam> model({{1, kWall}, {2, text}});
  EXPECT_EQ(
      model.template Get<typename TypeParam::IfcWall>(1)->GetAssignedStructuralActivity().GetSize(),
      1u);
  EXPECT_EQ(model.TextOf(2), text);
}

TYPED_TEST(NewestRelationships, DefineObjectsByPropertiesAndType) {
  const std::string properties = "IFCRELDEFINESBYPROPERTIES(" + kRoot + ",(#1),#9)";
  const std::string type = "IFCRELDEFINESBYTYPE(" + kRoot + ",(#1),#8)";
  Model<TypeParam> model({{1, kWall}, {2, properties}, {3, type}});
  const auto* wall = model.template Get<typename TypeParam::IfcWall>(1);
  EXPECT_EQ(wall->GetIsDefinedBy().GetSize(), 2u);
  EXPECT_EQ(model.TextOf(2), properties);
  EXPECT_EQ(model.TextOf(3), type);
}

TYPED_TEST(Relationships, ThatAreDeletedLeaveNullInTheViews) {
  Model<TypeParam> model({{1, "IFCRELASSOCIATES(" + kRoot + ",(#2))"}, {2, kWall}});
  model.server.DeleteItem(model.server.GetItem(std::size_t{1}));
  const auto view = model.template Get<typename TypeParam::IfcWall>(2)->GetHasAssociations();
  ASSERT_EQ(view.GetSize(), 1u);
  EXPECT_EQ(view[1], nullptr);
}

TYPED_TEST(Relationships, AcceptTypedSetsFromAHost) {
  IfcServer server;
  server.SetRelease(TypeParam::kRelease);
  auto* relation = TypeParam::IfcRelAssociates::NewItem(&server);
  auto* column = TypeParam::IfcColumn::NewItem(&server);
  typename TypeParam::IfcColumn stranger;
  SET<typename TypeParam::IfcObject*> objects;
  objects.Add(column);
  objects.Add(&stranger);
  relation->SetRelatedObjects(objects);
  ASSERT_EQ(relation->GetRelatedObjects().GetSize(), 1u) << "the model does not hold this instance";
  EXPECT_EQ(relation->GetRelatedObjects()[1], column);
}

TYPED_TEST(Relationships, OfTouchingElementsReturnTheGeometryOfTheConnection) {
  using Touching = typename TypeParam::IfcRelConnectsElements;
  Model<TypeParam> model({{1, "IFCRELCONNECTSELEMENTS(" + kRoot + ",#2,$,$)"},
                          {2, "IFCDIRECTION((1.,0.))"},
                          {3, "IFCRELCONNECTSPATHELEMENTS(" + kRoot + ",#99,$,$)"}});
  auto* touching = model.template Get<Touching>(1);
  auto* path = model.template Get<Touching>(3);
  IfcUnknown* geometry = model.server.GetItem(std::size_t{2});
  EXPECT_EQ(touching->GetConnectionGeometry(), geometry);
  EXPECT_EQ(path->GetConnectionGeometry(), nullptr);
  path->SetConnectionGeometry(geometry);
  EXPECT_EQ(path->GetConnectionGeometry(), geometry);
  touching->SetConnectionGeometry(nullptr);
  EXPECT_EQ(touching->GetConnectionGeometry(), nullptr);
  EXPECT_EQ(SlotOf(&Touching::GetConnectionGeometry), -1)
      << "the slots of derived classes stay the same";
  EXPECT_EQ(SlotOf(&Touching::SetConnectionGeometry), -1);
}

TEST(OlderRelationships, OfTouchingElementsReturnTheGeometryOfTheConnection) {
  const std::string record = "IFCRELCONNECTSELEMENTS('01234567890123456789',";
  Model<Release151> oldest({{1, record + "#9,$,.T.,.F.,#2,$,$)"}, {2, "IFCDIRECTION((1.,0.))"}});
  EXPECT_EQ(oldest.Get<KelIFC151::IfcRelConnectsElements>(1)->GetConnectionGeometry(),
            oldest.server.GetItem(std::size_t{2}));
  Model<Release20> older({{1, record + "$,$,.T.,.F.,#2,$,$)"}, {2, "IFCDIRECTION((1.,0.))"}});
  auto* touching = older.Get<KelIFC20::IfcRelConnectsElements>(1);
  EXPECT_EQ(touching->GetConnectionGeometry(), nullptr)
      << "a direction is not a connection geometry";
  auto* line = new KelIFC20::IfcLineConnectionGeometry;
  older.server.AddItem(line);
  touching->SetConnectionGeometry(line);
  EXPECT_EQ(touching->GetConnectionGeometry(), line);
}

TYPED_TEST(NewestRelationships, OfAnActivityReturnTheActivity) {
  using Acting = typename TypeParam::IfcRelConnectsStructuralActivity;
  using Action = typename TypeParam::IfcStructuralPointAction;
  Model<TypeParam> model({{1, "IFCRELCONNECTSSTRUCTURALACTIVITY(" + kRoot + ",#2,#3)"},
                          {2, kWall},
                          {3, "IFCSTRUCTURALPOINTACTION(" + kProduct + ",$,$,$,$,$)"}});
  auto* acting = model.template Get<Acting>(1);
  auto* action = model.template Get<Action>(3);
  EXPECT_EQ(acting->GetRelatedStructuralActivity(), action);
  acting->SetRelatedStructuralActivity(nullptr);
  EXPECT_EQ(acting->GetRelatedStructuralActivity(), nullptr);
  EXPECT_EQ(model.TextOf(1), "IFCRELCONNECTSSTRUCTURALACTIVITY(" + kRoot + ",#2,$)");
  acting->SetRelatedStructuralActivity(action);
  EXPECT_EQ(model.TextOf(1), "IFCRELCONNECTSSTRUCTURALACTIVITY(" + kRoot + ",#2,#3)");
  EXPECT_EQ(SlotOf(&Acting::GetRelatedStructuralActivity), -1);
  EXPECT_EQ(SlotOf(&Acting::SetRelatedStructuralActivity), -1);
}

}  // namespace
}  // namespace KelIFC

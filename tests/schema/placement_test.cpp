#include "tests/schema/model.h"

namespace KelIFC {
namespace {

template <class R>
class Placement : public testing::Test {};
using AllReleases = testing::Types<Release151, Release20, Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(Placement, AllReleases);

template <class R>
class NewerPlacement : public testing::Test {};
using NewerReleases = testing::Types<Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(NewerPlacement, NewerReleases);

template <class R>
class OlderPlacement : public testing::Test {};
using OlderReleases = testing::Types<Release151, Release20>;
TYPED_TEST_SUITE(OlderPlacement, OlderReleases);

template <class Direction>
std::vector<double> Ratios(const Direction* direction) {
  std::vector<double> values;
  if (direction == nullptr) return {-99};
  const LIST<REAL> ratios = direction->GetDirectionRatios();
  for (std::size_t i = 1; i <= ratios.GetSize(); ++i) {
    values.push_back(ratios[i].GetExists() ? static_cast<double>(ratios[i]) : -77.0);
  }
  return values;
}

template <class Axes>
std::vector<std::vector<double>> AllRatios(const Axes& axes) {
  std::vector<std::vector<double>> values;
  for (std::size_t i = 1; i <= axes.GetSize(); ++i) values.push_back(Ratios(axes[i]));
  return values;
}

using Numbers = std::vector<double>;
using Rows = std::vector<Numbers>;

const Rows kWorld = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};

TYPED_TEST(Placement, WithoutDirectionsHasTheAxesOfTheWorld) {
  Model<TypeParam> model(
      {{1, "IFCCARTESIANPOINT((1.,2.,3.))"}, {2, "IFCAXIS2PLACEMENT3D(#1,$,$)"}});
  const auto* place = model.template Get<typename TypeParam::IfcAxis2Placement3D>(2);
  EXPECT_EQ(AllRatios(place->GetP()), kWorld);
  EXPECT_EQ(AllRatios(place->GetP()), kWorld);
}

TYPED_TEST(Placement, WithOnlyAnAxisHasTheAxesOfTheWorld) {
  Model<TypeParam> model({{1, "IFCCARTESIANPOINT((1.,2.,3.))"},
                          {2, "IFCDIRECTION((1.,0.,0.))"},
                          {3, "IFCAXIS2PLACEMENT3D(#1,#2,$)"},
                          {4, "IFCAXIS2PLACEMENT3D(#1,$,#2)"}});
  using Place = typename TypeParam::IfcAxis2Placement3D;
  EXPECT_EQ(AllRatios(model.template Get<Place>(3)->GetP()), kWorld);
  EXPECT_EQ(AllRatios(model.template Get<Place>(4)->GetP()), kWorld);
}

TYPED_TEST(Placement, DerivesTheSecondAxisWithoutNormalising) {
  Model<TypeParam> model({{1, "IFCCARTESIANPOINT((1.,2.,3.))"},
                          {2, "IFCDIRECTION((0.,0.,1.))"},
                          {3, "IFCDIRECTION((2.,0.,0.))"},
                          {4, "IFCAXIS2PLACEMENT3D(#1,#2,#3)"}});
  const auto* place = model.template Get<typename TypeParam::IfcAxis2Placement3D>(4);
  EXPECT_EQ(AllRatios(place->GetP()), (Rows{{2, 0, 0}, {0, 2, 0}, {0, 0, 1}}));
  EXPECT_EQ(place->GetP()[2], place->GetP()[2]) << "the derived axis keeps its address";
}

TYPED_TEST(Placement, WithParallelDirectionsHasNoSecondAxis) {
  Model<TypeParam> model({{1, "IFCCARTESIANPOINT((1.,2.,3.))"},
                          {2, "IFCDIRECTION((1.,0.,0.))"},
                          {3, "IFCAXIS2PLACEMENT3D(#1,#2,#2)"}});
  const auto* place = model.template Get<typename TypeParam::IfcAxis2Placement3D>(3);
  EXPECT_EQ(Ratios(place->GetP()[2]), (Numbers{0, 0, 0}));
}

TYPED_TEST(Placement, CrossProductReadsADirectionInThePlaneAsZero) {
  using Direction = typename TypeParam::IfcDirection;
  const Direction plane(REAL(1.0), REAL(0.0));
  const Direction z(REAL(0.0), REAL(0.0), REAL(1.0));
  const std::unique_ptr<typename TypeParam::IfcVector> product(IfcCrossProduct(z, plane));
  EXPECT_EQ(Ratios(product->GetOrientation()), (Numbers{0, 0, 0}));
  EXPECT_EQ(static_cast<double>(product->GetMagnitude()), 0.0);
}

TYPED_TEST(Placement, CrossProductHasItsLengthAsMagnitude) {
  using Direction = typename TypeParam::IfcDirection;
  const Direction x(REAL(3.0), REAL(0.0), REAL(0.0));
  const Direction y(REAL(0.0), REAL(2.0), REAL(0.0));
  const std::unique_ptr<typename TypeParam::IfcVector> product(IfcCrossProduct(x, y));
  EXPECT_EQ(Ratios(product->GetOrientation()), (Numbers{0, 0, 6}));
  EXPECT_EQ(static_cast<double>(product->GetMagnitude()), 6.0);
}

TYPED_TEST(Placement, In2DAddsADirectionAboveTheNumbersOfTheFile) {
  Model<TypeParam> model({{7, "IFCCARTESIANPOINT((1.,2.))"}, {9, "IFCAXIS2PLACEMENT2D(#7,$)"}});
  EXPECT_EQ(model.server.GetItems().size(), 3u);
  EXPECT_EQ(model.TextOf(10), "IFCDIRECTION(($,$))");
  EXPECT_EQ(model.TextOf(9), "IFCAXIS2PLACEMENT2D(#7,$)");
}

TYPED_TEST(Placement, In2DReadTwiceAddsOneDirection) {
  Model<TypeParam> model({{7, "IFCCARTESIANPOINT((1.,2.))"}, {9, "IFCAXIS2PLACEMENT2D(#7,$)"}});
  model.server.GetItem(std::size_t{9})->Parse("IFCAXIS2PLACEMENT2D(#7,$)");
  EXPECT_EQ(model.server.GetItems().size(), 3u);
}

TYPED_TEST(Placement, In2DWithoutLocationAddsADirectionWithoutRatios) {
  Model<TypeParam> model({{9, "IFCAXIS2PLACEMENT2D(#7,$)"}});
  EXPECT_EQ(model.TextOf(10), "IFCDIRECTION(())");
}

TYPED_TEST(Placement, In2DBeforeItsLocationAddsADirectionWithoutRatios) {
  Model<TypeParam> model({{9, "IFCAXIS2PLACEMENT2D(#12,$)"}, {12, "IFCCARTESIANPOINT((1.,2.))"}});
  EXPECT_EQ(model.TextOf(13), "IFCDIRECTION(())");
}

TYPED_TEST(Placement, In2DWithoutServerAddsNoDirection) {
  typename TypeParam::IfcAxis2Placement2D place;
  place.Parse("IFCAXIS2PLACEMENT2D(#1,#2)");
  EXPECT_EQ(Text(place), "IFCAXIS2PLACEMENT2D(#1,#2)");
  EXPECT_EQ(place.GetP().GetSize(), 2u);
}

TYPED_TEST(Placement, In2DWithoutRefDirectionHasTheAxesOfThePlane) {
  Model<TypeParam> model({{7, "IFCCARTESIANPOINT((1.,2.))"}, {9, "IFCAXIS2PLACEMENT2D(#7,$)"}});
  const auto* place = model.template Get<typename TypeParam::IfcAxis2Placement2D>(9);
  EXPECT_EQ(AllRatios(place->GetP()), (Rows{{1, 0}, {0, 1}}));
}

TYPED_TEST(NewerPlacement, In2DHasASecondAxisWithoutValuesIfRefDirectionIsSet) {
  Model<TypeParam> model({{7, "IFCCARTESIANPOINT((1.,2.))"},
                          {8, "IFCDIRECTION((0.,1.))"},
                          {9, "IFCAXIS2PLACEMENT2D(#7,#8)"}});
  const auto* place = model.template Get<typename TypeParam::IfcAxis2Placement2D>(9);
  EXPECT_EQ(AllRatios(place->GetP()), (Rows{{0, 1}, {-77, -77}}));
}

TYPED_TEST(OlderPlacement, In2DTurnsTheFirstAxis) {
  Model<TypeParam> model({{7, "IFCCARTESIANPOINT((1.,2.))"},
                          {8, "IFCDIRECTION((0.,1.))"},
                          {9, "IFCAXIS2PLACEMENT2D(#7,#8)"}});
  const auto* place = model.template Get<typename TypeParam::IfcAxis2Placement2D>(9);
  const auto axes = AllRatios(place->GetP());
  EXPECT_NEAR(axes[1][0], -1.0, 1e-15);
  EXPECT_NEAR(axes[1][1], 0.0, 1e-15);
}

TYPED_TEST(OlderPlacement, OrthogonalComplementTurnsOnlyDirectionsInThePlane) {
  using Direction = typename TypeParam::IfcDirection;
  const Direction x(REAL(1.0), REAL(0.0));
  const Direction turned = IfcOrthogonalComplement(&x);
  EXPECT_NEAR(Ratios(&turned)[0], 0.0, 1e-15);
  EXPECT_NEAR(Ratios(&turned)[1], 1.0, 1e-15);
  const Direction space(REAL(1.0), REAL(2.0), REAL(3.0));
  const Direction same = IfcOrthogonalComplement(&space);
  EXPECT_EQ(Ratios(&same), (Numbers{1, 2, 3}));
  const Direction none = IfcOrthogonalComplement(static_cast<const Direction*>(nullptr));
  EXPECT_EQ(Ratios(&none), Numbers{});
}

TYPED_TEST(Placement, VectorWritesNoAttributes) {
  Model<TypeParam> model({{1, "IFCDIRECTION((1.,0.))"}, {2, "IFCVECTOR(#1,2.5)"}});
  const auto* vector = model.template Get<typename TypeParam::IfcVector>(2);
  EXPECT_EQ(static_cast<double>(vector->GetMagnitude()), 2.5);
  EXPECT_EQ(Ratios(vector->GetOrientation()), (Numbers{1, 0}));
  EXPECT_EQ(static_cast<int>(vector->GetDim()), 2);
  EXPECT_EQ(model.TextOf(2), "IFCVECTOR()");
}

TYPED_TEST(Placement, VectorOwnsADirectionThatAHostSets) {
  using Direction = typename TypeParam::IfcDirection;
  IfcServer server;
  typename TypeParam::IfcVector vector(&server, new Direction(REAL(1.0), REAL(2.0)),
                                       IfcLengthMeasure(3.0));
  EXPECT_EQ(const_cast<Direction*>(vector.GetOrientation())->GetServer(), &server);
  vector.SetOrientation(new Direction(REAL(4.0), REAL(5.0)));
  EXPECT_EQ(Ratios(vector.GetOrientation()), (Numbers{4, 5}));
}

TYPED_TEST(Placement, VectorWithoutOrientationHasNoDimension) {
  typename TypeParam::IfcVector vector;
  EXPECT_EQ(static_cast<int>(vector.GetDim()), 0);
}

TYPED_TEST(Placement, DirectionWithADimensionHasUnsetRatios) {
  EXPECT_EQ(Text(typename TypeParam::IfcDirection(INTEGER(2))), "IFCDIRECTION(($,$))");
  EXPECT_EQ(Text(typename TypeParam::IfcDirection(INTEGER(-1))), "IFCDIRECTION(())");
}

TYPED_TEST(Placement, DirectionIgnoresAnIndexOutOfRange) {
  typename TypeParam::IfcDirection direction(REAL(1.0), REAL(2.0));
  direction.SetDirectionRatio(0, 9.0);
  direction.SetDirectionRatio(3, 9.0);
  direction.SetDirectionRatio(2, 5.0);
  EXPECT_EQ(Ratios(&direction), (Numbers{1, 5}));
}

TYPED_TEST(Placement, WithoutLocationHasNoDimension) {
  typename TypeParam::IfcAxis2Placement3D place;
  EXPECT_EQ(static_cast<int>(place.GetDim()), 0);
}

TYPED_TEST(Placement, AcceptsALocationByNumberOrInstance) {
  Model<TypeParam> model({{1, "IFCCARTESIANPOINT((1.,2.,3.))"}, {2, "IFCAXIS2PLACEMENT3D($,$,$)"}});
  auto* place = model.template Get<typename TypeParam::IfcAxis2Placement3D>(2);
  auto* point = model.template Get<IfcCartesianPoint>(1);
  place->SetLocation(std::size_t{1});
  EXPECT_EQ(place->GetLocation(), point);
  place->SetLocation(std::size_t{55});
  EXPECT_EQ(place->GetLocation(), nullptr);
  place->SetLocation(*point);
  EXPECT_EQ(model.TextOf(2), "IFCAXIS2PLACEMENT3D(#1,$,$)");
  EXPECT_EQ(static_cast<int>(place->GetDim()), 3);
}

TYPED_TEST(NewerPlacement, LocalPlacementHasTwoReferences) {
  Model<TypeParam> model({{1, "IFCLOCALPLACEMENT($,#2)"},
                          {2, "IFCAXIS2PLACEMENT3D(#9,$,$)"},
                          {3, "IFCLOCALPLACEMENT(#1,#2)"}});
  const auto* place = model.template Get<typename TypeParam::IfcLocalPlacement>(3);
  EXPECT_EQ(place->GetPlacementRelTo(), model.server.GetItem(std::size_t{1}));
  EXPECT_EQ(place->GetRelativePlacement(),
            model.template Get<typename TypeParam::IfcAxis2Placement3D>(2));
  EXPECT_EQ(model.TextOf(3), "IFCLOCALPLACEMENT(#1,#2)");
}

TEST(LocalPlacement, FollowsTheAttributesOfTheRootInTheOldestReleases) {
  EXPECT_EQ(Rewritten<Release151>("IFCLOCALPLACEMENT('01234567890123456789',#2,#3)"),
            "IFCLOCALPLACEMENT('01234567890123456789',#2,#3)");
  EXPECT_EQ(Rewritten<Release20>("IFCLOCALPLACEMENT('01234567890123456789',#5,'label',#2,#3)"),
            "IFCLOCALPLACEMENT('01234567890123456789',#5,'label',#2,#3)");
}

TEST(LocalPlacement, WritesAnIdentifierForAnEmptyTextInTheOldestReleases) {
  const std::string text = Rewritten<Release151>("IFCLOCALPLACEMENT($,#2,#3)");
  EXPECT_EQ(text.size(), std::string("IFCLOCALPLACEMENT('01234567890123456789',#2,#3)").size());
}

template <class R>
class SpaceOperator : public testing::Test {};
using NewestReleases = testing::Types<Release2x2, Release2x3>;
TYPED_TEST_SUITE(SpaceOperator, NewestReleases);

TYPED_TEST(SpaceOperator, WithThreeScalesWritesNoCommaAfterItsThirdAxis) {
  const std::string name = "IFCCARTESIANTRANSFORMATIONOPERATOR3DNONUNIFORM";
  EXPECT_EQ(Rewritten<TypeParam>(name + "(#1,#2,#3,1.,#4,2.,3.)"), name + "(#1,#2,#3,1.,#42.,3.)");
}

TYPED_TEST(SpaceOperator, ReturnsTheValuesOfTheFile) {
  Model<TypeParam> model({{1, "IFCCARTESIANTRANSFORMATIONOPERATOR3D($,#2,$,1.5,#2)"},
                          {2, "IFCDIRECTION((1.,0.,0.))"}});
  const auto* change =
      model.template Get<typename TypeParam::IfcCartesianTransformationOperator3D>(1);
  EXPECT_EQ(change->GetAxis1(), nullptr);
  EXPECT_EQ(change->GetAxis2(), model.server.GetItem(std::size_t{2}));
  EXPECT_EQ(change->GetAxis3(), model.server.GetItem(std::size_t{2}));
  EXPECT_EQ(static_cast<double>(change->GetScale()), 1.5);
}

}  // namespace
}  // namespace KelIFC

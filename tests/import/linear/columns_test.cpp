#include <gtest/gtest.h>

#include <cmath>

#include "kelifc/geo/column.h"
#include "kelifc/geo/ifc_server_object.h"

#include "tests/import/structure_reader.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Release>
class Columns : public ConversionTest<Release> {
 protected:
  /// Adds a column with one item, without a placement.
  void AddColumn(const ModelBuilder::Ref& item, const std::string& name = "A") {
    auto& m = this->model;
    const auto placement = m.Local(m.Placement({0, 0, 0}));
    m.Column(placement, m.Body({item}), name);
  }

  /// A profile of 0.3 by 0.5 whose reference direction is `x`.
  ModelBuilder::Ref Rectangle(ModelBuilder::Numbers x) {
    auto& m = this->model;
    return m.Rectangle(0.3, 0.5, m.Placement2D({0, 0}, m.Direction(x)));
  }

  /// An outline in the shape of an I, which is not a regular figure.
  ModelBuilder::Ref IOutline() {
    return this->model.Outline(this->model.PolyLine({{-0.2, -0.2},
                                                     {0.2, -0.2},
                                                     {0.2, -0.18},
                                                     {0.01, -0.18},
                                                     {0.01, 0.18},
                                                     {0.2, 0.18},
                                                     {0.2, 0.2},
                                                     {-0.2, 0.2},
                                                     {-0.2, 0.18},
                                                     {-0.01, 0.18},
                                                     {-0.01, -0.18},
                                                     {-0.2, -0.18},
                                                     {-0.2, -0.2}}));
  }
};
TYPED_TEST_SUITE(Columns, ConvertedReleases);

TYPED_TEST(Columns, StandOnTheAxisOfTheirExtrusion) {
  auto& m = this->model;
  this->AddColumn(m.Extrusion(m.Rectangle(0.3, 0.5), 3));
  this->Convert();
  const auto column = Only(this->GetColumns());
  EXPECT_THAT(PointsOf(*column), ElementsAre(IsAt(0, 0, 0), IsAt(0, 0, 3)));
  EXPECT_EQ(this->SectionOf(*column), L"IFC_R_30x50");
  EXPECT_EQ(this->NameOf(*column), L"A");
}

TYPED_TEST(Columns, HaveTheIdentifierOfTheirInstance) {
  auto& m = this->model;
  this->AddColumn(m.Extrusion(m.Circle(0.2), 3));
  this->Convert();
  const auto column = Only(this->GetColumns());
  _GUID guid = {};
  {
    auto& own = static_cast<CoGeoColumn&>(*column);
    guid = own.guid;
  }
  auto& object = static_cast<CoIFCServer&>(*this->server);
  EXPECT_NE(object.Model().GetItem(guid), nullptr);
}

TYPED_TEST(Columns, GoThroughTheSolidsPositionAndThenThePlacements) {
  auto& m = this->model;
  const auto profile = m.Circle(0.2, m.Placement2D({1, 0}));
  const auto position = m.Turned({10, 0, 0}, {0, 1, 0});
  const auto solid = m.Extrusion(profile, position, m.Direction({0, 0, 2}), 3);
  const auto site = m.Local(m.Placement({0, 0, 1000}));
  const auto storey = m.Local(m.Turned({100, 0, 0}, {0, 1, 0}), site);
  m.Column(m.Local(m.Placement({0, 5, 0}), storey), m.Body({solid}));
  this->Convert();
  const auto column = Only(this->GetColumns());
  // (1,0) turns to (0,1), moves to (10,1), moves to (10,6), turns to (-6,10), moves to (94,10).
  EXPECT_THAT(PointsOf(*column), ElementsAre(IsAt(94, 10, 1000), IsAt(94, 10, 1003)));
}

TYPED_TEST(Columns, DependOnTheOrderOfTheirPlacements) {
  auto& m = this->model;
  const auto turn = m.Turned({0, 0, 0}, {0, 1, 0});
  const auto move = m.Placement({5, 0, 0});
  const auto body = m.Body({m.Extrusion(m.Circle(0.2), 1)});
  m.Column(m.Local(move, m.Local(turn)), body, "first");
  m.Column(m.Local(turn, m.Local(move)), body, "second");
  this->Convert();
  const auto columns = this->GetColumns();
  ASSERT_EQ(columns.size(), 2u);
  EXPECT_THAT(PointsOf(*columns[0]), ElementsAre(IsAt(0, 5, 0), IsAt(0, 5, 1)));
  EXPECT_THAT(PointsOf(*columns[1]), ElementsAre(IsAt(5, 0, 0), IsAt(5, 0, 1)));
}

TYPED_TEST(Columns, LeaveOutPlacementsInThePlane) {
  auto& m = this->model;
  const auto parent = m.Local(m.Placement({0, 0, 7}));
  const auto flat = m.Local(m.Placement2D({5, 5}), parent);
  m.Column(flat, m.Body({m.Extrusion(m.Circle(0.2), 1)}));
  this->Convert();
  const auto column = Only(this->GetColumns());
  EXPECT_THAT(PointsOf(*column), ElementsAre(IsAt(0, 0, 7), IsAt(0, 0, 8)));
}

TYPED_TEST(Columns, EndTheirChainAtACycle) {
  auto& m = this->model;
  const auto at = m.Placement({1, 0, 0});
  m.AddAs(901, "IFCLOCALPLACEMENT(#902," + at + ")");
  m.AddAs(902, "IFCLOCALPLACEMENT(#901," + at + ")");
  m.Column("#901", m.Body({m.Extrusion(m.Circle(0.2), 1)}));
  this->Convert();
  const auto column = Only(this->GetColumns());
  EXPECT_THAT(PointsOf(*column), ElementsAre(IsAt(2, 0, 0), IsAt(2, 0, 1)));
}

TYPED_TEST(Columns, AreInMetres) {
  auto& m = this->model;
  m.Project(".MILLI.");
  const auto solid = m.Extrusion(m.Rectangle(300, 500), 3000);
  m.Column(m.Local(m.Placement({1000, 0, 0})), m.Body({solid}));
  this->Convert();
  const auto column = Only(this->GetColumns());
  EXPECT_THAT(PointsOf(*column), ElementsAre(IsAt(1, 0, 0), IsAt(1, 0, 3)));
  EXPECT_EQ(this->SectionOf(*column), L"IFC_R_30x50");
}

TYPED_TEST(Columns, StartAtTheTopIfTheyAreExtrudedDownwards) {
  auto& m = this->model;
  const auto position = m.Placement({0, 0, 3});
  this->AddColumn(m.Extrusion(m.Circle(0.2), position, m.Direction({0, 0, -1}), 3));
  this->Convert();
  const auto column = Only(this->GetColumns());
  EXPECT_THAT(PointsOf(*column), ElementsAre(IsAt(0, 0, 3), IsAt(0, 0, 0)));
}

TYPED_TEST(Columns, HaveTheDiameterAsCircularSection) {
  auto& m = this->model;
  const auto profile = m.Circle(0.15, m.Placement2D({2, 3}));
  this->AddColumn(m.Extrusion(profile, 3));
  this->Convert();
  const auto column = Only(this->GetColumns());
  EXPECT_THAT(PointsOf(*column), ElementsAre(IsAt(2, 3, 0), IsAt(2, 3, 3)));
  EXPECT_EQ(this->SectionOf(*column), L"IFC_C_30");
}

TYPED_TEST(Columns, OfACircleWithoutPositionHaveNoAxisAndNoSection) {
  auto& m = this->model;
  this->AddColumn(m.Extrusion(m.Circle(0.15, "$"), 3));
  this->Convert();
  const auto column = Only(this->GetColumns());
  EXPECT_THAT(PointsOf(*column), IsEmpty());
  EXPECT_EQ(this->SectionOf(*column), L"");
}

TYPED_TEST(Columns, ShareASectionWithinAThousandth) {
  auto& m = this->model;
  for (const double radius : {0.15, 0.1502, 0.1505}) {
    this->AddColumn(m.Extrusion(m.Circle(radius), 3));
  }
  this->Convert();
  this->GetColumns();
  EXPECT_THAT(this->SectionNames(), ElementsAre(L"IFC_C_30", L"IFC_C_30.1"));
}

TYPED_TEST(Columns, SwapTheirSizesOnlyForADirectionThatPointsDown) {
  auto& m = this->model;
  this->AddColumn(m.Extrusion(this->Rectangle({1, 0}), 3), "right");
  this->AddColumn(m.Extrusion(this->Rectangle({0, 1}), 3), "up");
  this->AddColumn(m.Extrusion(this->Rectangle({-1, 0}), 3), "left");
  this->AddColumn(m.Extrusion(this->Rectangle({1, 1}), 3), "between");
  this->AddColumn(m.Extrusion(this->Rectangle({0, -1}), 3), "down");
  this->AddColumn(m.Extrusion(m.Rectangle(0.3, 0.5, "$"), 3), "without position");
  this->Convert();
  std::vector<std::wstring> sections;
  for (const auto& column : this->GetColumns()) sections.push_back(this->SectionOf(*column));
  EXPECT_THAT(sections, ElementsAre(L"IFC_R_30x50", L"IFC_R_30x50", L"IFC_R_30x50", L"IFC_R_30x50",
                                    L"IFC_R_50x30", L"IFC_R_30x50"));
}

TYPED_TEST(Columns, AreRecognisedByTheirOutline) {
  auto& m = this->model;
  const auto rectangle = m.PolyLine({{5, 5}, {5.3, 5}, {5.3, 5.5}, {5, 5.5}, {5, 5}});
  this->AddColumn(m.Extrusion(m.Outline(rectangle), 3));
  const auto rhombus = m.PolyLine({{0, -1}, {1, 0}, {0, 1}, {-1, 0}, {0, -1}});
  this->AddColumn(m.Extrusion(m.Outline(rhombus), 3));
  const auto tee = m.PolyLine({{-0.3, 0.5},
                               {-0.3, 0.4},
                               {-0.1, 0.4},
                               {-0.1, 0},
                               {0.1, 0},
                               {0.1, 0.4},
                               {0.3, 0.4},
                               {0.3, 0.5},
                               {-0.3, 0.5}});
  this->AddColumn(m.Extrusion(m.Outline(tee), 3));
  this->AddColumn(m.Extrusion(this->IOutline(), 3));
  this->Convert();
  const auto columns = this->GetColumns();
  ASSERT_EQ(columns.size(), 4u);
  // The axis goes through the origin of the plane, wherever the outline is.
  EXPECT_THAT(PointsOf(*columns[0]), ElementsAre(IsAt(0, 0, 0), IsAt(0, 0, 3)));
  EXPECT_THAT(this->SectionNames(),
              ElementsAre(L"IFC_R_30x50", L"IFC_N4_200x200", L"IFC_T_20x50", L"IFC_N12_40x40"));
}

TYPED_TEST(Columns, OfARoundOutlineHaveACircularSection) {
  auto& m = this->model;
  std::string points;
  for (int i = 0; i <= 16; ++i) {
    const double angle = i * std::acos(-1.0) / 8;
    points += (i == 0 ? "" : ",") + m.Point({0.2 * std::cos(angle), 0.2 * std::sin(angle)});
  }
  this->AddColumn(m.Extrusion(m.Outline(m.Add("IFCPOLYLINE((" + points + "))")), 3));
  this->Convert();
  this->GetColumns();
  EXPECT_THAT(this->SectionNames(), ElementsAre(L"IFC_C_40"));
}

TYPED_TEST(Columns, WithoutAnOutlineHaveAnEmptyPolygon) {
  auto& m = this->model;
  this->AddColumn(m.Extrusion(m.Outline("$"), 3));
  this->Convert();
  ASSERT_EQ(this->GetColumns().size(), 1u);
  EXPECT_THAT(this->SectionNames(), ElementsAre(L"IFC_N0_0x0"));
}

TYPED_TEST(Columns, NeverShareAPolygon) {
  auto& m = this->model;
  this->AddColumn(m.Extrusion(this->IOutline(), 3));
  this->AddColumn(m.Extrusion(this->IOutline(), 3));
  this->Convert();
  this->GetColumns();
  EXPECT_THAT(this->SectionNames(), ElementsAre(L"IFC_N12_40x40", L"IFC_N12_40x40"));
}

TYPED_TEST(Columns, OfOtherProfilesAreLeftOut) {
  auto& m = this->model;
  const auto i =
      m.Add("IFCISHAPEPROFILEDEF(.AREA.,$," + m.Placement2D({0, 0}) + ",0.3,0.3,0.01,0.02,$)");
  this->AddColumn(m.Extrusion(i, 3), "I");
  this->AddColumn(m.Extrusion("$", 3), "without profile");
  this->AddColumn(m.Extrusion(this->IOutline(), 3), "outline");
  this->Convert();
  EXPECT_THAT(this->NamesOf(this->GetColumns()), ElementsAre(L"outline"));
}

TYPED_TEST(Columns, AreMadeOfEachSupportedItem) {
  auto& m = this->model;
  const auto box = m.Add("IFCBOUNDINGBOX(" + m.Point({0, 0, 0}) + ",1.,1.,1.)");
  const auto first = m.Extrusion(m.Circle(0.2), 1);
  const auto second = m.Extrusion(m.Circle(0.2), 2);
  const auto placement = m.Local(m.Placement({0, 0, 0}));
  const auto body = m.Body({box, first, second});
  m.AddAs(700, ModelBuilder::ProductText("IFCCOLUMN", placement, body, ""));
  this->Convert();
  const auto columns = this->GetColumns();
  EXPECT_THAT(this->NamesOf(columns), ElementsAre(L"IFC#700(2)", L"IFC#700(3)"));
  EXPECT_THAT(PointsOf(*columns[1]), ElementsAre(IsAt(0, 0, 0), IsAt(0, 0, 2)));
}

TYPED_TEST(Columns, OfOneItemHaveNoSuffix) {
  auto& m = this->model;
  const auto body = m.Body({m.Extrusion(m.Circle(0.2), 1)});
  m.AddAs(57, ModelBuilder::ProductText("IFCCOLUMN", "$", body, ""));
  this->Convert();
  EXPECT_THAT(this->NamesOf(this->GetColumns()), ElementsAre(L"IFC#57"));
}

TYPED_TEST(Columns, HaveTheNameOfTheProductForEachItem) {
  auto& m = this->model;
  const auto first = m.Extrusion(m.Circle(0.2), 1);
  m.Column("$", m.Body({first, m.Extrusion(m.Circle(0.2), 2)}), "C1");
  this->Convert();
  EXPECT_THAT(this->NamesOf(this->GetColumns()), ElementsAre(L"C1", L"C1"));
}

TYPED_TEST(Columns, WithoutAShapeAreLeftOut) {
  auto& m = this->model;
  m.Column("$", "$", "none");
  m.Column("$", m.Shape({}), "empty");
  m.Column("$", m.Shape({m.Representation({})}), "without items");
  const auto surface = m.Add("IFCSHELLBASEDSURFACEMODEL(())");
  m.Column("$", m.Body({surface}), "surface");
  this->Convert();
  EXPECT_THAT(this->GetColumns(), IsEmpty());
}

TYPED_TEST(Columns, TakeTheRepresentationWithAnExtrusionWhateverItsName) {
  auto& m = this->model;
  const auto mapped = m.Representation({m.Extrusion(m.Circle(0.1), 9)});
  const auto map = m.Mapped(m.Placement({0, 0, 0}), mapped);
  const auto first = m.Representation({map}, "Body");
  const auto second = m.Representation({m.Extrusion(m.Circle(0.2), 1)}, "Other");
  m.Column("$", m.Shape({first, second}));
  this->Convert();
  const auto column = Only(this->GetColumns());
  EXPECT_EQ(this->SectionOf(*column), L"IFC_C_40");
}

TYPED_TEST(Columns, ThatAreClippedHaveTheirFullLength) {
  auto& m = this->model;
  const auto solid = m.Extrusion(m.Circle(0.2), 3);
  const auto plane = m.Add("IFCPLANE(" + m.Placement({0, 0, 1}) + ")");
  const auto half = m.Add("IFCHALFSPACESOLID(" + plane + ",.F.)");
  this->AddColumn(m.Clipping(m.Clipping(solid, half), half));
  this->Convert();
  const auto column = Only(this->GetColumns());
  EXPECT_THAT(PointsOf(*column), ElementsAre(IsAt(0, 0, 0), IsAt(0, 0, 3)));
}

TYPED_TEST(Columns, ThatClipSomethingElseAreLeftOut) {
  auto& m = this->model;
  const auto plane = m.Add("IFCPLANE(" + m.Placement({0, 0, 1}) + ")");
  const auto half = m.Add("IFCHALFSPACESOLID(" + plane + ",.F.)");
  const auto brep = m.Add("IFCFACETEDBREP($)");
  this->AddColumn(m.Clipping(half, half));
  this->AddColumn(m.Clipping(brep, half));
  this->AddColumn(m.Clipping("$", half));
  this->Convert();
  EXPECT_THAT(this->GetColumns(), IsEmpty());
}

TYPED_TEST(Columns, ThatClipThemselvesAreLeftOut) {
  auto& m = this->model;
  m.AddAs(801, "IFCBOOLEANCLIPPINGRESULT(.DIFFERENCE.,#802,$)");
  m.AddAs(802, "IFCBOOLEANCLIPPINGRESULT(.DIFFERENCE.,#801,$)");
  this->AddColumn("#801");
  this->AddColumn("#802");
  this->Convert();
  EXPECT_THAT(this->GetColumns(), IsEmpty());
}

TYPED_TEST(Columns, AreFoundBelowAHundredThousandClippings) {
  auto& m = this->model;
  auto item = m.Extrusion(m.Circle(0.2), 3);
  for (int i = 0; i < 100000; ++i) item = m.Clipping(item);
  this->AddColumn(item);
  this->Convert();
  EXPECT_EQ(this->GetColumns().size(), 1u);
}

TYPED_TEST(Columns, GoThroughAThousandPlacements) {
  auto& m = this->model;
  const auto step = m.Turned({1, 0, 0}, {0, 1, 0});
  ModelBuilder::Ref placement = "$";
  for (int i = 0; i < 1001; ++i) placement = m.Local(step, placement);
  m.Column(placement, m.Body({m.Extrusion(m.Circle(0.2), 3)}));
  this->Convert();
  const auto column = Only(this->GetColumns());
  // Each placement turns by 90 degrees, so that four of them lead back to the start.
  EXPECT_THAT(PointsOf(*column), ElementsAre(IsAt(1, 0, 0), IsAt(1, 0, 3)));
}

TYPED_TEST(Columns, AreConvertedWithoutAStorey) {
  auto& m = this->model;
  this->AddColumn(m.Extrusion(m.Circle(0.2), 3));
  this->Convert();
  const auto column = Only(this->GetColumns());
  EXPECT_EQ(GetValue(*column, &IGeoObject::get_StoreyNumber), 32767);
}

TYPED_TEST(Columns, SurviveUnsetAttributes) {
  auto& m = this->model;
  this->AddColumn(m.Add("IFCEXTRUDEDAREASOLID(" + m.Circle(0.2) + ",$,$,$)"));
  this->AddColumn(m.Add("IFCEXTRUDEDAREASOLID(" + m.Rectangle(1, 1, "$") + ",#999,#999,1.)"));
  const auto wrong = m.Direction({0, 0, 1});
  m.Column(wrong, m.Body({m.Extrusion(m.Circle(0.2), 1)}));
  this->Convert();
  EXPECT_EQ(this->GetColumns().size(), 3u);
}

TYPED_TEST(Columns, SurviveCoordinatesThatAreNotNumbers) {
  auto& m = this->model;
  const auto at = m.Add("IFCCARTESIANPOINT((1.E999,-1.E999,0.))");
  const auto position = m.Add("IFCAXIS2PLACEMENT3D(" + at + ",$,$)");
  this->AddColumn(m.Extrusion(m.Circle(0.2), position, m.Direction({0, 0, 1}), 1));
  const auto outline = m.Add("IFCPOLYLINE((" + m.Point({0, 0}) + "," + at + "," + at + "," +
                             m.Point({0, 1}) + "," + m.Point({0, 0}) + "))");
  this->AddColumn(m.Extrusion(m.Outline(outline), 1));
  this->Convert();
  EXPECT_EQ(this->GetColumns().size(), 2u);
}

}  // namespace
}  // namespace KelIFC

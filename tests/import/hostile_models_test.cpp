#include <gtest/gtest.h>

#include "tests/import/structure_reader.h"

// Models with cycles, or with very many instances of one kind. The conversion must end with a
// defined result. If its time grew with the square of the size of the model, these tests would take
// minutes.

namespace KelIFC {
namespace {

using testing::IsEmpty;
using testing::SizeIs;
using Ref = ModelBuilder::Ref;

constexpr int kMany = 20000;

class HostileModel : public ConversionTest<Release2x3> {};

TEST_F(HostileModel, WithALongChainOfPlacementsHasAllColumns) {
  const Ref body = model.Body({model.Extrusion(model.Circle(0.2), 3)});
  const Ref step = model.Turned({1, 0, 0}, {0, 1, 0});
  Ref placement = "$";
  for (int i = 0; i < kMany; ++i) {
    placement = model.Local(step, placement);
    model.Column(placement, body);
  }
  Convert();
  const auto columns = GetColumns();
  ASSERT_THAT(columns, SizeIs(kMany));
  // Each placement turns by 90 degrees, so that four of them lead back to the start.
  EXPECT_THAT(PointsOf(*columns[4]), testing::ElementsAre(IsAt(1, 0, 0), IsAt(1, 0, 3)));
  EXPECT_THAT(PointsOf(*columns[kMany - 4]), testing::ElementsAre(IsAt(1, 0, 0), IsAt(1, 0, 3)));
}

TEST_F(HostileModel, WithACycleOfPlacementsFollowsItOnce) {
  constexpr int kRing = kMany;
  const Ref body = model.Body({model.Extrusion(model.Circle(0.2), 3)});
  const Ref step = model.Placement({1, 0, 0});
  for (int i = 0; i < kRing; ++i) {
    const Ref next = "#" + std::to_string(100001 + (i + 1) % kRing);
    model.AddAs(100001 + i, "IFCLOCALPLACEMENT(" + next + "," + step + ")");
    model.Column("#" + std::to_string(100001 + i), body);
  }
  Convert();
  const auto columns = GetColumns();
  ASSERT_THAT(columns, SizeIs(kRing));
  for (const int i : {0, 1, kRing / 2, kRing - 1}) {
    EXPECT_THAT(PointsOf(*columns[static_cast<std::size_t>(i)]),
                testing::ElementsAre(IsAt(kRing, 0, 0), IsAt(kRing, 0, 3)));
  }
}

TEST_F(HostileModel, WithALongChainOfClippingsHasAllColumns) {
  Ref item = model.Extrusion(model.Circle(0.2), 3);
  for (int i = 0; i < kMany; ++i) {
    item = model.Clipping(item);
    model.Column("$", model.Body({item}));
  }
  Convert();
  EXPECT_THAT(GetColumns(), SizeIs(kMany));
}

TEST_F(HostileModel, WithACycleOfClippingsHasNoColumns) {
  for (int i = 0; i < kMany; ++i) {
    const Ref next = "#" + std::to_string(100001 + (i + 1) % kMany);
    model.AddAs(100001 + i, "IFCBOOLEANCLIPPINGRESULT(.DIFFERENCE.," + next + "," + next + ")");
    model.Column("$", model.Body({"#" + std::to_string(100001 + i)}));
  }
  model.AddAs(99999, "IFCBOOLEANCLIPPINGRESULT(.DIFFERENCE.,#99999,#99999)");
  model.Column("$", model.Body({"#99999"}));
  Convert();
  EXPECT_THAT(GetColumns(), IsEmpty());
}

TEST_F(HostileModel, WithACycleOfMapsHasNoColumns) {
  for (int i = 0; i < kMany; ++i) {
    const auto number = [](int base, int at) { return "#" + std::to_string(base + at % kMany); };
    model.AddAs(100000 + i, "IFCMAPPEDITEM(" + number(200000, i) + ",$)");
    model.AddAs(200000 + i, "IFCREPRESENTATIONMAP($," + number(300000, i) + ")");
    model.AddAs(300000 + i, "IFCSHAPEREPRESENTATION($,'Body','MappedRepresentation',(" +
                                number(100000, i + 1) + "))");
    model.Column("$", model.Body({number(100000, i)}));
    model.Wall("$", model.Body({number(100000, i)}));
    model.Slab("$", model.Body({number(100000, i)}));
  }
  Convert();
  EXPECT_THAT(GetColumns(), IsEmpty());
  EXPECT_THAT(GetWalls(), IsEmpty());
  EXPECT_THAT(GetPlates(), IsEmpty());
}

TEST_F(HostileModel, WithCurvesThatContainThemselvesEnds) {
  model.AddAs(90001, "IFCCOMPOSITECURVE((#90002,#90002),.F.)");
  model.AddAs(90002, "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#90001)");
  model.AddAs(90003,
              "IFCTRIMMEDCURVE(#90003,(IFCPARAMETERVALUE(0.)),(IFCPARAMETERVALUE(1.)),.T.,"
              ".PARAMETER.)");
  model.AddAs(90004, "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#90003)");
  model.AddAs(90005, "IFCCOMPOSITECURVE((#90004,#90002),.F.)");
  for (const Ref curve : {"#90001", "#90003", "#90005"}) {
    const Ref profile = model.Add("IFCARBITRARYCLOSEDPROFILEDEF(.AREA.,$," + curve + ")");
    const Ref body = model.Body({model.Extrusion(profile, 3)});
    model.Column("$", body);
    model.Slab("$", body);
    const Ref wall = model.Wall("$", body);
    model.Voids(wall, model.Opening("$", body));
  }
  Convert();
  EXPECT_LE(GetColumns().size(), 3u);
  EXPECT_LE(GetWalls().size(), 3u);
  EXPECT_LE(GetPlates().size(), 3u);
}

TEST_F(HostileModel, WithElementsThatVoidAndFillThemselvesEnds) {
  const Ref placement = model.Local(model.Placement({0, 0, 0}));
  const Ref box = model.Body({model.Extrusion(model.Rectangle(5, 0.2), 3)});
  const Ref wall = model.Wall(placement, box);
  const Ref slab = model.Slab(placement, box);
  const Ref opening = model.Opening(placement, box);
  for (const Ref& element : {wall, slab, opening}) {
    for (const Ref& other : {wall, slab, opening}) {
      model.Voids(element, other);
      model.Fills(element, other);
    }
  }
  Convert();
  EXPECT_THAT(GetWalls(), SizeIs(1));
  EXPECT_THAT(GetPlates(), SizeIs(1));
}

TEST_F(HostileModel, WithOneIdentifierForAllElementsHasThemAll) {
  const Ref body = model.Body({model.Extrusion(model.Circle(0.2), 3)});
  for (int i = 0; i < kMany; ++i) {
    model.Add(ModelBuilder::ProductText("IFCCOLUMN", "$", body, "C", "", "0YvctVUKr0kugbFTf53O9L"));
  }
  Convert();
  EXPECT_THAT(GetColumns(), SizeIs(kMany));
}

TEST_F(HostileModel, WithManyMapsOfManyUnknownItemsHasNoColumns) {
  std::string items;
  for (int i = 0; i < kMany; ++i) items += (i == 0 ? "#" : ",#") + std::to_string(500000);
  model.AddAs(500000, "IFCBOUNDINGBOX($,1.,1.,1.)");
  const Ref many = model.Add("IFCSHAPEREPRESENTATION($,'Body','X',(" + items + "))");
  const Ref map = model.Add("IFCREPRESENTATIONMAP($," + many + ")");
  for (int i = 0; i < 2000; ++i) {
    model.Beam("$", model.Body({model.Add("IFCMAPPEDITEM(" + map + ",$)")}));
  }
  Convert();
  EXPECT_THAT(GetBeams(), IsEmpty());
}

TEST_F(HostileModel, WithManySectionsFindsEachOfThem) {
  for (int i = 1; i <= kMany; ++i) {
    model.Column("$", model.Body({model.Extrusion(model.Circle(0.01 * i), 3)}));
  }
  Convert();
  GetColumns();
  EXPECT_EQ(CountOf(*GetObject(*structure, &IGeoStructure::get_Sections)), kMany);
}

TEST_F(HostileModel, WithManyStoreysFindsTheStoreyOfEachElement) {
  const Ref body = model.Body({model.Extrusion(model.Circle(0.2), 3)});
  const auto guid = [](char kind, int i) {
    std::string text = std::to_string(i);
    return "0" + std::string(1, kind) + std::string(20 - text.size(), '0') + text;
  };
  for (int i = 0; i < kMany; ++i) {
    const Ref storey =
        model.Add("IFCBUILDINGSTOREY('" + guid('s', i) + "',$,$,$,$,$,$,$,.ELEMENT.,0.)");
    const Ref column =
        model.Add(ModelBuilder::ProductText("IFCCOLUMN", "$", body, "C", "", guid('c', i)));
    model.Add("IFCRELCONTAINEDINSPATIALSTRUCTURE('" + guid('r', i) + "',$,$,$,(" + column + ")," +
              storey + ")");
  }
  Convert();
  int number = 0;
  for (const auto& column : GetColumns()) {
    ASSERT_EQ(GetValue(*column, &IGeoObject::get_StoreyNumber), number++);
  }
  EXPECT_EQ(number, kMany);
}

TEST_F(HostileModel, WithDanglingReferencesHasOnlyFoots) {
  const std::string classes[] = {"IFCCOLUMN", "IFCBEAM", "IFCWALL", "IFCFOOTING"};
  for (const std::string& entity : classes) {
    model.Product(entity, "#99999", "#99999");
    model.Add(entity + "()");
    model.Add(entity + "($)");
  }
  const Ref nowhere = model.Add("IFCSHAPEREPRESENTATION(#99999,'Body',$,(#99999,#99998))");
  for (const std::string& entity : classes) {
    model.Product(entity, "$",
                  model.Add("IFCPRODUCTDEFINITIONSHAPE($,$,(#99999," + nowhere + "))"));
  }
  model.Voids("#99999", "#99998");
  model.Fills("#99999", "#99998");
  Convert();
  EXPECT_THAT(GetColumns(), IsEmpty());
  EXPECT_THAT(GetBeams(), IsEmpty());
  EXPECT_THAT(GetWalls(), IsEmpty());
  EXPECT_THAT(GetPlates(), IsEmpty());
  EXPECT_THAT(GetFoots(), SizeIs(4));
}

TEST_F(HostileModel, WithReferencesToAWrongClassHasNoElements) {
  // No attribute may refer to an instance of this class.
  const Ref person = model.Add("IFCPERSON($,$,$,$,$,$,$,$)");
  const Ref solid =
      model.Add("IFCEXTRUDEDAREASOLID(" + person + "," + person + "," + person + ",$)");
  const Ref body =
      model.Add("IFCSHAPEREPRESENTATION(" + person + ",'Body',$,(" + person + "," + solid + "))");
  const Ref shape = model.Add("IFCPRODUCTDEFINITIONSHAPE($,$,(" + body + "," + person + "))");
  const Ref wall = model.Wall(person, shape);
  const Ref slab = model.Slab(person, shape);
  model.Column(person, shape);
  model.Voids(wall, person);
  model.Voids(slab, person);
  Convert();
  EXPECT_THAT(GetColumns(), IsEmpty());
  EXPECT_THAT(GetWalls(), IsEmpty());
  EXPECT_THAT(GetPlates(), IsEmpty());
}

}  // namespace
}  // namespace KelIFC

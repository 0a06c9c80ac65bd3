#include <gtest/gtest.h>

#include "kelifc/geo/class_bases.h"

#include "tests/geo/failing_factory.h"
#include "tests/import/structure_reader.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using Ref = ModelBuilder::Ref;

/// A model with two elements of each kind, whose objects or sections cannot all be made.
class FillFailure : public ConversionTest<Release2x3> {
 protected:
  void SetUp() override {
    const Ref placement = model.Local(model.Placement({0, 0, 0}));
    for (const std::string name : {"1", "2"}) {
      const double size = name == "1" ? 0.2 : 0.4;
      const Ref column = model.Body({model.Extrusion(model.Circle(size), 3)});
      model.Column("$", column, name);
      model.Beam("$", column, name);
      const Ref box = model.Body({model.Extrusion(model.Rectangle(5, size), 3)});
      const Ref wall = model.Wall("$", box, name);
      model.Voids(wall, model.Opening(placement, box, "door " + name));
      const Ref slab = model.Slab("$", box, name);
      model.Voids(slab, model.Opening(placement, box, "hole " + name));
      model.Product("IFCFOOTING", "$", "$", name, ".PAD_FOOTING.");
    }
    Convert();
  }

  /// The status of the first call, and that of the second, which gives what there is.
  template <class Collection>
  std::vector<HRESULT> AskTwice(HRESULT (IGeoStructure::*get)(Collection**)) {
    ComPtr<Collection> first;
    ComPtr<Collection> second;
    const HRESULT status = ((*structure).*get)(first.Put());
    EXPECT_EQ(first.Get() != nullptr, SUCCEEDED(status));
    return {status, ((*structure).*get)(second.Put())};
  }
};

TEST_F(FillFailure, IsToldOnceIfAClassCannotBeMadeAtAll) {
  const MissingClass column(CLSID_CoGeoColumn);
  const MissingClass wall(CLSID_CoGeoWall);
  const MissingClass plate(CLSID_CoGeoPlate);
  const MissingClass foot(CLSID_CoGeoFoot);
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Columns), ElementsAre(E_NOINTERFACE, S_OK));
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Walls), ElementsAre(E_NOINTERFACE, S_OK));
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Plates), ElementsAre(E_NOINTERFACE, S_OK));
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Foots), ElementsAre(E_NOINTERFACE, S_OK));
  EXPECT_TRUE(GetColumns().empty());
}

TEST_F(FillFailure, LeavesOutAColumnOrABeamThatCannotBeMade) {
  const FailingClass column(CLSID_CoGeoColumn, 1, E_OUTOFMEMORY);
  const FailingClass beam(CLSID_CoGeoBeam, 0, E_OUTOFMEMORY);
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Columns), ElementsAre(S_OK, S_OK));
  EXPECT_THAT(NamesOf(GetColumns()), ElementsAre(L"1"));
  EXPECT_TRUE(GetBeams().empty());
}

TEST_F(FillFailure, LeavesOutAColumnWithoutItsSection) {
  const FailingClass section(CLSID_CoGeoSectionC, 1, E_OUTOFMEMORY);
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Columns), ElementsAre(S_OK, S_OK));
  EXPECT_THAT(NamesOf(GetColumns()), ElementsAre(L"1"));
}

TEST_F(FillFailure, EndsTheWallsAtOneThatCannotBeMade) {
  const FailingClass wall(CLSID_CoGeoWall, 1, E_OUTOFMEMORY);
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Walls), ElementsAre(E_OUTOFMEMORY, S_OK));
  EXPECT_THAT(NamesOf(GetWalls()), ElementsAre(L"1"));
}

TEST_F(FillFailure, EndsTheWallsAtOneWithoutItsSection) {
  const FailingClass section(CLSID_CoGeoSectionThick, 0, E_OUTOFMEMORY);
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Walls), ElementsAre(E_OUTOFMEMORY, S_OK));
  EXPECT_THAT(NamesOf(GetWalls()), ElementsAre(L"1"));
}

TEST_F(FillFailure, EndsTheWallsAtADoorThatCannotBeMade) {
  const FailingClass door(CLSID_CoGeoDoor, 0, E_OUTOFMEMORY);
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Walls), ElementsAre(E_OUTOFMEMORY, S_OK));
  EXPECT_THAT(NamesOf(GetWalls()), ElementsAre(L"1"));
}

TEST_F(FillFailure, EndsTheWallsAtDoorsThatCannotBeGathered) {
  const FailingClass doors(CLSID_CoGeoDoors, 1, E_OUTOFMEMORY);
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Walls), ElementsAre(E_OUTOFMEMORY, S_OK));
  EXPECT_THAT(NamesOf(GetWalls()), ElementsAre(L"1", L"2"));
}

TEST_F(FillFailure, EndsThePlatesAtAHoleThatCannotBeMade) {
  const FailingClass hole(CLSID_CoGeoHole, 1, E_OUTOFMEMORY);
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Plates), ElementsAre(E_OUTOFMEMORY, S_OK));
  EXPECT_THAT(NamesOf(GetPlates()), ElementsAre(L"1", L"2"));
}

TEST_F(FillFailure, IsThatOfTheLastFootOnly) {
  {
    const FailingClass foot(CLSID_CoGeoFoot, 1, E_OUTOFMEMORY);
    EXPECT_THAT(AskTwice(&IGeoStructure::get_Foots), ElementsAre(E_OUTOFMEMORY, S_OK));
  }
  EXPECT_THAT(NamesOf(GetFoots()), ElementsAre(L"1"));
}

}  // namespace
}  // namespace KelIFC

#include <gtest/gtest.h>

#include "kelifc/geo/class_bases.h"

#include "tests/geo/failing_factory.h"
#include "tests/import/structure_reader.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using Ref = ModelBuilder::Ref;

/// A model with two elements of each kind, called "1" and "2". The tests let the creation of one of
/// their objects fail.
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

  /// Returns the status of the first call of `get`, which fills the collection, and of a second
  /// one.
  template <class Collection>
  std::vector<HRESULT> AskTwice(HRESULT (IGeoStructure::*get)(Collection**)) {
    ComPtr<Collection> first;
    ComPtr<Collection> second;
    const HRESULT status = ((*structure).*get)(first.Put());
    EXPECT_EQ(first.Get() != nullptr, SUCCEEDED(status));
    return {status, ((*structure).*get)(second.Put())};
  }

  /// Expects an error and these walls if only `successes` objects of a class can be created.
  void ExpectWalls(const std::vector<std::wstring>& names, const CLSID& failing, int successes) {
    const FailingClass failure(failing, successes, E_OUTOFMEMORY);
    EXPECT_THAT(AskTwice(&IGeoStructure::get_Walls), ElementsAre(E_OUTOFMEMORY, S_OK));
    EXPECT_EQ(NamesOf(GetWalls()), names);
  }
};

TEST_F(FillFailure, IsReportedOnceIfAClassIsMissing) {
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

TEST_F(FillFailure, LeavesOutAColumnOrABeamThatCannotBeCreated) {
  const FailingClass column(CLSID_CoGeoColumn, 1, E_OUTOFMEMORY);
  const FailingClass beam(CLSID_CoGeoBeam, 0, E_OUTOFMEMORY);
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Columns), ElementsAre(S_OK, S_OK));
  EXPECT_THAT(NamesOf(GetColumns()), ElementsAre(L"1"));
  EXPECT_TRUE(GetBeams().empty());
}

TEST_F(FillFailure, LeavesOutAColumnWhoseSectionCannotBeCreated) {
  const FailingClass section(CLSID_CoGeoSectionC, 1, E_OUTOFMEMORY);
  EXPECT_THAT(AskTwice(&IGeoStructure::get_Columns), ElementsAre(S_OK, S_OK));
  EXPECT_THAT(NamesOf(GetColumns()), ElementsAre(L"1"));
}

TEST_F(FillFailure, StopsAtAWallThatCannotBeCreated) { ExpectWalls({L"1"}, CLSID_CoGeoWall, 1); }

TEST_F(FillFailure, StopsAtAWallWhoseSectionCannotBeCreated) {
  ExpectWalls({L"1"}, CLSID_CoGeoSectionThick, 0);
}

TEST_F(FillFailure, StopsAtAWallWhoseDoorCannotBeCreated) {
  ExpectWalls({L"1"}, CLSID_CoGeoDoor, 0);
}

TEST_F(FillFailure, StopsAtAWallWhoseCollectionOfDoorsCannotBeCreated) {
  ExpectWalls({L"1", L"2"}, CLSID_CoGeoDoors, 1);
}

TEST_F(FillFailure, StopsAtAPlateWhoseHoleCannotBeCreated) {
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

#include <gtest/gtest.h>

#include "tests/import/structure_reader.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Release>
class Foots : public ConversionTest<Release> {
 protected:
  void AddFooting(const std::string& type, const std::string& name) {
    auto& m = this->model;
    const auto parent = m.Local(m.Turned({10, 0, 0}, {0, 1, 0}));
    const auto placement = m.Local(m.Placement({1, 0, -2}), parent);
    m.Product("IFCFOOTING", placement, "$", name, type);
  }

  static constexpr bool kHasFootings = !std::is_same_v<Release, Release2x>;
};
TYPED_TEST_SUITE(Foots, ConvertedReleases);

TYPED_TEST(Foots, ArePadFootingsAndThoseWithoutAType) {
  for (const std::string type :
       {"NOTDEFINED", "FOOTING_BEAM", "PAD_FOOTING", "PILE_CAP", "STRIP_FOOTING", "USERDEFINED"}) {
    this->AddFooting("." + type + ".", type);
  }
  this->AddFooting("$", "unset");
  this->Convert();
  const auto names = this->NamesOf(this->GetFoots());
  if (this->kHasFootings) {
    EXPECT_THAT(names, ElementsAre(L"NOTDEFINED", L"PAD_FOOTING", L"unset"));
  } else {
    EXPECT_THAT(names, IsEmpty());
  }
}

TYPED_TEST(Foots, StandAtTheOriginOfTheirPlacement) {
  if (!this->kHasFootings) GTEST_SKIP() << "the release converts no footings";
  this->AddFooting(".PAD_FOOTING.", "");
  this->Convert();
  const auto foot = Only(this->GetFoots());
  Coordinates at = {};
  EXPECT_EQ(foot.template As<IGeoPoint>()->GetXYZ(&at[0], &at[1], &at[2]), S_OK);
  EXPECT_THAT(at, IsAt(10, 1, -2));
  EXPECT_EQ(this->SectionOf(*foot), L"");
  EXPECT_EQ(this->NameOf(*foot).substr(0, 4), L"IFC#");
}

TYPED_TEST(Foots, WithoutAPlacementStandAtTheOrigin) {
  if (!this->kHasFootings) GTEST_SKIP() << "the release converts no footings";
  this->model.Product("IFCFOOTING", "$", "$", "F", ".PAD_FOOTING.");
  this->Convert();
  const auto foot = Only(this->GetFoots());
  Coordinates at = {1, 1, 1};
  EXPECT_EQ(foot.template As<IGeoPoint>()->GetXYZ(&at[0], &at[1], &at[2]), S_OK);
  EXPECT_THAT(at, IsAt(0, 0, 0));
}

TYPED_TEST(Foots, SucceedIfTheLastFootingIsNotConverted) {
  this->AddFooting(".PAD_FOOTING.", "F");
  this->AddFooting(".PILE_CAP.", "P");
  this->Convert();
  ComPtr<IGeoFoots> foots;
  EXPECT_EQ(this->structure->get_Foots(foots.Put()), S_OK);
}

}  // namespace
}  // namespace KelIFC

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/geo/storey.h"

#include "tests/import/release_test.h"

namespace KelIFC {
namespace {

/// A storey as hosts read it.
struct Seen {
  int number;
  double level;
  double height;
  std::wstring name;

  bool operator==(const Seen&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Seen& storey) {
  return out << storey.number << " at " << storey.level << ", " << storey.height << " high";
}

std::vector<Seen> ReadStoreys(const ComPtr<IIFCServer>& server) {
  const auto structure = GetObject(*server, &IIFCServer::get_Structure);
  const auto storeys = GetObject(*structure, &IGeoStructure::get_Storeys);
  std::vector<Seen> seen;
  for (LONG i = 1; i <= CountOf(*storeys); ++i) {
    ComPtr<IGeoStorey> storey;
    EXPECT_EQ(storeys->Item(i, storey.Put()), S_OK);
    seen.push_back(
        {GetValue(*storey, &IGeoStorey::get_Number), GetValue(*storey, &IGeoStorey::get_Level),
         GetValue(*storey, &IGeoStorey::get_Height), GetText(*storey, &IGeoStorey::get_Name)});
  }
  return seen;
}

std::string Number(int number) { return "#" + std::to_string(number); }

/// Returns the text of a storey with the number `n`. Its placement, whose z is `z`, has the numbers
/// n + 1 to n + 3.
std::string StoreyAt(int n, const std::string& z, const std::string& name = "'EG'",
                     const std::string& elevation = "0.") {
  return Number(n) + "=IFCBUILDINGSTOREY('3VvSUbOOfKXvqnv$9xajtg',$," + name + ",$,$," +
         Number(n + 1) + ",$,$,.ELEMENT.," + elevation + ");\n" +            //
         Number(n + 1) + "=IFCLOCALPLACEMENT($," + Number(n + 2) + ");\n" +  //
         Number(n + 2) + "=IFCAXIS2PLACEMENT3D(" + Number(n + 3) + ",$,$);\n" + Number(n + 3) +
         "=IFCCARTESIANPOINT((7.,8.," + z + "));\n";
}

/// Returns the text of storey #1, whose placement is the reference `placement`, and of `others`.
std::string StoreyWith(const std::string& placement, const std::string& others = "") {
  return "#1=IFCBUILDINGSTOREY('3VvSUbOOfKXvqnv$9xajtg',$,'EG',$,$," + placement +
         ",$,$,.ELEMENT.,1.);\n" + others;
}

template <class Release>
class Storeys : public ReleaseTest<Release> {
 protected:
  /// Returns the level of the only storey.
  static double LevelOf(const std::string& data) {
    const auto storeys = ReadStoreys(ReleaseTest<Release>::Load(data));
    EXPECT_EQ(storeys.size(), 1U);
    return storeys.empty() ? std::nan("") : storeys.front().level;
  }
};
TYPED_TEST_SUITE(Storeys, ConvertedReleases);

TYPED_TEST(Storeys, AreNoneInAModelWithoutStoreys) {
  EXPECT_TRUE(ReadStoreys(this->Load("#1=IFCCARTESIANPOINT((0.,0.,0.));\n")).empty());
  EXPECT_TRUE(ReadStoreys(this->Load("")).empty());
}

TYPED_TEST(Storeys, HaveTheirElevationAsHeightIfThereIsOnlyOne) {
  EXPECT_EQ(ReadStoreys(this->Load(StoreyAt(1, "3.", "'EG'", "2.5"))),
            (std::vector<Seen>{{0, 3.0, 2.5, L"EG"}}));
}

TYPED_TEST(Storeys, WithoutAnElevationHaveNoHeightAtTheTop) {
  EXPECT_EQ(ReadStoreys(this->Load(StoreyAt(1, "3.", "'EG'", "$"))),
            (std::vector<Seen>{{0, 3.0, 0.0, L"EG"}}));
}

TYPED_TEST(Storeys, AreSortedByLevelAndReachUpToTheNext) {
  EXPECT_EQ(
      ReadStoreys(this->Load(StoreyAt(10, "6.", "'DG'", "6.") + StoreyAt(20, "0.", "'EG'") +
                             StoreyAt(30, "2.75", "'OG'"))),
      (std::vector<Seen>{{0, 0.0, 2.75, L"EG"}, {1, 2.75, 3.25, L"OG"}, {2, 6.0, 6.0, L"DG"}}));
}

TYPED_TEST(Storeys, CountFromTheLowestThatIsNoBasement) {
  const auto storeys = ReadStoreys(this->Load(StoreyAt(10, "-3.") + StoreyAt(20, "-0.0005") +
                                              StoreyAt(30, "0.") + StoreyAt(40, "3.")));
  ASSERT_EQ(storeys.size(), 4U);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(storeys[static_cast<std::size_t>(i)].number, i - 1);
}

TYPED_TEST(Storeys, CountDownInTheBasement) {
  const auto storeys =
      ReadStoreys(this->Load(StoreyAt(10, "3.") + StoreyAt(20, "-3.") + StoreyAt(30, "-6.")));
  ASSERT_EQ(storeys.size(), 3U);
  EXPECT_EQ(storeys[0], (Seen{-2, -6.0, 3.0, L"EG"}));
  EXPECT_EQ(storeys[1], (Seen{-1, -3.0, 6.0, L"EG"}));
  EXPECT_EQ(storeys[2].number, 0);
}

TYPED_TEST(Storeys, OfABasementAloneCountUpToMinusOne) {
  const auto storeys = ReadStoreys(this->Load(StoreyAt(10, "-3.") + StoreyAt(20, "-0.0011")));
  ASSERT_EQ(storeys.size(), 2U);
  EXPECT_EQ(storeys[0].number, -2);
  EXPECT_EQ(storeys[1].number, -1);
}

TYPED_TEST(Storeys, OfOneLevelKeepTheOrderOfTheFile) {
  std::string data;
  for (int i = 0; i < 20; ++i) {
    data += StoreyAt(10 * (20 - i), i % 2 == 0 ? "0." : "3.", "'" + std::to_string(i) + "'");
  }
  const auto storeys = ReadStoreys(this->Load(data));
  ASSERT_EQ(storeys.size(), 20U);
  for (std::size_t i = 0; i < 20; ++i) {
    EXPECT_EQ(storeys[i].name, std::to_wstring(i < 10 ? 2 * i : 2 * (i - 10) + 1));
  }
}

TYPED_TEST(Storeys, WithoutAPlacementStandAtZero) {
  EXPECT_EQ(this->LevelOf(StoreyWith("$")), 0.0);
  const auto storeys =
      ReadStoreys(this->Load(StoreyWith("$") + StoreyAt(10, "-1.") + StoreyAt(20, "1.")));
  ASSERT_EQ(storeys.size(), 3U);
  EXPECT_EQ(storeys[1], (Seen{0, 0.0, 1.0, L"EG"}));
}

TYPED_TEST(Storeys, WithABrokenPlacementStandAtZero) {
  EXPECT_EQ(this->LevelOf(StoreyWith("#9")), 0.0) << "no such instance";
  EXPECT_EQ(this->LevelOf(StoreyWith("#2", "#2=IFCCARTESIANPOINT((1.,2.,3.));\n")), 0.0)
      << "another class";
  EXPECT_EQ(this->LevelOf(StoreyWith("#2", "#2=IFCLOCALPLACEMENT($,$);\n")), 0.0);
  EXPECT_EQ(this->LevelOf(StoreyWith("#2", "#2=IFCLOCALPLACEMENT($,#2);\n")), 0.0);
  EXPECT_EQ(this->LevelOf(StoreyWith("#2",
                                     "#2=IFCLOCALPLACEMENT($,#3);\n"
                                     "#3=IFCAXIS2PLACEMENT3D($,$,$);\n")),
            0.0)
      << "no location";
  EXPECT_EQ(this->LevelOf(StoreyWith("#2",
                                     "#2=IFCLOCALPLACEMENT($,#3);\n"
                                     "#3=IFCAXIS2PLACEMENT3D(#3,$,$);\n")),
            0.0);
}

TYPED_TEST(Storeys, WithAPlacementInThePlaneStandAtZero) {
  EXPECT_EQ(this->LevelOf(StoreyWith("#2",
                                     "#2=IFCLOCALPLACEMENT($,#3);\n"
                                     "#3=IFCAXIS2PLACEMENT2D(#4,$);\n"
                                     "#4=IFCCARTESIANPOINT((1.,2.,3.));\n")),
            0.0);
}

TYPED_TEST(Storeys, WithALocationOfFewCoordinatesStandAtZero) {
  for (const char* point : {"()", "(1.)", "(1.,2.)", "(1.,2.,$)"}) {
    EXPECT_EQ(this->LevelOf(StoreyWith("#2",
                                       "#2=IFCLOCALPLACEMENT($,#3);\n"
                                       "#3=IFCAXIS2PLACEMENT3D(#4,$,$);\n"
                                       "#4=IFCCARTESIANPOINT(" +
                                           std::string(point) + ");\n")),
              0.0)
        << point;
  }
}

TYPED_TEST(Storeys, KeepTheirHeightInTheFrameOfTheBuilding) {
  EXPECT_EQ(this->LevelOf(StoreyWith("#2",
                                     "#2=IFCLOCALPLACEMENT(#5,#3);\n"
                                     "#3=IFCAXIS2PLACEMENT3D(#4,$,$);\n"
                                     "#4=IFCCARTESIANPOINT((0.,0.,3.));\n"
                                     "#5=IFCLOCALPLACEMENT(#2,#3);\n")),
            3.0);
}

TYPED_TEST(Storeys, KeepTheUnitOfTheFile) {
  EXPECT_EQ(this->LevelOf(StoreyAt(1, "3000.") +
                          "#30=IFCPROJECT('3It3CdvhLLoRj6paiTsQpU',$,$,$,$,$,$,(),#31);\n"
                          "#31=IFCUNITASSIGNMENT((#32));\n"
                          "#32=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n"),
            3000.0);
}

TYPED_TEST(Storeys, WithoutANameAreNamedAfterTheirNumber) {
  for (const char* name : {"$", "''"}) {
    const auto storeys = ReadStoreys(this->Load(StoreyAt(123, "0.", name)));
    ASSERT_EQ(storeys.size(), 1U);
    EXPECT_EQ(storeys.front().name, L"IFC#123");
  }
}

TYPED_TEST(Storeys, HaveTheirNamesByteForByte) {
  const auto storeys = ReadStoreys(this->Load(StoreyAt(1, "0.", "'Erdgescho\xDF \xFC'")));
  ASSERT_EQ(storeys.size(), 1U);
  EXPECT_EQ(storeys.front().name, L"Erdgescho\u00DF \u00FC");
}

TYPED_TEST(Storeys, HaveTheIdentifiersOfTheirInstances) {
  const auto server = this->Load(StoreyAt(1, "0."));
  ReadStoreys(server);
  const auto structure = GetObject(*server, &IIFCServer::get_Structure);
  const auto storeys = GetObject(*structure, &IGeoStructure::get_Storeys);
  ComPtr<IGeoStorey> storey;
  ASSERT_EQ(storeys->Item(1, storey.Put()), S_OK);
  IfcServer& model = static_cast<CoIFCServer&>(*server).Model();
  const _GUID guid = static_cast<CoGeoStorey&>(*storey).guid;
  EXPECT_FALSE(IsNullGuid(guid));
  EXPECT_EQ(model.GetItem(guid), model.GetItem(std::size_t{1}));
}

TYPED_TEST(Storeys, WithLevelsThatAreNotNumbersComeLast) {
  const auto storeys = ReadStoreys(this->Load(
      StoreyAt(10, "nan", "'a'") + StoreyAt(20, "1.", "'b'") + StoreyAt(30, "nan", "'c'") +
      StoreyAt(40, "-1.", "'d'") + StoreyAt(50, "inf", "'e'") + StoreyAt(60, "-inf", "'f'")));
  ASSERT_EQ(storeys.size(), 6U);
  std::wstring names;
  for (const Seen& storey : storeys) names += storey.name;
  EXPECT_EQ(names, L"fdbeac");
  EXPECT_EQ(storeys[0].number, -2);
  EXPECT_EQ(storeys[5].number, 3);
}

TYPED_TEST(Storeys, ThatWereDeletedAreLeftOut) {
  const auto server = this->Load(StoreyAt(10, "0.", "'a'") + StoreyAt(20, "3.", "'b'"));
  IfcServer& model = static_cast<CoIFCServer&>(*server).Model();
  model.DeleteItem(model.GetItem(std::size_t{10}));
  const auto storeys = ReadStoreys(server);
  ASSERT_EQ(storeys.size(), 1U);
  EXPECT_EQ(storeys.front().name, L"b");
}

}  // namespace
}  // namespace KelIFC

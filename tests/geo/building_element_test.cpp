#include "kelifc/geo/building_element.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "kelifc/geo/building_profile.h"
#include "kelifc/geo/storey_number.h"

#include "tests/building/made_building.h"
#include "tests/geo/host.h"

namespace KelIFC {
namespace {

class BuildingElementObject : public HostTest {
 protected:
  ComPtr<IGeoElement> Show(const BuildingElement& element) {
    Building building;
    building.elements.push_back(element);
    building.materials.push_back({"St\xc3\xa4hl"});
    building.profiles.push_back(Circle(0.4, "D400"));
    building.profiles.push_back(Circle(0.3, "D300"));
    auto object = CreateOwn<CoGeoElement>();
    static_cast<CoGeoElement&>(*object).Show(
        std::make_shared<const CompleteReading>(std::move(building)), 0);
    return object;
  }
};

double XOf(const ComPtr<IGeoPoint>& point) { return GetValue(*point, &IGeoPoint::get_X); }

TEST_F(BuildingElementObject, OfAHostHasNoValues) {
  const auto element = CreateOwn<CoGeoElement>();
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_Id), 0);
  EXPECT_EQ(GetText(*element, &IGeoElement::get_Kind), L"");
  EXPECT_EQ(GetText(*element, &IGeoElement::get_Source), L"");
  EXPECT_EQ(GetText(*element, &IGeoElement::get_Material), L"");
  EXPECT_EQ(GetText(*element, &IGeoElement::get_StoreyName), L"");
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_StoreyNumber), kNoStoreyNumber);
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_StoreyNumberByHeight), kNoStoreyNumber);
  EXPECT_EQ(GetText(*element, &IGeoElement::get_GUID), L"{00000000-0000-0000-0000-000000000000}");
  EXPECT_EQ(CountOf(*GetObject(*element, &IGeoElement::get_Axis)), 0);
  EXPECT_EQ(CountOf(*GetObject(*element, &IGeoElement::get_Holes)), 0);
  EXPECT_FALSE(GetObject(*element, &IGeoElement::get_Profile));
  EXPECT_FALSE(GetObject(*element, &IGeoElement::get_BoxMin));
}

TEST_F(BuildingElementObject, HasTheFactsOfTheElement) {
  BuildingElement made = MemberFrom(7, {1.0, 2.0, 0.0});
  made.guid = "3VvSUbOOfKXvqnv$9xajtg";
  made.name = "K\xc3\xb6nig";
  made.tag = "T1";
  made.type = "COLUMN";
  made.partOf = 3;
  made.material = 0;
  made.source = BodySource::kSweptDisk;
  made.deviation = 0.004;
  made.volumeRatio = 0.99;
  made.isApproximate = true;
  made.cutouts = 2;
  const auto element = Show(made);
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_Id), 7);
  EXPECT_EQ(GetText(*element, &IGeoElement::get_ClassName), L"IfcColumn");
  EXPECT_EQ(GetText(*element, &IGeoElement::get_GlobalId), L"3VvSUbOOfKXvqnv$9xajtg");
  EXPECT_EQ(GetText(*element, &IGeoElement::get_Name), L"K\u00f6nig");
  EXPECT_EQ(GetText(*element, &IGeoElement::get_Tag), L"T1");
  EXPECT_EQ(GetText(*element, &IGeoElement::get_PredefinedType), L"COLUMN");
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_PartOf), 3);
  EXPECT_EQ(GetText(*element, &IGeoElement::get_Material), L"St\u00e4hl");
  EXPECT_EQ(GetText(*element, &IGeoElement::get_Kind), L"member");
  EXPECT_EQ(GetText(*element, &IGeoElement::get_Source), L"swept-disk");
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_Deviation), 0.004);
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_VolumeRatio), 0.99);
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_IsApproximate), VARIANT_TRUE);
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_Cutouts), 2);
}

TEST_F(BuildingElementObject, OfAMemberHasAnAxisAndProfiles) {
  BuildingElement made = MemberFrom(7, {1.0, 2.0, 0.0});
  made.member->offset = {0.01, 0.02};
  made.member->endProfile = 1;
  const auto element = Show(made);
  EXPECT_EQ(GetText(*element, &IGeoElement::get_AxisForm), L"line");
  EXPECT_EQ(CountOf(*GetObject(*element, &IGeoElement::get_Axis)), 2);
  EXPECT_EQ(XOf(GetObject(*element, &IGeoElement::get_AxisY)), 1.0);
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_OffsetY), 0.01);
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_OffsetZ), 0.02);
  const auto profile = GetObject(*element, &IGeoElement::get_Profile);
  EXPECT_EQ(GetText(*profile, &IGeoProfile::get_Name), L"D400");
  const auto end = GetObject(*element, &IGeoElement::get_EndProfile);
  EXPECT_EQ(GetText(*end, &IGeoProfile::get_Name), L"D300");
  EXPECT_FALSE(GetObject(*element, &IGeoElement::get_Normal));
  EXPECT_EQ(CountOf(*GetObject(*element, &IGeoElement::get_Outline)), 0);
}

TEST_F(BuildingElementObject, OfASurfaceHasAnOutlineHolesAndAThickness) {
  BuildingElement made = Slab(7, 4.0, 3.0, 0.25);
  made.surface->holes = {{{1.0, 1.0, 0.0}, {1.0, 2.0, 0.0}, {2.0, 1.0, 0.0}}};
  const auto element = Show(made);
  EXPECT_EQ(CountOf(*GetObject(*element, &IGeoElement::get_Outline)), 4);
  const auto holes = GetObject(*element, &IGeoElement::get_Holes);
  ASSERT_EQ(CountOf(*holes), 1);
  ComPtr<IGeoPoints> hole;
  ASSERT_EQ(holes->Item(1, hole.Put()), S_OK);
  EXPECT_EQ(CountOf(*hole), 3);
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_Thickness), 0.25);
  const auto normal = GetObject(*element, &IGeoElement::get_Normal);
  EXPECT_EQ(GetValue(*normal, &IGeoPoint::get_Z), 1.0);
  EXPECT_FALSE(GetObject(*element, &IGeoElement::get_Profile));
  EXPECT_EQ(GetText(*element, &IGeoElement::get_AxisForm), L"");
}

TEST_F(BuildingElementObject, OfACurvedWallHasTheLineOfItsLowerEdgeAndAHeight) {
  BuildingElement made = Slab(7, 4.0, 3.0);
  made.surface->outline.clear();
  made.surface->sweep.emplace();
  made.surface->sweep->points = {{0.0, 0.0, 0.0}, {1.0, 1.0, 0.0}, {2.0, 0.0, 0.0}};
  made.surface->sweep->height = 3.5;
  const auto element = Show(made);
  EXPECT_EQ(GetText(*element, &IGeoElement::get_AxisForm), L"arc");
  EXPECT_EQ(CountOf(*GetObject(*element, &IGeoElement::get_Axis)), 3);
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_Height), 3.5);
  EXPECT_FALSE(GetObject(*element, &IGeoElement::get_Normal));
}

TEST_F(BuildingElementObject, HasTheBodyWithItsBoundary) {
  BuildingElement made;
  made.body.box = {{1.0, 0.0, 0.0}, {2.0, 1.0, 1.0}};
  made.body.volume = 0.5;
  made.body.isClosed = true;
  auto mesh = std::make_shared<Mesh>();
  mesh->points = {{1.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {1.0, 1.0, 0.0}, {1.0, 0.0, 1.0}};
  mesh->AddFace({0, 2, 1});
  mesh->AddFace({0, 1, 3});
  made.body.mesh = std::move(mesh);
  const auto element = Show(made);
  EXPECT_EQ(GetText(*element, &IGeoElement::get_Kind), L"body");
  EXPECT_EQ(XOf(GetObject(*element, &IGeoElement::get_BoxMin)), 1.0);
  EXPECT_EQ(XOf(GetObject(*element, &IGeoElement::get_BoxMax)), 2.0);
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_Volume), 0.5);
  EXPECT_EQ(GetValue(*element, &IGeoElement::get_IsClosed), VARIANT_TRUE);
  const auto boundary = GetObject(*element, &IGeoElement::get_Boundary);
  EXPECT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Points)), 4);
  const auto faces = GetObject(*boundary, &IGeoBRep::get_Faces);
  ASSERT_EQ(CountOf(*faces), 2);
  ComPtr<IGeoFace> face;
  ASSERT_EQ(faces->Item(2, face.Put()), S_OK);
  const auto numbers = GetObject(*face, &IGeoFace::get_Numbers);
  ASSERT_EQ(CountOf(*numbers), 3);
  LONG number = 0;
  EXPECT_EQ(numbers->Item(3, &number), S_OK);
  EXPECT_EQ(number, 4);
}

TEST_F(BuildingElementObject, HasNoVolumeIfTheBodyIsNotClosed) {
  BuildingElement made;
  made.body.volume = 0.5;
  EXPECT_EQ(GetValue(*Show(made), &IGeoElement::get_Volume), 0.0);
}

TEST_F(BuildingElementObject, RefusesNullResults) {
  const auto element = Show(MemberFrom(7, {1.0, 2.0, 0.0}));
  EXPECT_EQ(element->get_Id(nullptr), E_POINTER);
  EXPECT_EQ(element->get_GUID(nullptr), E_POINTER);
  EXPECT_EQ(element->get_Name(nullptr), E_POINTER);
  EXPECT_EQ(element->get_StoreyNumber(nullptr), E_POINTER);
  EXPECT_EQ(element->get_Axis(nullptr), E_POINTER);
  EXPECT_EQ(element->get_AxisY(nullptr), E_POINTER);
  EXPECT_EQ(element->get_Normal(nullptr), E_POINTER);
  EXPECT_EQ(element->get_Profile(nullptr), E_POINTER);
  EXPECT_EQ(element->get_EndProfile(nullptr), E_POINTER);
  EXPECT_EQ(element->get_Boundary(nullptr), E_POINTER);
}

}  // namespace
}  // namespace KelIFC

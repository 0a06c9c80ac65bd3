#include "kelifc/geo/openings.h"

#include <gtest/gtest.h>

#include "tests/geo/elements.h"
#include "tests/geo/failing_factory.h"

namespace KelIFC {
namespace {

/// A kind of openings, and the element that has them.
struct HolesOfAPlate {
  using Owner = CoGeoPlate;
  using Collection = CoGeoHoles;
  using Element = CoGeoHole;
  static constexpr auto kGet = &IGeoPlate::get_Holes;
};

struct WindowsOfAWall {
  using Owner = CoGeoWall;
  using Collection = CoGeoWindows;
  using Element = CoGeoWindow;
  static constexpr auto kGet = &IGeoWall::get_Windows;
};

struct DoorsOfAWall {
  using Owner = CoGeoWall;
  using Collection = CoGeoDoors;
  using Element = CoGeoDoor;
  static constexpr auto kGet = &IGeoWall::get_Doors;
};

template <class Kind>
class EachOpening : public HostTest {};

using Kinds = testing::Types<HolesOfAPlate, WindowsOfAWall, DoorsOfAWall>;
TYPED_TEST_SUITE(EachOpening, Kinds);

TYPED_TEST(EachOpening, HasNoItemsAtFirst) {
  const auto owner = CreateOwn<typename TypeParam::Owner>();
  EXPECT_EQ(CountOf(*GetObject(*owner, TypeParam::kGet)), 0);
}

TYPED_TEST(EachOpening, ReturnsItemsThatWereAddedLater) {
  const auto owner = CreateOwn<typename TypeParam::Owner>();
  const auto collection = GetObject(*owner, TypeParam::kGet);
  const auto element = CreateOwn<typename TypeParam::Element>();
  ObjectOf<typename TypeParam::Collection>(collection).Append(element);
  const auto again = GetObject(*owner, TypeParam::kGet);
  EXPECT_EQ(again.Get(), collection.Get());
  typename std::remove_const_t<decltype(element)> item;
  ASSERT_EQ(again->Item(1, item.Put()), S_OK);
  EXPECT_EQ(item.Get(), element.Get());
}

TYPED_TEST(EachOpening, KnowsTheServerOfItsOwner) {
  const auto server = Create<IIFCServer>(CLSID_CoIFCServer);
  const auto owner = CreateElement<typename TypeParam::Owner>(server);
  const auto collection = GetObject(*owner, TypeParam::kGet);
  EXPECT_EQ(ObjectOf<typename TypeParam::Collection>(collection).Server().Get(),
            &ObjectOf<CoIFCServer>(server));
  const auto alone = GetObject(*CreateOwn<typename TypeParam::Owner>(), TypeParam::kGet);
  EXPECT_EQ(ObjectOf<typename TypeParam::Collection>(alone).Server().Get(), nullptr);
}

TYPED_TEST(EachOpening, TriesAgainToCreateTheCollection) {
  const auto owner = CreateOwn<typename TypeParam::Owner>();
  EXPECT_EQ(((*owner).*TypeParam::kGet)(nullptr), E_POINTER);
  {
    const FailingClass failing(TypeParam::Collection::kClsid, 0, DISP_E_OVERFLOW);
    ComPtr<typename TypeParam::Collection::Interfaces::First> out;
    EXPECT_EQ(((*owner).*TypeParam::kGet)(out.Put()), DISP_E_OVERFLOW);
    EXPECT_FALSE(out);
  }
  EXPECT_EQ(CountOf(*GetObject(*owner, TypeParam::kGet)), 0);
}

/// A window and a door have the interface of a point, but all its operations are reserved.
template <class Class>
class FilledOpening : public HostTest {};

using FilledOpenings = testing::Types<CoGeoWindow, CoGeoDoor>;
TYPED_TEST_SUITE(FilledOpening, FilledOpenings);

TYPED_TEST(FilledOpening, ReservesAllOperationsOfAPoint) {
  const auto point = CreateOwn<TypeParam>().template As<IGeoPoint>();
  double value = 7;
  EXPECT_EQ(point->get_X(&value), E_NOTIMPL);
  EXPECT_EQ(point->get_Y(&value), E_NOTIMPL);
  EXPECT_EQ(point->get_Z(&value), E_NOTIMPL);
  EXPECT_EQ(point->put_X(value), E_NOTIMPL);
  EXPECT_EQ(point->put_Y(value), E_NOTIMPL);
  EXPECT_EQ(point->put_Z(value), E_NOTIMPL);
  EXPECT_EQ(point->SetXYZ(1, 2, 3), E_NOTIMPL);
  EXPECT_EQ(point->GetXYZ(&value, &value, &value), E_NOTIMPL);
  EXPECT_EQ(value, 7.0);
  EXPECT_EQ(point->GetXYZ(nullptr, nullptr, nullptr), E_NOTIMPL);
}

class Wall : public HostTest {};
class Opening : public HostTest {};

TEST_F(Wall, IsNeverOpen) {
  const auto wall = CreateOwn<CoGeoWall>();
  VARIANT_BOOL isOpen = 7;
  EXPECT_EQ(wall->get_IsOpen(&isOpen), S_OK);
  EXPECT_EQ(isOpen, 0);
  EXPECT_EQ(wall->get_IsOpen(nullptr), E_POINTER);
}

TEST_F(Wall, ReservesTheOtherOperations) {
  const auto wall = CreateOwn<CoGeoWall>();
  EXPECT_EQ(wall->Reserved20(nullptr), E_NOTIMPL);
  EXPECT_EQ(wall->Reserved21(0), E_NOTIMPL);
  EXPECT_EQ(wall->Reserved25(0), E_NOTIMPL);
  EXPECT_EQ(wall->Reserved27(), E_NOTIMPL);
  EXPECT_EQ(wall->Reserved30(nullptr), E_NOTIMPL);
}

TEST_F(Opening, ReservesTheOtherOperations) {
  const auto hole = CreateOwn<CoGeoHole>();
  EXPECT_EQ(hole->Reserved18(nullptr), E_NOTIMPL);
  EXPECT_EQ(hole->Reserved19(nullptr), E_NOTIMPL);
  EXPECT_EQ(hole->Reserved20(0), E_NOTIMPL);
  EXPECT_FALSE(hole.As<IGeoPoint>());
}

TEST_F(Opening, InAPlateReservesTheOtherOperations) {
  const auto plate = CreateOwn<CoGeoPlate>();
  EXPECT_EQ(plate->Reserved19(nullptr), E_NOTIMPL);
  EXPECT_EQ(plate->Reserved20(0), E_NOTIMPL);
  EXPECT_EQ(plate->Reserved26(nullptr), E_NOTIMPL);
}

}  // namespace
}  // namespace KelIFC

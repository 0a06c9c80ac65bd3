#include "kelifc/geo/collection.h"

#include <gtest/gtest.h>

#include "kelifc/geo/collections.h"
#include "kelifc/geo/storey.h"
#include "kelifc/geo/storeys.h"

#include "tests/geo/host.h"

namespace KelIFC {
namespace {

/// Creates a collection of `count` storeys with the numbers 0, 1, 2 ...
ComPtr<IGeoStoreys> MakeStoreys(int count) {
  auto storeys = CreateOwn<CoGeoStoreys>();
  for (int i = 0; i < count; ++i) {
    auto storey = CreateOwn<CoGeoStorey>();
    static_cast<CoGeoStorey&>(*storey).number = static_cast<SHORT>(i);
    static_cast<CoGeoStoreys&>(*storeys).Append(std::move(storey));
  }
  return storeys;
}

ComPtr<IEnumVARIANT> Enumerate(IGeoStoreys& storeys) {
  return GetObject(storeys, &IGeoStoreys::_NewEnum).As<IEnumVARIANT>();
}

/// Returns the number of the storey in a variant and clears the variant.
SHORT TakeNumber(VARIANT& variant) {
  EXPECT_EQ(variant.vt, VT_DISPATCH);
  const SHORT number =
      GetValue(*ComPtr<IDispatch>(variant.pdispVal).As<IGeoStorey>(), &IGeoStorey::get_Number);
  EXPECT_EQ(VariantClear(&variant), S_OK);
  return number;
}

class CollectionOfStoreys : public HostTest {};
class EnumeratorOfStoreys : public HostTest {};
class CollectionOfNumbers : public HostTest {};
class CollectionOfMaterials : public HostTest {};

TEST_F(CollectionOfStoreys, CountsItsItems) {
  EXPECT_EQ(CountOf(*MakeStoreys(0)), 0);
  EXPECT_EQ(CountOf(*MakeStoreys(3)), 3);
  EXPECT_EQ(MakeStoreys(1)->Count(nullptr), E_POINTER);
}

TEST_F(CollectionOfStoreys, ReturnsItsItemsInOrder) {
  const auto storeys = MakeStoreys(3);
  for (LONG i = 1; i <= 3; ++i) {
    ComPtr<IGeoStorey> storey;
    ASSERT_EQ(storeys->Item(i, storey.Put()), S_OK);
    EXPECT_EQ(GetValue(*storey, &IGeoStorey::get_Number), i - 1);
  }
}

TEST_F(CollectionOfStoreys, ReturnsTheSameObjectEachTime) {
  const auto storeys = MakeStoreys(1);
  ComPtr<IGeoStorey> first;
  ComPtr<IGeoStorey> second;
  storeys->Item(1, first.Put());
  storeys->Item(1, second.Put());
  EXPECT_EQ(first.Get(), second.Get());
}

TEST_F(CollectionOfStoreys, RefusesIndicesBelowOne) {
  const auto storeys = MakeStoreys(1);
  for (const LONG index : std::initializer_list<LONG>{0, -1, std::numeric_limits<LONG>::min()}) {
    IGeoStorey* out = reinterpret_cast<IGeoStorey*>(this);
    EXPECT_EQ(storeys->Item(index, &out), E_INVALIDARG);
    EXPECT_EQ(out, nullptr);
  }
}

TEST_F(CollectionOfStoreys, LeavesTheOutputUnchangedForAnIndexAboveTheCount) {
  const auto storeys = MakeStoreys(2);
  auto* const before = reinterpret_cast<IGeoStorey*>(this);
  for (const LONG index : std::initializer_list<LONG>{3, std::numeric_limits<LONG>::max()}) {
    IGeoStorey* out = before;
    EXPECT_EQ(storeys->Item(index, &out), E_FAIL);
    EXPECT_EQ(out, before);
  }
  IGeoStorey* out = before;
  EXPECT_EQ(MakeStoreys(0)->Item(1, &out), E_FAIL);
}

TEST_F(CollectionOfStoreys, RefusesANullOutput) {
  EXPECT_EQ(MakeStoreys(1)->Item(1, nullptr), E_POINTER);
  EXPECT_EQ(MakeStoreys(1)->Item(0, nullptr), E_POINTER);
}

TEST_F(CollectionOfStoreys, KeepsItemsAliveForAHost) {
  auto storeys = MakeStoreys(2);
  ComPtr<IGeoStorey> storey;
  storeys->Item(2, storey.Put());
  storeys.Reset();
  EXPECT_EQ(LiveObjectCount(), 1);
  EXPECT_EQ(GetValue(*storey, &IGeoStorey::get_Number), 1);
}

TEST_F(CollectionOfStoreys, ReservesTheOtherOperations) {
  const auto storeys = MakeStoreys(1);
  EXPECT_EQ(storeys->Reserved4(0, nullptr), E_NOTIMPL);
  EXPECT_EQ(storeys->Reserved9(nullptr, nullptr), E_NOTIMPL);
}

TEST_F(EnumeratorOfStoreys, ReturnsItemsOneByOne) {
  const auto storeys = MakeStoreys(2);
  const auto enumerator = Enumerate(*storeys);
  VARIANT item = {};
  ASSERT_EQ(enumerator->Next(1, &item, nullptr), S_OK);
  EXPECT_EQ(TakeNumber(item), 0);
  ULONG fetched = 9;
  ASSERT_EQ(enumerator->Next(1, &item, &fetched), S_OK);
  EXPECT_EQ(fetched, 1U);
  EXPECT_EQ(TakeNumber(item), 1);
  EXPECT_EQ(enumerator->Next(1, &item, &fetched), S_FALSE);
  EXPECT_EQ(fetched, 0U);
}

TEST_F(EnumeratorOfStoreys, ReturnsAsManyItemsAsThereAre) {
  const auto storeys = MakeStoreys(3);
  VARIANT items[5] = {};
  ULONG fetched = 0;
  EXPECT_EQ(Enumerate(*storeys)->Next(5, items, &fetched), S_FALSE);
  ASSERT_EQ(fetched, 3U);
  for (SHORT i = 0; i < 3; ++i) EXPECT_EQ(TakeNumber(items[i]), i);
}

TEST_F(EnumeratorOfStoreys, ReturnsNothingForAnEmptyCollection) {
  VARIANT item = {};
  ULONG fetched = 9;
  EXPECT_EQ(Enumerate(*MakeStoreys(0))->Next(1, &item, &fetched), S_FALSE);
  EXPECT_EQ(fetched, 0U);
  EXPECT_EQ(item.vt, VT_EMPTY);
}

TEST_F(EnumeratorOfStoreys, SucceedsForZeroItems) {
  VARIANT item = {};
  EXPECT_EQ(Enumerate(*MakeStoreys(1))->Next(0, &item, nullptr), S_OK);
}

TEST_F(EnumeratorOfStoreys, RefusesNullOutputs) {
  const auto storeys = MakeStoreys(3);
  const auto enumerator = Enumerate(*storeys);
  VARIANT items[2] = {};
  ULONG fetched = 0;
  EXPECT_EQ(enumerator->Next(1, nullptr, &fetched), E_POINTER);
  EXPECT_EQ(enumerator->Next(2, items, nullptr), E_POINTER);
  EXPECT_EQ(enumerator->Clone(nullptr), E_POINTER);
  EXPECT_EQ(storeys->_NewEnum(nullptr), E_POINTER);
}

TEST_F(EnumeratorOfStoreys, SkipsAndResets) {
  const auto storeys = MakeStoreys(3);
  const auto enumerator = Enumerate(*storeys);
  VARIANT item = {};
  EXPECT_EQ(enumerator->Skip(2), S_OK);
  ASSERT_EQ(enumerator->Next(1, &item, nullptr), S_OK);
  EXPECT_EQ(TakeNumber(item), 2);
  EXPECT_EQ(enumerator->Skip(1), S_FALSE);
  EXPECT_EQ(enumerator->Skip(0xFFFFFFFF), S_FALSE);
  EXPECT_EQ(enumerator->Reset(), S_OK);
  ASSERT_EQ(enumerator->Next(1, &item, nullptr), S_OK);
  EXPECT_EQ(TakeNumber(item), 0);
}

TEST_F(EnumeratorOfStoreys, IsClonedAtItsPosition) {
  const auto storeys = MakeStoreys(2);
  const auto enumerator = Enumerate(*storeys);
  enumerator->Skip(1);
  ComPtr<IEnumVARIANT> copy;
  ASSERT_EQ(enumerator->Clone(copy.Put()), S_OK);
  enumerator->Skip(1);
  VARIANT item = {};
  ASSERT_EQ(copy->Next(1, &item, nullptr), S_OK);
  EXPECT_EQ(TakeNumber(item), 1);
}

TEST_F(EnumeratorOfStoreys, SeesItemsThatAreAddedLater) {
  const auto storeys = MakeStoreys(1);
  const auto enumerator = Enumerate(*storeys);
  EXPECT_EQ(enumerator->Skip(1), S_OK);
  static_cast<CoGeoStoreys&>(*storeys).Append(CreateOwn<CoGeoStorey>());
  VARIANT item = {};
  ASSERT_EQ(enumerator->Next(1, &item, nullptr), S_OK);
  EXPECT_EQ(TakeNumber(item), kNoStoreyNumber);
}

TEST_F(EnumeratorOfStoreys, ReturnsNothingMoreAfterItemsWereRemoved) {
  const auto storeys = MakeStoreys(2);
  const auto enumerator = Enumerate(*storeys);
  EXPECT_EQ(enumerator->Skip(2), S_OK);
  static_cast<CoGeoStoreys&>(*storeys).RemoveLast();
  VARIANT item = {};
  EXPECT_EQ(enumerator->Next(1, &item, nullptr), S_FALSE);
}

TEST_F(EnumeratorOfStoreys, KeepsTheCollectionAlive) {
  auto storeys = MakeStoreys(1);
  const auto enumerator = Enumerate(*storeys);
  storeys.Reset();
  VARIANT item = {};
  ASSERT_EQ(enumerator->Next(1, &item, nullptr), S_OK);
  EXPECT_EQ(TakeNumber(item), 0);
}

TEST_F(CollectionOfNumbers, ReturnsNumbers) {
  const auto numbers = CreateOwn<CoGeoNumbers>();
  static_cast<CoGeoNumbers&>(*numbers).Append(17);
  LONG out = 0;
  EXPECT_EQ(numbers->Item(1, &out), S_OK);
  EXPECT_EQ(out, 17);
  EXPECT_EQ(numbers->Item(2, &out), E_FAIL);
  EXPECT_EQ(out, 17);
  EXPECT_EQ(numbers->Item(0, &out), E_INVALIDARG);
  EXPECT_EQ(out, 0);
  EXPECT_EQ(numbers->Item(1, nullptr), E_POINTER);
}

TEST_F(CollectionOfNumbers, EnumeratesNumbers) {
  const auto numbers = CreateOwn<CoGeoNumbers>();
  static_cast<CoGeoNumbers&>(*numbers).Append(17);
  const auto enumerator = GetObject(*numbers, &IGeoNumbers::_NewEnum).As<IEnumVARIANT>();
  VARIANT item = {};
  ASSERT_EQ(enumerator->Next(1, &item, nullptr), S_OK);
  EXPECT_EQ(item.vt, VT_I4);
  EXPECT_EQ(item.lVal, 17);
}

TEST_F(CollectionOfMaterials, HasNoItemByValue) {
  const auto materials = CreateOwn<CoGeoMaterials>();
  EXPECT_EQ(CountOf(*materials), 0);
  EXPECT_EQ(materials->Reserved2(nullptr, nullptr), E_NOTIMPL);
  IGeoMaterial* out = nullptr;
  EXPECT_EQ(materials->ItemByIndex(1, &out), E_FAIL);
  EXPECT_EQ(materials->ItemByIndex(0, &out), E_INVALIDARG);
  EXPECT_EQ(materials->ItemByIndex(1, nullptr), E_POINTER);
}

}  // namespace
}  // namespace KelIFC

#include "kelifc/geo/storey.h"

#include <gtest/gtest.h>

#include "tests/geo/host.h"

namespace KelIFC {
namespace {

class Storey : public HostTest {};

TEST_F(Storey, IsEmptyAndHasNoNumberIfAHostCreatedIt) {
  const auto storey = Create<IGeoStorey>(CLSID_CoGeoStorey);
  EXPECT_EQ(GetValue(*storey, &IGeoStorey::get_Height), 0.0);
  EXPECT_EQ(GetValue(*storey, &IGeoStorey::get_Level), 0.0);
  EXPECT_EQ(GetValue(*storey, &IGeoStorey::get_Number), 32767);
  EXPECT_EQ(GetText(*storey, &IGeoStorey::get_Name), L"");
}

TEST_F(Storey, ReturnsWhatTheConversionWrote) {
  const auto storey = CreateOwn<CoGeoStorey>();
  auto& object = static_cast<CoGeoStorey&>(*storey);
  object.level = 3.0;
  object.height = 2.5;
  object.number = -1;
  object.name = "Erdgescho\xDF";
  EXPECT_EQ(GetValue(*storey, &IGeoStorey::get_Level), 3.0);
  EXPECT_EQ(GetValue(*storey, &IGeoStorey::get_Height), 2.5);
  EXPECT_EQ(GetValue(*storey, &IGeoStorey::get_Number), -1);
  EXPECT_EQ(GetText(*storey, &IGeoStorey::get_Name), L"Erdgescho\u00DF");
}

TEST_F(Storey, CanGetAnotherNameAndHeight) {
  const auto storey = Create<IGeoStorey>(CLSID_CoGeoStorey);
  EXPECT_EQ(storey->put_Name(Bstr(L"1\u20AC\u00FC").Get()), S_OK);
  EXPECT_EQ(GetText(*storey, &IGeoStorey::get_Name), L"1?\u00FC");
  EXPECT_EQ(storey->put_Name(nullptr), S_OK);
  EXPECT_EQ(GetText(*storey, &IGeoStorey::get_Name), L"");
  EXPECT_EQ(storey->put_Height(4.5), S_OK);
  EXPECT_EQ(GetValue(*storey, &IGeoStorey::get_Height), 4.5);
}

TEST_F(Storey, RefusesNullOutputs) {
  const auto storey = Create<IGeoStorey>(CLSID_CoGeoStorey);
  EXPECT_EQ(storey->get_Height(nullptr), E_POINTER);
  EXPECT_EQ(storey->get_Level(nullptr), E_POINTER);
  EXPECT_EQ(storey->get_Number(nullptr), E_POINTER);
  EXPECT_EQ(storey->get_Name(nullptr), E_POINTER);
}

TEST_F(Storey, ReservesTheOtherOperations) {
  const auto storey = Create<IGeoStorey>(CLSID_CoGeoStorey);
  EXPECT_EQ(storey->Reserved4(nullptr), E_NOTIMPL);
  EXPECT_EQ(storey->Reserved11(nullptr), E_NOTIMPL);
  EXPECT_EQ(storey->Reserved14(nullptr), E_NOTIMPL);
  EXPECT_EQ(storey->Reserved15(0), E_NOTIMPL);
  EXPECT_EQ(storey->Reserved24(0), E_NOTIMPL);
}

}  // namespace
}  // namespace KelIFC

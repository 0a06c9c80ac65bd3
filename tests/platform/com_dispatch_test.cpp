#include "kelifc/platform/com_dispatch.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

const Face kFace = {&IidOf<IDispatch>(), nullptr};

TEST(Dispatch, HasNoTypeLibraryHere) {
  UINT count = 7;
  EXPECT_EQ(CountTypeInfo(&count), TYPE_E_LIBNOTREGISTERED);
  EXPECT_EQ(count, 0U);
  auto* info = reinterpret_cast<ITypeInfo*>(&count);
  EXPECT_EQ(GiveTypeInfo(kFace, 0, &info), TYPE_E_LIBNOTREGISTERED);
  EXPECT_EQ(info, nullptr);
  EXPECT_EQ(FindNames({&kFace, 1}, nullptr, 0, nullptr), TYPE_E_LIBNOTREGISTERED);
  EXPECT_EQ(InvokeFace({&kFace, 1}, 0, 0, nullptr, nullptr, nullptr, nullptr),
            TYPE_E_LIBNOTREGISTERED);
}

TEST(Dispatch, WantsAPlaceForWhatItGives) {
  EXPECT_EQ(CountTypeInfo(nullptr), E_POINTER);
  EXPECT_EQ(GiveTypeInfo(kFace, 0, nullptr), E_POINTER);
}

}  // namespace
}  // namespace KelIFC

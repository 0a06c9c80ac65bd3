#include "kelifc/platform/com_dispatch.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

const ScriptInterface kInterface = {&IidOf<IDispatch>(), nullptr};

TEST(Dispatch, HasNoTypeLibraryOffWindows) {
  UINT count = 7;
  EXPECT_EQ(CountTypeInfo(&count), TYPE_E_LIBNOTREGISTERED);
  EXPECT_EQ(count, 0U);
  auto* info = reinterpret_cast<ITypeInfo*>(&count);
  EXPECT_EQ(GiveTypeInfo(kInterface, 0, &info), TYPE_E_LIBNOTREGISTERED);
  EXPECT_EQ(info, nullptr);
  EXPECT_EQ(FindNames({&kInterface, 1}, nullptr, 0, nullptr), TYPE_E_LIBNOTREGISTERED);
  EXPECT_EQ(InvokeOperation({&kInterface, 1}, 0, 0, nullptr, nullptr, nullptr, nullptr),
            TYPE_E_LIBNOTREGISTERED);
}

TEST(Dispatch, RefusesANullOutput) {
  EXPECT_EQ(CountTypeInfo(nullptr), E_POINTER);
  EXPECT_EQ(GiveTypeInfo(kInterface, 0, nullptr), E_POINTER);
}

TEST(LookupFlags, LetAMethodCallFindAProperty) {
  constexpr WORD kAny = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  EXPECT_EQ(LookupFlags(DISPATCH_METHOD), kAny);
  EXPECT_EQ(LookupFlags(kAny), kAny);
}

TEST(LookupFlags, LeaveOtherCallsUnchanged) {
  for (const WORD flags :
       {0, static_cast<int>(DISPATCH_PROPERTYGET), static_cast<int>(DISPATCH_PROPERTYPUT),
        static_cast<int>(DISPATCH_PROPERTYPUTREF), DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF,
        DISPATCH_METHOD | DISPATCH_PROPERTYPUT, DISPATCH_METHOD | DISPATCH_PROPERTYPUTREF}) {
    EXPECT_EQ(LookupFlags(flags), flags);
  }
}

}  // namespace
}  // namespace KelIFC

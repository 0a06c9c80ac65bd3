#include "kelifc/platform/com_ptr.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace KelIFC {
namespace {

struct Base : IUnknown {};
struct Derived : Base {};

/// An object that counts its references. It lives on the stack of a test.
class Counted final : public Derived {
 public:
  HRESULT QueryInterface(const IID& /*iid*/, void** out) override {
    *out = nullptr;
    return E_NOINTERFACE;
  }
  ULONG AddRef() override { return ++count; }
  ULONG Release() override { return --count; }

  ULONG count = 0;
};

TEST(ComPtr, ConvertsToAnInheritedInterface) {
  Counted object;
  {
    const ComPtr<Derived> derived(&object);
    const ComPtr<Base> base = derived;
    EXPECT_EQ(base.Get(), &object);
    EXPECT_EQ(object.count, 2U);
  }
  EXPECT_EQ(object.count, 0U);
}

TEST(ComPtr, ConvertsToAnInheritedInterfaceWithoutAnObject) {
  const ComPtr<Base> base = ComPtr<Derived>();
  EXPECT_FALSE(base);
}

TEST(ComPtr, DoesNotConvertToADerivedInterface) {
  EXPECT_FALSE((std::is_convertible_v<ComPtr<Base>, ComPtr<Derived>>));
}

TEST(ComPtr, MovesItsReference) {
  Counted object;
  ComPtr<Derived> first(&object);
  const ComPtr<Derived> second = std::move(first);
  EXPECT_EQ(object.count, 1U);
  EXPECT_EQ(second.Get(), &object);
}

TEST(ComPtr, CopiesWithAReferenceOfItsOwn) {
  Counted object;
  const ComPtr<Derived> first(&object);
  ComPtr<Derived> second = first;
  EXPECT_EQ(object.count, 2U);
  second.Reset();
  EXPECT_EQ(object.count, 1U);
}

TEST(ComPtr, ReleasesWhatItHeldBeforeAnOperationFillsIt) {
  Counted object;
  ComPtr<Derived> pointer(&object);
  EXPECT_EQ(*pointer.Put(), nullptr);
  EXPECT_EQ(object.count, 0U);
}

TEST(ComPtr, IsEmptyAfterAQueryThatFails) {
  Counted object;
  EXPECT_FALSE(ComPtr<Derived>(&object).As<IDispatch>());
}

}  // namespace
}  // namespace KelIFC

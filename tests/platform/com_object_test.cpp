#include "kelifc/platform/com_object.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "kelifc/platform/com_ptr.h"

namespace KelIFC {
namespace {

struct IShape : IUnknown {
  static constexpr IID kIid = {1, 0, 0, {}};
  virtual int Corners() = 0;

 protected:
  ~IShape() = default;
};

struct ISquare : IShape {
  static constexpr IID kIid = {2, 0, 0, {}};
  virtual int Side() = 0;

 protected:
  ~ISquare() = default;
};

struct INamed : IUnknown {
  static constexpr IID kIid = {3, 0, 0, {}};
  virtual const char* Name() = 0;

 protected:
  ~INamed() = default;
};

class Square : public ISquare, public INamed {
 public:
  using Interfaces = InterfaceList<ISquare, IShape, INamed>;
  using Counted = LiveObject;

  explicit Square(int side = 1) : side(side) {
    if (side < 0) throw std::invalid_argument("side");
    if (side > 1000) throw std::bad_alloc();
  }

  int Corners() override { return 4; }
  int Side() override { return side; }
  const char* Name() override { return "square"; }

 protected:
  ~Square() = default;

 private:
  int side;
};

template <class Interface>
ComPtr<Interface> MakeSquare(int side = 1) {
  ComPtr<Interface> square;
  EXPECT_EQ(MakeObject<Square>(IidOf<Interface>(), reinterpret_cast<void**>(square.Put()), side),
            S_OK);
  return square;
}

TEST(Object, IsCreatedWithItsArguments) { EXPECT_EQ(MakeSquare<ISquare>(7)->Side(), 7); }

TEST(Object, HasEachInterfaceOfItsList) {
  const auto square = MakeSquare<ISquare>();
  EXPECT_EQ(square.As<IShape>()->Corners(), 4);
  EXPECT_STREQ(square.As<INamed>()->Name(), "square");
  EXPECT_EQ(square.As<INamed>().As<ISquare>().Get(), square.Get());
}

TEST(Object, SharesThePointerWithTheBaseOfItsOwnInterface) {
  const auto square = MakeSquare<ISquare>();
  EXPECT_EQ(static_cast<void*>(square.As<IShape>().Get()), static_cast<void*>(square.Get()));
}

TEST(Object, HasOneIdentityThroughAllInterfaces) {
  const auto square = MakeSquare<ISquare>();
  EXPECT_EQ(square.As<IUnknown>().Get(), square.As<INamed>().As<IUnknown>().Get());
}

TEST(Object, RefusesInterfacesThatItDoesNotHave) {
  const auto square = MakeSquare<ISquare>();
  void* out = &out;
  EXPECT_EQ(square->QueryInterface(IidOf<IClassFactory>(), &out), E_NOINTERFACE);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(square->QueryInterface(IidOf<ISquare>(), nullptr), E_POINTER);
}

TEST(Object, LivesUntilTheLastReferenceIsGone) {
  {
    auto square = MakeSquare<ISquare>();
    EXPECT_EQ(LiveObjectCount(), 1);
    EXPECT_EQ(square->AddRef(), 2U);
    EXPECT_EQ(square->Release(), 1U);
    EXPECT_FALSE(CanUnload());
  }
  EXPECT_EQ(LiveObjectCount(), 0);
  EXPECT_TRUE(CanUnload());
}

TEST(Object, ReturnsAStatusIfItCannotBeCreated) {
  void* out = &out;
  EXPECT_EQ(MakeObject<Square>(IidOf<ISquare>(), &out, -1), E_FAIL);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(MakeObject<Square>(IidOf<ISquare>(), &out, 1001), E_OUTOFMEMORY);
  EXPECT_EQ(MakeObject<Square>(IidOf<ISquare>(), nullptr, 1), E_POINTER);
  EXPECT_EQ(LiveObjectCount(), 0);
}

TEST(Object, IsDestroyedIfItLacksTheWantedInterface) {
  void* out = &out;
  EXPECT_EQ(MakeObject<Square>(IidOf<IDispatch>(), &out), E_NOINTERFACE);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(LiveObjectCount(), 0);
}

TEST(Module, CannotBeUnloadedWhileItIsLocked) {
  LockModule(true);
  EXPECT_FALSE(CanUnload());
  LockModule(false);
  EXPECT_TRUE(CanUnload());
}

TEST(ComPtr, CountsReferencesOfCopies) {
  {
    auto first = MakeSquare<ISquare>();
    const ComPtr<ISquare> second = first;
    EXPECT_EQ(second->AddRef(), 3U);
    second->Release();
    ComPtr<ISquare> third = std::move(first);
    EXPECT_FALSE(first);
    EXPECT_EQ(third.Get(), second.Get());
    const ComPtr<ISquare>& same = third;
    third = same;
    EXPECT_EQ(third.Get(), second.Get());
    third = MakeSquare<ISquare>(2);
    EXPECT_EQ(third->Side(), 2);
    EXPECT_EQ(LiveObjectCount(), 2);
    third.Reset();
    EXPECT_EQ(LiveObjectCount(), 1);
    ISquare* out = nullptr;
    second.CopyTo(&out);
    EXPECT_EQ((*second).Side(), 1);
    EXPECT_EQ(out->Release(), 1U);
  }
  EXPECT_EQ(LiveObjectCount(), 0);
}

TEST(ComPtr, IsEmptyForNull) {
  const ComPtr<ISquare> none;
  EXPECT_FALSE(none.As<IShape>());
  const auto square = MakeSquare<ISquare>();
  ISquare* out = square.Get();
  none.CopyTo(&out);
  EXPECT_EQ(out, nullptr);
}

}  // namespace
}  // namespace KelIFC

#include "kelifc/platform/com_factory.h"

#include <gtest/gtest.h>

#include <thread>

#include "kelifc/geo/interfaces.h"
#include "kelifc/platform/com_class.h"
#include "kelifc/platform/com_module.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {
namespace {

template <class Interface>
void** Out(ComPtr<Interface>& pointer) {
  return reinterpret_cast<void**>(pointer.Put());
}

class ClassObjects : public testing::Test {
 protected:
  void TearDown() override { EXPECT_EQ(LiveObjectCount(), 0); }
};

TEST_F(ClassObjects, AreFoundByBothProgramNamesInAnyCase) {
  for (const wchar_t* name : {L"KelIFC.GeoStorey.1", L"KelIFC.GeoStorey", L"kelifc.geostorey.1"}) {
    CLSID clsid = {};
    EXPECT_EQ(CLSIDFromProgID(name, &clsid), S_OK);
    EXPECT_EQ(clsid, CLSID_CoGeoStorey);
  }
}

TEST_F(ClassObjects, AreNotFoundByOtherNames) {
  for (const wchar_t* name : {L"", L"KelIFC", L"KelIFC.GeoStore", L"KelIFC.GeoStorey.2",
                              L"KelIFC.GeoStorey.", L"GeoStorey"}) {
    CLSID clsid = CLSID_CoGeoStorey;
    EXPECT_EQ(CLSIDFromProgID(name, &clsid), CO_E_CLASSSTRING);
    EXPECT_EQ(clsid, CLSID{});
  }
  CLSID clsid = {};
  EXPECT_EQ(CLSIDFromProgID(nullptr, &clsid), E_INVALIDARG);
  EXPECT_EQ(CLSIDFromProgID(L"KelIFC.GeoStorey", nullptr), E_INVALIDARG);
}

TEST_F(ClassObjects, CreateObjects) {
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(CoGetClassObject(CLSID_CoGeoStorey, CLSCTX_SERVER, nullptr, IidOf<IClassFactory>(),
                             Out(factory)),
            S_OK);
  ComPtr<IGeoStorey> storey;
  EXPECT_EQ(factory->CreateInstance(nullptr, IidOf<IGeoStorey>(), Out(storey)), S_OK);
  EXPECT_TRUE(storey);
  EXPECT_EQ(factory->CreateInstance(nullptr, IidOf<IGeoStorey>(), nullptr), E_POINTER);
}

TEST_F(ClassObjects, DoNotAggregate) {
  ComPtr<IUnknown> outer;
  ASSERT_EQ(CoCreateInstance(CLSID_CoGeoStorey, nullptr, CLSCTX_ALL, IidOf<IUnknown>(), Out(outer)),
            S_OK);
  void* out = &out;
  EXPECT_EQ(CoCreateInstance(CLSID_CoGeoStorey, outer.Get(), CLSCTX_ALL, IidOf<IUnknown>(), &out),
            CLASS_E_NOAGGREGATION);
  EXPECT_EQ(out, nullptr);
}

TEST_F(ClassObjects, RefuseInterfacesThatTheClassDoesNotHave) {
  void* out = &out;
  EXPECT_EQ(CoCreateInstance(CLSID_CoGeoStorey, nullptr, CLSCTX_ALL, IidOf<IGeoStoreys>(), &out),
            E_NOINTERFACE);
  EXPECT_EQ(out, nullptr);
  out = &out;
  EXPECT_EQ(CoGetClassObject(CLSID_CoGeoStorey, CLSCTX_ALL, nullptr, IidOf<IGeoStorey>(), &out),
            E_NOINTERFACE);
  EXPECT_EQ(out, nullptr);
}

TEST_F(ClassObjects, ReturnAStatusForUnknownClasses) {
  void* out = &out;
  EXPECT_EQ(CoCreateInstance(CLSID{}, nullptr, CLSCTX_ALL, IidOf<IUnknown>(), &out),
            REGDB_E_CLASSNOTREG);
  EXPECT_EQ(out, nullptr);
  out = &out;
  EXPECT_EQ(CoGetClassObject(CLSID{}, CLSCTX_ALL, nullptr, IidOf<IUnknown>(), &out),
            REGDB_E_CLASSNOTREG);
  EXPECT_EQ(out, nullptr);
  out = &out;
  EXPECT_EQ(GetClassObject(CLSID{}, IidOf<IUnknown>(), &out), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(out, nullptr);
}

TEST_F(ClassObjects, LiveInTheProcessOnly) {
  void* out = &out;
  EXPECT_EQ(CoCreateInstance(CLSID_CoGeoStorey, nullptr, CLSCTX_LOCAL_SERVER | CLSCTX_REMOTE_SERVER,
                             IidOf<IUnknown>(), &out),
            REGDB_E_CLASSNOTREG);
  EXPECT_EQ(out, nullptr);
}

TEST_F(ClassObjects, RefuseNullArguments) {
  int reserved = 0;
  void* out = &out;
  EXPECT_EQ(CoGetClassObject(CLSID_CoGeoStorey, CLSCTX_ALL, &reserved, IidOf<IUnknown>(), &out),
            E_INVALIDARG);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(CoGetClassObject(CLSID_CoGeoStorey, CLSCTX_ALL, nullptr, IidOf<IUnknown>(), nullptr),
            E_POINTER);
  EXPECT_EQ(CoCreateInstance(CLSID_CoGeoStorey, nullptr, CLSCTX_ALL, IidOf<IUnknown>(), nullptr),
            E_POINTER);
  EXPECT_EQ(GetClassObject(CLSID_CoGeoStorey, IidOf<IUnknown>(), nullptr), E_POINTER);
}

TEST_F(ClassObjects, LockTheLibrary) {
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(GetClassObject(CLSID_CoGeoStorey, IidOf<IClassFactory>(), Out(factory)), S_OK);
  EXPECT_EQ(factory->LockServer(1), S_OK);
  factory.Reset();
  EXPECT_FALSE(CanUnload());
  ASSERT_EQ(GetClassObject(CLSID_CoGeoStorey, IidOf<IClassFactory>(), Out(factory)), S_OK);
  EXPECT_EQ(factory->LockServer(0), S_OK);
  factory.Reset();
  EXPECT_TRUE(CanUnload());
}

TEST_F(ClassObjects, CanBeReplacedOnAThread) {
  ComPtr<IClassFactory> sections;
  ASSERT_EQ(GetClassObject(CLSID_CoGeoSections, IidOf<IClassFactory>(), Out(sections)), S_OK);
  DWORD first = 0;
  DWORD second = 0;
  ASSERT_EQ(CoRegisterClassObject(CLSID_CoGeoStorey, sections.Get(), 0, 0, &first), S_OK);
  ASSERT_EQ(CoRegisterClassObject(CLSID_CoGeoBeams, sections.Get(), 0, 0, &second), S_OK);
  EXPECT_NE(first, second);
  const auto make = [] {
    ComPtr<IUnknown> object;
    return CoCreateInstance(CLSID_CoGeoStorey, nullptr, CLSCTX_ALL, IidOf<IGeoSections>(),
                            Out(object));
  };
  EXPECT_EQ(make(), S_OK);
  std::thread([&] { EXPECT_EQ(make(), E_NOINTERFACE); }).join();
  EXPECT_EQ(CoRevokeClassObject(first), S_OK);
  EXPECT_EQ(CoRevokeClassObject(first), CO_E_OBJNOTREG);
  EXPECT_EQ(make(), E_NOINTERFACE);
  EXPECT_EQ(CoRevokeClassObject(second), S_OK);
}

TEST_F(ClassObjects, AreNotRegisteredWithNullArguments) {
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(GetClassObject(CLSID_CoGeoStorey, IidOf<IClassFactory>(), Out(factory)), S_OK);
  DWORD cookie = 0;
  EXPECT_EQ(CoRegisterClassObject(CLSID_CoGeoStorey, nullptr, 0, 0, &cookie), E_INVALIDARG);
  EXPECT_EQ(CoRegisterClassObject(CLSID_CoGeoStorey, factory.Get(), 0, 0, nullptr), E_INVALIDARG);
}

}  // namespace
}  // namespace KelIFC

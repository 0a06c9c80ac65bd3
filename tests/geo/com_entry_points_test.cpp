#include "kelifc/platform/com_entry_points.h"

#include <gtest/gtest.h>

#include "tests/geo/host.h"

namespace KelIFC {
namespace {

class EntryPoints : public HostTest {};

TEST_F(EntryPoints, ReturnClassObjects) {
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(DllGetClassObject(CLSID_CoIFCServer, IidOf<IClassFactory>(),
                              reinterpret_cast<void**>(factory.Put())),
            S_OK);
  ComPtr<IIFCServer> server;
  EXPECT_EQ(
      factory->CreateInstance(nullptr, IidOf<IIFCServer>(), reinterpret_cast<void**>(server.Put())),
      S_OK);
}

TEST_F(EntryPoints, RefuseUnknownClasses) {
  void* out = &out;
  EXPECT_EQ(DllGetClassObject(CLSID{}, IidOf<IClassFactory>(), &out), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(DllGetClassObject(CLSID_CoIFCServer, IidOf<IClassFactory>(), nullptr), E_POINTER);
}

TEST_F(EntryPoints, ReportWhetherTheLibraryIsInUse) {
  EXPECT_EQ(DllCanUnloadNow(), S_OK);
  auto storey = Create<IGeoStorey>(CLSID_CoGeoStorey);
  EXPECT_EQ(DllCanUnloadNow(), S_FALSE);
  storey.Reset();
  EXPECT_EQ(DllCanUnloadNow(), S_OK);
}

}  // namespace
}  // namespace KelIFC

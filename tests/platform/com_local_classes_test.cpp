#include "kelifc/platform/com_local_classes.h"

#include <gtest/gtest.h>

#include "kelifc/platform/com_class.h"
#include "kelifc/platform/com_factory.h"
#include "kelifc/platform/com_module.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {
namespace {

TEST(LocalClasses, LetAThreadCreateObjects) {
  const LocalClasses classes;
  ASSERT_EQ(classes.GetStatus(), S_OK);
  for (const ComClass& type : ComClasses()) {
    ComPtr<IUnknown> object;
    EXPECT_EQ(CoCreateInstance(type.clsid, nullptr, CLSCTX_ALL, IidOf<IUnknown>(),
                               reinterpret_cast<void**>(object.Put())),
              S_OK);
  }
}

TEST(LocalClassObject, DoesNotKeepTheLibraryLoaded) {
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(GetLocalClassObject(ComClasses().front(), IidOf<IClassFactory>(),
                                reinterpret_cast<void**>(factory.Put())),
            S_OK);
  EXPECT_TRUE(CanUnload());
  ComPtr<IUnknown> object;
  EXPECT_EQ(
      factory->CreateInstance(nullptr, IidOf<IUnknown>(), reinterpret_cast<void**>(object.Put())),
      S_OK);
  EXPECT_FALSE(CanUnload());
}

}  // namespace
}  // namespace KelIFC

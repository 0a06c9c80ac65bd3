#ifndef KELIFC_TESTS_GEO_FAILING_FACTORY_H_
#define KELIFC_TESTS_GEO_FAILING_FACTORY_H_

#include <gtest/gtest.h>

#include "kelifc/platform/com_class.h"
#include "kelifc/platform/com_error.h"
#include "kelifc/platform/com_factory.h"
#include "kelifc/platform/com_object.h"
#include "kelifc/platform/com_ptr.h"

#include "tests/known_classes.h"

namespace KelIFC {

/// REGCLS_MULTIPLEUSE: a class object creates any number of objects.
inline constexpr DWORD kManyUses = 1;

/// Creates some objects of a class and then fails.
class FailingFactoryObject : public IClassFactory {
 public:
  using Interfaces = InterfaceList<IClassFactory>;
  using Counted = UncountedObject;

  FailingFactoryObject(const CLSID& clsid, int successes, HRESULT failure)
      : successes(successes), failure(failure) {
    EXPECT_EQ(GetClassObject(clsid, IidOf<IClassFactory>(), reinterpret_cast<void**>(real.Put())),
              S_OK);
  }

  HRESULT CreateInstance(IUnknown* outer, const IID& iid, void** out) override {
    return successes-- > 0 ? real->CreateInstance(outer, iid, out) : failure;
  }

  HRESULT LockServer(BOOL) override { return S_OK; }

 protected:
  ~FailingFactoryObject() = default;

 private:
  ComPtr<IClassFactory> real;
  int successes;
  HRESULT failure;
};

/// Registers a class object that replaces the one of the library. Some systems use the first
/// registration of a class, so the library's own classes are registered again after it.
inline DWORD RegisterAhead(const CLSID& clsid, IUnknown& factory) {
  DWORD cookie = 0;
  ForgetClasses();
  EXPECT_EQ(CoRegisterClassObject(clsid, &factory, CLSCTX_INPROC_SERVER, kManyUses, &cookie), S_OK);
  KnowClasses();
  return cookie;
}

/// Makes the class object of the library the first one again.
inline void Revoke(DWORD cookie) {
  EXPECT_EQ(CoRevokeClassObject(cookie), S_OK);
  ForgetClasses();
  KnowClasses();
}

/// While it lives, the creation of a class fails on this thread after some successes.
class FailingClass {
 public:
  FailingClass(const CLSID& clsid, int successes, HRESULT failure) {
    ComPtr<IClassFactory> factory;
    EXPECT_EQ(MakeObject<FailingFactoryObject>(IidOf<IClassFactory>(),
                                               reinterpret_cast<void**>(factory.Put()), clsid,
                                               successes, failure),
              S_OK);
    cookie = RegisterAhead(clsid, *factory);
  }
  FailingClass(const FailingClass&) = delete;
  FailingClass& operator=(const FailingClass&) = delete;
  ~FailingClass() { Revoke(cookie); }

 private:
  DWORD cookie = 0;
};

/// While it lives, a class has no class object on this thread: the object that replaces it does not
/// have the interface that creates objects.
class MissingClass {
 public:
  explicit MissingClass(const CLSID& clsid) {
    ComPtr<ICreateErrorInfo> noFactory;
    EXPECT_EQ(CreateErrorInfo(noFactory.Put()), S_OK);
    cookie = RegisterAhead(clsid, *noFactory);
  }
  MissingClass(const MissingClass&) = delete;
  MissingClass& operator=(const MissingClass&) = delete;
  ~MissingClass() { Revoke(cookie); }

 private:
  DWORD cookie = 0;
};

}  // namespace KelIFC

#endif  // KELIFC_TESTS_GEO_FAILING_FACTORY_H_

#ifndef KELIFC_TESTS_GEO_HOST_H_
#define KELIFC_TESTS_GEO_HOST_H_

#include <gtest/gtest.h>

#include <string>

#include "kelifc/geo/interfaces.h"
#include "kelifc/platform/com.h"
#include "kelifc/platform/com_module.h"

namespace KelIFC {

/// A test that acts as a host. It must leave no object behind.
class HostTest : public testing::Test {
 protected:
  void TearDown() override { EXPECT_EQ(LiveObjectCount(), 0); }
};

/// Creates an object by the identifier of its class, as a host does.
template <class Interface>
ComPtr<Interface> Create(const CLSID& clsid) {
  ComPtr<Interface> object;
  EXPECT_EQ(CoCreateInstance(clsid, nullptr, CLSCTX_ALL, IidOf<Interface>(),
                             reinterpret_cast<void**>(object.Put())),
            S_OK);
  return object;
}

/// Creates an object of a class of the library, for tests that read its fields.
template <class Class>
ComPtr<typename Class::Interfaces::First> CreateOwn() {
  return Create<typename Class::Interfaces::First>(Class::kClsid);
}

/// Returns the result of an operation, which must succeed: GetValue(*storey,
/// &IGeoStorey::get_Height).
template <class Interface, class Object, class Value>
Value GetValue(Object& object, HRESULT (Interface::*operation)(Value*)) {
  Value value = {};
  EXPECT_EQ((object.*operation)(&value), S_OK);
  return value;
}

template <class Interface, class Object, class Item>
ComPtr<Item> GetObject(Object& object, HRESULT (Interface::*operation)(Item**)) {
  ComPtr<Item> item;
  EXPECT_EQ((object.*operation)(item.Put()), S_OK);
  return item;
}

template <class Interface, class Object>
std::wstring GetText(Object& object, HRESULT (Interface::*operation)(BSTR*)) {
  Bstr text;
  EXPECT_EQ((object.*operation)(text.Put()), S_OK);
  return std::wstring(text.Text());
}

/// Returns the number of items of a collection.
template <class Collection>
LONG CountOf(Collection& collection) {
  LONG count = -1;
  EXPECT_EQ(collection.Count(&count), S_OK);
  return count;
}

}  // namespace KelIFC

#endif  // KELIFC_TESTS_GEO_HOST_H_

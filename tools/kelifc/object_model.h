#ifndef TOOLS_KELIFC_OBJECT_MODEL_H_
#define TOOLS_KELIFC_OBJECT_MODEL_H_

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "kelifc/kelifc.h"

namespace command {

// Reading through the interfaces of the object model. An operation that fails ends the command:
// what it reads has just been made, so a failure is no property of the model.

/// Throws std::runtime_error with the status if it is a failure.
void Check(HRESULT status);

/// The value that a `get_` operation gives.
template <class Object, class Base, class Value>
Value Get(Object& object, HRESULT (Base::*getter)(Value*)) {
  Value value{};
  Check((object.*getter)(&value));
  return value;
}

/// UTF-8 of an automation string, which is given back.
std::string TakeText(BSTR text);

/// The text that a `get_` operation gives, as UTF-8.
template <class Object, class Base>
std::string GetText(Object& object, HRESULT (Base::*getter)(BSTR*)) {
  return TakeText(Get(object, getter));
}

/// The object that a `get_` operation gives.
template <class Object, class Base, class Child>
KelIFC::ComPtr<Child> GetObject(Object& object, HRESULT (Base::*getter)(Child**)) {
  KelIFC::ComPtr<Child> child;
  Check((object.*getter)(child.Put()));
  if (!child) Check(E_POINTER);
  return child;
}

/// Another interface of an object, which its class must have.
template <class Interface, class Object>
KelIFC::ComPtr<Interface> Query(Object& object) {
  KelIFC::ComPtr<Interface> other;
  Check(object.QueryInterface(KelIFC::IidOf<Interface>(), reinterpret_cast<void**>(other.Put())));
  return other;
}

/// What `read` makes of each item of the collection that a `get_` operation of `parent` gives.
/// `itemAt` is the collection's operation that gives an item by its number.
template <class Parent, class Base, class Collection, class Item, class Read>
auto ReadAll(Parent& parent, HRESULT (Base::*getter)(Collection**),
             HRESULT (Collection::*itemAt)(LONG, Item**), Read read) {
  const KelIFC::ComPtr<Collection> collection = GetObject(parent, getter);
  const LONG count = Get(*collection, &Collection::Count);
  std::vector<decltype(read(std::declval<Item&>()))> all;
  all.reserve(static_cast<std::size_t>(count));
  for (LONG number = 1; number <= count; ++number) {
    KelIFC::ComPtr<Item> item;
    Check(((*collection).*itemAt)(number, item.Put()));
    all.push_back(read(*item));
  }
  return all;
}

}  // namespace command

#endif  // TOOLS_KELIFC_OBJECT_MODEL_H_

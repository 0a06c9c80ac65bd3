#ifndef KELIFC_OBJECT_MODEL_H_
#define KELIFC_OBJECT_MODEL_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "kelifc/geo/interfaces.h"
#include "kelifc/geo/storey_number.h"
#include "kelifc/platform/com.h"

// A C++ layer over the interfaces of the object model. An operation that fails throws StatusError,
// text is UTF-8 in std::string, and a collection is a range:
//
//   const auto [server, structure] = KelIFC::OpenModel("house.ifc");
//   for (const auto& column : KelIFC::Items(structure, &IGeoStructure::get_Columns)) {
//     std::puts(KelIFC::Get(column, &IGeoColumn::get_Name).c_str());
//   }
//
// The layer is inline code in the host. The interfaces themselves stay usable beside it.

namespace KelIFC {

/// Thrown when an operation of the object model returns a failure.
class StatusError : public std::runtime_error {
 public:
  /// The error of a negative status, with a message for people.
  StatusError(HRESULT failure, const std::string& message)
      : std::runtime_error(message), status(failure) {}

  /// The negative status that the operation returned.
  HRESULT GetStatus() const noexcept { return status; }

 private:
  HRESULT status;
};

/// Throws StatusError if `status` is a failure. The message contains the status in hexadecimal.
inline void ThrowIfFailed(HRESULT status) {
  if (SUCCEEDED(status)) return;
  char text[64];
  std::snprintf(text, sizeof text, "the object model returned status 0x%08X",
                static_cast<unsigned>(static_cast<std::uint32_t>(status)));
  throw StatusError(status, text);
}

namespace detail {

/// The object of a call: an interface, or a ComPtr that holds one. An empty ComPtr throws
/// StatusError with E_POINTER.
template <class Interface>
class Target {
 public:
  Target(Interface& target) : object(&target) {}  // NOLINT(google-explicit-constructor)
  template <class Other>
  Target(const ComPtr<Other>& pointer)  // NOLINT(google-explicit-constructor)
      : object(pointer.Get()) {
    if (object == nullptr) ThrowIfFailed(E_POINTER);
  }

  Interface& operator*() const { return *object; }

 private:
  Interface* object;
};

/// Makes a template parameter depend on the other arguments of a call alone.
template <class Interface>
struct TargetOf {
  using Type = Target<Interface>;
};

/// Receives the result of an operation. Take() returns a number as it is, a string as UTF-8 text
/// and an object as a ComPtr that owns the reference.
template <class Value>
class Result {
 public:
  Value* Put() { return &value; }
  Value Take() const { return value; }

 private:
  Value value{};
};

template <>
class Result<BSTR> {
 public:
  BSTR* Put() { return text.Put(); }
  std::string Take() const { return Utf8Text(text.Text()); }

 private:
  Bstr text;
};

template <class Interface>
class Result<Interface*> {
 public:
  Interface** Put() { return object.Put(); }
  ComPtr<Interface> Take() {
    if (!object) ThrowIfFailed(E_POINTER);
    return std::move(object);
  }

 private:
  ComPtr<Interface> object;
};

/// The operation of a collection that returns the item at an index: ItemByIndex if the collection
/// has one, otherwise Item.
template <class Collection, class = void>
struct ItemOperation {
  static constexpr auto kAt = &Collection::Item;
};

template <class Collection>
struct ItemOperation<Collection, std::void_t<decltype(&Collection::ItemByIndex)>> {
  static constexpr auto kAt = &Collection::ItemByIndex;
};

template <class Base, class Value>
Result<Value> ItemResult(HRESULT (Base::*)(LONG, Value*));

}  // namespace detail

/// What a `get_` operation returns: a number as it is, text as UTF-8 in std::string, an object as
/// ComPtr. `object` is an interface or a ComPtr. A truth value is VARIANT_TRUE or VARIANT_FALSE.
/// Throws StatusError if the operation fails.
template <class Base, class Value>
auto Get(typename detail::TargetOf<Base>::Type object, HRESULT (Base::*getter)(Value*)) {
  detail::Result<Value> result;
  ThrowIfFailed(((*object).*getter)(result.Put()));
  return result.Take();
}

/// As Get, but returns nothing if the operation fails.
template <class Base, class Value>
auto TryGet(typename detail::TargetOf<Base>::Type object, HRESULT (Base::*getter)(Value*)) {
  detail::Result<Value> result;
  std::optional<decltype(result.Take())> taken;
  if (SUCCEEDED(((*object).*getter)(result.Put()))) taken = result.Take();
  return taken;
}

/// Another interface of an object. Throws StatusError with E_NOINTERFACE if the object does not
/// have it. ComPtr::As returns an empty pointer instead.
template <class Interface>
ComPtr<Interface> Query(detail::Target<IUnknown> object) {
  detail::Result<Interface*> result;
  ThrowIfFailed(
      (*object).QueryInterface(IidOf<Interface>(), reinterpret_cast<void**>(result.Put())));
  return result.Take();
}

/// The item at an index, counted from 1: a number, or an object as ComPtr. It serves every
/// collection, those with `Item` and those with `ItemByIndex`. Throws StatusError with E_INVALIDARG
/// for an index below 1 and with E_FAIL for an index above the number of items.
template <class Collection>
auto ItemAt(const ComPtr<Collection>& collection, LONG index) {
  constexpr auto kAt = detail::ItemOperation<Collection>::kAt;
  decltype(detail::ItemResult(kAt)) result;
  ThrowIfFailed(((*detail::Target<Collection>(collection)).*kAt)(index, result.Put()));
  return result.Take();
}

/// The items of a collection as a range for `for` and for the algorithms that take input iterators.
/// It holds the collection, and covers the items that the collection had when the range was made.
/// Its iterators are valid as long as the range exists.
template <class Collection>
class ItemRange {
 public:
  /// A position in the range. The range must outlive it.
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;  ///< each access reads the item again
    /// A number, or an object as ComPtr.
    using value_type = decltype(ItemAt(std::declval<const ComPtr<Collection>&>(), 1));
    using difference_type = std::ptrdiff_t;  ///< the type of a distance
    using pointer = void;                    ///< items are values, so there is no pointer to one
    using reference = value_type;            ///< items are values

    /// The position `first`, which counts from 0.
    Iterator(const ItemRange& items, LONG first) : range(&items), position(first) {}

    /// Reads the item. Throws StatusError if that fails.
    value_type operator*() const { return ItemAt(range->collection, position + 1); }

    /// @{
    /// Moves to the next item.
    Iterator& operator++() {
      ++position;
      return *this;
    }
    Iterator operator++(int) {
      const Iterator old = *this;
      ++position;
      return old;
    }
    /// @}

    /// @{
    /// Compares the positions of two iterators of the same range.
    bool operator==(const Iterator& other) const { return position == other.position; }
    bool operator!=(const Iterator& other) const { return position != other.position; }
    /// @}

   private:
    const ItemRange* range;
    LONG position;  // from 0
  };

  /// Throws StatusError if the collection is null or cannot tell its count.
  explicit ItemRange(ComPtr<Collection> items)
      : collection(std::move(items)), count(Get(collection, &Collection::Count)) {}

  /// Returns the position of the first item.
  Iterator begin() const { return Iterator(*this, 0); }
  /// Returns the position after the last item.
  Iterator end() const { return Iterator(*this, count); }
  /// Returns the number of items.
  std::size_t size() const { return static_cast<std::size_t>(count); }
  /// Returns true if there are no items.
  bool empty() const { return count == 0; }

 private:
  ComPtr<Collection> collection;
  LONG count;
};

/// The items of a collection.
template <class Collection>
ItemRange<Collection> Items(ComPtr<Collection> collection) {
  return ItemRange<Collection>(std::move(collection));
}

/// The items of the collection that a `get_` operation of `object` returns.
template <class Base, class Collection>
ItemRange<Collection> Items(typename detail::TargetOf<Base>::Type object,
                            HRESULT (Base::*getter)(Collection**)) {
  return ItemRange<Collection>(Get(object, getter));
}

/// An element or an opening, with the name of its kind.
struct NamedElement {
  const char* kind;  ///< "Column", "Beam", "Wall", "Plate", "Foot"; "Window", "Door", "Hole"
  ComPtr<IGeoObject> object;  ///< ComPtr::As returns the interface of the kind
};

namespace detail {

template <class Base, class Collection>
void AddElements(std::vector<NamedElement>& all, const char* kind, const ComPtr<Base>& owner,
                 HRESULT (Base::*getter)(Collection**)) {
  for (auto&& element : Items(owner, getter)) all.push_back({kind, element});
}

}  // namespace detail

/// All elements of a structure: the columns, beams, walls, plates and foots, each in the order of
/// their collection. Throws StatusError if a conversion fails.
inline std::vector<NamedElement> GetElements(const ComPtr<IGeoStructure>& structure) {
  std::vector<NamedElement> all;
  detail::AddElements(all, "Column", structure, &IGeoStructure::get_Columns);
  detail::AddElements(all, "Beam", structure, &IGeoStructure::get_Beams);
  detail::AddElements(all, "Wall", structure, &IGeoStructure::get_Walls);
  detail::AddElements(all, "Plate", structure, &IGeoStructure::get_Plates);
  detail::AddElements(all, "Foot", structure, &IGeoStructure::get_Foots);
  return all;
}

/// The openings of an element: the windows and then the doors of a wall, or the holes of a plate.
/// Any other element has none, and neither has an empty pointer.
inline std::vector<NamedElement> GetOpenings(const ComPtr<IGeoObject>& element) {
  std::vector<NamedElement> all;
  if (const auto wall = element.As<IGeoWall>()) {
    detail::AddElements(all, "Window", wall, &IGeoWall::get_Windows);
    detail::AddElements(all, "Door", wall, &IGeoWall::get_Doors);
  }
  if (const auto plate = element.As<IGeoPlate>()) {
    detail::AddElements(all, "Hole", plate, &IGeoPlate::get_Holes);
  }
  return all;
}

/// The first section of exactly this name, or an empty pointer. Throws StatusError if the search
/// fails for another reason.
inline ComPtr<IGeoSection> FindSection(const ComPtr<IGeoSections>& sections,
                                       std::wstring_view name) {
  const Bstr text(name);
  VARIANT index = {};
  index.vt = VT_BSTR;
  index.bstrVal = text.Get();
  ComPtr<IGeoSection> section;
  const HRESULT status = (*detail::Target<IGeoSections>(sections)).Item(index, section.Put());
  if (status != E_FAIL) ThrowIfFailed(status);
  return section;
}

/// The three coordinates of a point. Throws StatusError if the object does not offer them, as the
/// points of windows and doors do not.
inline std::array<double, 3> GetXYZ(detail::Target<IGeoPoint> point) {
  std::array<double, 3> xyz{};
  ThrowIfFailed((*point).GetXYZ(&xyz[0], &xyz[1], &xyz[2]));
  return xyz;
}

/// A new server object, which holds an empty model. On Windows the class must be registered, in the
/// system or by a LocalClasses object of this thread, and COM must be initialised on this thread.
inline ComPtr<IIFCServer> CreateServer() {
  detail::Result<IIFCServer*> server;
  ThrowIfFailed(CoCreateInstance(CLSID_CoIFCServer, nullptr, CLSCTX_ALL, IidOf<IIFCServer>(),
                                 reinterpret_cast<void**>(server.Put())));
  return server.Take();
}

/// A loaded model. The server object owns the model: while the host uses the structure, it must
/// hold the server object.
struct OpenedModel {
  ComPtr<IIFCServer> server;        ///< the owner of the model
  ComPtr<IGeoStructure> structure;  ///< its storeys, elements and sections
};

/// Loads a file into a new server object and returns the object with its structure. `path` has the
/// encoding of IfcServer::LoadIfcFile. Throws StatusError if the file cannot be opened, is not a
/// model or has a release without a conversion; the message is the text of the error object, which
/// names the file. For Windows see CreateServer.
inline OpenedModel OpenModel(std::string_view path) {
  OpenedModel model;
  model.server = CreateServer();
  SetErrorInfo(0, nullptr);  // an older error object would describe another failure
  const HRESULT status = model.server->Load(Bstr(WidePath(path)).Get());
  ComPtr<IErrorInfo> error;
  if (FAILED(status) && GetErrorInfo(0, error.Put()) == S_OK && error) {
    throw StatusError(status, Get(error, &IErrorInfo::GetDescription));
  }
  ThrowIfFailed(status);
  model.structure = Get(model.server, &IIFCServer::get_Structure);
  return model;
}

}  // namespace KelIFC

#endif  // KELIFC_OBJECT_MODEL_H_

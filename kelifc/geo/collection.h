#ifndef KELIFC_GEO_COLLECTION_H_
#define KELIFC_GEO_COLLECTION_H_

#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

#include "kelifc/geo/enumerator.h"
#include "kelifc/geo/interfaces.h"
#include "kelifc/geo/server_link.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

// How a collection stores an item and passes it to a host. An item that is an interface is counted
// once by the collection and once more for each receiver. A number is copied.

template <class Item>
struct ItemTraits {
  using Stored = ComPtr<Item>;
  using Given = Item*;

  /// Stores the item in `out`, counted for the receiver.
  static void Give(const Stored& item, Given* out) { item.CopyTo(out); }

  /// Returns a variant that owns a reference to the item.
  static VARIANT ToVariant(const Stored& item) {
    Item* counted = nullptr;
    item.CopyTo(&counted);
    VARIANT variant = {};
    variant.vt = VT_DISPATCH;
    variant.pdispVal = counted;
    return variant;
  }
};

template <>
struct ItemTraits<LONG> {
  using Stored = LONG;
  using Given = LONG;

  static void Give(LONG item, LONG* out) { *out = item; }

  static VARIANT ToVariant(LONG item) {
    VARIANT variant = {};
    variant.vt = VT_I4;
    variant.lVal = item;
    return variant;
  }
};

/// The part that all collections share: items in the order in which they were added. `Base` is the
/// generated base of the class with its one interface. `Element` is the interface of the items, or
/// LONG.
template <class Base, class Element>
class ItemList : public Base, private VariantItems {
  using Traits = ItemTraits<Element>;

 public:
  using Stored = typename Traits::Stored;

  /// Creates an enumerator at the first item. It keeps the collection alive and sees items that are
  /// added later. On failure `out` is null.
  HRESULT _NewEnum(IUnknown** out) override {
    return MakeEnumerator(static_cast<typename Base::Interfaces::First*>(this), *this, out);
  }

  /// Stores the number of items; at most the largest LONG. Returns E_POINTER if `out` is null.
  HRESULT Count(LONG* out) override {
    if (out == nullptr) return E_POINTER;
    constexpr std::size_t kMost = std::numeric_limits<LONG>::max();
    *out = static_cast<LONG>(items.size() < kMost ? items.size() : kMost);
    return S_OK;
  }

  /// Adds an item at the end. The collection owns the reference of an interface from then on.
  void Append(Stored item) { items.push_back(std::move(item)); }

  /// Removes the last item. The collection must not be empty.
  void RemoveLast() { items.pop_back(); }
  const std::vector<Stored>& Items() const { return items; }

 protected:
  ~ItemList() = default;

  /// Stores the item at an index from 1. Returns E_POINTER if `out` is null. Returns E_INVALIDARG
  /// and clears `out` if the index is below 1. Returns E_FAIL and leaves `out` unchanged if the
  /// index is above the number of items.
  HRESULT GiveItem(LONG index, typename Traits::Given* out) const {
    if (out == nullptr) return E_POINTER;
    if (index < 1) {
      *out = {};
      return E_INVALIDARG;
    }
    if (static_cast<std::size_t>(index) > items.size()) return E_FAIL;
    Traits::Give(items[static_cast<std::size_t>(index) - 1], out);
    return S_OK;
  }

 private:
  std::size_t Size() const override { return items.size(); }
  VARIANT At(std::size_t index) const override { return Traits::ToVariant(items[index]); }

  std::vector<Stored> items;
};

/// A collection whose items are found by their index.
template <class Base, class Element>
class Collection : public ItemList<Base, Element> {
 public:
  /// Stores the item at an index from 1, as GiveItem does.
  HRESULT Item(LONG index, typename ItemTraits<Element>::Given* out) override {
    return this->GiveItem(index, out);
  }

 protected:
  ~Collection() = default;
};

/// A collection that the conversion fills from a model. It knows the server object of the model;
/// the link is empty in a collection that a host created by itself.
template <class Base, class Element>
class ModelCollection : public Collection<Base, Element> {
 public:
  void SetServer(ServerLink link) { server = std::move(link); }
  const ServerLink& Server() const { return server; }

 protected:
  ~ModelCollection() = default;

 private:
  ServerLink server;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_COLLECTION_H_

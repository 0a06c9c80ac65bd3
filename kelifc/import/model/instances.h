#ifndef KELIFC_IMPORT_MODEL_INSTANCES_H_
#define KELIFC_IMPORT_MODEL_INSTANCES_H_

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "kelifc/core/detail/prefetch.h"
#include "kelifc/core/references/cast_cache.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// A list of products of a server, in the order of the registry. Neither the products nor the
/// server are owned, and the registry must not change while the list is used.
///
/// An iteration prefetches the product after the next one, and the instances that come before that
/// product in the registry: most files write the parts of a product directly before the product.
template <class Class>
class Products {
 public:
  explicit Products(const IfcServer& server) : server(&server) {}

  /// Appends a product; `position` is its index in the items of the server.
  void Add(const Class* product, std::uint32_t position) {
    products.push_back(product);
    positions.push_back(position);
  }

  class Iterator {
   public:
    Iterator(const Products& walked, std::size_t at) : walked(&walked), at(at) {}
    const Class* operator*() const { return walked->products[at]; }
    Iterator& operator++() {
      walked->PrefetchAround(++at + kAhead);
      return *this;
    }
    bool operator!=(const Iterator& other) const { return at != other.at; }

   private:
    const Products* walked;
    std::size_t at;
  };
  Iterator begin() const { return {*this, 0}; }
  Iterator end() const { return {*this, products.size()}; }
  std::size_t GetSize() const { return products.size(); }

 private:
  static constexpr std::size_t kAhead = 2;
  static constexpr std::uint32_t kParts = 40;  // instances that a simple product consists of

  void PrefetchAround(std::size_t index) const {
    if (index >= positions.size()) return;
    const auto& items = server->GetItems();
    const std::uint32_t last = positions[index];
    for (std::uint32_t i = last - std::min(last, kParts); i <= last; ++i) {
      detail::PrefetchInstance(items[i]);
    }
  }

  const IfcServer* server;
  std::vector<const Class*> products;
  std::vector<std::uint32_t> positions;
};

/// Calls `visit` for each product of the server with the instance, null if it was deleted, and its
/// index in the items of the server.
template <class Visit>
void ForEachProduct(const IfcServer& server, Visit&& visit) {
  constexpr std::size_t kAhead = 16;
  const auto& positions = server.GetProductPositions();
  const auto& items = server.GetItems();
  for (std::size_t i = 0; i < positions.size(); ++i) {
    if (i + kAhead < positions.size()) detail::Prefetch(items[positions[i + kAhead]]);
    visit(items[positions[i]], positions[i]);
  }
}

/// Returns the products of a class and of its subclasses.
template <class Class>
Products<Class> CollectInstances(const IfcServer& server) {
  Products<Class> found(server);
  CastCache<const Class> cast;
  ForEachProduct(server, [&](const IfcUnknown* item, std::uint32_t position) {
    if (const Class* instance = cast.Cast(item)) found.Add(instance, position);
  });
  return found;
}

/// Returns the products of the classes IfcBeam and IfcMember, and of their subclasses.
template <class Release>
Products<typename Release::IfcBuildingElement> CollectBeamsAndMembers(const IfcServer& server) {
  Products<typename Release::IfcBuildingElement> found(server);
  CastCache<const typename Release::IfcBeam> asBeam;
  CastCache<const typename Release::IfcMember> asMember;
  ForEachProduct(server, [&](const IfcUnknown* item, std::uint32_t position) {
    if (const auto* beam = asBeam.Cast(item)) {
      found.Add(beam, position);
    } else if (const auto* member = asMember.Cast(item)) {
      found.Add(member, position);
    }
  });
  return found;
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_INSTANCES_H_

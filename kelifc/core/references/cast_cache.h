#ifndef KELIFC_CORE_REFERENCES_CAST_CACHE_H_
#define KELIFC_CORE_REFERENCES_CAST_CACHE_H_

#include <cstddef>
#include <cstdint>
#include <new>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "kelifc/core/unknown.h"

namespace KelIFC {

/// Returns the same results as dynamic_cast<T*> of an instance, but runs dynamic_cast only once for
/// each class: the result, and the distance between the two pointers, depend on the class only.
/// This makes loops over millions of instances fast. Not thread-safe.
template <class T>
class CastCache {
 public:
  using Instance = std::conditional_t<std::is_const_v<T>, const IfcUnknown, IfcUnknown>;

  /// Returns `instance` as a T, or null if it is not a T. Null returns null.
  T* Cast(Instance* instance) {
    if (instance == nullptr) return nullptr;
    const std::type_info* type = &typeid(*instance);
    const Entry& entry = entries[FindSlot(type)];
    if (entry.type == nullptr) return Learn(type, instance);
    if (entry.offset == kNoCast) return nullptr;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(instance) + entry.offset);
  }

 private:
  using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
  struct Entry {
    const std::type_info* type = nullptr;
    std::ptrdiff_t offset = 0;
  };
  static constexpr std::ptrdiff_t kNoCast = PTRDIFF_MIN;

  std::size_t Hash(const std::type_info* type) const {
    return (reinterpret_cast<std::uintptr_t>(type) / 16) & (entries.size() - 1);
  }

  // Returns the slot of a type, or the free slot for it.
  std::size_t FindSlot(const std::type_info* type) const {
    std::size_t slot = Hash(type);
    while (entries[slot].type != type && entries[slot].type != nullptr) {
      slot = (slot + 1) & (entries.size() - 1);
    }
    return slot;
  }

  // If there is no memory to grow, the result is returned but not stored.
  T* Learn(const std::type_info* type, Instance* instance) {
    T* item = dynamic_cast<T*>(instance);
    if (2 * count >= entries.size() && !Grow()) return item;
    Entry& entry = entries[FindSlot(type)];
    entry.type = type;
    entry.offset = item == nullptr
                       ? kNoCast
                       : reinterpret_cast<Byte*>(item) - reinterpret_cast<Byte*>(instance);
    ++count;
    return item;
  }

  bool Grow() {
    std::vector<Entry> old;
    try {
      old.resize(2 * entries.size());
    } catch (const std::bad_alloc&) {
      return false;
    }
    old.swap(entries);
    for (const Entry& entry : old) {
      if (entry.type != nullptr) entries[FindSlot(entry.type)] = entry;
    }
    return true;
  }

  std::vector<Entry> entries = std::vector<Entry>(64);  // a power of two, at most half of them used
  std::size_t count = 0;
};

/// Returns the instance as a T, or null if it is not a T. An instance of exactly this class needs
/// no cache; for other classes, all callers of the thread share one cache.
template <class T>
const T* CachedCast(const IfcUnknown* instance) {
  if (instance == nullptr) return nullptr;
  if constexpr (requires { static_cast<const T*>(instance); }) {
    if (&typeid(*instance) == &typeid(T)) return static_cast<const T*>(instance);
  }
  thread_local CastCache<const T> cache;
  return cache.Cast(instance);
}

}  // namespace KelIFC

#endif  // KELIFC_CORE_REFERENCES_CAST_CACHE_H_

#ifndef KELIFC_CORE_CACHED_INSTANCE_H_
#define KELIFC_CORE_CACHED_INSTANCE_H_

#include <memory>

namespace KelIFC {

/// An instance that an operation of an entity returns and the entity stores. It is made at the
/// first use, because most entities never need it. It then stays at its address until the entity is
/// destroyed. A copy of the entity has a copy of the instance.
template <class T>
class CachedInstance {
 public:
  CachedInstance() = default;
  CachedInstance(const CachedInstance& other)
      : item(other.item == nullptr ? nullptr : std::make_unique<T>(*other.item)) {}
  CachedInstance& operator=(const CachedInstance& other) {
    if (other.item != nullptr) {
      Get() = *other.item;
    } else if (item != nullptr) {
      *item = T();
    }
    return *this;
  }
  ~CachedInstance() = default;

  /// Returns the instance; a new one at the first call.
  T& Get() {
    if (item == nullptr) item = std::make_unique<T>();
    return *item;
  }

 private:
  std::unique_ptr<T> item;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_CACHED_INSTANCE_H_

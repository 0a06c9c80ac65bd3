#ifndef KELIFC_BUILDING_FACTS_SHARED_MEMORY_H_
#define KELIFC_BUILDING_FACTS_SHARED_MEMORY_H_

#include <cstddef>
#include <memory>
#include <memory_resource>
#include <utility>

namespace KelIFC::building {

/// Memory for many objects that are destroyed at about the same time. Objects are next to each
/// other in it, in the order in which they are made. It is freed as a whole, after the last of
/// them. It is not for several threads at once.
class SharedMemory {
 public:
  /// Makes an object that several owners share.
  template <class T>
  std::shared_ptr<const T> Share(T value) const {
    return std::allocate_shared<const T>(Allocator<T>(memory), std::move(value));
  }

 private:
  using Memory = std::shared_ptr<std::pmr::monotonic_buffer_resource>;

  /// Each object has a copy of its allocator, which keeps the memory.
  template <class T>
  struct Allocator {
    using value_type = T;

    explicit Allocator(Memory of) : memory(std::move(of)) {}
    template <class U>
    Allocator(const Allocator<U>& other) : memory(other.memory) {}

    T* allocate(std::size_t count) {
      return static_cast<T*>(memory->allocate(count * sizeof(T), alignof(T)));
    }
    void deallocate(T* first, std::size_t count) {
      memory->deallocate(first, count * sizeof(T), alignof(T));
    }
    template <class U>
    bool operator==(const Allocator<U>& other) const {
      return memory == other.memory;
    }

    Memory memory;
  };

  Memory memory = std::make_shared<std::pmr::monotonic_buffer_resource>();
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_FACTS_SHARED_MEMORY_H_

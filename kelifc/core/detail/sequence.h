#ifndef KELIFC_CORE_DETAIL_SEQUENCE_H_
#define KELIFC_CORE_DETAIL_SEQUENCE_H_

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <type_traits>
#include <utility>

#include "kelifc/core/detail/block_memory.h"

namespace KelIFC::detail {

/// Means that a Sequence has no header in front of its elements.
struct NoHeader {
  void Drop() {}
};

/// A growable array of 16 bytes with one mark bit for its owner. The aggregates of instances use
/// it, of which a large model has millions. An empty sequence has no memory on the heap.
///
/// It grows by copying each element to its new position and destroying the old one. So elements
/// that move a value when they are copied keep that value.
///
/// With a capacity of kHeaderCapacity elements or more, there is a `Header` in front of the
/// elements, for data that small sequences do not need. The header moves with the elements when the
/// sequence grows.
template <class T, class Header = NoHeader>
class Sequence {
 public:
  static constexpr std::size_t kHeaderCapacity = 32;

  Sequence() noexcept : items(nullptr), size(0), capacity(0), mark(0) {}
  explicit Sequence(std::size_t count) : Sequence() {
    Reserve(count);
    while (size < count) Append();
  }
  /// Copies the elements one by one. The header is not copied.
  Sequence(const Sequence& other) : Sequence() {
    Reserve(other.size);
    for (const T& item : other) Append(item);
    SetMark(other.GetMark());
  }
  /// Leaves the source empty and unmarked.
  Sequence(Sequence&& other) noexcept : Sequence() { Swap(other); }
  Sequence& operator=(const Sequence& other) {
    if (this != &other) Sequence(other).Swap(*this);
    return *this;
  }
  Sequence& operator=(Sequence&& other) noexcept {
    Sequence(std::move(other)).Swap(*this);
    return *this;
  }
  ~Sequence() {
    Clear();
    Free();
  }

  std::size_t GetSize() const { return size; }
  std::size_t GetCapacity() const { return capacity; }

  /// Returns the element at `index`, which counts from 0 and is not checked.
  T& operator[](std::size_t index) { return items[index]; }
  const T& operator[](std::size_t index) const { return items[index]; }
  T* begin() { return items; }
  T* end() { return items + size; }
  const T* begin() const { return items; }
  const T* end() const { return items + size; }

  /// Adds an element. The arguments can refer to an element of the sequence.
  template <class... Args>
  T& Append(Args&&... args) {
    if (size == capacity) return AppendGrown(std::forward<Args>(args)...);
    T* item = ::new (static_cast<void*>(items + size)) T(std::forward<Args>(args)...);
    ++size;
    return *item;
  }

  /// Allocates memory for `count` elements in all.
  void Reserve(std::size_t count) {
    if (count > capacity) Sequence(Room{count}, *this).Swap(*this);
  }

  /// Frees the memory that no element uses.
  void ShrinkToFit() {
    if (size < capacity) Sequence(Room{size}, *this).Swap(*this);
  }

  /// Destroys the elements. Keeps the memory and the mark.
  void Clear() {
    if (Header* header = GetHeader()) header->Drop();
    while (size > 0) items[--size].~T();
  }

  bool GetMark() const { return mark != 0; }
  void SetMark(bool value) { mark = value ? 1 : 0; }

  /// Returns the header, or null if the capacity is below kHeaderCapacity.
  Header* GetHeader() const {
    if (capacity < kHeaderCapacity) return nullptr;
    return reinterpret_cast<Header*>(reinterpret_cast<char*>(items) - kHeaderSize);
  }

  void Swap(Sequence& other) noexcept {
    std::swap(items, other.items);
    const Sequence::Counts mine = GetCounts();
    SetCounts(other.GetCounts());
    other.SetCounts(mine);
  }

 private:
  struct Room {
    std::size_t count;
  };
  struct Counts {
    std::uint32_t size, capacity, mark;
  };

  static constexpr std::size_t kItemBytes = sizeof(T);  // NOLINT: items can be pointers
  static constexpr std::size_t kMaximum =
      std::min<std::size_t>(0x7FFFFFFF, PTRDIFF_MAX / 2 / kItemBytes);
  static constexpr std::size_t kHeaderSize =
      std::is_empty_v<Header> ? 0 : (sizeof(Header) + alignof(T) - 1) / alignof(T) * alignof(T);
  static_assert(alignof(T) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__ && alignof(Header) <= alignof(T));

  /// Moves the elements, the header and the mark out of `other`, which becomes empty.
  Sequence(Room room, Sequence& other) : Sequence() {
    Allocate(room.count);
    TakeFrom(other);
  }

  void Allocate(std::size_t count) {
    if (count == 0) return;
    if (count > kMaximum) throw std::bad_array_new_length();
    const std::size_t prefix = count < kHeaderCapacity ? 0 : kHeaderSize;
    char* block = static_cast<char*>(AllocateBlock(prefix + count * kItemBytes, alignof(T)));
    if (count >= kHeaderCapacity) ::new (static_cast<void*>(block)) Header();
    items = reinterpret_cast<T*>(block + prefix);
    capacity = static_cast<std::uint32_t>(count) & 0x7FFFFFFF;
  }

  void TakeFrom(Sequence& other) {
    for (T& item : other) Append(static_cast<const T&>(item));
    mark = other.mark;
    Header* to = GetHeader();
    Header* from = other.GetHeader();
    if (to != nullptr && from != nullptr) *to = std::move(*from);
    other.Clear();
  }

  template <class... Args>
  T& AppendGrown(Args&&... args) {
    const std::size_t doubled = capacity < kMaximum / 2 ? 2 * std::size_t{capacity} : kMaximum;
    if (size == kMaximum) throw std::bad_array_new_length();
    Sequence grown;
    grown.Allocate(doubled == 0 ? 1 : doubled);
    // The new element is made first: its arguments can refer to an element that TakeFrom moves.
    T* item = ::new (static_cast<void*>(grown.items + size)) T(std::forward<Args>(args)...);
    grown.TakeFrom(*this);
    ++grown.size;
    Swap(grown);
    return *item;
  }

  void Free() {
    if (capacity == 0) return;
    char* block = reinterpret_cast<char*>(items);
    if (Header* header = GetHeader()) {
      header->~Header();
      block -= kHeaderSize;
    }
    FreeBlock(block);
  }

  Counts GetCounts() const { return {size, capacity, mark}; }
  void SetCounts(Counts counts) {
    size = counts.size;
    capacity = counts.capacity & 0x7FFFFFFF;
    mark = counts.mark & 1;
  }

  T* items;
  std::uint32_t size;
  std::uint32_t capacity : 31;
  std::uint32_t mark : 1;
};

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_DETAIL_SEQUENCE_H_

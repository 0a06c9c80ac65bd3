#ifndef KELIFC_CORE_AGGREGATE_H_
#define KELIFC_CORE_AGGREGATE_H_

#include <cstddef>
#include <ostream>
#include <type_traits>
#include <utility>

#include "kelifc/core/detail/position_index.h"
#include "kelifc/core/detail/sequence.h"
#include "kelifc/core/detail/text_out.h"

// The aggregates of the schema. Positions count from 1; the position 0 means "not found". A copy of
// an aggregate copies its elements one by one. The copy of a reference takes the inline value out
// of its source, see MEMBER.

namespace KelIFC {

/// The key by which a set finds an equal pointer.
template <class T>
std::size_t ElementKey(T* item) {
  return reinterpret_cast<std::size_t>(item);
}

namespace detail {

template <class T, class = void>
struct HasElementKey : std::false_type {};
template <class T>
struct HasElementKey<T, std::void_t<decltype(ElementKey(std::declval<const T&>()))>>
    : std::true_type {};

/// The header of a SET: an index if its elements have a key, otherwise nothing.
template <class T>
using SetHeader = std::conditional_t<HasElementKey<T>::value, PositionIndex, NoHeader>;

}  // namespace detail

/// The operations that LIST and SET share.
template <class T, class Header>
class Aggregate {
 public:
  /// Returns the position of the first equal element, or 0. Takes linear time.
  std::size_t Find(const T& value) const {
    for (std::size_t i = 0; i < items.GetSize(); ++i) {
      if (items[i] == value) return i + 1;
    }
    return 0;
  }

  /// Adds an element, even if the aggregate holds an equal one. Returns its position.
  std::size_t Append(const T& value) {
    items.SetMark(true);
    items.Append(value);
    return items.GetSize();
  }

  /// Removes all elements. Does not change GetExists.
  void Clear() { items.Clear(); }
  /// Allocates memory for `count` elements in all.
  void Reserve(std::size_t count) { items.Reserve(count); }

  /// Returns the number of elements.
  std::size_t GetSize() const { return items.GetSize(); }
  /// Returns true if there are no elements; the aggregate can be set all the same.
  bool GetEmpty() const { return items.GetSize() == 0; }
  /// Returns false if the aggregate is unset.
  bool GetExists() const { return items.GetMark(); }
  /// Marks the aggregate as set or unset. Its elements do not change.
  void SetExists(bool value) { items.SetMark(value); }

  /// Returns the element at a position. A position out of range returns an unset element that all
  /// aggregates of the thread share. The next access out of range resets that element.
  T& operator[](std::size_t position) {
    if (auto* header = items.GetHeader()) header->Drop();
    return IsIn(position) ? items[position - 1] : Spare();
  }
  /// Does what GetItem does.
  const T& operator[](std::size_t position) const { return GetItem(position); }
  /// Returns the element at a position. A position out of range returns the shared unset element.
  const T& GetItem(std::size_t position) const {
    return IsIn(position) ? items[position - 1] : Spare();
  }

 protected:
  Aggregate() = default;
  explicit Aggregate(std::size_t count) : items(count) { items.SetMark(true); }
  Aggregate(const Aggregate&) = default;
  Aggregate(Aggregate&&) noexcept = default;
  Aggregate& operator=(const Aggregate&) = default;
  Aggregate& operator=(Aggregate&&) noexcept = default;
  ~Aggregate() = default;

  void WriteItems(std::ostream& out) const {
    detail::PutChar(out, '(');
    for (std::size_t i = 0; i < items.GetSize(); ++i) {
      if (i != 0) detail::PutText(out, ", ");
      items[i].Write(out);
    }
    detail::PutChar(out, ')');
  }

  detail::Sequence<T, Header> items;  // its mark says whether the aggregate exists

 private:
  bool IsIn(std::size_t position) const { return position - 1 < items.GetSize(); }
  static T& Spare() {
    static thread_local T spare{};
    spare = T();
    return spare;
  }
};

/// An ordered aggregate. It can hold equal elements.
template <class T>
class LIST : public Aggregate<T, detail::NoHeader> {
 public:
  /// An empty list that is unset.
  LIST() = default;
  /// A list of `count` default elements.
  explicit LIST(std::size_t count) : Aggregate<T, detail::NoHeader>(count) {}
  LIST(const LIST&) = default;
  LIST(LIST&&) noexcept = default;
  LIST& operator=(const LIST&) = default;
  LIST& operator=(LIST&&) noexcept = default;
  virtual ~LIST() = default;

  /// Adds an element. Returns its position.
  std::size_t Add(const T& value) { return this->Append(value); }

  /// Writes the elements in parentheses, or `$` if the list is unset.
  std::ostream& Write(std::ostream& out) const {
    if (this->GetExists()) {
      this->WriteItems(out);
    } else {
      detail::PutChar(out, '$');
    }
    return out;
  }
};

/// An aggregate to which Add adds no equal elements; other operations can. A large set of
/// references or pointers has an index, so that Add takes constant time. Access to an element
/// through a non-const set drops the index.
template <class T>
class SET : public Aggregate<T, detail::SetHeader<T>> {
  using Base = Aggregate<T, detail::SetHeader<T>>;

 public:
  /// An empty set that is unset.
  SET() = default;
  /// A set of `count` default elements.
  explicit SET(std::size_t count) : Base(count) {}
  SET(const SET&) = default;
  SET(SET&&) noexcept = default;
  SET& operator=(const SET&) = default;
  SET& operator=(SET&&) noexcept = default;
  virtual ~SET() = default;

  /// Adds an element, unless the set holds an equal one. Returns the position of the new element or
  /// of the equal one.
  std::size_t Add(const T& value) {
    this->SetExists(true);
    if constexpr (detail::HasElementKey<T>::value) {
      if (auto* index = this->items.GetHeader()) return AddIndexed(*index, value);
    }
    const std::size_t position = this->Find(value);
    return position != 0 ? position : this->Append(value);
  }

  /// Writes the elements in parentheses, even if the set is unset.
  std::ostream& Write(std::ostream& out) const {
    this->WriteItems(out);
    return out;
  }

 private:
  std::size_t AddIndexed(detail::PositionIndex& index, const T& value) {
    const auto keyAt = [this](std::size_t i) { return ElementKey(this->items[i]); };
    while (index.GetCount() < this->items.GetSize()) index.Add(keyAt);
    const std::uint32_t position = index.Find(ElementKey(value), keyAt);
    return position != detail::PositionIndex::kNotFound ? std::size_t{position} + 1
                                                        : this->Append(value);
  }
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_AGGREGATE_H_

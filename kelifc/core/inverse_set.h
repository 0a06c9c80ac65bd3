#ifndef KELIFC_CORE_INVERSE_SET_H_
#define KELIFC_CORE_INVERSE_SET_H_

#include <cstddef>
#include <cstdint>

#include "kelifc/core/aggregate.h"
#include "kelifc/core/member.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

namespace detail {

/// The number of an instance, as an element of a set.
struct InstanceNumber {
  std::size_t value = 0;
  bool operator==(const InstanceNumber& other) const { return value == other.value; }
  /// Writes the number as a reference.
  std::ostream& Write(std::ostream& out) const { return MEMBER(value).Write(out); }
};
inline std::size_t ElementKey(InstanceNumber number) { return number.value; }

}  // namespace detail

/// A set of references that no statement contains, such as an inverse set. Most of these sets have
/// no member or one, so the object has the size of a pointer, and only a set with more members
/// allocates memory. Positions count from 1. The references have no owner.
class KELIFC_API InverseSet {
 public:
  /// An empty set.
  InverseSet() = default;
  InverseSet(const InverseSet& other);
  InverseSet& operator=(const InverseSet& other);
  ~InverseSet() {
    if (HasNumbers()) Free();
  }

  /// Adds the number of a reference, unless the set has it. Returns its position. Takes constant
  /// time.
  std::size_t Add(const MEMBER& reference);
  /// Returns the number of members.
  std::size_t GetSize() const { return HasNumbers() ? GetNumbers()->GetSize() : word & 1; }
  /// Returns the reference at a position, or an unset one for a position out of range.
  MEMBER GetItem(std::size_t position) const;

 private:
  using Numbers = SET<detail::InstanceNumber>;

  // 0 for an empty set. If the lowest bit is set, the other bits are the only number. Otherwise a
  // pointer to all numbers.
  bool HasNumbers() const { return word != 0 && (word & 1) == 0; }
  Numbers* GetNumbers() const {
    return reinterpret_cast<Numbers*>(static_cast<std::uintptr_t>(word));
  }
  std::size_t AddSecond(std::size_t number);
  void Free() noexcept;

  std::uint64_t word = 0;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_INVERSE_SET_H_

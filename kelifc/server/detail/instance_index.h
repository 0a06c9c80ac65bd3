#ifndef KELIFC_SERVER_DETAIL_INSTANCE_INDEX_H_
#define KELIFC_SERVER_DETAIL_INSTANCE_INDEX_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

namespace KelIFC {
class IfcUnknown;
}

namespace KelIFC::detail {

class NumberIndex;

/// Finds the position of an instance in the registry, and its number.
///
/// The result is that of a linear search of the registry for the pointer, in constant time. The
/// index compares pointers and never dereferences them, because a host can look up an instance that
/// was destroyed. It is built at the first look-up and updated from then on: a host that only loads
/// and saves never builds it.
///
/// The table stores positions in 4 bytes per slot, and reads the pointers from the registry. So
/// every operation has the slots of the registry as a parameter.
class InstanceIndex {
 public:
  /// The position that means "not found", as in NumberIndex.
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  /// The slots of the registry; the slot of a deleted instance is null.
  using Slots = IfcUnknown* const*;

  bool IsBuilt() const { return built; }

  /// Builds the index of a registry with `count` slots and its numbers.
  void Build(Slots slots, std::size_t count, const NumberIndex& numbers);

  /// Removes everything. After that the index is not built.
  void Clear();

  /// Returns the first position of the instance, kNone if there is none. A null instance returns
  /// the first null slot.
  std::uint32_t FindPosition(Slots slots, const IfcUnknown* instance) const;

  /// Returns the number of a position, 0 if it has none or has lost it.
  std::uint64_t GetNumber(std::uint32_t position) const { return numberOf[position]; }

  /// Adds the slot that was just appended to the registry, with its number.
  void Append(Slots slots, std::uint64_t number);

  /// Removes the number of a position.
  void DropNumber(std::uint32_t position) { numberOf[position] = 0; }

  /// Removes an instance before it leaves the registry, while its slots still contain it. Returns
  /// all its positions, the first one first; none for a null instance or one that is not
  /// registered.
  std::vector<std::uint32_t> Remove(Slots slots, const IfcUnknown* instance);

 private:
  std::size_t HomeOf(const IfcUnknown* instance) const;
  std::size_t FindSlot(Slots slots, const IfcUnknown* instance) const;
  void Insert(Slots slots, std::uint32_t position);
  void Rehash(Slots slots, std::size_t slotCount);
  void CloseGap(Slots slots, std::size_t gap);

  bool built = false;
  std::vector<std::uint64_t> numberOf;  // by position
  std::vector<std::uint32_t> table;     // open addressing: positions, kNone if free
  unsigned shift = 64;                  // from a hash to the home slot
  std::size_t used = 0;                 // slots of the table in use
  std::uint32_t firstNull = kNone;      // a null slot stays null, so the first one only moves down
  std::multimap<const IfcUnknown*, std::uint32_t> repeats;  // later slots of the same instance
};

}  // namespace KelIFC::detail

#endif  // KELIFC_SERVER_DETAIL_INSTANCE_INDEX_H_

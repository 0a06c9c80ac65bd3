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

/// The way back from an instance to its position in the registry and its number.
///
/// The answers are those of a search of the registry from its start for the pointer, in constant
/// time. The index compares pointers and never follows one, for a host may ask about an instance
/// that is gone. It is built when it is first asked for and kept up from then on: a host that only
/// loads and saves never pays for it.
///
/// The table holds positions and reads the pointers from the registry itself, 4 bytes a slot, so
/// every operation is given the registry's slots.
class InstanceIndex {
 public:
  /// The position that stands for "not there", as in NumberIndex.
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  /// The slots of the registry, null where an instance was deleted.
  using Slots = IfcUnknown* const*;

  bool IsBuilt() const { return built; }

  /// Takes in a registry of `count` slots and its numbers.
  void Build(Slots slots, std::size_t count, const NumberIndex& numbers);

  /// Forgets everything; the index is unbuilt again.
  void Clear();

  /// The first position that holds the instance, kNone if none does. A null instance finds the
  /// first null slot.
  std::uint32_t FindPosition(Slots slots, const IfcUnknown* instance) const;

  /// The number of a position, 0 if it has none (any more).
  std::uint64_t GetNumber(std::uint32_t position) const { return numberOf[position]; }

  /// Takes in the slot that was just appended to the registry, as the holder of `number`.
  void Append(Slots slots, std::uint64_t number);

  /// The position has lost its number.
  void DropNumber(std::uint32_t position) { numberOf[position] = 0; }

  /// Forgets an instance that is about to leave the registry, while its slots still hold it. Gives
  /// all its positions, the first one ahead; none for a null instance or one that is not there.
  std::vector<std::uint32_t> Remove(Slots slots, const IfcUnknown* instance);

 private:
  std::size_t HomeOf(const IfcUnknown* instance) const;
  std::size_t FindSlot(Slots slots, const IfcUnknown* instance) const;
  void Insert(Slots slots, std::uint32_t position);
  void Rehash(Slots slots, std::size_t slotCount);
  void CloseGap(Slots slots, std::size_t gap);

  bool built = false;
  std::vector<std::uint64_t> numberOf;  // by position
  std::vector<std::uint32_t> table;     // open addressing: positions, kNone where free
  unsigned shift = 64;                  // from a hash to the home slot
  std::size_t used = 0;                 // slots of the table in use
  std::uint32_t firstNull = kNone;      // a null slot stays null, so the first one only moves down
  std::multimap<const IfcUnknown*, std::uint32_t> repeats;  // later slots of the same instance
};

}  // namespace KelIFC::detail

#endif  // KELIFC_SERVER_DETAIL_INSTANCE_INDEX_H_

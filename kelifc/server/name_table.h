#ifndef KELIFC_SERVER_NAME_TABLE_H_
#define KELIFC_SERVER_NAME_TABLE_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string_view>

#include "kelifc/server/entity_name.h"

namespace KelIFC {

class IfcUnknown;

/// A function that makes one unregistered instance. It returns null if there is no memory.
using InstanceMaker = IfcUnknown* (*)();

/// Makes an instance of class T, for the rows of a table.
template <class T>
IfcUnknown* MakeNew() {
  try {
    return new T;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

/// One row of a table: the name of an entity in upper case, and the function that makes its class.
struct NameRow {
  std::string_view name;
  InstanceMaker make = nullptr;
};

/// A hash table from entity names to functions that make an instance. The compiler builds it: it
/// uses open addressing, at least three of four slots are free, and it allocates nothing at run
/// time.
///
///     constexpr NameRow kRows[] = {{"IFCWALL", MakeNew<IfcWall>}, ...};
///     constexpr NameTable kTable(kRows);
///
/// If a name is in two rows, the first row counts.
template <std::size_t kRowCount>
class NameTable {
 public:
  constexpr explicit NameTable(const NameRow (&source)[kRowCount]) {
    for (std::size_t row = 0; row < kRowCount; ++row) {
      rows[row] = source[row];
      lengths |= BitOf(rows[row].name.size());
      std::size_t slot = HomeOf(rows[row].name);
      while (slots[slot] != 0) slot = (slot + 1) % kSlotCount;
      slots[slot] = static_cast<std::uint16_t>(row + 1);
    }
  }

  /// Returns the row of a name, null if there is none.
  constexpr const NameRow* Find(const EntityName& name) const {
    if (name.GetText().empty() || (lengths & BitOf(name.GetText().size())) == 0) return nullptr;
    for (std::size_t slot = HomeOf(name); slots[slot] != 0; slot = (slot + 1) % kSlotCount) {
      const NameRow& row = rows[slots[slot] - 1u];
      if (name.Is(row.name)) return &row;
    }
    return nullptr;
  }

  /// Returns a new instance of the class with a name; null for a name that is not in the table.
  IfcUnknown* Make(const EntityName& name) const {
    const NameRow* row = Find(name);
    return row == nullptr ? nullptr : row->make();
  }

 private:
  static_assert(kRowCount > 0 && kRowCount < 0xFFFF);

  static constexpr std::size_t CountSlots() {
    std::size_t slotCount = 4;
    while (slotCount < 4 * kRowCount) slotCount *= 2;
    return slotCount;
  }
  static constexpr std::size_t kSlotCount = CountSlots();

  static constexpr std::uint64_t BitOf(std::size_t length) {
    return std::uint64_t{1} << (length % 64);
  }

  // The first slot for a name.
  static constexpr std::size_t HomeOf(const EntityName& name) {
    return name.GetHash() % kSlotCount;
  }

  std::array<NameRow, kRowCount> rows = {};
  std::array<std::uint16_t, kSlotCount> slots = {};  // the row, counted from 1; 0 if free
  std::uint64_t lengths = 0;  // the bits of the lengths of all names; most other lengths have none
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_NAME_TABLE_H_

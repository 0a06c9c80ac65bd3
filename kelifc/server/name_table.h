#ifndef KELIFC_SERVER_NAME_TABLE_H_
#define KELIFC_SERVER_NAME_TABLE_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string>
#include <string_view>

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
/// time. Names are compared without the case of the ASCII letters, independent of the process
/// locale.
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
      if (rows[row].name.size() > longest) longest = rows[row].name.size();
      lengths |= BitOf(rows[row].name.size());
      std::size_t slot = HomeOf(rows[row].name);
      while (slots[slot] != 0) slot = (slot + 1) % kSlotCount;
      slots[slot] = static_cast<std::uint16_t>(row + 1);
    }
  }

  /// Returns the row of a name, null if there is none. Reads at most one character more than the
  /// longest name of the table has, so a name of any length is rejected in constant time.
  constexpr const NameRow* Find(const char* text) const {
    const char* end = std::char_traits<char>::find(text, longest + 1, '\0');
    if (end == nullptr || end == text) return nullptr;
    const std::string_view name(text, static_cast<std::size_t>(end - text));
    if ((lengths & BitOf(name.size())) == 0) return nullptr;
    for (std::size_t slot = HomeOf(name); slots[slot] != 0; slot = (slot + 1) % kSlotCount) {
      const NameRow& row = rows[slots[slot] - 1u];
      if (row.name.size() == name.size() && (row.name == name || IsSame(row.name, name))) {
        return &row;
      }
    }
    return nullptr;
  }

  /// Returns a new instance of the class with a name; null for a name that is not in the table.
  IfcUnknown* Make(const char* name) const {
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

  static constexpr char ToUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }

  // Returns the first slot for a name. Four characters and the length are enough to distinguish the
  // names of a schema, which have the same beginning and sometimes the same end.
  static constexpr std::size_t HomeOf(std::string_view name) {
    const std::size_t length = name.size();
    std::uint32_t hash = static_cast<std::uint32_t>(length);
    for (const std::size_t at : {length - 1, length / 2, length / 4, length * 3 / 4}) {
      hash = (hash ^ static_cast<unsigned char>(ToUpper(name[at]))) * 0x01000193u;
    }
    return (hash ^ (hash >> 15)) % kSlotCount;
  }

  static constexpr bool IsSame(std::string_view upperCase, std::string_view name) {
    for (std::size_t i = 0; i < name.size(); ++i) {
      if (upperCase[i] != ToUpper(name[i])) return false;
    }
    return true;
  }

  std::array<NameRow, kRowCount> rows = {};
  std::array<std::uint16_t, kSlotCount> slots = {};  // the row, counted from 1; 0 if free
  std::size_t longest = 0;
  std::uint64_t lengths = 0;  // the bits of the lengths of all names; most other lengths have none
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_NAME_TABLE_H_

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

/// Makes one unregistered instance, null where the memory for it is lacking.
using InstanceMaker = IfcUnknown* (*)();

/// The maker of class T, for the rows of a table.
template <class T>
IfcUnknown* MakeNew() {
  try {
    return new T;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

/// One row of a table: the name of an entity in upper case, and what makes its class.
struct NameRow {
  std::string_view name;
  InstanceMaker make = nullptr;
};

/// A table from entity names to makers, built by the compiler: open addressing, at least three
/// slots in four free, no memory of its own at run time. Names compare without regard to the case
/// of the ASCII letters and of nothing else, whatever the process locale.
///
///   constexpr NameRow kRows[] = {{"IFCWALL", MakeNew<IfcWall>}, ...};
///   constexpr NameTable kTable(kRows);
///
/// A name that stands in two rows finds the first.
template <std::size_t kRowCount>
class NameTable {
 public:
  constexpr explicit NameTable(const NameRow (&source)[kRowCount]) {
    for (std::size_t row = 0; row < kRowCount; ++row) {
      rows[row] = source[row];
      if (rows[row].name.size() > longest) longest = rows[row].name.size();
      std::size_t slot = HomeOf(rows[row].name);
      while (slots[slot] != 0) slot = (slot + 1) % kSlotCount;
      slots[slot] = static_cast<std::uint16_t>(row + 1);
    }
  }

  /// The row of a name, null if there is none. Reads at most one character more than the longest
  /// name of the table has, so a name of any length is refused at once.
  constexpr const NameRow* Find(const char* text) const {
    const char* end = std::char_traits<char>::find(text, longest + 1, '\0');
    if (end == nullptr || end == text) return nullptr;
    const std::string_view name(text, static_cast<std::size_t>(end - text));
    for (std::size_t slot = HomeOf(name); slots[slot] != 0; slot = (slot + 1) % kSlotCount) {
      const NameRow& row = rows[slots[slot] - 1u];
      if (row.name.size() == name.size() && (row.name == name || IsSame(row.name, name))) {
        return &row;
      }
    }
    return nullptr;
  }

  /// A new instance of the class behind a name; null for a name that the table lacks.
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

  static constexpr char ToUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }

  // Where the search for a name begins. Four characters and the length tell the names of a schema
  // apart well enough: what they share is the begin, and at times the end.
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
  std::array<std::uint16_t, kSlotCount> slots = {};  // the row counted from 1, 0 where free
  std::size_t longest = 0;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_NAME_TABLE_H_

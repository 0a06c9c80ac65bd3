#ifndef KELIFC_SERVER_NAME_TABLE_H_
#define KELIFC_SERVER_NAME_TABLE_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
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
      std::size_t slot = HomeOf(Hash(rows[row].name.data(), rows[row].name.size()).value);
      while (slots[slot] != 0) slot = (slot + 1) % kSlotCount;
      slots[slot] = static_cast<std::uint16_t>(row + 1);
    }
  }

  /// The row of a name, null if there is none. Reads at most one character more than the longest
  /// name of the table has, so a name of any length is refused at once.
  constexpr const NameRow* Find(const char* name) const {
    const HashedName hashed = Hash(name, longest);
    if (name[hashed.length] != '\0') return nullptr;
    for (std::size_t slot = HomeOf(hashed.value); slots[slot] != 0;
         slot = (slot + 1) % kSlotCount) {
      const NameRow& row = rows[slots[slot] - 1u];
      if (IsSame(row.name, name, hashed.length)) return &row;
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

  struct HashedName {
    std::uint64_t value = 0;
    std::size_t length = 0;
  };

  static constexpr char ToUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }

  // Takes the name up to its NUL, or `limit` characters of a longer one.
  static constexpr HashedName Hash(const char* name, std::size_t limit) {
    HashedName hashed;
    for (; hashed.length < limit && name[hashed.length] != '\0'; ++hashed.length) {
      const auto code = static_cast<unsigned char>(ToUpper(name[hashed.length]));
      hashed.value = ((hashed.value << 5) | (hashed.value >> 59)) ^ code;
    }
    return hashed;
  }

  static constexpr std::size_t HomeOf(std::uint64_t hash) {
    return static_cast<std::size_t>((hash * 0x9E3779B97F4A7C15ULL) >> 40) % kSlotCount;
  }

  static constexpr bool IsSame(std::string_view upperCase, const char* name, std::size_t length) {
    if (upperCase.size() != length) return false;
    for (std::size_t i = 0; i < length; ++i) {
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

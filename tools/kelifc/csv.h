#ifndef TOOLS_KELIFC_CSV_H_
#define TOOLS_KELIFC_CSV_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace command {

/// Makes a row of comma-separated values as RFC 4180 defines it. The row ends with CR LF.
class CsvRow {
 public:
  /// With `isRaw`, text is not guarded: otherwise text that begins with = + - @ TAB or CR, which a
  /// spreadsheet would run as a formula, gets a leading apostrophe.
  explicit CsvRow(bool isRaw) : isRaw(isRaw) {}

  void Add(std::string_view text);
  void Add(const char* text) { Add(std::string_view(text)); }
  void Add(double number);
  void Add(std::size_t number);
  void Add(bool value);
  void AddEmpty() { AddCell(""); }

  /// The row; the next cell begins a new one.
  std::string Take();

 private:
  void BeginCell();
  void AddCell(std::string_view text);

  bool isRaw;
  bool isFirst = true;
  std::string row;
};

}  // namespace command

#endif  // TOOLS_KELIFC_CSV_H_

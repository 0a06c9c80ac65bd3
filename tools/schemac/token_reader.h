#ifndef KELIFC_TOOLS_SCHEMAC_TOKEN_READER_H_
#define KELIFC_TOOLS_SCHEMAC_TOKEN_READER_H_

#include <string>
#include <string_view>

#include "tools/schemac/line_reader.h"

namespace schemac {

/// Reads the words of a line from left to right. Each error contains the column.
class TokenReader {
 public:
  explicit TokenReader(const Line& line) : line(line) {}

  /// Returns true if only blanks are left.
  bool AtEnd();

  /// Returns the next characters up to a blank. If there are none, throws an error that names
  /// `what`.
  std::string Word(std::string_view what);

  /// Returns the next letters, digits and '_'. If there are none, throws an error that names
  /// `what`.
  std::string Name(std::string_view what);

  /// Skips `text` if it comes next, and returns whether it did.
  bool Take(std::string_view text);

  /// Skips `text`, or throws an error if something else comes next.
  void Expect(std::string_view text);

  /// Returns the text up to one of `stops` outside parentheses, or to the end, without blanks
  /// around it.
  std::string Until(std::string_view stops);

  /// Returns the rest of the line.
  std::string Rest() { return Until(""); }

  /// Returns the place of the next word, for messages of the caller.
  Place Here();

  [[noreturn]] void Fail(const std::string& message);

 private:
  void SkipBlanks();

  const Line& line;
  std::size_t at = 0;
};

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_TOKEN_READER_H_

#ifndef KELIFC_TOOLS_SCHEMAC_TOKEN_READER_H_
#define KELIFC_TOOLS_SCHEMAC_TOKEN_READER_H_

#include <string>
#include <string_view>

#include "tools/schemac/line_reader.h"

namespace schemac {

/// Reads the words of a line from left to right; every refusal names the column.
class TokenReader {
 public:
  explicit TokenReader(const Line& line) : line(line) {}

  /// True if nothing but blanks is left.
  bool AtEnd();

  /// The next run of characters without a blank; an error names `what` if none is left.
  std::string Word(std::string_view what);

  /// The next run of letters, digits and '_'; an error names `what` if there is none.
  std::string Name(std::string_view what);

  /// Takes `text` if it comes next.
  bool Take(std::string_view text);

  /// Takes `text` or refuses the line.
  void Expect(std::string_view text);

  /// Everything up to one of `stops` outside parentheses, or to the end; blanks around it cut.
  std::string Until(std::string_view stops);

  /// Everything that is left.
  std::string Rest() { return Until(""); }

  /// The place of the next word, for messages of the caller.
  Place Here();

  [[noreturn]] void Fail(const std::string& message);

 private:
  void SkipBlanks();

  const Line& line;
  std::size_t at = 0;
};

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_TOKEN_READER_H_

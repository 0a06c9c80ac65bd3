#ifndef KELIFC_TOOLS_SCHEMAC_LINE_READER_H_
#define KELIFC_TOOLS_SCHEMAC_LINE_READER_H_

#include <string>
#include <string_view>
#include <vector>

#include "tools/schemac/diagnostics.h"

namespace schemac {

/// One line of a description that is not empty.
struct Line {
  /// A part of the text that is on a further line of the file.
  struct Continuation {
    std::size_t offset;  ///< in `text`
    Place place;
  };

  Place place;         ///< of the first character of `text`
  bool indented;       ///< the line belongs to the entry above it
  std::string text;    ///< without indentation, comment, reason and trailing blanks
  std::string reason;  ///< the text after " -- ": why the line departs from the regular form
  std::vector<Continuation> continuations = {};  ///< in ascending order
};

/// Splits a description into lines. `#` at the start of a line begins a comment. A line that is
/// indented by six blanks or more continues the line above it. Throws DescriptionError for a tab.
std::vector<Line> ReadLines(const std::string& file, std::string_view text);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_LINE_READER_H_

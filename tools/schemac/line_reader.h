#ifndef KELIFC_TOOLS_SCHEMAC_LINE_READER_H_
#define KELIFC_TOOLS_SCHEMAC_LINE_READER_H_

#include <string>
#include <string_view>
#include <vector>

#include "tools/schemac/diagnostics.h"

namespace schemac {

/// One line of a description that says something.
struct Line {
  /// A piece that stands in a line of its own in the file.
  struct Continuation {
    std::size_t offset;  ///< in `text`
    Place place;
  };

  Place place;         ///< of the first character of `text`
  bool indented;       ///< part of the entry above it
  std::string text;    ///< without indentation, comment, reason and trailing blanks
  std::string reason;  ///< what stands behind " -- ": why the line departs from the regular form
  std::vector<Continuation> continuations = {};  ///< in ascending order
};

/// Cuts a description into lines. `#` at the head of a line begins a comment; a line that is
/// indented deeper than six blanks goes on with the line above it; tabs are refused.
std::vector<Line> ReadLines(const std::string& file, std::string_view text);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_LINE_READER_H_

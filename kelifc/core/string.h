#ifndef KELIFC_CORE_STRING_H_
#define KELIFC_CORE_STRING_H_

#include <iosfwd>
#include <string>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// A text attribute: bytes, each one character, or unset. Changing the text through the standard
/// string does not touch the mark; only assignment and parsing do.
class KELIFC_API STRING : public std::string {
 public:
  STRING() = default;
  /// An attribute that is set.
  STRING(const std::string& text) : std::string(text), exists(true) {}
  STRING(const STRING&) = default;
  STRING& operator=(const STRING&) = default;
  virtual ~STRING() = default;

  /// Replaces the text and sets the mark; null unsets it.
  STRING& operator=(const char* text);

  /// Reads a quoted text, skipping all that stands ahead of its first quote. Without a closing
  /// quote the value stays unset, holds what was read, and the cursor does not move.
  virtual const char* Parse(const char* text);
  /// Writes the quoted text, `$` if unset.
  virtual std::ostream& Write(std::ostream& out) const;

  bool GetExists() const { return exists; }

 protected:
  bool exists = false;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_STRING_H_

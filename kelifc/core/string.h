#ifndef KELIFC_CORE_STRING_H_
#define KELIFC_CORE_STRING_H_

#include <iosfwd>
#include <string>

#include "kelifc/platform/export.h"

namespace KelIFC {

class TextAttribute;

/// A text attribute, or unset. Each byte is one character. A change through the members of
/// std::string does not change GetExists; only assignment and Parse do.
class KELIFC_API STRING : public std::string {
 public:
  STRING() = default;
  /// An attribute that is set.
  STRING(const std::string& text) : std::string(text), exists(true) {}
  STRING(const STRING&) = default;
  STRING& operator=(const STRING&) = default;
  virtual ~STRING() = default;

  /// Replaces the text and marks the attribute as existing. Null makes it unset.
  STRING& operator=(const char* text);

  /// Parses a quoted text and skips everything before its first quote. Without a closing quote the
  /// attribute stays unset but holds the text up to the end, and the cursor does not move.
  virtual const char* Parse(const char* text);
  /// Writes the quoted text, or `$` if the attribute is unset.
  virtual std::ostream& Write(std::ostream& out) const;

  /// Returns false if the value is unset.
  bool GetExists() const { return exists; }

 protected:
  bool exists = false;

 private:
  friend class TextAttribute;  // stores the value of a text in less memory
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_STRING_H_

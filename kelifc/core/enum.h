#ifndef KELIFC_CORE_ENUM_H_
#define KELIFC_CORE_ENUM_H_

#include <string>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// An enumeration attribute that keeps its text: the enumerator without its dots, or unset.
class KELIFC_API ENUM : public std::string {
 public:
  ENUM() = default;
  ENUM(const ENUM&) = default;
  ENUM& operator=(const ENUM&) = default;
  virtual ~ENUM() = default;

  /// Parses the text between the first two dots without any change. If a comma precedes the first
  /// dot, or if a dot is missing, the value stays unset and the cursor does not move.
  const char* Parse(const char* text);

  /// Returns false if the value is unset.
  bool GetExists() const { return exists; }

 protected:
  bool exists = false;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_ENUM_H_

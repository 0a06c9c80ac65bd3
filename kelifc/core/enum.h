#ifndef KELIFC_CORE_ENUM_H_
#define KELIFC_CORE_ENUM_H_

#include <string>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// An enumeration attribute whose text is kept: the enumerator without its dots, or unset.
class KELIFC_API ENUM : public std::string {
 public:
  ENUM() = default;
  ENUM(const ENUM&) = default;
  ENUM& operator=(const ENUM&) = default;
  virtual ~ENUM() = default;

  /// Reads what stands between the first two dots, exactly as it is. Where a comma precedes the
  /// first dot, or a dot is missing, the value stays unset and the cursor does not move.
  const char* Parse(const char* text);

  bool GetExists() const { return exists; }

 protected:
  bool exists = false;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_ENUM_H_

#ifndef KELIFC_CORE_LIST_OF_MEMBERS_H_
#define KELIFC_CORE_LIST_OF_MEMBERS_H_

#include <vector>

#include "kelifc/core/aggregate.h"
#include "kelifc/core/member.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A list attribute of references.
class KELIFC_API LIST_OF_MEMBERS : public LIST<MEMBER> {
 public:
  /// An unset attribute of `holder`, which becomes the owner of each reference that is read.
  explicit LIST_OF_MEMBERS(IfcUnknown* holder = nullptr) : owner(holder) {}
  LIST_OF_MEMBERS(const LIST_OF_MEMBERS&) = default;
  LIST_OF_MEMBERS& operator=(const LIST_OF_MEMBERS&) = default;
  ~LIST_OF_MEMBERS() override = default;

  /// Only marks the list as existing: the instances are not taken over.
  LIST_OF_MEMBERS& operator=(const std::vector<IfcUnknown*>& items);

  /// Reads the references between the first parenthesis and its counterpart, or the end of the
  /// text. Unset elements are left out, and an element that is no reference ends the list. The list
  /// exists unless `$` or `*` stands here; without a parenthesis it is empty and the cursor does
  /// not move.
  const char* Parse(const char* text);

 private:
  IfcUnknown* owner;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_LIST_OF_MEMBERS_H_

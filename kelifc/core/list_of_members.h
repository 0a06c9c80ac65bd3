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
  /// An unset attribute of `holder`, which becomes the owner of each parsed reference. `holder` can
  /// be null and must outlive the list.
  explicit LIST_OF_MEMBERS(IfcUnknown* holder = nullptr) : owner(holder) {}
  LIST_OF_MEMBERS(const LIST_OF_MEMBERS&) = default;
  LIST_OF_MEMBERS& operator=(const LIST_OF_MEMBERS&) = default;
  ~LIST_OF_MEMBERS() override = default;

  /// Only marks the list as existing. Does not add the instances.
  LIST_OF_MEMBERS& operator=(const std::vector<IfcUnknown*>& items);

  /// Parses the references between the first parenthesis and its counterpart, or the end of the
  /// text. Unset elements are left out, and an element that is not a reference ends the list. The
  /// list is unset after `$` and `*`; otherwise it exists. Without a parenthesis it is empty and
  /// the cursor does not move.
  const char* Parse(const char* text);

 private:
  IfcUnknown* owner;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_LIST_OF_MEMBERS_H_
